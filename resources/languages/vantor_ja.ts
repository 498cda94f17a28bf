<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>保存先フォルダー</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>見つかったファイルの保存先を選びます</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>次の画面で、別のディスク上のフォルダーを選んでください。復元元のメディアは決して選ばないでください。そこに書き込むと、取り戻したいファイルそのものが上書きされるおそれがあります。</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>プレビュー</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>プレビューの準備</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>メディアから読み込んでいます。大きなファイルでは少し時間がかかります。</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>ここでは証拠イメージを読み取れません</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>証拠イメージは隔離された状態でのみ読み取りますが、このシステムでは隔離できません</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>証拠イメージを読み取るプログラムの部品が起動しません</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>証拠イメージが壊れているか、読み取れない種類です</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>検索するファイルの種類</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>選択されている種類の数</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>プリセット(&amp;P)</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>まとまった種類を選択します</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>ファイルの種類のプリセット</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>種類を検索…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>ファイルの種類を検索します</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>すべてのファイルの種類を選択します</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>徹底検索</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>「徹底」と記された種類は、メディアの 2 回目の走査で検索されます。</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
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
        <translation>1.  メモリーカードと、失ったもの（写真、ビデオ、その他のファイル）を選びます。
2.  検索する場所（ディスク全体、またはセクターの範囲）を選びます。
3.  ビデオとファイルの場合は、種類を選びます。
4.  検索を見守り、取り戻したいものを選んで、別のディスクに保存します。

カードは読み取るだけで、書き込むことはありません。ファイルを取り戻すまで、カードを使わないでください。</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>図入りのガイド全文:</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>ヘルプ文書を開きます</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>このプログラムについて(&amp;A)…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>このプログラムについて: バージョン、ライセンス、ライブラリ</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>設定を消去(&amp;F)</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>以前の実行でのウィンドウの大きさ、保存オプション、フォルダー</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>以前の実行の設定を消去します</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>ストレージメディア</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>ストレージメディアの検索</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>メモリーカードとリムーバブルディスクの一覧を読み込んでいます。</translation>
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
        <translation>復元の手順</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>ヘルプ画面を開きます (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>検索の種類: 写真の復元</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>検索の種類</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>選択したメディアの識別子</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>セクター数</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>選択したメディアのセクター数</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>見つかった項目を表示(&amp;I)</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>これまでに見つかった項目を表示します</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>見つかったものを確認して保存します</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>検索の結果</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>検索がどのように終わったか、どのように続けるか</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>検索で見つかったものと、かかった時間</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>不良セクターを再試行(&amp;R)</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>不良セクターを再試行</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>読み取れなかった部分を、プレビューと保存のときにもう一度メディアに要求します</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>徹底検索</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>一般検索のあとに、より多くの画像の種類でもう一度検索します。</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>現在の検索手順</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>準備のできていないサムネイルを片付けています…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>検索を停止しています</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>速度、残り時間、見つかった項目</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>検索の進行状況</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>停止(&amp;S)</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>検索を停止</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>検索を今すぐ終了し、見つかったものを残します</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>検索したセクター</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>この画面ですること</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>終了(&amp;X)</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>プログラムを終了します (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ 戻る(&amp;B)</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>戻る</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>前の画面へ (Alt+←)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>次へ(&amp;N) ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>次の画面へ (Enter)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>ストレージメディア</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>一覧にありませんか？</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>更新(&amp;R)</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>メディアの一覧を更新</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>ストレージメディアをもう一度探します (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>イメージを開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>メディアのイメージファイルを開く</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>ファイルとして保存されたメディアのコピーを検索します (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>何を失いましたか？</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>復元の対象</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>カメラやスマートフォンの写真です。見つかるたびにサムネイルで表示されます。</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>選んだ種類の映画やクリップを、それぞれプレビュー付きで表示します。</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>その他のファイル</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>文書、アーカイブ、音声など、選んだすべての種類。</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>その他のファイル</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>見つかった写真</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>見つかった写真の数</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>表示(&amp;W)</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>どの項目を表示するか</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>並べ替え(&amp;T)</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>項目の並べ替え方</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>サムネイルの拡大率</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>保存したファイルの行き先</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>保存のためにチェックした項目</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>表示中をチェック(&amp;K)</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>表示中のすべてを保存用にチェックします</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>表示中のすべてを保存用にチェックします。Insert と Delete で選択項目のチェックを付け外しします</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>チェックを反転(&amp;I)</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>表示中の項目のチェックを反転</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>表示中の項目のうち、チェックのないものにチェックを付け、残りは外します</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>保存したファイルのフォルダーを開きます</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>フォルダーを変更(&amp;C)…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>ファイルの保存先フォルダーを変更</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>これ以降、別のフォルダーに保存します</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>保存済みの項目</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>オプション(&amp;P)…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>保存のオプション</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>保存方法: 名前とフォルダー、小さなファイルの除外、重複、レポート</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>選択項目を保存(&amp;L)…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>選択項目を保存</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>選択項目を保存します (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>チェック項目を保存(&amp;V)…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>チェック項目を保存</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>チェックしたすべての項目を、表示されていないものも含めて保存します</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>すべて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>見つかった項目をすべて保存</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>見つかったすべての項目を保存します (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>列で詳細を表示</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>列で詳細を表示 (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
ファイルの種類を少なくとも 1 つ選択してください。</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>このプログラムは「%1」に対応していません。対応する言語: %2。</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>すべてのカメラの写真</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>オフィス文書</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>スマートフォン</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>ボイスレコーダー</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>すべて</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>「%1」はファイルではありません。</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>マップ「%1」は別のコピーのものです。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>「%1」は大きさの異なるメディアのコピーです。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>「%1」に書き込めません: %2。</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>「%1」は別の検索が書き込み中です。</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>「%1」はすでにあり、続行できるコピーであることを示すマップがありません。別の名前を選んでください。</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>マップ「%1」は使用できません: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>ありません</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>マップとしては大きすぎます</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>マップ「%1」に書き込めません: %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>行が長すぎます</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>位置を示す行がありません</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>位置、?*/-FG+ のいずれか、およびパスが必要です</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>位置、サイズ、および ?*/-+ のいずれかが必要です</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>サイズがあり得ない値です</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>前の行と重なっています</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>前に空きがあります</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>行が多すぎます</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>%1 行目: %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>「%1」はイメージファイルではありません。</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>「%1」を開けません: %2。</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>「%1」は空です。ストレージメディアのイメージファイルを選んでください。</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>「%1」を開けません。</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>「%1」は別のメディアのコピーです。</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>コピー「%1」はここで終わります: %2。コピーにない部分はメディアから読み取ります。</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>このカードを読み取る権限がありません。もう一度検索し、パスワードを求められたら許可するか、このコンピューターの管理者にストレージメディアを読み取る権限を依頼してください。</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>このイメージファイルを読み取る権限がありません。所有者に読み取り権限かコピーを依頼してください。</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>メディアがなくなりました。もう一度差し込んで、やり直してください。</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>別のメディアに替わっています。メディアの一覧に戻って、選び直してください。</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>検索中にイメージファイルが変更されたため、見つかったものは壊れている可能性があります。何も書き込まれなくなってから、もう一度検索してください。</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>先に展開して、中にあるイメージファイルを開いてください。</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>先に生のイメージに変換して（たとえば「qemu-img convert -O raw」）、それを開いてください。</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>先に生のイメージに変換して、それを開いてください。</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>「%1」は圧縮または梱包されており (%2)、そのままでは検索できません。%3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>ストレージメディアでもイメージファイルでもありません</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>イメージが %1 個より多くに分かれています。先に 1 つのファイルに結合してください</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>イメージの一部がありません: %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>有効な開始セクターを入力してください。</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>有効な終了セクターを入力してください。</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
セクター範囲の最大値を超えています</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
終了セクターは開始セクターより大きくしてください。</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>このカードは消去済みのように読み取られます。ファイルシステム自身のセクターを除き、調べた場所はすべて空です。フォーマットの際にカード全体を消去するカメラやプログラムがあり、その場合は何も見つかりません。</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>100 kB 未満</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>100 kB ～ 1 MB</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>1 MB ～ 10 MB</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>10 MB ～ 100 MB</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>100 MB ～ 1 GB</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>1 GB 超</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>カメラ RAW</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>文書</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>アーカイブ</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>その他</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>この種類のファイルではない</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>完全</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>自身が示す位置で終了、内容は未確認</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>途中で切れている</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>長さ不明</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>%1 個の断片から組み立て</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>一部のセクターを読み取れませんでした</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 ピクセル</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>撮影日 %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>「%1」はコピー元のメディア上にあります。そこに書き込むと、まだ見つかるはずのものが上書きされます。別のディスク上の場所を選んでください。</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1。コピーはそこで終わり、検索はメディアから続けます。</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>このディスクのファイルは最大 4 GB です。コピーはそこで終わり、検索はメディアから続けます。</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>コピー先のディスクの書き込みは毎秒 %1 しかありません。全体のコピーには約 %2 分かかります。</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>不良セクター 1 個</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>不良セクター %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>%1% コピー済み</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>その周囲を読み取り中</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>メディアがありません</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>コピーは終了しました</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>別のメディアです</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>%2 中 %1 をコピー済み</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>不良セクターの間の %1 セクターを省略</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>フォルダー %1 はありません。</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 はフォルダーではありません。</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>フォルダー %1 に書き込めません: %2。</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 は FAT ファイルシステム上にあり、4 GiB 以上のファイルは保存できません (必要 %2)</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>%1 に十分な空きがありません: 必要 %2、空き %3</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセルされました</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>フォルダー %1 がなくなりました</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>フォルダー %1 は検索中のメディア上にあります</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>メディアを読み取れなくなりました</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>どのセクターも読み取れませんでした</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>現存</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>削除済み</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>フォルダー消失</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>変更 %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>指定より小さい</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>%1 の一部</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>ファイルとして現存</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>長さは推定</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 セクター読み取り不可</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>合計</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完全</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>自身が示す位置で終了</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>途中で切れている</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>破損</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>長さ不明</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>重複</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>除外</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>除外: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>失敗: %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>前のファイルと同じ内容。%1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 ～ %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>512 バイトのセクター数</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>検索対象</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>開始</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>復元レポート</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>カード上</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>撮影日時</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>ピクセル</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>見つかったセクター</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>files</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>写真</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>レポートを %1 に書き込めません: %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>スキップされました</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>内訳: %1。</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>%1 を保存できませんでした:</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   ほか %1 件</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 件</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>新しく保存されたものはありません。</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>何も保存されませんでした。</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>1 個のファイルを保存しました。</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>%1 個のファイルを保存しました。</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>%1 に保存されています。</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>%1 は一部しか読み取れませんでした。読み取れなかった部分はゼロで埋めてあります。</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>除外: %1、%2。</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>再書き込みなし: %1、同じ内容が保存済みです。</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>指定した大きさより小さい</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>明らかにこの種類のファイルではない</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>カードにファイルとして現存</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>全体が保存されたファイルの一部</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>途中でストレージメディアがなくなりました。もう一度差し込んで、保存し直してください。</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>キャンセルされたため、残りは保存されませんでした。</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>保存先フォルダーの「%1」に各ファイルの詳細があります。</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>完全 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>自身が示す位置で終了（内容は未確認） %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>途中で切れている %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>破損 %1</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>長さ不明 %1</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%2 に %1 件保存</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%2 に %1 件保存 (%3): %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 件はカードに残る名前で保存</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>うち %1 件に読み取れなかったセクターあり</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 件は再書き込みなし: 同じ内容が保存済み</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 件を除外: 指定より小さい</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 件を除外: この種類のファイルではない</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 件を除外: カードにファイルとして現存</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 件を除外: 全体が保存されたファイルの一部</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>セクター %1 / %2   ( %3% 完了 )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
別のディスクを復元するには、「戻る」ボタンをクリックしてください。</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>残り数秒</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>残り約 %1 秒</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>残り約 %1 分</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>残り約 %1 時間</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/秒</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 件見つかりました</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 件見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( 現在の検索方式: Vantor 一般復元手順 )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( 現在の検索方式: Vantor 徹底走査アルゴリズム )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
復元を停止するには「停止」ボタンをクリックするか、処理が完了するまでお待ちください。</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
ストレージメディアの読み取りエラーです。</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>セクター %1 / %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>徹底検索</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1は%2で中断されました。</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>検索が完了しました。</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>検索が完了しましたが、1 個のセクターを読み取れませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>検索が完了しましたが、%1 個のセクターを読み取れませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1は %2 % で停止されました (%3)。</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>徹底検索のためにメディアをもう一度開けませんでした。</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>メディアを開けませんでした。</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1で探すものがありませんでした。</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>%1でメディアが抜かれたか、応答しなくなりました。</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1は%2の読み取りエラーで終わりました。</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>その前の一般検索は完了しています。</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>メディアをもう一度差し込んでください。</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>このプログラムが保存した検索ではありません。</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>ファイルが壊れています。</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>「%1」は空です。完全なセクターが 1 つもありません。</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>そのまま検索しました。見つかるのは圧縮されていないものだけです。</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>「%2」の %1 セクターのうち、マップによると %3 が読み取られていません。</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>「%1」はファイルでもこのコンピューターのストレージメディアでもありません。</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>破損ファイルはそのままにしました。メディアを開けません。</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>破損した動画 %2 件のうち %1 件を完全にし、さらに %3 件を組み立てました: ご確認ください</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>破損した写真 %2 件のうち %1 件を完全にし、さらに %3 件を組み立てました: ご確認ください</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>写真モードでは動画を検索しないため、動画は完全にされません</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>写真モードでは動画を検索しないため、動画は修復されません</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1: 完全、%2 個の断片から</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1: %2 個の断片から組み立て、ご確認ください</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>検索しながらメディアをこのイメージファイルにコピーします。各セクターは 1 回だけ読み取り、検索と保存はコピーを読みます。読み取った部分は FILE.map に記録されます。既存のコピーは、GNU ddrescue のものも含めて続きから行います。</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>--image と併用: 離れた不良セクターの間のセクターも 1 つずつ読み取ります。非常に時間がかかることがあります。</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>イメージ MEDIUM のマップ（GNU ddrescue の形式）: 救出済みとされていない部分は読み取り不可とみなします。指定しない場合は、イメージの隣にマップがあればそれを使います (card.img.map、card.map、.mapfile、.log)。</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map にはファイルが必要です。</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image にはファイルが必要です。</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape は --image と併用します。</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>シグネチャーカタログが、検索を始めたときのものと異なります。</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>メディア %1 を開けません。</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 は検索されたメディアではありません。</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>メディアを開けません。</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>メディアのディレクトリーを読み取れませんでした。</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>ファイル名や、ディレクトリだけに記録されているファイルが欠けている可能性があります。</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>メモリが足りないため続行できません。これまでに保存されたものは完全です。</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>セクター数</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>ストレージメディアが見つかりません。カードや USB メモリーを差し込むか、イメージファイルを指定してください。</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>動画 %1 を読み取れません。</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 は修復できる種類の完全な MP4 または QuickTime 動画ではありません。</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>インデックスのない動画 %2 件のうち %1 件を修復しました</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1: 同じカメラの完全な動画が見つかりませんでした</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1: 画像が見つかりませんでした</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1: 画像 %2 枚、%3 秒、音声 %4 秒、%5 に準拠</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
終了コード: 0 完了、2 使い方の誤り、3 停止、4 メディアを最後まで読み取れなかった、5 メディアを
開けない、6 見つかったものの一部を保存できなかった。
Ctrl-C は「停止」ボタンと同じように検索を終えます。それまでに見つかったものはすべて残り、保存されます。
メディアは読み取るだけです。
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
--help をお試しください。</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>ストレージメディア上の写真、ビデオ、その他のファイルを、先頭のバイト列によって見つけます。</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>このヘルプを表示します。</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>バージョンを表示します。</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>検索対象: photo（既定）、video または rawfile。</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>これらの種類だけ。コンマ区切り（video と rawfile モード）: 拡張子、または @photos、@office、@phone、@recorder、@everything。</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>START から END の手前までのセクターだけ。</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>写真モードの徹底走査を省きます。</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>徹底走査と保存のときに、不良セクターをもう一度メディアに要求します。</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>検索を FILE に保存し、--resume で続けられるようにします。</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>FILE に保存された検索を続けます。MEDIUM は省略できます。</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>6 つのシグネチャーカタログのフォルダー。</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>見つかった項目ごとに 1 つ、終わりに 1 つの JSON オブジェクトを出力します。</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>このコンピューターのストレージメディアを出力し（--list-json と併用で JSON）、検索はしません。</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>メディア自身のディレクトリーが示すファイル（現存するものと以前あったもの）をそれぞれ JSON オブジェクトとして出力し、検索はしません。</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>このモードで --types に指定できるものを出力し、検索はしません。</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>問題が起きたときだけ表示し、進行状況も表示しません。</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>デスクトップの言語の代わりにこの言語を使います (en、de、fr、es、it、pt_BR、nl、pl、ja、zh_CN)。--list-json では常に英語です。</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>イメージファイル、デバイスの識別子 (sdb1)、またはそのパス (/dev/sdb1)。</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>不明なモード「%1」。</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>検索対象は --resume のファイルに記されています。</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>検索を保存するファイルが指定されていません。</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>写真モードはすべての種類を検索します。--types は video または rawfile で使います。</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range は START:END の形です。</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>写真モードはすべての種類を検索します。--list-types は video または rawfile で使います。</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types にメディアは指定しません。</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media にメディアは指定しません。</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>メディアが指定されていません。</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>メディアが 2 つ以上指定されています。</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>破損ファイルを完全にしています: %1 / %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 は検索するメディア上にあります。そこに保存すると、まだ見つかるはずのものが上書きされます。別のディスク上のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>フォルダー %1 に書き込めません。</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>%1 をコピーできません。サイズが不明です。</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>フォルダー %1 に読み取れるシグネチャーカタログがありません。</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>このモードにはないファイルの種類です: %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>そのまま検索しました。</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 は検索するメディア上にあります。</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>検索を続けられません。%1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>検索を %1 に保存できませんでした: %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>見つかったものを DIR/&lt;種類&gt;/&lt;名前&gt; として保存します。各ファイルは形式が示す長さで、同じ内容は 1 回だけ保存し、何も上書きしません。</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>見つかった各項目のセクターを、一覧のとおり過不足なく保存します。</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>保存したファイルの隣に &quot;Recovery report.html&quot; と &quot;Recovery report.csv&quot; を書き出します。</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original（既定）: カードのディレクトリーに残る名前があればその名前で保存。found: 一覧の名前で保存。</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card（既定）: カードのディレクトリーに残るフォルダーに保存し、残っていないものは DIR/&lt;種類&gt; に。type: すべて DIR/&lt;種類&gt; に。date: 日付がわかるものは DIR/&lt;種類&gt;/&lt;日付&gt;/&lt;日付と時刻&gt; &lt;名前&gt; に。</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>カードにファイルとして現存するものは保存しません。</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>--folders date と同じです。</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>これより少ないバイト数のファイルは保存しません。</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>長辺のピクセル数がこれより少ない画像は保存しません。</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>同じ内容がまた見つかったら、また保存します。</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>明らかにその種類のファイルでないものは保存しません。</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>写真の中のプレビューやアーカイブの中身など、ファイルの一部も保存します。完全と確認されたファイルの中にすべて含まれるもので、通常は除外されます。</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>インデックスが書かれなかった MP4、QuickTime、AVI 動画ごとに、再生できる &quot;... repaired.MP4&quot; を書き出します。MP4 と QuickTime では同じカメラの完全な動画も見つかる必要があります。</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>見つかったものの代わりに使う、同じカメラの完全な動画（--repair-movies と併用）。</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save にはフォルダーが必要です。</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 は --save と併用します。</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published はファイルの中を見ないため、名前も日付もピクセル数も状態もわかりません。</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names は original か found です。</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders は card、type、date のいずれかです。</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date は --folders date と同じです。</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference は --repair-movies と併用します。</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes と --min-pixels には数値が必要です。</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>ほかに、カードのディレクトリーだけが示すファイル %1 件</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  ほか</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>レポート: %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>そこから続けるには: --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>そこから続けるには: --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>見つかったものを標準出力に書き込めません。</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>一部の項目をもう一度読み取れませんでした。それらにはチェックサムがありません。</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>コピー: %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>ディスク全体を検索する</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>より多くのファイルの種類を選ぶ</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>徹底検索を有効にする</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>ビデオやその他のファイルを探す</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>写真はまだ見つかっていません</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>検索が進むと、ここに表示されます。</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>まだ何も見つかっていません</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>検索が進むと、見つかった項目がここに表示されます。</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>写真は見つかりませんでした</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>何も見つかりませんでした</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>すべての種類で全体を検索しました。別のメディアをお試しください。</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>戻って、%1ことができます。</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>戻って、%1か、%2ことができます。</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>見つかった項目に該当するものはありません</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>見つかったものをすべて表示するには、左の「すべての項目」をクリックし、検索欄を空にしてください: %1。</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>この区分の項目は見つかっていません</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>見つかったものをすべて表示するには、上の「すべての項目」を選んでください: %1。</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>この種類の項目は見つかっていません</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>見つかったものをすべて表示するには、「すべての種類」を押してください: %1。</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>この種類と区分の項目は見つかっていません</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>見つかったものをすべて表示するには、「すべての種類」を押し、上の「すべての項目」を選んでください: %1。</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>日付不明</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>yyyy年M月d日 (ddd)</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>画像</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>ビデオ</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>写真が 1 枚見つかりました</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>写真が %1 枚見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>ビデオが 1 本見つかりました</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>ビデオが %1 本見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>ファイルが 1 個見つかりました</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>ファイルが %1 個見つかりました</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>「%1」、%2: %3 % 読み取り済み、%4。</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>保存先フォルダーを選択</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Vantor Recovery メンテナー

GNU General Public License バージョン 3 以降によるフリーソフトウェアです。使用、研究、共有、改変ができます。いかなる保証もありません。

%1 を使用しています。

%2 上で動作しています。</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>ディスク	:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>ボリューム名	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>ファイルシステム	:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>容量（サイズ）	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>開始セクター	:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>終了セクター	:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>%1 超</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>セクター %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>セクター %1 ～ %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>セクター %1 から、断片</translation>
    </message>
    <message>
        <source>some</source>
        <translation>あり</translation>
    </message>
    <message>
        <source>none</source>
        <translation>なし</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>未確認</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>カード上の名前</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>断片</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>読み取れないセクター</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>まだ</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>検索の種類: ビデオの復元</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>検索の種類: その他のファイルの復元</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>検索の種類: 写真の復元</translation>
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
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>はい</translation>
    </message>
    <message>
        <source>No</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>画像なし: このシステムではデコーダーを隔離できず（seccomp フィルターがありません）、隔離せずにメディアのデータをデコードすることはありません。</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>画像なし: 画像をデコードするプログラムが起動しません。プログラムを再インストールしてください。</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>画像なし: 文書は bubblewrap の中でのみ描画されますが、インストールされていないか、このシステムでは動作しません。</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 件見つかりました</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>%1 件見つかりました: %2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>先に生の (dd) または E01 イメージとしてエクスポートして、それを開いてください。</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>ストレージメディアではなく個々のファイルが入っています。メディアのイメージを開いてください。</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>完全（%1 個の断片から復元）</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>%1 個の断片をつなぎ合わせました。内容を確認してください</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>修復済み: 画像 %1 枚、%2 秒、音声 %3 秒（%4 を参照）</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>つなぎ合わせまたは修復 %1 件（確認してください）</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>修復</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>断片 %1 個</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>復元内容</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>画素数不明</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>100 万画素未満</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>100 万~400 万画素</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>400 万~1200 万画素</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>1200 万~3000 万画素</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>3000 万画素超</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>残りを検索するには「続ける」を押してください。</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>破損した文書とアーカイブ %2 件のうち %1 件を完全にし、さらに %3 件を組み立てました: ご確認ください</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>断片に分かれた MP4、QuickTime、AVI の動画、JPEG と PNG の画像、ZIP アーカイブ、オフィス文書を組み立て、&quot;... complete.MP4&quot;、またはすべての断片が正しいと証明できない場合は &quot;... put together.MP4&quot; として保存します。</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 件を除外: カードのディレクトリーだけが示すファイルの合計が、カードの容量の 2 倍を超えます</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>保存したファイルの内容を確認しています: %1 / %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>長さ不明</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>10 秒未満</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>10 秒～1 分</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>1～5 分</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>5～30 分</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>30 分超</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>ディスクがいっぱいです</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>ディスクの割り当て分を使い切りました</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>ディスクは読み取り専用です</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>ディスクにはこの長さのファイルを保存できません</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>ディスクがエラーを報告しています</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>これを行う権限がありません</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>名前が長すぎます</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>この名前のものはありません</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>デバイスがありません</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>デバイスにメディアが入っていません</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>フォルダー %1 は別の場所を指しています</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>フォルダー %1 を作成できません: %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>検索条件</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>ディスク全体</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>メディアのすべてのセクターを検索します。迷ったときに最適です。</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>ディスク全体</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>セクター範囲</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>指定した 2 つのセクターの間だけを検索します。</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>セクター範囲</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>ストレージメディア</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;なし&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>ボリューム名</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>容量</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>先頭セクター</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>終了セクター</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>セクターは 0 から数え、それぞれ 512 バイトです。終了セクター自体は検索されません。</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>スライダーはこのメディアのすべてのセクターには届かず、セクター 2,147,483,647 で終わります。それより先で開始または終了するには、セクターを入力してください。</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>開始セクター</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>このセクターから</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>開始セクターのスライダー</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>最小</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Smallest Start Sector</source>
        <translation>開始セクターの最小値</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>最大</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>開始セクターの最大値</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>終了セクター</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>このセクターまで</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>終了セクターのスライダー</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>終了セクターの最小値</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>終了セクターの最大値</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>見つかったファイルの保存先</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>保存先フォルダー</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>未選択。ここで選ぶか、保存するときに選べます</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>参照(&amp;R)…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>保存先フォルダーを参照</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>種類別</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>種類別の見つかった項目</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>見つかった種類のみ(&amp;U)</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>見つかった種類だけを表示します</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>すべての種類(&amp;Y)</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>再びすべての種類の項目を表示します</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>見つかった項目</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>見つかった項目の数</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>表示(&amp;W)</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>どの項目を表示するか</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>並べ替え(&amp;T)</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>項目の並べ替え方</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>ファイルが選択されていません</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>プレビューの動画</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>プレビュー中の項目の情報</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>保存したファイルの行き先</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>保存のためにチェックした項目</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>表示中をチェック(&amp;K)</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>表示中のすべてを保存用にチェックします</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>表示中のすべてを保存用にチェックします。Insert と Delete で選択項目のチェックを付け外しします</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>チェックを反転(&amp;I)</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>表示中の項目のチェックを反転</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>表示中の項目のうち、チェックのないものにチェックを付け、残りは外します</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>フォルダーを開く(&amp;F)</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>保存したファイルのフォルダーを開きます</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>フォルダーを変更(&amp;C)…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>ファイルの保存先フォルダーを変更</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>これ以降、別のフォルダーに保存します</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>保存済みの項目</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>オプション(&amp;P)…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>保存のオプション</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>保存方法: 名前とフォルダー、小さなファイルの除外、重複、レポート</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>選択項目を保存(&amp;L)…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>選択項目を保存</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>選択項目を保存します (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>チェック項目を保存(&amp;V)…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>チェック項目を保存</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>チェックしたすべての項目を、表示されていないものも含めて保存します</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>すべて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>見つかった項目をすべて保存</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>見つかったすべての項目を保存します (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>画像の大きさ</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>列で詳細を表示</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>列で詳細を表示 (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>検索終了</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>写真の検索が終わりました</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>見つかった写真がサムネイルで表示されています。必要なものを選んで「選択項目を保存」を押すか、「すべて保存」で全部を保存してください。保存するまで、写真はディスクにありません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SaveFileInfoForRaw</name>
    <message>
        <source>Search ended</source>
        <translation>検索終了</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>ファイルの検索が終わりました</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>左の表に、種類ごとの見つかった数があります。項目を選んでプレビューし、「選択項目を保存」を押すか、「すべて保存」で全部を保存してください。保存するまで、ディスクには何もありません。</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SavingOptions</name>
    <message>
        <source>Options for saving</source>
        <translation>保存のオプション</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>フォルダー(&amp;L)</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>保存したファイルのフォルダー</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>カードに残っていないもの、日付のわからないものは、種類のフォルダーに入ります</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>カードでのファイル名を使う(&amp;N)</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>カードでのファイル名を使う</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>カードにまだ残っている範囲で</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>小さな画像を除外(&amp;P)、長辺が次の値未満</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>小さな画像を除外</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> ピクセル</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>長辺の最小ピクセル数</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>小さなファイルを除外(&amp;F)、次のサイズ未満</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>小さなファイルを除外</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>最小サイズ（キロバイト）</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>明らかにその種類のファイルでないものを除外(&amp;C)</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>明らかにその種類のファイルでないものを除外</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>始まりだけがその種類のファイルに似ているデータ</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>ファイルの一部も保存(&amp;T)</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>ファイルの一部も保存</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>完全と確認されたファイルの中にすべて含まれるもの（写真の中のプレビューなど）</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>重複を残す(&amp;K)</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>重複を残す</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>同じ内容が見つかるたびに保存します</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>保存したファイルの隣に復元レポートを書き出す(&amp;R)</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>保存したファイルの隣に復元レポートを書き出す</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>読むためのページと、ほかのプログラム用の表</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>SavingProgress</name>
    <message>
        <source>Saving</source>
        <translation>保存</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>保存された項目の数</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>保存中のファイル</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>保存の進行状況</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>速度と残り時間</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>時間がかかっている理由</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>このファイルをスキップ(&amp;S)</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>このファイルをスキップして次に進みます</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>保存をキャンセル</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>ディスクサービスはこのカードを認識していません。</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>ディスクサービスが応答しません。</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>ディスクサービスに拒否されました。</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>すべての項目</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>完全</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>長さ不明</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>読み取れないセクターあり</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>未保存</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>小さなものを除く</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>誤検出を除く</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>失われたもののみ</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>見つかった順</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>状態順</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>サイズ順</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>撮影日順</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>カード上の名前順</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>不完全または破損</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>つなぎ合わせまたは修復済み</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>名前順</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>種類順</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>カメラ順</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>画素数順</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>長さ順</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>カード上の位置順</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>カードの図</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1(%2 使用)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>ファイルシステム不明</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>検索される範囲がありません</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>全体を検索します</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>その %1 を検索します</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>メーカーの数え方で %1</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>範囲のうち読み取った部分</translation>
    </message>
    <message>
        <source>read</source>
        <translation>読み取り済み</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>発見あり</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>不良</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>これから</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>カード上の名前</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>日付</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>カメラ</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>画素数または長さ</translation>
    </message>
    <message>
        <source>State</source>
        <translation>状態</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>カード上の位置</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1、保存済み</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>詳細の列</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>名前で検索</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>見つかった項目を、カード上の名前も含めて検索します</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>見つかったもの（種類、日、カメラ、サイズ別）</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>クリックするとこれだけを表示します。Ctrl キーを押しながらで複数選べます</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>すべての項目</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>日別</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>カメラ別</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>サイズ別</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>種類なし</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>カメラ不明</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>カードに名前だけあるもの</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>ほかに、カードのディレクトリーだけが示すファイル 1 件</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>ほかに、カードのディレクトリーだけが示すファイル %1 件</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>「すべて保存」ではこれらも保存します。</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>ほか %1 件</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>画素数別</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>長さ別</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>バージョン %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>ヘルプ文書を開けませんでした。</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>このデスクトップには PDF 文書を表示するプログラムがありません。場所:</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>ヘルプファイルがありません！</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>保存済み</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>チェック済み</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>ビューアー</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ 結果</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>結果に戻る (Esc)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>全体を表示 (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>実際の大きさ (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>縮小 (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>拡大 (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>全画面</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>全画面 (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>情報</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>情報を横に表示 (I)</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>動画</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Item before this one (Left)</source>
        <translation>前の項目 (←)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>次の項目 (→)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>%1 の画像</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>チェック</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>保存対象としてチェック (Insert、Delete)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>チェック済み</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>この検索を記憶する(&amp;M)</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>停電のあとでも、後で続けられるようにします。現在記憶されている検索と置き換わります。</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>検索しながらカードのコピーを保存する(&amp;C)</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>選択(&amp;S)…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>コピーの保存場所を選ぶ</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>故障しかけたカードや遅いカードに最適です。カードは 1 回だけ読み取り、あとはすべてコピーを読みます。</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>停電のあとでも、後で続けられるようにします。</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>記憶された検索</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>続ける(&amp;G)</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>メディアの残りを検索します。読み取った部分はもう検索しません</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>見つかったものを表示(&amp;W)</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>検索を続けずに、見つかったものを一覧表示します</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>消去(&amp;F)</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>この検索の記憶を削除します。保存したファイルは残ります</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>記憶された検索を続ける</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>記憶された検索で見つかったものを表示</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>記憶された検索を消去</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>記憶された検索: %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>見つかったままのファイルを表示 (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>見つかったまま</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>つなぎ合わせたファイルを表示 (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>修復後</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>つなぎ合わせ後</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>不完全なファイルの補完の進み具合と結果</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>不完全なファイルの補完の進行状況</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>停止(&amp;O)</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>補完を停止します。つなぎ合わせたものは残ります</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>それらを表示(&amp;E)</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>つなぎ合わせたファイルと修復したファイルを表示します</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>閉じる(&amp;S)</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>このメッセージを閉じます</translation>
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
        <translation>再生時間と長さ</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>再生 (スペース)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>消音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>一時停止 (スペース)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>音を出す</translation>
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
        <translation>再生または一時停止 (スペース)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>動画なし</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>項目を選ぶとプレビューが表示されます。</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%2 件中 %1 件を選択</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1、サムネイルなし</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>すべて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>表示中をすべて保存(&amp;A) (%1)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>見つかった項目をすべて保存</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>表示中のすべての項目を保存</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%2 件中 %1 件保存済み</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>オプション(&amp;P)…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>オプション(&amp;P) (%1)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>カードのコピーの保存場所を選ぶ</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>メディアのイメージ (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>そこにはコピーを保存できません。</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>そのフォルダーは検索するメディア上にあります。そこに書き込むと、まだ見つかるはずのものが上書きされます。別のディスク上の場所を選んでください。</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>コピーのための空きが足りません。</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>最大 %1 が必要ですが、%3 の空きは %2 です。別のディスク上の場所を選ぶか、コピーなしで検索してください。</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1: 最大 %2 必要、空き %3</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1: 最大 %2 必要</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>カードの状態</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>コピーを保存(&amp;E)…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>検索を一時止めてから続けます。カードは 1 回だけ、選んだファイルに読み取ります</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>このカードは故障しかけています: 不良セクター 1 個。</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>このカードは故障しかけています: 不良セクター %1 個。</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>このカードは非常に低速です。</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>コピーを保存すると、各セクターの読み取りが 1 回で済みます。</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>コピー: %1</translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation>コピー: %1。%2</translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation>プログラムを終了すると、見つかった項目の一覧は失われます。</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>保存せずに終了</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
「%1」を終了してもよろしいですか？</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>見つかった %2 件のうち %1 件が保存されていません。</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>見つかった項目が保存されていません。</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>見つかった %1 件はどれも保存されていません。</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>とどまる</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>グループ「%1」のすべての種類</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>すべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>表示中をすべて選択(&amp;A)</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>該当する種類がありません</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>ファイルの種類がありません</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>すべての種類を表示するには、検索欄を空にしてください。</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>ファイルの種類のカタログを読み取れませんでした。プログラムを再インストールしてください。</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>この項目に対する操作</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>大きく表示(&amp;L)</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>情報を表示(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>選択項目を保存(&amp;S)…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>%1 の項目をすべて選択(&amp;D)</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>この日の項目をすべて選択(&amp;D)</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>%1 の項目をすべて選択(&amp;T)</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>続ける(&amp;G)</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>検索を続ける</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>メディアの残りを検索します。読み取った部分はもう検索しません</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>検索を最初からやり直します。</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>このプログラムのバージョンとは異なるシグネチャーの一覧で始められた検索です。</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>この検索は記憶されません。</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>ホームフォルダーが検索するメディア上にあります。そこに書き込むと、まだ見つかるはずのものが上書きされます。</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>検索を続けられません。</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>検索されたメディアではありません。正しいものを差し込んで、やり直してください。</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>メディアを開けません。もう一度差し込んで、やり直してください。</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>この検索のメディアがありません。</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>対象は %1 です。差し込むか、そのイメージを開いて、やり直してください。</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>検索されたメディアではありません。</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>%1 と内容が異なります。正しいものを差し込んで、やり直してください。</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>この検索のメディアを開けません。</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>メディアを開けなくなるまでに 1 件見つかりました。</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>メディアを開けなくなるまでに %1 件見つかりました。</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>もう一度検索するか戻るまで、一覧は残ります。</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>ストレージメディアが応答しません。</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>前の検索がまだ終わっていません。メディアを抜いて差し直し、やり直してください。</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>新しく検索すると、見つかった項目の一覧は空になります。</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>保存せずに検索</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>イメージを開けませんでした。</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>%1 個のイメージを開けませんでした。</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>動画を選択</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>このフォルダーは保存先にできません。</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>復元元のストレージメディア上にあります。そこに書き込むと、取り戻したいファイルが上書きされます。別のディスク上のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>別のフォルダーを選んでください。</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>%1 のあったディスクが抜かれました。差し直すか、フォルダーを変更してください。</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 は削除されたか、名前が変わったか、ディスクが抜かれました。元に戻すか、フォルダーを変更してください。</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>保存先がなくなりました。</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>保存先のフォルダーはまだ選ばれていません</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>保存先: %1（見つかりません）</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>保存先: %1（空き %2）</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>保存先: %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>このデスクトップにはフォルダーを表示するプログラムがありません。</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>もうありません。</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>フォルダーを開けませんでした。</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>ストレージメディアを読み取れません。</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>これはまだ %1 のプレビューです。</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>項目を選ぶとプレビューが表示されます。</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>%1 超</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>%1 のプレビュー</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>「ディスク全体」を選ぶと、Vantor Recovery は選択したディスクのすべての領域から失われたデータを検索します。特定のセクター範囲やパーティションだけを検索するには、もう一方の検索条件を選んでください。そのままディスク全体を検索するには「次へ」を押してください。</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>「セクター範囲」では、失われたデータを検索するストレージメディアの開始セクターと終了セクターを指定できます。スライダーのつまみをドラッグするか、開始セクターと終了セクターの欄に値を直接入力してください。</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>設定を消去しました。</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>次にプログラムを起動すると、ウィンドウ、保存オプション、フォルダーは初回起動時の状態になります。</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>キャンセルされた保存がまだメディアで止まっています。メディアを抜いて差し直し、やり直してください。</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>続行します。</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>ファイルが選択されていません</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
一覧からストレージメディアを選択してください。</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>戻ると、見つかった項目の一覧は空になります。</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>保存せずに戻る</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
データを復元するストレージメディアを一覧から選択し、「次へ」ボタンを押して進んでください… </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
復元するファイルの種類を選択し、「次へ」ボタンを押して進んでください… </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>メディア</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>範囲</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>ファイルの種類</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>復元</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>検索を記憶できませんでした: %1。</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>写真 1 枚</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>写真 %1 枚</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>すべて完全</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>「停止」を押すか、検索を続けてください。</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>見つかりません</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>種類がありません</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>チェックした種類のものは見つかりませんでした。</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>戻って、検索する種類を選んでください。</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>ディスク</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>セクター数</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>ファイルシステム</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>ディスク全体</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>検索</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>徹底</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>種類</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>説明</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>見つかった数</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>ストレージメディアが見つかりません</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>メモリーカードを差し込むかリーダーを接続して「更新」を押すか、メディアのイメージファイルを開いてください。イメージファイルをここにドロップすることもできます。</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>セクター 0 / 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>%2 件中 %1 件をチェック、%3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>表示中のチェックを外す(&amp;K)</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>表示中をチェック(&amp;K)</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>表示中のすべてのチェックを外します</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>表示中のすべてを保存用にチェックします</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>チェック項目を保存(&amp;V) (%1)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>メディアのイメージファイルを開く</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>メディアのイメージ (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;すべてのファイル (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>不完全なファイルを補完(&amp;M)</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>不完全なファイルを補完</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>写真と動画の欠けた断片をメディアから探し、索引のない動画を修復します。見つかったものはそのまま残ります</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>不完全なファイルを調べています: %1 / %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>不完全な動画を補完しています…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>不完全な動画を補完しています: %1 / %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>不完全な写真を補完しています…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>不完全な写真を補完しています: %1 / %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>索引のない動画を修復しています…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>索引のない動画を修復しています: %1 / %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>不完全なファイルはそのままです。記憶メディアを開けません。差し直してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>記憶メディアがなくなりました。差し直してからもう一度お試しください。</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>停止しました。</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 個のファイルを補完</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 個のファイルを補完</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 個のファイルをつなぎ合わせ（確認してください）</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 個のファイルをつなぎ合わせ（確認してください）</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>1 本の動画を修復</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>%1 本の動画を修復</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1。</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>補完できる種類の不完全なファイルは見つかりませんでした。</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>補完できた不完全なファイルはありません。</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>ほかのファイルを書き込み中です。少し待ってからもう一度ドラッグしてください。</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>ドラッグ用に %1 を準備する空き容量がありません。代わりにファイルを保存してください。</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>これらのファイルはストレージメディアから読み取れません。</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>ファイルを準備しています…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>ファイルを書き込み中です。少し待ってからもう一度ドラッグしてください。</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>名前を付けて保存</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>カードを取り出せます。</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>カードを取り出せませんでした。</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>チェックを外す(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>保存対象としてチェック(&amp;I)</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>名前を付けて保存(&amp;A)…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>検索オプション</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>不完全な文書を補完しています…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>不完全な文書を補完しています: %1 / %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>%2 個のファイルのうち %1 個をドラッグできませんでした。</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>断片 %1: セクタ %2～%3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>カード上の断片</translation>
    </message>
    <message>
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>カード</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>約 %1 が必要ですが、%3 の空きは %2 です。</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>見つかったままでは約 %1 が必要ですが、調べると短いことがよくあります。%3 の空きは %2 です。</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>保存先の空きが足りないかもしれません。</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>入るものはすべて完全に保存し、残りは除外して一覧に残します。</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>入るだけ保存</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>フォルダーを変更…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>何も保存されませんでした。</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>ストレージメディアを読み取れなくなりました。もう一度差し込んで、やり直してください。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>カードを取り出す</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>カードのとおり</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>種類別</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>種類と日付別</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>メディアがこのファイルのセクターの読み取りを拒んでいます: これまでに %1。1 つに数秒かかることがあります。その先にあるものも読み取ります。</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>保存中 %1 / %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>キャンセルしています…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>内容を確認しています: %1 / %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>メディアからはもう何も読み取りません。「キャンセル」で終わるのはこの確認だけです。</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>手順 %1 / %2: %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>選択済み</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>未選択</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>読み込み中…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>ストレージメディアを読み取れません。</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>このファイルの画像は表示できません。</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
</context>
</TS>
