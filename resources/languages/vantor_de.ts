<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>Wählen Sie, wohin die gefundenen Dateien kommen</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>Wählen Sie im nächsten Fenster einen Ordner auf einem anderen Datenträger, niemals auf dem Medium, von dem Sie wiederherstellen: Was dort geschrieben wird, kann genau die Dateien überschreiben, die Sie zurückhaben möchten.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>Die Vorschau wird vorbereitet</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>Der Fund wird vom Medium gelesen. Bei großen Dateien dauert das einen Augenblick.</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>Beweisabbilder können hier nicht gelesen werden</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>Beweisabbilder werden nur eingesperrt gelesen, was dieses System nicht zulässt</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>Der Programmteil, der Beweisabbilder liest, startet nicht</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>Das Beweisabbild ist beschädigt oder von einer Art, die sich nicht lesen lässt</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>Gesuchte Dateitypen</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>Wie viele Typen ausgewählt sind</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>Vo&amp;rlagen</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>Die Typen auswählen, die zusammengehören</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>Vorlagen für Dateitypen</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>Typen suchen …</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>Unter den Dateitypen suchen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>Alle Dateitypen auswählen</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Gründliche Suche</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>Nach Typen mit dem Vermerk „Gründlich“ wird in einem zweiten Durchgang über das Medium gesucht.</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
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
        <translation>1.  Wählen Sie die Speicherkarte und was verloren ging: Fotos, Videos oder andere Dateien.
2.  Wählen Sie, wo gesucht wird: auf dem ganzen Datenträger oder in einem Bereich von Sektoren.
3.  Bei Videos und Dateien wählen Sie die Typen aus.
4.  Verfolgen Sie die Suche. Wählen Sie aus, was Sie zurückhaben möchten, und speichern Sie es auf einem anderen Datenträger.

Die Karte wird nur gelesen, nie beschrieben. Benutzen Sie sie nicht weiter, bis Sie Ihre Dateien zurückhaben.</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>Die ganze Anleitung, mit Bildern:</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>Das Hilfedokument öffnen</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>Ü&amp;ber …</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>Über dieses Programm: Version, Lizenz, Bibliotheken</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>Einstellungen &amp;vergessen</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>Fenstergröße, Speicheroptionen und Ordner früherer Läufe</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>Die Einstellungen früherer Läufe vergessen</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>Speichermedien</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>Speichermedien werden gesucht</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>Die Liste der Speicherkarten und Wechseldatenträger wird gelesen.</translation>
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
        <translation>Schritte der Wiederherstellung</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>Das Hilfefenster öffnen (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Suche: Fotos wiederherstellen</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Art der Suche</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Keine&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>Kennung des gewählten Mediums</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektoren</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>Anzahl der Sektoren des gewählten Mediums</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>Funde z&amp;eigen</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>Die bisherigen Funde zeigen</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>Ansehen, was gefunden wurde, und es speichern</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>Wie die Suche endete</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>Wie die Suche endete und wie es weitergeht</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>Was die Suche gefunden hat und wie lange sie dauerte</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>Defe&amp;kte Sektoren erneut lesen</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>Defekte Sektoren erneut lesen</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>Vorschau und Speichern fragen das Medium noch einmal nach dem, was es nicht lesen konnte</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Gründliche Suche</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>Nach der allgemeinen Suche noch einmal mit einer längeren Liste von Bildtypen suchen.</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>Aktuelles Suchverfahren</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>Die noch nicht fertigen Vorschaubilder werden verworfen …</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>Die Suche wird angehalten</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>Geschwindigkeit, verbleibende Zeit und Funde</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>Fortschritt der Suche</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Stopp</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Die Suche anhalten</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>Die Suche jetzt beenden und behalten, was gefunden wurde</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>Durchsuchte Sektoren</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>Was auf diesem Bildschirm zu tun ist</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>Das Programm verlassen (Strg+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Zurück</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>Zum vorigen Bildschirm (Alt+Links)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>&amp;Weiter ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>Zum nächsten Bildschirm (Eingabe)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>Speichermedien</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>Nicht in der Liste?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>Die Liste der Medien aktualisieren</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>Noch einmal nach Speichermedien suchen (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>Abbild &amp;öffnen …</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Die Abbilddatei eines Mediums öffnen</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>Eine Kopie eines Mediums durchsuchen, die als Datei gespeichert wurde (Strg+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>Was ging verloren?</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>Was wiederhergestellt wird</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>Bilder von Kameras und Telefonen; ihre Vorschaubilder erscheinen, während sie gefunden werden.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>Filme und Clips der Typen, die Sie wählen, jeweils mit Vorschau.</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>Dateien (Raw)</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>Dokumente, Archive, Ton und alle anderen Typen, die Sie wählen.</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>Dateien (Raw)</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>Gefundene Fotos</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>Wie viele Fotos gefunden wurden</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>Anzei&amp;gen</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Welche Funde gezeigt werden</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>Sor&amp;tieren</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Wie die Funde sortiert sind</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>Größe der Vorschaubilder</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Wohin gespeicherte Dateien kommen</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Was zum Speichern vorgemerkt ist</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Gezeigte &amp;vormerken</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Alles Gezeigte zum Speichern vormerken</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Alles Gezeigte zum Speichern vormerken; Einfügen und Entfernen merken die ausgewählten Funde vor und heben es auf</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Vo&amp;rmerkung umkehren</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Die Vormerkung des Gezeigten umkehren</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Vom Gezeigten vormerken, was nicht vorgemerkt ist, und beim Rest die Vormerkung aufheben</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Ord&amp;ner öffnen</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Den Ordner der gespeicherten Dateien öffnen</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>&amp;Anderer Ordner …</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Den Ordner ändern, in den gespeichert wird</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Von jetzt an in einen anderen Ordner speichern</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Was gespeichert ist</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;ptionen …</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Optionen für das Speichern</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Wie gespeichert wird: Namen und Ordner, ohne kleine Dateien, Duplikate, Bericht</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Ausgewäh&amp;lte speichern …</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Die ausgewählten Funde speichern</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Die ausgewählten Funde speichern (Strg+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Vorge&amp;merkte speichern …</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Die vorgemerkten Funde speichern</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Jeden vorgemerkten Fund speichern, auch die nicht gezeigten</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Alle sp&amp;eichern …</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Alle Funde speichern</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Jeden Fund speichern (Strg+Umschalt+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Einzelheiten in Spalten</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Einzelheiten in Spalten (Strg+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
Bitte wählen Sie mindestens einen Dateityp aus.</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>Das Programm spricht nicht „%1“. Es spricht %2.</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>Fotos aller Kameras</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Office-Dokumente</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>Diktiergerät</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>„%1“ ist keine Datei.</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>Die Karte „%1“ (map) gehört zu einer anderen Kopie. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>„%1“ ist die Kopie eines Mediums anderer Größe. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>„%1“ kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>„%1“ wird gerade von einer anderen Suche geschrieben.</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>„%1“ gibt es bereits, und keine Karte (map) daneben weist die Datei als eine Kopie aus, die sich fortsetzen lässt. Bitte wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>„%1“ kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>Die Karte „%1“ (map) lässt sich nicht verwenden: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>sie ist keine Datei</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>sie ist nicht vorhanden</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>sie ist zu groß für eine solche Karte</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>Die Karte „%1“ (map) kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>die Zeile ist zu lang</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>keine Zeile nennt die Position</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>erwartet werden eine Position, eines von ?*/-FG+ und ein Durchgang</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>erwartet werden eine Position, eine Größe und eines von ?*/-+</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>diese Größe kann nicht sein</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>sie überschneidet sich mit der Zeile davor</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>davor ist eine Lücke</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>es sind zu viele Zeilen</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>„%1“ ist keine Abbilddatei.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>„%1“ kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>„%1“ ist leer. Bitte wählen Sie die Abbilddatei eines Speichermediums.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>„%1“ kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>„%1“ ist die Kopie eines anderen Mediums.</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>Die Kopie „%1“ endet hier: %2. Was sie nicht enthält, wird vom Medium gelesen.</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>Sie dürfen diese Karte nicht lesen. Suchen Sie noch einmal und erlauben Sie es, wenn Sie nach dem Passwort gefragt werden, oder bitten Sie die Systemverwaltung dieses Rechners um das Recht, Speichermedien zu lesen.</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>Sie dürfen diese Abbilddatei nicht lesen. Bitten Sie ihren Besitzer um das Leserecht oder um eine Kopie.</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>Das Medium ist nicht mehr da. Stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>An seiner Stelle ist jetzt ein anderes Medium. Gehen Sie zur Liste der Medien zurück und wählen Sie neu.</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>Die Abbilddatei wurde während der Suche verändert; was gefunden wurde, kann deshalb beschädigt sein. Suchen Sie noch einmal, wenn nichts mehr in sie schreibt.</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>Bitte entpacken Sie es zuerst und öffnen Sie die Abbilddatei darin.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>Bitte wandeln Sie es zuerst in ein rohes Abbild um (zum Beispiel mit „qemu-img convert -O raw“) und öffnen Sie dieses.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>Bitte wandeln Sie es zuerst in ein rohes Abbild um und öffnen Sie dieses.</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>„%1“ ist gepackt (%2) und lässt sich so nicht durchsuchen. %3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>Weder ein Speichermedium noch eine Abbilddatei</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>Das Abbild besteht aus mehr als %1 Teilen; bitte fügen Sie sie zuerst zu einer Datei zusammen</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>Ein Teil des Abbilds fehlt: %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>Bitte geben Sie einen gültigen Startsektor ein.</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>Bitte geben Sie einen gültigen Endsektor ein.</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
Der größte mögliche Sektorbereich ist überschritten</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
Der Endsektor muss größer als der Startsektor sein.</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>Diese Karte liest sich wie gelöscht: Außer den Sektoren ihres Dateisystems sind alle geprüften Stellen leer. Manche Kameras und Programme löschen beim Formatieren die ganze Karte, und dann lässt sich nichts finden.</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>Unter 100 kB</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>100 kB bis 1 MB</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>1 MB bis 10 MB</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>10 MB bis 100 MB</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>100 MB bis 1 GB</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>Über 1 GB</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Kamera-Rohdaten</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filme</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumente</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archive</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>keine Datei ihres Typs</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>vollständig</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>endet, wo sie es selbst angibt; Inhalt ungeprüft</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>abgeschnitten</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschädigt</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>unbekannter Länge</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>aus %1 Stück zusammengesetzt</numerusform>
            <numerusform>aus %1 Stücken zusammengesetzt</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>nicht alle ihre Sektoren waren lesbar</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 Pixel</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>aufgenommen %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>„%1“ liegt auf dem Medium, das kopiert werden soll; dort zu schreiben würde überschreiben, was noch zu finden ist. Wählen Sie eine Stelle auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1. Die Kopie endet dann dort; die Suche geht vom Medium weiter.</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>Dateien auf diesem Datenträger können höchstens 4 GB groß sein. Die Kopie endet dann dort; die Suche geht vom Medium weiter.</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>Der Datenträger der Kopie schafft nur %1 je Sekunde: Eine ganze Kopie dauert etwa %2 Minuten.</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 defekter Sektor</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 defekter Sektor</numerusform>
            <numerusform>%1 defekte Sektoren</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>%1% kopiert</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>liest darum herum</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>das Medium ist weg</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>die Kopie hat geendet</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>ein anderes Medium</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>%1 von %2 kopiert</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>%1 Sektor zwischen defekten ausgelassen</numerusform>
            <numerusform>%1 Sektoren zwischen defekten ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>Den Ordner %1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 ist kein Ordner.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>In den Ordner %1 kann nichts geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 liegt auf einem FAT-Dateisystem, das keine Datei von 4 GiB oder mehr aufnimmt; gebraucht werden %2</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>In %1 ist nicht genug Platz: %2 werden gebraucht, %3 sind frei</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>Der Ordner %1 ist nicht mehr da</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>Der Ordner %1 liegt auf dem Medium, das durchsucht wird</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>Das Medium ist nicht mehr lesbar</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>Keiner ihrer Sektoren war lesbar</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>noch vorhanden</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>gelöscht</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>ihr Ordner ist verloren</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>geändert %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>kleiner als verlangt</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>Teil von %1</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>noch als Datei vorhanden</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>Länge geschätzt</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 Sektor unlesbar</numerusform>
            <numerusform>%1 Sektoren unlesbar</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>Endet wie angegeben</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Abgeschnitten</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>Beschädigt</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>Länge unbekannt</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikate</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Ausgelassen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>ausgelassen: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>gleicher Inhalt wie eine frühere Datei; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>Sektoren zu 512 Byte</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>Gesucht nach</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>Wiederherstellungsbericht</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>Auf der Karte</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Aufgenommen</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>Gefunden in den Sektoren</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>Der Bericht kann nicht nach %1 geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Übersprungen</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>Davon: %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>%1 konnten nicht gespeichert werden:</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   und %1 weiterer</numerusform>
            <numerusform>   und %1 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 Fund</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 Fund</numerusform>
            <numerusform>%1 Funde</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>Es wurde nichts Neues gespeichert.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>1 Datei wurde gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>%1 Datei wurde gespeichert.</numerusform>
            <numerusform>%1 Dateien wurden gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>Gespeichert in %1.</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>Nur teilweise lesbar: %1; was nicht zu lesen war, ist mit Nullen gefüllt.</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>Ausgelassen: %1, %2.</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>Nicht noch einmal geschrieben: %1, derselbe Inhalt ist schon gespeichert.</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>kleiner als von Ihnen verlangt</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>mit Sicherheit keine Dateien ihres Typs</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>noch als Dateien auf der Karte vorhanden</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>Teile von Dateien, die ganz gespeichert sind</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>Das Speichermedium war währenddessen nicht mehr da. Stecken Sie es wieder ein und speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>Der Rest wurde nicht gespeichert, weil Sie abgebrochen haben.</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>„%1“ im Zielordner sagt mehr zu jeder Datei.</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>%1 vollständig</numerusform>
            <numerusform>%1 vollständig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>%1 endet, wo sie es selbst angibt (Inhalt ungeprüft)</numerusform>
            <numerusform>%1 enden, wo sie es selbst angeben (Inhalt ungeprüft)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>%1 abgeschnitten</numerusform>
            <numerusform>%1 abgeschnitten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>%1 beschädigt</numerusform>
            <numerusform>%1 beschädigt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 unbekannter Länge</numerusform>
            <numerusform>%1 unbekannter Länge</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%1 gespeichert in %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%1 gespeichert in %2 (%3): %4</numerusform>
            <numerusform>%1 gespeichert in %2 (%3): %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 unter dem Namen, den die Karte noch nennt</numerusform>
            <numerusform>%1 unter den Namen, die die Karte noch nennt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>%1 davon hat Sektoren, die nicht lesbar waren</numerusform>
            <numerusform>%1 davon haben Sektoren, die nicht lesbar waren</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 nicht noch einmal geschrieben: derselbe Inhalt ist schon gespeichert</numerusform>
            <numerusform>%1 nicht noch einmal geschrieben: derselbe Inhalt ist schon gespeichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 ausgelassen: kleiner als verlangt</numerusform>
            <numerusform>%1 ausgelassen: kleiner als verlangt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 ausgelassen: keine Datei ihres Typs</numerusform>
            <numerusform>%1 ausgelassen: keine Dateien ihres Typs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 ausgelassen: noch als Datei auf der Karte vorhanden</numerusform>
            <numerusform>%1 ausgelassen: noch als Dateien auf der Karte vorhanden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 ausgelassen: Teil einer Datei, die ganz gespeichert ist</numerusform>
            <numerusform>%1 ausgelassen: Teile von Dateien, die ganz gespeichert sind</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>Sektoren %1 von %2   ( %3% abgeschlossen )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
Um einen anderen Datenträger zur Wiederherstellung auszuwählen, klicken Sie auf ‚Zurück‘.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>noch ein paar Sekunden</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>noch etwa %1 s</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>noch etwa %1 min</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>noch etwa %1 h</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 Fund</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 Fund</numerusform>
            <numerusform>%1 Funde</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( Aktuelle Suche mit: Vantor, allgemeines Wiederherstellungsverfahren )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( Aktuelle Suche mit: Vantor, gründliches Suchverfahren )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
Um die Wiederherstellung anzuhalten, klicken Sie auf ‚Stopp‘, oder warten Sie bitte, bis der Vorgang abgeschlossen ist.</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
Fehler beim Lesen des Speichermediums.</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>Sektor %1 von %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>Die gründliche Suche</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>Die Suche</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1 wurde bei %2 abgebrochen.</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>Die Suche ist abgeschlossen.</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>Die Suche ist abgeschlossen, aber 1 Sektor war nicht lesbar.</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>Die Suche ist abgeschlossen, aber %1 Sektor war nicht lesbar.</numerusform>
            <numerusform>Die Suche ist abgeschlossen, aber %1 Sektoren waren nicht lesbar.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1 wurde bei %2 % angehalten (%3).</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>Das Medium konnte für die gründliche Suche nicht noch einmal geöffnet werden.</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>Das Medium konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1 hatte nichts, wonach sie suchen konnte.</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>Das Medium wurde bei %1 entfernt oder antwortet nicht mehr.</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1 endete mit einem Lesefehler bei %2.</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>Die allgemeine Suche davor war vollständig.</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>Stecken Sie das Medium wieder ein.</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>Es ist keine Suche, die dieses Programm aufbewahrt hat.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Die Datei ist beschädigt.</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>„%1“ ist leer: Es enthält keinen ganzen Sektor.</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>Es wird trotzdem gesucht; finden lässt sich nur, was unverpackt gespeichert ist.</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>Von %1 Sektoren von „%2“ wurden laut Karte (map) %3 nicht gelesen.</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>„%1“ ist weder eine Datei noch ein Speichermedium dieses Rechners.</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>Defekte Dateien wurden gelassen, wie sie sind: Das Medium kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>%1 von %2 defekten Filmen vervollständigt, %3 weitere zusammengesetzt: bitte ansehen</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>%1 von %2 defekten Fotos vervollständigt, %3 weitere zusammengesetzt: bitte ansehen</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>Im Fotomodus wird nicht nach Filmen gesucht, daher wird keiner vervollständigt</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>Im Fotomodus wird nicht nach Filmen gesucht, daher wird keiner repariert</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1: vollständig, aus %2 Stück</numerusform>
            <numerusform>%1: vollständig, aus %2 Stücken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1: aus %2 Stück zusammengesetzt, bitte ansehen</numerusform>
            <numerusform>%1: aus %2 Stücken zusammengesetzt, bitte ansehen</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>Das Medium während der Suche in diese Abbilddatei kopieren, jeden Sektor nur einmal gelesen; Suche und Speichern lesen dann die Kopie. DATEI.map sagt, was gelesen wurde. Eine Kopie, die schon da ist, wird fortgesetzt, auch eine von GNU ddrescue.</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>Mit --image: auch die Sektoren einzeln lesen, die zwischen weit auseinanderliegenden defekten liegen; kann sehr lange dauern.</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>Die Karte (map) zum Abbild MEDIUM, wie GNU ddrescue sie schreibt: Was sie nicht als gerettet führt, gilt als unlesbar. Ohne diese Angabe wird die Karte neben dem Abbild verwendet, wenn es eine gibt (card.img.map, card.map, auch .mapfile und .log).</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map verlangt eine Datei.</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image verlangt eine Datei.</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape gehört zu --image.</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>Die Signaturkataloge sind nicht die, mit denen sie begonnen wurde.</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>Das Medium %1 kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 ist nicht das Medium, das durchsucht wurde.</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>Das Medium kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>Die Verzeichnisse des Mediums konnten nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>Namen von Dateien und Dateien, von denen nur die Verzeichnisse wissen, können fehlen.</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>Der Arbeitsspeicher reicht nicht, um weiterzumachen. Was bis jetzt gespeichert wurde, ist vollständig.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektoren</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>Kein Speichermedium gefunden. Stecken Sie eine Karte oder einen Stick ein, oder nennen Sie stattdessen eine Abbilddatei.</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>Der Film %1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 ist kein ganzer MP4- oder QuickTime-Film einer Art, die sich reparieren lässt.</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>%1 von %2 Filmen ohne Index repariert</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1: kein ganzer Film der Kamera gefunden</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1: kein Bild gefunden</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1: %2 Bilder, %3 s, und %4 s Ton, wie in %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
Rückgabewerte: 0 abgeschlossen, 2 falsche Benutzung, 3 angehalten, 4 das Medium war nicht bis zum Ende lesbar, 5 das Medium
kann nicht geöffnet werden, 6 etwas Gefundenes konnte nicht gespeichert werden.
Strg-C beendet die Suche wie der Knopf „Stopp“: Alles, was bis dahin gefunden wurde, wird behalten und gespeichert.
Das Medium wird nur gelesen.
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
Versuchen Sie --help.</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>Findet Fotos, Videos und andere Dateien auf einem Speichermedium anhand der Bytes, mit denen sie beginnen.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe zeigen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Die Version zeigen.</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>Wonach gesucht wird: photo (ohne Angabe), video oder rawfile.</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>Nur diese Dateitypen, durch Kommas getrennt (in den Modi video und rawfile): Endungen, oder @photos, @office, @phone, @recorder, @everything.</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>Nur die Sektoren von START bis vor END.</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>Den gründlichen Durchgang des Fotomodus auslassen.</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>Das Medium im gründlichen Durchgang und beim Speichern noch einmal nach defekten Sektoren fragen.</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>Die Suche in DATEI aufbewahren, damit --resume sie fortsetzen kann.</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>Die in DATEI aufbewahrte Suche fortsetzen; MEDIUM kann wegbleiben.</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>Ordner der sechs Signaturkataloge.</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>Ein JSON-Objekt je Fund ausgeben und eines für das Ende.</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>Die Speichermedien dieses Rechners ausgeben (mit --list-json als JSON) und nichts suchen.</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>Als je ein JSON-Objekt ausgeben, was die Verzeichnisse des Mediums selbst von seinen Dateien sagen, den vorhandenen und den früheren, und nichts suchen.</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>Ausgeben, was --types in diesem Modus wählen kann, und nichts suchen.</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>Nichts sagen außer dem, was misslang, und keinen Fortschritt zeigen.</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>Diese Sprache sprechen (en, de, fr, es, it, pt_BR, nl, pl, ja oder zh_CN) statt der des Desktops; mit --list-json immer Englisch.</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>Eine Abbilddatei, die Kennung eines Geräts (sdb1) oder sein Pfad (/dev/sdb1).</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>Unbekannter Modus „%1“.</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>Wonach gesucht wird, steht in der Datei von --resume.</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>Keine Datei angegeben, in der die Suche aufbewahrt wird.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>Der Fotomodus sucht nach allen seinen Typen; --types gehört zu video oder rawfile.</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range verlangt START:END.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>Der Fotomodus sucht nach allen seinen Typen; --list-types gehört zu video oder rawfile.</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types verlangt kein Medium.</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media verlangt kein Medium.</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>Kein Medium angegeben.</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>Mehr als ein Medium angegeben.</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>Defekte Dateien werden vervollständigt: %1 von %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 liegt auf dem Medium, das durchsucht werden soll; dort zu speichern würde überschreiben, was noch zu finden ist. Wählen Sie einen Ordner auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>In den Ordner %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>%1 kann nicht kopiert werden: Seine Größe ist nicht bekannt.</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>Der Ordner %1 enthält keinen lesbaren Signaturkatalog.</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>Diesen Dateityp gibt es in diesem Modus nicht: %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>Es wird trotzdem gesucht.</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 liegt auf dem Medium, das durchsucht werden soll.</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>Die Suche kann nicht fortgesetzt werden. %1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>Die Suche konnte nicht in %1 aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>Was gefunden wird, als DIR/&lt;Typ&gt;/&lt;Name&gt; speichern, jede Datei so lang, wie ihr Format sagt, und gleichen Inhalt nur einmal; nichts wird überschrieben.</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>Die Sektoren jedes Fundes speichern, wie sie aufgelistet sind, nicht mehr und nicht weniger.</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>„Recovery report.html“ und „Recovery report.csv“ neben die gespeicherten Dateien schreiben.</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original (ohne Angabe): unter den Namen speichern, die das Verzeichnis der Karte noch nennt, wo es das tut; found: unter den aufgelisteten Namen.</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card (ohne Angabe): in den Ordnern speichern, die das Verzeichnis der Karte noch nennt, und was es nicht nennt in DIR/&lt;Typ&gt;; type: alles in DIR/&lt;Typ&gt;; date: als DIR/&lt;Typ&gt;/&lt;Datum&gt;/&lt;Datum und Zeit&gt; &lt;Name&gt;, wo ein Datum bekannt ist.</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>Nicht speichern, was auf der Karte noch als Datei vorhanden ist.</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>Dasselbe wie --folders date.</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>Dateien mit weniger Bytes nicht speichern.</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>Bilder, deren längere Seite weniger Pixel hat, nicht speichern.</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>Gleichen Inhalt noch einmal speichern, wenn er noch einmal gefunden wird.</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>Nicht speichern, was mit Sicherheit keine Datei ihres Typs ist.</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>Auch Teile von Dateien speichern, etwa das Vorschaubild eines Fotos oder den Inhalt eines Archivs: was ganz in einer Datei liegt, deren Vollständigkeit erwiesen ist, und sonst ausgelassen wird.</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>Zu jedem MP4-, QuickTime- oder AVI-Film, dessen Index nie geschrieben wurde, eine abspielbare Fassung „... repaired.MP4“ schreiben; für MP4 und QuickTime muss dazu auch ein ganzer Film derselben Kamera gefunden werden.</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>Ein ganzer Film der Kamera, an Stelle der gefundenen (mit --repair-movies).</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save verlangt einen Ordner.</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 gehört zu --save.</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published schaut in keine Datei und kennt daher weder Namen noch Daten noch Pixel noch den Zustand.</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names verlangt original oder found.</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders verlangt card, type oder date.</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date ist --folders date.</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference gehört zu --repair-movies.</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes und --min-pixels verlangen eine Zahl.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 weitere Datei, von der nur das Verzeichnis der Karte weiß</numerusform>
            <numerusform>%1 weitere Dateien, von denen nur das Verzeichnis der Karte weiß</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  und weitere</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Bericht: %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>Von dort weiter: --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>Von dort weiter: --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>Was gefunden wurde, kann nicht auf die Standardausgabe geschrieben werden.</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>Nicht alle Funde ließen sich noch einmal lesen; ihnen fehlt die Prüfsumme.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopie: %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>den ganzen Datenträger durchsuchen</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>mehr Dateitypen auswählen</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>die gründliche Suche einschalten</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>nach Videos oder nach Dateien (Raw) suchen</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>Noch keine Fotos gefunden</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>Sie erscheinen hier, während die Suche läuft.</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>Noch nichts gefunden</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>Die Funde erscheinen hier, während die Suche läuft.</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>Es wurden keine Fotos gefunden</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Es wurde nichts gefunden</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>Alles wurde nach allen Typen durchsucht. Versuchen Sie es mit einem anderen Medium.</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>Sie können zurückgehen und %1.</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>Sie können zurückgehen und %1 oder %2.</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>Keiner der Funde ist so</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>Klicken Sie links auf „Alle Funde“ und leeren Sie das Suchfeld, um alles zu sehen: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>Keiner der Funde ist dieser Art</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>Wählen Sie oben „Alle Funde“, um alles zu sehen: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>Keiner der Funde hat diesen Typ</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>Drücken Sie „Alle Typen“, um alles zu sehen: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>Keiner der Funde hat diesen Typ und diese Art</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>Drücken Sie „Alle Typen“ und wählen Sie oben „Alle Funde“, um alles zu sehen: %1.</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>Datum unbekannt</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>ddd, d. MMM yyyy</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Videos</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>1 Foto gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>%1 Foto gefunden</numerusform>
            <numerusform>%1 Fotos gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>1 Video gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>%1 Video gefunden</numerusform>
            <numerusform>%1 Videos gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>1 Datei gefunden</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 Datei gefunden</numerusform>
            <numerusform>%1 Dateien gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>„%1“, %2: %3 % gelesen, %4.</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Zielordner wählen</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Die Betreuer von Vantor Recovery

Freie Software unter der GNU General Public License, Version 3 oder neuer: Sie dürfen sie benutzen, untersuchen, weitergeben und verändern. Sie kommt ohne jede Gewährleistung.

Gemacht mit %1.

Läuft auf %2.</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>Datenträger	:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>Volume-Name	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>Dateisystem	:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>Kapazität (Größe)	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>Startsektor	:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>Endsektor	:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Keine&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mehr als %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>Sektor %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>Sektoren %1 bis %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>ab Sektor %1, in Stücken</translation>
    </message>
    <message>
        <source>some</source>
        <translation>einige</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>noch nicht untersucht</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Name auf der Karte</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Stücke</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>Unlesbare Sektoren</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>noch nicht</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>Suche: Videos wiederherstellen</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>Suche: Dateien (Raw) wiederherstellen</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Suche: Fotos wiederherstellen</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min %2 s</source>
        <translation>%1 min %2 s</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>Keine Bilder: Dieses System kann Dekodierer nicht einsperren (ihm fehlen seccomp-Filter), und nichts von einem Medium wird außerhalb dekodiert.</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>Keine Bilder: Das Programm, das sie dekodiert, startet nicht. Installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>Kein Bild: Dokumente werden nur innerhalb von bubblewrap gezeichnet, das nicht installiert ist oder auf diesem System nicht laufen darf.</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gefunden</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>%1 gefunden: %2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>Bitte exportieren Sie es zuerst als rohes Abbild (dd) oder als E01-Abbild und öffnen Sie dieses.</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>Es enthält einzelne Dateien statt eines Speichermediums. Bitte öffnen Sie ein Abbild des Mediums.</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>Vollständig, aus %1 Stück zusammengesetzt</numerusform>
            <numerusform>Vollständig, aus %1 Stücken zusammengesetzt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>Aus %1 Stück zusammengesetzt: bitte ansehen</numerusform>
            <numerusform>Aus %1 Stücken zusammengesetzt: bitte ansehen</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>Repariert: %1 Bilder, %2 s, und %3 s Ton, wie in %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 zusammengesetzt oder repariert (bitte ansehen)</numerusform>
            <numerusform>%1 zusammengesetzt oder repariert (bitte ansehen)</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>repariert</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 Stück</numerusform>
            <numerusform>%1 Stücke</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Ausgebessert</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>Pixel nicht bekannt</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>Unter 1 Megapixel</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>1 bis 4 Megapixel</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>4 bis 12 Megapixel</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>12 bis 30 Megapixel</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>Über 30 Megapixel</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>Mit „Weitersuchen“ wird der Rest durchsucht.</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>%1 von %2 defekten Dokumenten und Archiven vervollständigt, %3 weitere zusammengesetzt: bitte ansehen</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>MP4-, QuickTime- und AVI-Filme, JPEG- und PNG-Bilder, ZIP-Archive und Office-Dokumente zusammensetzen, die in Stücken liegen, als „... complete.MP4“ oder als „... put together.MP4“, wo sich nicht beweisen ließ, dass alle Stücke die richtigen sind.</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 ausgelassen: alles, wovon nur das Verzeichnis der Karte weiß, würde die Karte mehr als zweimal füllen</numerusform>
            <numerusform>%1 ausgelassen: alles, wovon nur das Verzeichnis der Karte weiß, würde die Karte mehr als zweimal füllen</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>Inhalt gespeicherter Dateien wird geprüft: %1 von %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>Länge nicht bekannt</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>Unter 10 Sekunden</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>10 Sekunden bis 1 Minute</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>1 bis 5 Minuten</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>5 bis 30 Minuten</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>Über 30 Minuten</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Der Datenträger ist voll</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>Ihr Anteil am Datenträger ist aufgebraucht</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>Der Datenträger lässt sich nur lesen</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>Der Datenträger nimmt keine so lange Datei auf</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>Der Datenträger meldet einen Fehler</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>Dazu fehlt Ihnen das Recht</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>Der Name ist zu lang</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Es gibt nichts mit diesem Namen</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>Das Gerät ist nicht da</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>Im Gerät steckt kein Medium</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>Der Ordner %1 führt anderswohin</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>Der Ordner %1 kann nicht angelegt werden: %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>Suchkriterien</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>Ganzer Datenträger</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>Jeden Sektor des Mediums durchsuchen. Am besten, wenn Sie unsicher sind.</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>Ganzer Datenträger</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>Sektorbereich</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>Nur zwischen zwei Sektoren suchen, die Sie angeben.</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>Sektorbereich</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>Speichermedium</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Keine&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Name des Datenträgers</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Kapazität</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>Erster Sektor</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>Endsektor</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>Sektoren werden ab 0 gezählt; jeder hat 512 Byte. Der Endsektor selbst wird nicht durchsucht.</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>Die Regler erreichen nicht alle Sektoren dieses Mediums: Sie enden bei Sektor 2.147.483.647. Um weiter hinten zu beginnen oder zu enden, tippen Sie den Sektor ein.</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>Startsektor</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>Bei Sektor beginnen</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>Regler des Startsektors</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Smallest Start Sector</source>
        <translation>Kleinster Startsektor</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>Größter Startsektor</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>Endsektor</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>Bei Sektor enden</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>Regler des Endsektors</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>Kleinster Endsektor</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>Größter Endsektor</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>Wo gefundene Dateien gespeichert werden</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>Noch keiner; Sie können ihn hier wählen oder beim Speichern</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>A&amp;uswählen …</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>Den Zielordner auswählen</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>Nach Typ</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>Funde nach Typ</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>Nur ge&amp;fundene Typen</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>Nur die Typen zeigen, die gefunden wurden</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>Alle T&amp;ypen</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>Wieder die Funde aller Typen zeigen</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>Funde</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>Wie viel gefunden wurde</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>Anzei&amp;gen</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Welche Funde gezeigt werden</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>Sor&amp;tieren</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Wie die Funde sortiert sind</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Keine Datei ausgewählt</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>Film in der Vorschau</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>Angaben zum Fund in der Vorschau</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Wohin gespeicherte Dateien kommen</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Was zum Speichern vorgemerkt ist</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Gezeigte &amp;vormerken</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Alles Gezeigte zum Speichern vormerken</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Alles Gezeigte zum Speichern vormerken; Einfügen und Entfernen merken die ausgewählten Funde vor und heben es auf</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Vo&amp;rmerkung umkehren</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Die Vormerkung des Gezeigten umkehren</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Vom Gezeigten vormerken, was nicht vorgemerkt ist, und beim Rest die Vormerkung aufheben</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Ord&amp;ner öffnen</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Den Ordner der gespeicherten Dateien öffnen</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>&amp;Anderer Ordner …</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Den Ordner ändern, in den gespeichert wird</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Von jetzt an in einen anderen Ordner speichern</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Was gespeichert ist</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;ptionen …</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Optionen für das Speichern</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Wie gespeichert wird: Namen und Ordner, ohne kleine Dateien, Duplikate, Bericht</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Ausgewäh&amp;lte speichern …</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Die ausgewählten Funde speichern</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Die ausgewählten Funde speichern (Strg+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Vorge&amp;merkte speichern …</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Die vorgemerkten Funde speichern</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Jeden vorgemerkten Fund speichern, auch die nicht gezeigten</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Alle sp&amp;eichern …</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Alle Funde speichern</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Jeden Fund speichern (Strg+Umschalt+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>Größe der Bilder</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Einzelheiten in Spalten</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Einzelheiten in Spalten (Strg+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>Suche beendet</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>Die Suche nach Fotos ist zu Ende</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>Die gefundenen Fotos werden als Vorschaubilder gezeigt. Wählen Sie die gewünschten aus und drücken Sie „Ausgewählte speichern“, oder nehmen Sie alles mit „Alle speichern“. Sie sind erst auf Ihrem Datenträger, wenn Sie sie speichern.</translation>
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
        <translation>Suche beendet</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>Die Suche nach Dateien ist zu Ende</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>Die Tabelle links zählt, was von jedem Typ gefunden wurde. Wählen Sie einen Fund aus, um ihn in der Vorschau zu sehen, und drücken Sie dann „Ausgewählte speichern“, oder nehmen Sie alles mit „Alle speichern“. Nichts ist auf Ihrem Datenträger, bevor Sie es speichern.</translation>
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
        <translation>Optionen für das Speichern</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>Or&amp;dner</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>Ordner für die gespeicherten Dateien</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>Was die Karte nicht nennt oder wovon kein Datum bekannt ist, kommt in den Ordner seines Typs</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>Die &amp;Namen verwenden, die die Dateien auf der Karte hatten</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>Die Namen verwenden, die die Dateien auf der Karte hatten</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>Soweit die Karte sie noch nennt</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>Kleine &amp;Bilder auslassen, mit einer längeren Seite unter</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>Kleine Bilder auslassen</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Pixel</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>Mindestzahl der Pixel der längeren Seite</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>Kleine Date&amp;ien auslassen, mit weniger als</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>Kleine Dateien auslassen</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>Mindestgröße in Kilobyte</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>Auslassen, was mit &amp;Sicherheit keine Datei ihres Typs ist</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>Auslassen, was mit Sicherheit keine Datei ihres Typs ist</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>Bytes, die nur wie eine Datei dieses Typs beginnen</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>Auch &amp;Teile von Dateien speichern</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>Auch Teile von Dateien speichern</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>Was ganz in einer Datei liegt, deren Vollständigkeit erwiesen ist, etwa das Vorschaubild eines Fotos</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>D&amp;uplikate behalten</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>Duplikate behalten</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>Gleichen Inhalt jedes Mal speichern, wenn er gefunden wurde</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>Einen &amp;Wiederherstellungsbericht neben die gespeicherten Dateien schreiben</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>Einen Wiederherstellungsbericht neben die gespeicherten Dateien schreiben</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>Eine Seite zum Lesen und eine Tabelle für andere Programme</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
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
        <translation>Speichern</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>Wie viele Funde gespeichert sind</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>Die Datei, die gerade gespeichert wird</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>Fortschritt des Speicherns</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>Geschwindigkeit und verbleibende Zeit</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>Was so lange dauert</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>Diese Datei ü&amp;berspringen</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>Diese Datei überspringen und mit der nächsten weitermachen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>Speichern abbrechen</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>Der Laufwerksdienst kennt sie nicht mehr.</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>Der Laufwerksdienst antwortet nicht.</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>Der Laufwerksdienst hat es abgelehnt.</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>Alle Funde</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Vollständig</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>Unbekannter Länge</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>Mit unlesbaren Sektoren</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Noch nicht gespeichert</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>Ohne kleine</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>Ohne Fehlfunde</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>Nur was verloren ist</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Wie gefunden</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>Nach Zustand</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Nach Größe</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>Nach Aufnahmedatum</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>Nach dem Namen auf der Karte</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Unvollständig oder beschädigt</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>Zusammengesetzt oder repariert</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Nach Typ</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Nach Kamera</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Nach Pixeln</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Nach Länge</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>Nach Ort auf der Karte</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>Bild der Karte</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1 (%2 belegt)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>Kein Dateisystem bekannt</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>nichts davon würde durchsucht</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>alles davon wird durchsucht</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>%1 davon werden durchsucht</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>%1 nach Herstellerzählung</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>Was vom Bereich gelesen wurde</translation>
    </message>
    <message>
        <source>read</source>
        <translation>gelesen</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>etwas gefunden</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>defekt</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>noch offen</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Name auf der Karte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>Pixel oder Länge</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>Ort auf der Karte</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, gespeichert</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>Spalten der Einzelheiten</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>Nach Namen suchen</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>Funde nach Namen durchsuchen, auch nach dem auf der Karte</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>Was gefunden wurde, nach Typ, Tag, Kamera und Größe</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>Klicken zeigt nur diese; mit gedrückter Strg-Taste mehrere</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Alle Funde</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Nach Tag</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Nach Kamera</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Nach Größe</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Kein Typ</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>Kamera unbekannt</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>Nur auf der Karte</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>1 weitere Datei, von der nur das Verzeichnis der Karte weiß</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 weitere Datei, von der nur das Verzeichnis der Karte weiß</numerusform>
            <numerusform>%1 weitere Dateien, von denen nur das Verzeichnis der Karte weiß</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>„Alle speichern“ speichert auch sie.</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>und %1 weitere</numerusform>
            <numerusform>und %1 weitere</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Nach Pixeln</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Nach Länge</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>Das Hilfedokument konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>Dieser Desktop hat kein Programm, das PDF-Dokumente zeigt. Es liegt hier:</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>Die Hilfedatei ist nicht vorhanden!</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>gespeichert</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>vorgemerkt</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>Großansicht</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ Ergebnisse</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>Zurück zu den Ergebnissen (Esc)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>Ganzes Bild (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>Tatsächliche Größe (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>Kleiner (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>Größer (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Vollbild</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Vollbild (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Angaben</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>Die Angaben daneben zeigen (I)</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Item before this one (Left)</source>
        <translation>Fund davor (Links)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>Nächster Fund (Rechts)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Bild von %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Vormerken</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>Zum Speichern vormerken (Einfg, Entf)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Vorgemerkt</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>Diese Suche &amp;merken</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>Um später weiterzusuchen, auch nach einem Stromausfall. Sie tritt an die Stelle der zuletzt gemerkten Suche.</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>Bei der Suche eine &amp;Kopie der Karte behalten</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>Ort wäh&amp;len …</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>Wählen, wo die Kopie liegen soll</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>Am besten für eine Karte, die versagt oder langsam ist: Sie wird nur einmal gelesen, alles andere liest die Kopie.</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>Um später weiterzusuchen, auch nach einem Stromausfall.</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>Die gemerkte Suche</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Weiters&amp;uchen</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Den Rest des Mediums durchsuchen; was gelesen wurde, wird nicht noch einmal durchsucht</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>&amp;Gefundenes zeigen</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>Auflisten, was die Suche gefunden hatte, ohne weiterzusuchen</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Vergessen</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>Löschen, was zu dieser Suche gemerkt ist; gespeicherte Dateien bleiben</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>Die gemerkte Suche fortsetzen</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>Zeigen, was die gemerkte Suche gefunden hat</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>Die gemerkte Suche vergessen</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>Gemerkte Suche: %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>Die Datei zeigen, wie sie gefunden wurde (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>Wie gefunden</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>Die Datei zeigen, wie sie zusammengesetzt wurde (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Repariert</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>Zusammengesetzt</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>Wie weit das Vervollständigen ist und was daraus wurde</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>Fortschritt beim Vervollständigen</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>St&amp;opp</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>Das Vervollständigen anhalten; was zusammengesetzt wurde, bleibt</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>&amp;Diese zeigen</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>Die Dateien zeigen, die zusammengesetzt oder repariert wurden</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation>Gespielte Zeit und Länge</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Ton aus</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pause (Leertaste)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Ton an</translation>
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
        <translation>Abspielen oder Pause (Leertaste)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>Kein Film</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Wählen Sie einen Fund aus, um ihn in der Vorschau zu sehen.</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 von %2 ausgewählt</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1, ohne Vorschaubilder</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Alle sp&amp;eichern …</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>Alle gezeigten sp&amp;eichern (%1) …</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Alle Funde speichern</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>Alle gezeigten Funde speichern</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 von %2 gespeichert</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;ptionen …</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>O&amp;ptionen (%1) …</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>Wählen, wo die Kopie der Karte liegen soll</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>Abbilder von Medien (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>Dort kann die Kopie nicht liegen.</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>Der Ordner liegt auf dem Medium, das durchsucht werden soll; dort zu schreiben würde überschreiben, was noch zu finden ist. Wählen Sie eine Stelle auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>Für eine Kopie ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>Sie braucht bis zu %1, und in %3 sind %2 frei. Wählen Sie eine Stelle auf einem anderen Datenträger, oder suchen Sie ohne Kopie.</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1: bis zu %2 nötig, %3 frei</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1: bis zu %2 nötig</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>Wie es der Karte geht</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>&amp;Kopie behalten …</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>Die Suche hält kurz an und geht dann weiter; dabei wird die Karte nur einmal gelesen, in die Datei, die Sie wählen</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>Diese Karte versagt: 1 defekter Sektor.</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>Diese Karte versagt: %1 defekter Sektor.</numerusform>
            <numerusform>Diese Karte versagt: %1 defekte Sektoren.</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>Diese Karte ist sehr langsam.</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>Behalten Sie eine Kopie, dann wird jeder Sektor nur einmal gelesen.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopie: %1</translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation>Kopie: %1. %2</translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation>Wenn das Programm endet, ist die Liste der Funde weg.</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>Ohne Speichern beenden</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
Möchten Sie „%1“ wirklich beenden?</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>%1 der %2 Funde sind nicht gespeichert.</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>Der Fund ist nicht gespeichert.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>Der %1 Fund ist nicht gespeichert.</numerusform>
            <numerusform>Keiner der %1 Funde ist gespeichert.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Bleiben</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>Alle Typen der Gruppe %1</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alle auswählen</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>&amp;Alle gezeigten auswählen</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>Kein Typ passt</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>Keine Dateitypen</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>Leeren Sie das Suchfeld, um alle Typen zu sehen.</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>Der Katalog der Dateitypen konnte nicht gelesen werden. Installieren Sie das Programm neu.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>Was mit dem Fund geschehen soll</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>&amp;Groß zeigen</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>&amp;Angaben zeigen</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>Ausgewählte &amp;speichern …</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>Alle vom &amp;Tag %1 auswählen</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>Alle von diesem &amp;Tag auswählen</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>Alle des T&amp;yps %1 auswählen</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Weiters&amp;uchen</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>Weitersuchen</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Den Rest des Mediums durchsuchen; was gelesen wurde, wird nicht noch einmal durchsucht</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>Die Suche beginnt von vorn.</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>Sie wurde mit anderen Signaturlisten begonnen, als diese Version des Programms hat.</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>Diese Suche wird nicht gemerkt.</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>Ihr persönlicher Ordner liegt auf dem Medium, das durchsucht werden soll; dort zu schreiben würde überschreiben, was noch zu finden ist.</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>Die Suche kann nicht fortgesetzt werden.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>Das ist nicht das Medium, das durchsucht wurde. Stecken Sie das richtige ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>Das Medium kann nicht geöffnet werden. Stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>Das Medium dieser Suche ist nicht da.</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>Es war %1. Stecken Sie es ein oder öffnen Sie sein Abbild, und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>Das ist nicht das Medium, das durchsucht wurde.</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>Es enthält etwas anderes als %1. Stecken Sie das richtige ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>Das Medium dieser Suche kann nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>1 Fund, bevor sich das Medium nicht mehr öffnen ließ.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>%1 Fund, bevor sich das Medium nicht mehr öffnen ließ.</numerusform>
            <numerusform>%1 Funde, bevor sich das Medium nicht mehr öffnen ließ.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>Die Liste bleibt, bis Sie erneut suchen oder zurückgehen.</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>Das Speichermedium antwortet nicht.</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>Die vorige Suche ist noch nicht zu Ende. Entfernen Sie das Medium, stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>Eine neue Suche leert die Liste der Funde.</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>Ohne Speichern suchen</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>Das Abbild konnte nicht geöffnet werden.</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>%1 Abbild konnte nicht geöffnet werden.</numerusform>
            <numerusform>%1 Abbilder konnten nicht geöffnet werden.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>Einen Film wählen</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>Dieser Ordner kann nicht das Ziel sein.</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>Er liegt auf dem Speichermedium, von dem Sie wiederherstellen. Dort zu schreiben würde die Dateien überschreiben, die Sie zurückhaben möchten. Wählen Sie einen Ordner auf einem anderen Datenträger.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Wählen Sie einen anderen Ordner.</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>Der Datenträger mit %1 wurde entfernt. Stecken Sie ihn wieder ein, oder ändern Sie den Ordner.</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 wurde gelöscht oder umbenannt, oder der Datenträger wurde entfernt. Holen Sie den Ordner zurück, oder wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>Das Ziel ist nicht mehr da.</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>Noch kein Ordner für gespeicherte Dateien gewählt</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>Gespeicherte Dateien kommen nach %1; den Ordner gibt es nicht</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>Gespeicherte Dateien kommen nach %1 (%2 frei)</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>Gespeicherte Dateien kommen nach %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>Dieser Desktop hat kein Programm, das Ordner zeigt.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Er ist nicht mehr da.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Der Ordner konnte nicht geöffnet werden.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Das Speichermedium kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>Das ist noch die Vorschau von %1.</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Wählen Sie einen Fund aus, um ihn in der Vorschau zu sehen.</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mehr als %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Vorschau von %1</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>Mit ‚Ganzer Datenträger‘ sucht Vantor Recovery auf dem gesamten gewählten Datenträger nach verlorenen Daten. Um nur in einem bestimmten Sektorbereich oder einer Partition zu suchen, wählen Sie bitte das andere Suchkriterium. Andernfalls beginnen Sie mit ‚Weiter‘ die Suche auf dem ganzen Datenträger.</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>Mit ‚Sektorbereich‘ legen Sie den Start- und den Endsektor fest, zwischen denen auf dem Speichermedium nach verlorenen Daten gesucht wird. Ziehen Sie dazu die Knöpfe der Regler, oder geben Sie die Werte in die Felder Startsektor und Endsektor ein.</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>Die Einstellungen sind vergessen.</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>Fenster, Speicheroptionen und Ordner sind beim nächsten Start des Programms wie beim ersten.</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>Es hält noch das Speichern auf, das Sie abgebrochen haben. Entfernen Sie das Medium, stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>Es geht weiter.</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Keine Datei ausgewählt</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
Bitte wählen Sie ein Speichermedium aus der Liste aus.</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>Wenn Sie zurückgehen, wird die Liste der Funde geleert.</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>Ohne Speichern zurückgehen</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
Wählen Sie in der Liste das Speichermedium aus, von dem Sie Daten wiederherstellen möchten. Mit ‚Weiter‘ geht es weiter … </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
Bitte wählen Sie die Dateitypen für die Wiederherstellung aus. Mit ‚Weiter‘ geht es weiter … </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Dateitypen</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>Die Suche konnte nicht gemerkt werden: %1.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 Foto</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 Foto</numerusform>
            <numerusform>%1 Fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>alle vollständig</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>Drücken Sie „Stopp“, oder lassen Sie die Suche weiterlaufen.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Nichts gefunden</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>Keine Typen</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>Von den ausgewählten Typen wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>Gehen Sie zurück und wählen Sie die Typen aus, nach denen gesucht werden soll.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektoren</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Dateisystem</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>Ganzer Datenträger</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>Gründlich</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>Keine Speichermedien gefunden</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>Stecken Sie die Speicherkarte ein oder schließen Sie ihr Lesegerät an und drücken Sie „Aktualisieren“, oder öffnen Sie die Abbilddatei eines Mediums. Sie können eine Abbilddatei auch hier ablegen.</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>Sektoren 0 von 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>%1 von %2 vorgemerkt, %3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>Gezeigte nicht &amp;vormerken</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Gezeigte &amp;vormerken</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>Die Vormerkung des Gezeigten aufheben</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Alles Gezeigte zum Speichern vormerken</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>Vorge&amp;merkte speichern (%1) …</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Die Abbilddatei eines Mediums öffnen</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>Abbilder von Medien (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>Date&amp;ien vervollständigen</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>Unvollständige Dateien vervollständigen</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>Auf dem Medium nach den fehlenden Stücken von Fotos und Filmen suchen und Filme ohne Index reparieren; was gefunden wurde, bleibt daneben, wie es ist</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>Suche nach unvollständigen Dateien: %1 von %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>Filme werden vervollständigt …</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>Filme werden vervollständigt: %1 von %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>Fotos werden vervollständigt …</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>Fotos werden vervollständigt: %1 von %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>Filme ohne Index werden repariert …</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>Filme ohne Index werden repariert: %1 von %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>Unvollständige Dateien blieben, wie sie sind: Das Speichermedium lässt sich nicht öffnen. Stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>Das Speichermedium ist nicht mehr da. Stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Angehalten.</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 Datei vervollständigt</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 Datei vervollständigt</numerusform>
            <numerusform>%1 Dateien vervollständigt</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 Datei zusammengesetzt (bitte ansehen)</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 Datei zusammengesetzt (bitte ansehen)</numerusform>
            <numerusform>%1 Dateien zusammengesetzt (bitte ansehen)</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>1 Film repariert</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>%1 Film repariert</numerusform>
            <numerusform>%1 Filme repariert</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>Es wurde keine unvollständige Datei einer Art gefunden, die sich vervollständigen lässt.</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>Keine unvollständige Datei ließ sich vervollständigen.</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>Es werden noch andere Dateien geschrieben. Ziehen Sie gleich noch einmal.</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>Es ist nicht genug Platz, um %1 zum Ziehen bereitzustellen. Speichern Sie die Dateien stattdessen.</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>Diese Dateien können nicht vom Speichermedium gelesen werden.</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>Dateien werden bereitgestellt …</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>Die Dateien werden noch geschrieben. Ziehen Sie sie gleich noch einmal.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Speichern unter</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>Die Karte kann herausgenommen werden.</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>Die Karte konnte nicht ausgeworfen werden.</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>Nicht mehr &amp;vormerken</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>Zum Speichern &amp;vormerken</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter …</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Suchoptionen</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>Dokumente werden vervollständigt …</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>Dokumente werden vervollständigt: %1 von %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>%1 der %2 Dateien konnte nicht gezogen werden.</numerusform>
            <numerusform>%1 der %2 Dateien konnten nicht gezogen werden.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>Stück %1: Sektoren %2 bis %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>Stücke auf der Karte</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karte</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>Etwa %1 werden gebraucht, und in %3 sind %2 frei.</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>So wie sie gefunden wurden, brauchen die Dateien etwa %1; wenn sie untersucht sind, erweisen sie sich oft als kürzer. In %3 sind %2 frei.</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>Im Ziel ist vielleicht nicht genug Platz.</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>Was Platz hat, wird ganz gespeichert; der Rest wird ausgelassen und bleibt in der Liste.</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>Speichern, was Platz hat</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>Anderer Ordner …</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Es wurde nichts gespeichert.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>Das Speichermedium ist nicht mehr lesbar. Stecken Sie es wieder ein und versuchen Sie es noch einmal.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ordner öffnen</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>Karte auswerfen</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>Wie auf der Karte</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Nach Typ</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>Nach Typ und Datum</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>Das Medium verweigert Sektoren dieser Datei: bisher %1. Jeder kann Sekunden dauern. Was dahinter liegt, wird trotzdem gelesen.</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>%1 von %2 wird gespeichert</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>Inhalt wird geprüft: %1 von %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>Vom Medium wird nichts mehr gelesen. „Abbrechen“ beendet nur diese Prüfung.</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>ausgewählt</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>nicht ausgewählt</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>Wird geladen …</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Das Speichermedium kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>Von dieser Datei lässt sich kein Bild zeigen.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
</TS>
