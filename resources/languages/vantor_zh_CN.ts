<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>目标文件夹</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>选择找到的文件存放的位置</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>请在下一个窗口中选择另一个磁盘上的文件夹，切勿选择正在恢复的介质：写入该处的内容可能会覆盖您想找回的文件。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>预览</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>正在准备预览</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>正在从介质读取该项目。较大的项目需要稍候片刻。</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>此处无法读取取证映像</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>取证映像只能在隔离环境中读取，而本系统不允许这样做</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>程序中读取取证映像的部分无法启动</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>取证映像已损坏，或属于无法读取的种类</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>要搜索的文件类型</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>已选择的类型数量</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>预设(&amp;P)</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>选择同属一组的类型</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>文件类型预设</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>搜索类型…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>在文件类型中搜索</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>选择所有文件类型</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>深度搜索</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>标有“深度”的类型会在第二遍扫描介质时搜索。</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Vantor</source>
        <translation>Vantor</translation>
    </message>
    <message>
        <source>Vantor - Memory Card Recovery</source>
        <translation>Vantor - Memory Card Recovery</translation>
    </message>
    <message>
        <source>1.  Choose the memory card and what was lost: photos, videos or other files.
2.  Choose where to search: the entire disk, or a range of sectors.
3.  For videos and files, tick the types you want.
4.  Watch the search. Select what you want back and save it to another disk.

The card is only ever read, never written to. Stop using it until you have your files back.</source>
        <translation>1.  选择存储卡以及丢失的内容：照片、视频或其他文件。
2.  选择搜索位置：整个磁盘或某个扇区范围。
3.  对于视频和文件，请勾选所需的类型。
4.  观察搜索过程。选择要找回的内容，并保存到另一个磁盘。

存储卡只会被读取，绝不会被写入。在找回文件之前，请停止使用该卡。</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>完整图文指南：</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>打开帮助文档</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>关于(&amp;A)…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>关于本程序：版本、许可证、程序库</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>清除设置(&amp;F)</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>以往运行的窗口大小、保存选项和文件夹</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>清除以往运行的设置</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>存储介质</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>正在查找存储介质</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>正在读取存储卡和可移动磁盘的列表。</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Vantor - Memory Card Recovery</source>
        <translation>Vantor - Memory Card Recovery</translation>
    </message>
    <message>
        <source>Steps of the recovery</source>
        <translation>恢复步骤</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>打开帮助窗口 (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>搜索类型：恢复照片</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>搜索类型</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>所选介质的标识</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>扇区</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>所选介质的扇区数</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>显示找到的项目(&amp;I)</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>显示目前找到的项目</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>查看找到的内容并保存</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>搜索如何结束</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>搜索如何结束，以及如何继续</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>搜索找到的内容和所用时间</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>重试坏扇区(&amp;R)</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>重试坏扇区</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>预览和保存时会再次向介质请求先前无法读取的内容</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>深度搜索</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>常规搜索之后，用更长的图片类型列表再搜索一遍。</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>当前搜索过程</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>正在清除尚未就绪的缩略图…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>正在停止搜索</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>速度、剩余时间和找到的项目</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>搜索进度</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>停止搜索</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>立即结束搜索并保留已找到的内容</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>已搜索的扇区</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>在此界面上的操作</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>退出(&amp;X)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>退出程序 (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ 返回(&amp;B)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>返回</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>到上一界面 (Alt+左)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>下一步(&amp;N) ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一步</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>到下一界面 (回车)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>存储介质</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>列表中没有？</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>刷新(&amp;R)</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>刷新介质列表</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>重新查找存储介质 (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>打开映像(&amp;O)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>打开介质的映像文件</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>搜索已保存为文件的介质副本 (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>丢失了什么？</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>恢复模式</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>相机和手机拍摄的图片，找到时即以缩略图显示。</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>您所选类型的影片和短片，每个都有预览。</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>原始文件</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>文档、压缩包、音频以及您选择的所有其他类型。</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>原始文件</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>找到的照片</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>找到的照片数量</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>显示哪些项目</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>排序(&amp;T)</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>项目的排序方式</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>缩略图的缩放</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>保存的文件存放的位置</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>已勾选要保存的内容</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>勾选所示(&amp;K)</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>将显示的全部项目勾选为要保存</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>将显示的全部项目勾选为要保存；Insert 和 Delete 键勾选和取消勾选选中的项目</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>反转勾选(&amp;I)</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>反转所显示项目的勾选</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>在显示的项目中，勾选未勾选的，并取消其余的勾选</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>打开存放已保存文件的文件夹</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>更改文件夹(&amp;C)…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>更改保存文件的文件夹</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>从现在起保存到另一个文件夹</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>已保存的内容</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>选项(&amp;P)…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>保存选项</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>项目的保存方式：名称和文件夹、不含小文件、重复项、报告</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>保存选中项(&amp;L)…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>保存选中的项目</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>保存选中的项目 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>保存勾选项(&amp;V)…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>保存勾选的项目</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>保存所有勾选的项目，包括未显示的项目</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>全部保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>保存所有找到的项目</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>保存所有找到的项目 (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>以列显示详细信息</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>以列显示详细信息 (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
请至少选择一种文件类型。</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>本程序不支持语言“%1”。支持的语言：%2。</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>所有相机的照片</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>办公文档</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>手机</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>录音设备</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>全部</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>“%1”不是文件。</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>map 文件“%1”属于另一个副本。请选择其他名称。</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>“%1”是另一大小的介质的副本。请选择其他名称。</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>另一个搜索正在写入“%1”。</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>“%1”已经存在，且旁边没有 map 文件表明它是可以继续的副本。请选择其他名称。</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>无法使用 map 文件“%1”：%2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>它不存在</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>它太大，不可能是 map 文件</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>无法写入 map 文件“%1”：%2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>该行过长</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>没有给出位置的行</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>应为一个位置、?*/-FG+ 之一和一个遍数</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>应为一个位置、一个大小和 ?*/-+ 之一</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>不可能是这个大小</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>它与上一行重叠</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>它前面有空缺</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>行数过多</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>第 %1 行：%2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>“%1”不是映像文件。</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>无法打开“%1”：%2。</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>“%1”是空的。请选择存储介质的映像文件。</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>无法打开“%1”。</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>“%1”是另一个介质的副本。</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>副本“%1”到此为止：%2。它未包含的内容将从介质读取。</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>您无权读取此卡。请重新搜索，并在要求输入密码时予以允许，或者向本计算机的管理员申请读取存储介质的权限。</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>您无权读取此映像文件。请向其所有者申请读取权限，或索取一份副本。</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>介质已不在。请将其重新插入，然后重试。</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>现在该位置上是另一个介质。请返回介质列表重新选择。</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>映像文件在搜索期间被更改，因此找到的内容可能已损坏。请在不再有程序写入该文件后重新搜索。</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>请先将其解压，再打开其中的映像文件。</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>请先将其转换为原始映像（例如使用“qemu-img convert -O raw”），再打开该映像。</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>请先将其转换为原始映像，再打开该映像。</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>“%1”已打包 (%2)，无法直接搜索。%3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>既不是存储介质，也不是映像文件</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>映像由超过 %1 个部分组成；请先将它们合并为一个文件</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>缺少映像的一个部分：%1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>请输入有效的起始扇区值。</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>请输入有效的结束扇区值。</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
超出最大扇区范围</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
结束扇区必须大于起始扇区。</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>此卡读起来像是已被擦除：除文件系统自身的扇区外，检查过的位置全都是空的。有些相机和程序在格式化时会擦除整张卡，这样就什么也找不到了。</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>小于 100 kB</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>100 kB 到 1 MB</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>1 MB 到 10 MB</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>10 MB 到 100 MB</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>100 MB 到 1 GB</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>大于 1 GB</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>相机 RAW</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音频</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文档</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>压缩包</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>其他</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>不是该类型的文件</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>完整</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>在其标明处结束，内容未检查</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>被截断</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>长度未知</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>由 %1 个碎片拼合而成</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>有扇区未能读取</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 像素</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>拍摄于 %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>“%1”位于要复制的介质上；写入该处会覆盖尚待找回的内容。请选择另一个磁盘上的位置。</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1。副本将在该处结束；搜索会从介质继续。</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>此磁盘上的文件最大为 4 GB。副本将在该处结束；搜索会从介质继续。</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>存放副本的磁盘每秒只能写入 %1：完整副本约需 %2 分钟。</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 个坏扇区</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 个坏扇区</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>已复制 %1%</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>正在读取其周围</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>介质已不在</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>副本已结束</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>另一个介质</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>已复制 %1，共 %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>略过坏扇区之间的 %1 个扇区</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>文件夹 %1 不存在。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 不是文件夹。</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>无法在文件夹 %1 中写入内容：%2。</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 位于 FAT 文件系统上，该文件系统不接受 4 GiB 或更大的文件，而需要 %2</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>%1 中空间不足：需要 %2，可用 %3</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>文件夹 %1 已不存在</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>文件夹 %1 位于正在搜索的介质上</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>介质已无法读取</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>它的扇区全都无法读取</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>仍然存在</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>已删除</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>所在文件夹已丢失</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>更改于 %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>小于所要求的大小</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>%1 的一部分</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>仍作为文件存在</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>长度为估计值</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 个扇区无法读取</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>总计</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完整</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>在标明处结束</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>被截断</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>已损坏</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>长度未知</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重复项</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>已略过</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失败</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>已略过：%1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>失败：%1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>与之前的文件字节相同；%1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 到 %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>介质</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>512 字节的扇区</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>搜索内容</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>开始</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>结束</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>恢复报告</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>卡上位置</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>拍摄时间</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>像素</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>所在扇区</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>files</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>照片</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>无法将报告写入 %1：%2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>已跳过</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>其中：%1。</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>%1无法保存：</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   另有 %1 个</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>没有保存任何新内容。</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>没有保存任何内容。</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>已保存 1 个文件。</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>已保存 %1 个文件。</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>它们位于 %1。</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>%1只能部分读取；无法读取的部分以零填充。</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>已略过：%1，%2。</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>未再次写入：%1，相同的内容已经保存。</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>小于您要求的大小</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>肯定不是该类型的文件</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>仍作为文件存在于卡上</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>已完整保存的文件的一部分</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>存储介质在此期间断开。请将其重新插入，然后再次保存。</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>由于您已取消，其余部分没有保存。</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>目标文件夹中的“%1”说明了每个文件的详情。</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>%1 个完整</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>%1 个在其标明处结束（内容未检查）</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>%1 个被截断</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>%1 个已损坏</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 个长度未知</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>已保存 %1 个到 %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>已保存 %1 个到 %2 (%3)：%4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 个使用卡上仍记录的名称</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>其中 %1 个有无法读取的扇区</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 个未再次写入：相同的字节已经保存</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 个已略过：小于所要求的大小</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 个已略过：不是该类型的文件</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 个已略过：仍作为文件存在于卡上</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 个已略过：已完整保存的文件的一部分</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>扇区 %1 / %2   ( 已完成 %3% )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
要选择其他磁盘进行恢复，请点击“返回”按钮。</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>剩余几秒</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>剩余约 %1 秒</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>剩余约 %1 分钟</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>剩余约 %1 小时</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>找到 1 个项目</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>找到 %1 个项目</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( 当前搜索依据：Vantor 常规恢复过程 )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( 当前搜索依据：Vantor 深度扫描算法 )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
要停止恢复，请点击“停止”按钮，或等待过程完成。</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
读取存储介质时出错。</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>扇区 %1，共 %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>深度搜索</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1中断（%2）。</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>搜索已完成。</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>搜索已完成，但有 1 个扇区无法读取。</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>搜索已完成，但有 %1 个扇区无法读取。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1在 %2 % 处停止（%3）。</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>无法再次打开介质进行深度搜索。</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>无法打开介质。</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1没有可搜索的内容。</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>介质已被取出或停止响应（%1）。</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1因读取错误而结束（%2）。</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>此前的常规搜索是完整的。</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>请将介质重新插入。</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>这不是本程序保留的搜索。</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>该文件已损坏。</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>“%1”是空的：其中没有一个完整的扇区。</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>仍已搜索；只能找到未经压缩存储的内容。</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>根据 map 文件，共 %1 个扇区的“%2”中有 %3 个未读取。</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>“%1”既不是文件，也不是本机的存储介质。</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>损坏的文件保持原样：无法打开介质。</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>已补全 %1 个损坏的视频（共 %2 个），另拼合 %3 个：请查看</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>已补全 %1 张损坏的照片（共 %2 张），另拼合 %3 张：请查看</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>照片模式不搜索视频，因此不补全任何视频</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>照片模式不搜索视频，因此不修复任何视频</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1：完整，由 %2 个碎片组成</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1：由 %2 个碎片拼合而成，请查看</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>在搜索时将介质复制到此映像文件，每个扇区只读一次；之后搜索和保存都读取该副本。FILE.map 记录已读取的内容。已有的副本会继续使用，包括 GNU ddrescue 的副本。</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>与 --image 一起使用：还逐个读取相隔较远的坏扇区之间的扇区；可能需要很长时间。</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>映像 MEDIUM 的 map 文件，格式与 GNU ddrescue 所写的相同：未标为已救出的内容视为无法读取。不指定时，使用映像旁边的 map 文件（如果有）：card.img.map、card.map，以及 .mapfile 和 .log。</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map 需要一个文件。</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image 需要一个文件。</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape 须与 --image 一起使用。</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>特征目录与开始搜索时所用的不同。</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>无法打开介质 %1。</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 不是搜索过的介质。</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>无法打开介质。</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>无法读取介质的目录。</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>可能缺少文件名，以及只有目录中才有记录的文件。</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>内存不足，无法继续。到目前为止保存的内容是完整的。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>扇区</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>未找到存储介质。请插入存储卡或 U 盘，或者改为指定一个映像文件。</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>无法读取视频 %1。</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 不是可修复类型的完整 MP4 或 QuickTime 视频。</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>已修复 %1 个缺少索引的视频，共 %2 个</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1：未找到其相机拍摄的完整视频</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1：未找到画面</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1：%2 帧画面，%3 秒，以及 %4 秒音频，参照 %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
退出代码：0 已完成，2 用法错误，3 已停止，4 介质未能读到末尾，5 无法打开介质，
6 有找到的内容未能保存。
Ctrl-C 与“停止”按钮一样结束搜索：此前找到的内容都会保留并保存。
介质只会被读取。
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
请尝试 --help。</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>根据文件开头的字节，在存储介质上查找照片、视频和其他文件。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>显示此帮助。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>显示版本。</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>搜索内容：photo（默认）、video 或 rawfile。</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>仅限这些文件类型，以逗号分隔（video 和 rawfile 模式）：扩展名，或 @photos、@office、@phone、@recorder、@everything。</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>仅限从 START 起到 END 为止（不含 END）的扇区。</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>省略照片模式的深度搜索。</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>在深度搜索和保存时再次向介质请求坏扇区。</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>将搜索保留在 FILE 中，以便 --resume 继续。</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>继续保留在 FILE 中的搜索；可省略 MEDIUM。</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>六个特征目录所在的文件夹。</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>每个找到的项目输出一个 JSON 对象，结束时再输出一个。</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>列出本机的存储介质（与 --list-json 一起使用时为 JSON），不进行搜索。</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>输出介质自身的目录所记录的文件（现存的和曾经存在的），每个文件一个 JSON 对象，不进行搜索。</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>列出此模式下 --types 可选的内容，不进行搜索。</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>除错误外不输出任何内容，也不显示进度。</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>使用此语言（en、de、fr、es、it、pt_BR、nl、pl、ja 或 zh_CN）代替桌面语言；与 --list-json 一起使用时始终为英语。</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>映像文件、设备标识 (sdb1) 或其路径 (/dev/sdb1)。</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>未知模式“%1”。</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>搜索内容已记录在 --resume 的文件中。</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>未指定用于保留搜索的文件。</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>照片模式会搜索其所有类型；--types 须与 video 或 rawfile 一起使用。</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range 的形式为 START:END。</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>照片模式会搜索其所有类型；--list-types 须与 video 或 rawfile 一起使用。</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types 不接受介质。</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media 不接受介质。</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>未指定介质。</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>指定了多个介质。</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>正在补全损坏的文件：%1 / %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 位于要搜索的介质上；保存到该处会覆盖尚待找回的内容。请选择另一个磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>无法写入文件夹 %1。</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>无法复制 %1：其大小未知。</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>文件夹 %1 中没有可读取的特征目录。</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>此模式下没有该文件类型：%1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>仍已搜索。</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 位于要搜索的介质上。</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>搜索无法继续。%1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>无法将搜索保留在 %1：%2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>将找到的内容保存为 DIR/&lt;type&gt;/&lt;name&gt;，每个文件的长度以其格式为准，相同的字节只保存一次；不覆盖任何内容。</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>按列出的内容保存每个找到的项目的扇区，不多也不少。</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>在保存的文件旁写入“Recovery report.html”和“Recovery report.csv”。</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original（默认）：以卡的目录仍记录的名称保存（若有记录）；found：以列出的名称保存。</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card（默认）：保存到卡的目录仍记录的文件夹中，未记录的保存到 DIR/&lt;type&gt;；type：全部保存到 DIR/&lt;type&gt;；date：日期已知时保存为 DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt;。</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>不保存卡上仍作为文件存在的内容。</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>与 --folders date 相同。</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>不保存字节数少于此值的文件。</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>不保存长边像素少于此值的图片。</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>再次找到相同的字节时，再次保存。</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>不保存肯定不是该类型文件的内容。</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>也保存文件的组成部分，例如图片的预览图或压缩包中的成员：即完全位于已证实完整的文件之内的内容，否则会被略过。</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>为每个从未写入索引的 MP4、QuickTime 或 AVI 视频写入一个可播放的版本“... repaired.MP4”；对于 MP4 和 QuickTime，还须找到同一相机拍摄的一个完整视频。</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>该相机拍摄的一个完整视频，用来代替找到的视频（与 --repair-movies 一起使用）。</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save 需要一个文件夹。</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 须与 --save 一起使用。</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published 不检查任何文件，因此不知道名称、日期、像素和完好程度。</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names 可取 original 或 found。</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders 可取 card、type 或 date。</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date 即 --folders date。</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference 须与 --repair-movies 一起使用。</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes 和 --min-pixels 需要一个数字。</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>另有 %1 个仅在卡的目录中有记录的文件</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  以及其他</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>报告：%1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>从该处继续：--resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>从该处继续：--range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>无法将找到的内容写入标准输出。</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>并非所有项目都能再次读取；未能读取的没有校验和。</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>副本：%1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>搜索整个磁盘</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>选择更多文件类型</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>开启深度搜索</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>搜索视频或原始文件类型</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>尚未找到照片</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>搜索过程中照片会显示在这里。</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>尚未找到任何内容</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>搜索过程中项目会显示在这里。</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>未找到照片</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>未找到任何内容</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>已对全部范围搜索了所有类型。请尝试其他介质。</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>您可以返回并%1。</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>您可以返回并%1，或者%2。</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>找到的项目中没有符合条件的</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>点击左侧的“所有项目”并清空搜索框，即可查看找到的全部内容：%1。</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>找到的项目中没有这一类</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>在上方选择“所有项目”，即可查看找到的全部内容：%1。</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>找到的项目中没有此类型</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>点击“显示所有类型”，即可查看找到的全部内容：%1。</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>找到的项目中没有此类型和类别</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>点击“显示所有类型”并在上方选择“所有项目”，即可查看找到的全部内容：%1。</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>日期未知</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>yyyy年M月d日 ddd</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>图片</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>找到 1 张照片</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>找到 %1 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>找到 1 个视频</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>找到 %1 个视频</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>找到 1 个文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>找到 %1 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>“%1”，%2：已读取 %3 %，%4。</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>选择目标文件夹</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Vantor Recovery maintainers

本程序是自由软件，采用 GNU 通用公共许可证第 3 版或更新版本：您可以使用、研究、分享和修改它。本程序不附带任何担保。

使用 %1 制作。

运行于 %2。</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>磁盘				：</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>卷名	：</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>文件系统		：</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>容量（大小）	：</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>起始扇区		：</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>结束扇区		：</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>超过 %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>扇区 %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>扇区 %1 到 %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>从扇区 %1 起，分为碎片</translation>
    </message>
    <message>
        <source>some</source>
        <translation>有</translation>
    </message>
    <message>
        <source>none</source>
        <translation>无</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>尚未检查</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>卡上的名称</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>时长</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>碎片</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>无法读取的扇区</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>尚未</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>搜索类型：恢复视频</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>搜索类型：恢复原始文件</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>搜索类型：恢复照片</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 分 %2 秒</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 小时 %2 分</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>无图片：本系统无法隔离解码器（没有 seccomp 过滤器），而介质上的任何内容都不会在隔离之外解码。</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>无图片：负责解码的程序无法启动。请重新安装本程序。</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>无图片：文档只在 bubblewrap 内绘制，而它未安装或不能在本系统上运行。</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>找到 %1 个</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>找到 %1 个：%2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>请先将其导出为原始 (dd) 或 E01 映像，再打开该映像。</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>其中是单个文件，而不是存储介质。请打开介质的映像。</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>完整，由 %1 个碎片拼合而成</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>由 %1 个碎片拼合而成：请查看</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>已修复：%1 帧画面，%2 秒，以及 %3 秒音频，参照 %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 个已拼合或修复（请查看）</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>已修复</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 个碎片</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>修补</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>像素未知</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>小于 100 万像素</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>100 万到 400 万像素</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>400 万到 1200 万像素</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>1200 万到 3000 万像素</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>大于 3000 万像素</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>按“继续”搜索其余部分。</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>已补全 %1 个损坏的文档和压缩包（共 %2 个），另拼合 %3 个：请查看</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>将分散为碎片的 MP4、QuickTime 和 AVI 视频、JPEG 或 PNG 图片、ZIP 压缩包以及办公文档拼合，保存为“... complete.MP4”；无法证实所有碎片都正确时，保存为“... put together.MP4”。</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 个已略过：仅在卡的目录中有记录的文件总共会超过卡容量的两倍</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>正在检查已保存文件的内容：%1/%2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>时长未知</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>小于 10 秒</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>10 秒到 1 分钟</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>1 到 5 分钟</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>5 到 30 分钟</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>大于 30 分钟</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>您的磁盘配额已用完</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>磁盘为只读</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>磁盘无法容纳这么长的文件</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>磁盘报告了错误</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>您没有执行此操作的权限</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>名称太长</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>没有此名称的内容</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>设备不存在</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>设备中没有介质</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>文件夹 %1 指向别处</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>无法创建文件夹 %1：%2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>搜索条件</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>整个磁盘</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>搜索介质的每个扇区。不确定时的最佳选择。</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>整个磁盘</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>扇区范围</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>仅在您指定的两个扇区之间搜索。</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>扇区范围</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>存储介质</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;无&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>卷名</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>首个扇区</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>结束扇区</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>扇区从 0 开始计数；每个扇区 512 字节。结束扇区本身不搜索。</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>滑块无法到达此介质的所有扇区：最多到扇区 2,147,483,647。要从更靠后的位置开始或结束，请直接输入扇区。</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>起始扇区</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>从此扇区开始</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>起始扇区滑块</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小值</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Smallest Start Sector</source>
        <translation>最小起始扇区</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大值</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>最大起始扇区</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>结束扇区</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>到此扇区结束</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>结束扇区滑块</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>最小结束扇区</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>最大结束扇区</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>找到的文件的保存位置</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>目标文件夹</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>尚未选择；可在此处或保存时选择</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>浏览(&amp;R)…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>浏览目标文件夹</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>按类型</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>按类型列出找到的项目</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>仅找到的类型(&amp;U)</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>仅显示找到的类型</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>显示所有类型(&amp;Y)</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>重新显示所有类型的项目</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>找到的项目</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>找到的项目数量</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>显示(&amp;W)</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>显示哪些项目</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>排序(&amp;T)</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>项目的排序方式</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>未选择要预览的文件</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>预览视频</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>预览项目的信息</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>保存的文件存放的位置</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>已勾选要保存的内容</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>勾选所示(&amp;K)</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>将显示的全部项目勾选为要保存</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>将显示的全部项目勾选为要保存；Insert 和 Delete 键勾选和取消勾选选中的项目</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>反转勾选(&amp;I)</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>反转所显示项目的勾选</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>在显示的项目中，勾选未勾选的，并取消其余的勾选</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>打开文件夹(&amp;F)</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>打开存放已保存文件的文件夹</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>更改文件夹(&amp;C)…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>更改保存文件的文件夹</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>从现在起保存到另一个文件夹</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>已保存的内容</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>选项(&amp;P)…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>保存选项</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>项目的保存方式：名称和文件夹、不含小文件、重复项、报告</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>保存选中项(&amp;L)…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>保存选中的项目</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>保存选中的项目 (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>保存勾选项(&amp;V)…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>保存勾选的项目</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>保存所有勾选的项目，包括未显示的项目</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>全部保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>保存所有找到的项目</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>保存所有找到的项目 (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>图片的大小</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>以列显示详细信息</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>以列显示详细信息 (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>搜索已结束</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>照片搜索已结束</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>找到的照片以缩略图显示。请选择需要的照片并点击“保存选中项”，或点击“全部保存”保存所有照片。保存之前，它们并不在您的磁盘上。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>SaveFileInfoForRaw</name>
    <message>
        <source>Search ended</source>
        <translation>搜索已结束</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>文件搜索已结束</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>左侧的表格统计每种类型找到的数量。选择一个项目进行预览，然后点击“保存选中项”，或点击“全部保存”保存所有项目。保存之前，任何内容都不在您的磁盘上。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>SavingOptions</name>
    <message>
        <source>Options for saving</source>
        <translation>保存选项</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>文件夹(&amp;L)</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>存放已保存文件的文件夹</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>卡上没有记录或日期未知的项目，放入其类型的文件夹</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>使用文件在卡上的名称(&amp;N)</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>使用文件在卡上的名称</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>以卡上仍有的记录为限</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>略过小图片(&amp;P)，长边小于</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>略过小图片</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> 像素</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>长边的最少像素</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>略过小文件(&amp;F)，小于</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>略过小文件</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>最小大小（千字节）</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>略过肯定不是该类型文件的内容(&amp;C)</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>略过肯定不是该类型文件的内容</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>仅开头像该类型文件的字节</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>也保存文件的组成部分(&amp;T)</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>也保存文件的组成部分</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>完全位于已证实完整的文件之内的内容，例如图片的预览图</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>保留重复项(&amp;K)</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>保留重复项</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>相同的内容每次找到时都再次保存</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>在保存的文件旁写入恢复报告(&amp;R)</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>在保存的文件旁写入恢复报告</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>一个供阅读的页面，以及一个供其他程序使用的表格</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>SavingProgress</name>
    <message>
        <source>Saving</source>
        <translation>正在保存</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>已保存的项目数量</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>正在保存的文件</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>保存进度</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>速度和剩余时间</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>耗时较长的原因</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>跳过此文件(&amp;S)</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>跳过此文件并继续下一个</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>取消保存</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>磁盘服务已找不到该卡。</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>磁盘服务没有响应。</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>磁盘服务拒绝了此操作。</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>所有项目</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完整</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>长度未知</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>含无法读取的扇区</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>尚未保存</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>不含小文件</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>不含误判</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>仅已丢失的</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>按找到的顺序</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>按完好程度</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>按大小</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>按拍摄日期</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>按卡上的名称</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>不完整或已损坏</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>已拼合或修复</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>按名称</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>按类型</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>按相机</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>按像素</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>按时长</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>按卡上位置</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>卡的示意图</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1（已用 %2）</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>文件系统未知</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>不会搜索任何部分</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>搜索全部</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>搜索其中的 %1</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>按厂商的算法为 %1</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>范围内已读取的部分</translation>
    </message>
    <message>
        <source>read</source>
        <translation>已读取</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>有发现</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>坏</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>待搜索</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>卡上的名称</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>相机</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>像素或时长</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状态</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>卡上位置</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1，已保存</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>详细信息的列</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>按名称搜索</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>按名称搜索找到的项目，包括卡上的名称</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>找到的内容，按类型、日期、相机和大小</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>点击仅显示这些；按住 Ctrl 可多选</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>所有项目</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>按日期</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>按相机</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>按大小</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>无类型</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>相机未知</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>仅卡上有名称</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>另有 1 个仅在卡的目录中有记录的文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>另有 %1 个仅在卡的目录中有记录的文件</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>“全部保存”也会保存它们。</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>以及另外 %1 个</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>按像素</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>按时长</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>无法打开帮助文档。</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>此桌面没有可显示 PDF 文档的程序。文档位于：</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>帮助文件不存在！</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>已保存</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>已勾选</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>查看器</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ 结果</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>返回结果 (Esc)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适应</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>整张图片 (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>实际大小 (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>缩小 (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>放大 (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全屏</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>全屏 (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>信息</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>在旁边显示信息 (I)</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>视频</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Item before this one (Left)</source>
        <translation>上一个项目 (左)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>下一个项目 (右)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>%1 的图片</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>勾选</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>勾选为要保存 (Insert, Delete)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>已勾选</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>记住此搜索(&amp;M)</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>以便日后继续，断电后也可以。它会取代目前记住的搜索。</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>搜索时保留卡的副本(&amp;C)</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>选择(&amp;S)…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>选择副本的存放位置</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>最适合出故障或速度慢的卡：卡只读一次，其余操作都读取副本。</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>以便日后继续，断电后也可以。</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>记住的搜索</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>继续(&amp;G)</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>搜索介质的其余部分；已读取的部分不再搜索</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>显示找到的内容(&amp;W)</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>列出该搜索已找到的内容，不继续搜索</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>忘记(&amp;F)</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>删除此搜索的记录；已保存的文件保留不动</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>继续记住的搜索</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>显示记住的搜索找到的内容</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>忘记记住的搜索</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>记住的搜索：%1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>显示找到时的文件 (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>找到时</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>显示拼合后的文件 (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>已修复</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>已拼合</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>补全损坏文件的进度及结果</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>补全损坏文件的进度</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>停止(&amp;O)</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>停止补全损坏的文件；已拼合的内容会保留</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>显示这些(&amp;E)</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>显示已拼合或修复的文件</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>关闭(&amp;D)</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>关闭此消息</translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation>已播放时间和时长</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>播放 (空格)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>关闭声音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>暂停 (空格)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>打开声音</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
<context>
    <name>vantor::MovieView</name>
    <message>
        <source>Play or pause (Space)</source>
        <translation>播放或暂停 (空格)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>无视频</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>选择一个项目进行预览。</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>已选中 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1，无缩略图</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>全部保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>全部保存所示 (%1)(&amp;A)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>保存所有找到的项目</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>保存显示的所有项目</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>已保存 %1 个，共 %2 个</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>选项(&amp;P)…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>选项 (%1)(&amp;P)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>选择卡的副本的存放位置</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>介质映像 (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>副本不能存放在该处。</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>该文件夹位于要搜索的介质上；写入该处会覆盖尚待找回的内容。请选择另一个磁盘上的位置。</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>空间不足，无法存放副本。</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>最多需要 %1，而 %3 中可用 %2。请选择另一个磁盘上的位置，或不保留副本进行搜索。</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1：最多需要 %2，可用 %3</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1：最多需要 %2</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>卡的状况</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>保留副本(&amp;E)…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>搜索会暂停片刻再继续，并将卡只读取一次，存入您选择的文件</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>此卡正在出现故障：1 个坏扇区。</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>此卡正在出现故障：%1 个坏扇区。</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>此卡速度非常慢。</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>请保留副本，使每个扇区只读取一次。</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>副本：%1</translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation>副本：%1。%2</translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation>程序结束后，找到的项目列表将丢失。</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>不保存并退出</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
确实要退出“%1”吗？</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>有 %1 个找到的项目（共 %2 个）尚未保存。</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>找到的项目尚未保存。</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>找到的 %1 个项目均未保存。</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>留下</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>%1 组的所有类型</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>全选(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>全选所示(&amp;A)</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>没有匹配的类型</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>无文件类型</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>清空搜索框即可查看所有类型。</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>无法读取文件类型目录。请重新安装本程序。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>对项目的操作</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>放大显示(&amp;L)</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>显示信息(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>保存选中项(&amp;S)…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>选择 %1 当天的全部(&amp;D)</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>选择当天的全部(&amp;D)</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>选择全部 %1 类型(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>继续(&amp;G)</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>继续搜索</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>搜索介质的其余部分；已读取的部分不再搜索</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>搜索重新开始。</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>该搜索开始时所用的特征列表与本版本程序的不同。</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>此搜索不会被记住。</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>您的主文件夹位于要搜索的介质上；写入该处会覆盖尚待找回的内容。</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>搜索无法继续。</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>这不是搜索过的介质。请插入正确的介质，然后重试。</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>无法打开介质。请将其重新插入，然后重试。</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>此搜索的介质不在。</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>该介质是 %1。请将其插入或打开其映像，然后重试。</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>这不是搜索过的介质。</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>其内容与 %1 不同。请插入正确的介质，然后重试。</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>无法打开此搜索的介质。</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>在介质无法再打开之前，找到了 1 个项目。</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>在介质无法再打开之前，找到了 %1 个项目。</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>列表会一直保留，直到您再次搜索或返回。</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>存储介质没有响应。</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>之前的搜索尚未结束。请取出介质并重新插入，然后重试。</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>新的搜索会清空找到的项目列表。</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>不保存并搜索</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>无法打开映像。</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>无法打开 %1 个映像。</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>选择视频</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>此文件夹不能作为目标。</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>它位于您正在恢复的存储介质上。写入该处会覆盖您想找回的文件。请选择另一个磁盘上的文件夹。</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>请选择其他文件夹。</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>包含 %1 的磁盘已被取出。请将其重新插入，或更改文件夹。</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 已被删除或重命名，或其磁盘已被取出。请将其还原，或更改文件夹。</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>目标已不存在。</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>尚未选择保存文件的文件夹</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>文件将保存到 %1，但该文件夹不存在</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>文件将保存到 %1（可用 %2）</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>文件将保存到 %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>此桌面没有可显示文件夹的程序。</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>它已不存在。</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>无法打开该文件夹。</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>无法读取存储介质。</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>这仍是 %1 的预览。</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>选择一个项目进行预览。</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>超过 %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>%1 的预览</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>如果选择“整个磁盘”，Vantor Recovery 会在所选磁盘的全部存储空间中搜索丢失的数据。如果要在特定的扇区范围或分区内搜索，请选择其他搜索条件。否则请点击“下一步”按钮，开始在整个磁盘中搜索数据。</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>“扇区范围”可指定存储介质的起始扇区和结束扇区，并在两者之间搜索丢失的数据。请拖动滑块设置扇区范围，也可以在“起始扇区”和“结束扇区”框中手动输入数值。</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>设置已清除。</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>再次启动程序时，窗口、保存选项和文件夹将与首次启动时相同。</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>您取消的保存仍被它拖住。请取出介质并重新插入，然后重试。</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>搜索仍在继续。</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>未选择要预览的文件</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
请从列表中选择一个存储介质。</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>返回时，找到的项目列表会被清空。</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>不保存并返回</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
请从列表中选择要恢复数据的存储介质。点击“下一步”按钮继续... </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
请选择要恢复的文件类型。点击“下一步”按钮继续... </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>介质</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>范围</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>文件类型</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>恢复</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>无法记住此搜索：%1。</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 张照片</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 张照片</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>全部完整</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>请点击“停止”，或让搜索继续。</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>未找到</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>无类型</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>未找到您勾选的类型的任何内容。</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>请返回并勾选要搜索的类型。</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>磁盘</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>扇区</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>文件系统</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>整个磁盘</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>搜索</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>深度</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>类型</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>说明</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>找到</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>未找到存储介质</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>请插入存储卡或连接读卡器并点击“刷新”，或打开介质的映像文件。您也可以将映像文件拖放到此处。</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>扇区 0 / 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>已勾选 %1 个，共 %2 个，%3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>取消勾选所示(&amp;K)</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>勾选所示(&amp;K)</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>取消勾选显示的全部项目</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>将显示的全部项目勾选为要保存</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>保存勾选项 (%1)(&amp;V)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>打开介质的映像文件</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>介质映像 (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;所有文件 (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>补全损坏的文件(&amp;M)</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>补全损坏的文件</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>在介质上查找照片和视频缺失的碎片，并修复缺少索引的视频；找到的内容会原样保留在旁边</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>正在查找损坏的文件：%1 / %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>正在补全损坏的视频…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>正在补全损坏的视频：%1 / %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>正在补全损坏的照片…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>正在补全损坏的照片：%1 / %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>正在修复缺少索引的视频…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>正在修复缺少索引的视频：%1 / %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>损坏的文件保持原样：无法打开存储介质。请将其重新插入，然后重试。</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>存储介质已断开。请将其重新插入，然后重试。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>已停止。</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>已补全 1 个文件</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>已补全 %1 个文件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>已拼合 1 个文件（请查看）</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>已拼合 %1 个文件（请查看）</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>已修复 1 个视频</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>已修复 %1 个视频</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>没有找到可补全种类的损坏文件。</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>没有能够补全的损坏文件。</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>正在写入其他文件。请稍后再次拖动。</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>空间不足，无法准备要拖动的 %1。请改为保存这些文件。</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>无法从存储介质读取这些文件。</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>正在准备文件…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>文件仍在写入。请稍后再次拖动。</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>另存为</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>可以取出存储卡了。</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>无法弹出存储卡。</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>取消勾选保存(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>勾选保存(&amp;U)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>另存为(&amp;V)…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>搜索选项</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>正在补全损坏的文档…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>正在补全损坏的文档：%1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>%2 个文件中有 %1 个无法拖动。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>碎片 %1：扇区 %2 到 %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>卡上的碎片</translation>
    </message>
    <message>
        <source>File</source>
        <translation>文件</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>存储卡</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>约需 %1，而 %3 中可用 %2。</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>按找到时的大小，这些文件约需 %1；检查之后往往会变短。%3 中可用 %2。</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>目标中的空间可能不足。</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>放得下的会完整保存；其余的会被略过并留在列表中。</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>保存放得下的</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>更改文件夹…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>没有保存任何内容。</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>存储介质已无法读取。请将其重新插入，然后重试。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>弹出存储卡</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>与卡上相同</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>按类型</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>按类型和日期</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>介质拒绝读取此文件的扇区：目前 %1。每个可能耗时数秒。其后的内容仍会读取。</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>正在保存 %1 / %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>正在检查内容：%1/%2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>不再从介质读取任何数据。“取消”只会结束这项检查。</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>第 %1 步，共 %2 步：%3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>已选中</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>未选中</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>正在加载…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>无法读取存储介质。</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>无法显示此文件的图片。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
</TS>
