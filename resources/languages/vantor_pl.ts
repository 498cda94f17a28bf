<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Vantor - Memory Card Recovery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1.  Choose the memory card and what was lost: photos, videos or other files.
2.  Choose where to search: the entire disk, or a range of sectors.
3.  For videos and files, tick the types you want.
4.  Watch the search. Select what you want back and save it to another disk.

The card is only ever read, never written to. Stop using it until you have your files back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Continue</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Vantor - Memory Card Recovery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steps of the recovery</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Try Bad Sectors Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Phone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Everything</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Archives</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1/%2 leads elsewhere</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1/%2 cannot be created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>still there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deleted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begun</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>On the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>videos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>photos</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1, in a folder for each type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To go on from there, go back, choose “Sector Range” and start at sector %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put MP4 and QuickTime movies and JPEG or PNG pictures together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4 or QuickTime movie whose index was never written; a whole movie of the same camera has to be found as well.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>search the rest from sector %1 on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>Znaleziono %1 plik</numerusform>
            <numerusform>Znaleziono %1 pliki</numerusform>
            <numerusform>Znaleziono %1 plików</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>some</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>First sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest Start Sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Found types only</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveFileInfoForRaw</name>
    <message>
        <source>Search ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SavingOptions</name>
    <message>
        <source>Options for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> kB</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SavingProgress</name>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>something found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to come</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ticked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1:1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>−</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Facts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Movie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>‹</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item before this one (Left)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>›</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Volume</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::MovieView</name>
    <message>
        <source>Play or pause (Space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No movie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep a Copy…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All &amp;Type %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File system</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save as</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Card</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
