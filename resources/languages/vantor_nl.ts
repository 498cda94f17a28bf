<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>Doelmap</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>Kiezen waar gevonden bestanden komen</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>Kies in het volgende venster een map op een andere schijf, nooit op het medium waarvan u herstelt: wat daar wordt geschreven, kan juist de bestanden overschrijven die u terug wilt.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>Voorbeeld</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>Voorbeeld wordt voorbereid</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>Het item wordt van het medium gelezen. Bij grote items duurt dat even.</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>Forensische images kunnen hier niet worden gelezen</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>Forensische images worden alleen afgeschermd gelezen, wat dit systeem niet toestaat</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>Het deel van het programma dat forensische images leest, start niet</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>Het forensische image is beschadigd of van een soort die niet kan worden gelezen</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>Gezochte bestandstypen</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>Hoeveel typen zijn geselecteerd</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>V&amp;oorinstellingen</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>De typen selecteren die bij elkaar horen</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>Voorinstellingen van bestandstypen</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>Typen zoeken…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>Zoeken in de bestandstypen</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles selecteren</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>Alle bestandstypen selecteren</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Bestandstypen</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Grondig zoeken</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>Naar typen met de aanduiding “Grondig” wordt in een tweede gang over het medium gezocht.</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>Help</translation>
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
        <translation>1.  Kies de geheugenkaart en wat er verloren is: foto’s, video’s of andere bestanden.
2.  Kies waar u wilt zoeken: de hele schijf of een bereik van sectoren.
3.  Vink voor video’s en bestanden de gewenste typen aan.
4.  Volg de zoekactie. Selecteer wat u terug wilt en sla het op een andere schijf op.

De kaart wordt alleen gelezen, er wordt nooit op geschreven. Gebruik de kaart niet meer tot u uw bestanden terug hebt.</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>De volledige handleiding, met afbeeldingen:</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>Het helpdocument openen</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Over…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>Over dit programma: versie, licentie, bibliotheken</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>&amp;Instellingen vergeten</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>Venstergrootte, opslagopties en mappen van eerdere keren</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>De instellingen van eerdere keren vergeten</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Doorgaan</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>Opslagmedia</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>Opslagmedia worden gezocht</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>De lijst van geheugenkaarten en verwisselbare schijven wordt gelezen.</translation>
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
        <translation>Stappen van het herstel</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>Het helpvenster openen (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Soort zoekactie: foto’s herstellen</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Soort zoekactie</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Geen&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>Aanduiding van het gekozen medium</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectoren</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>Aantal sectoren van het gekozen medium</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>Gevonden &amp;items tonen</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>De tot nu toe gevonden items tonen</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>Bekijken wat is gevonden en het opslaan</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>Hoe de zoekactie eindigde</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>Hoe de zoekactie eindigde en hoe het verder gaat</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>Wat de zoekactie heeft gevonden en hoelang ze duurde</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>De&amp;fecte sectoren opnieuw lezen</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>Defecte sectoren opnieuw lezen</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>Voorbeeld en opslaan vragen het medium nog eens om wat het niet kon lezen</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Grondig zoeken</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>Na de algemene zoekactie nog eens zoeken met een langere lijst van afbeeldingstypen.</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>Huidige zoekprocedure</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>Miniaturen die niet klaar zijn, worden gewist…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>De zoekactie wordt gestopt</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>Snelheid, resterende tijd en gevonden items</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>Voortgang van de zoekactie</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>Stopp&amp;en</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>De zoekactie stoppen</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>De zoekactie nu beëindigen en behouden wat is gevonden</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>Doorzochte sectoren</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>Wat te doen op dit scherm</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Af&amp;sluiten</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>Het programma afsluiten (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Terug</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Terug</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>Naar het vorige scherm (Alt+Links)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>&amp;Volgende ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>Naar het volgende scherm (Enter)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>Opslagmedia</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>Niet in de lijst?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Ve&amp;rnieuwen</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>De lijst van media vernieuwen</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>Opnieuw opslagmedia zoeken (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>Image &amp;openen…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Een imagebestand van een medium openen</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>Een als bestand opgeslagen kopie van een medium doorzoeken (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>Wat is er verloren?</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>Herstelmodus</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>Afbeeldingen van camera’s en telefoons, als miniaturen getoond terwijl ze worden gevonden.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>Films en clips van de typen die u kiest, elk met een voorbeeld.</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>Ruw bestand</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>Documenten, archieven, geluid en alle andere typen die u kiest.</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>Ruw bestand</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>Gevonden foto’s</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>Hoeveel foto’s zijn gevonden</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Weergeven</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Welke items worden getoond</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>So&amp;rteren</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Hoe de items zijn gesorteerd</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>Zoom van de miniaturen</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Waar opgeslagen bestanden komen</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Wat is aangevinkt om op te slaan</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Getoonde aanvin&amp;ken</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Al het getoonde aanvinken om op te slaan</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Al het getoonde aanvinken om op te slaan; Insert en Delete vinken de geselecteerde items aan en uit</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Vink&amp;jes omkeren</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>De vinkjes van het getoonde omkeren</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Van het getoonde aanvinken wat niet is aangevinkt, en de rest uitvinken</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>&amp;Map openen</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>De map met opgeslagen bestanden openen</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Map wijzi&amp;gen…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>De map wijzigen waarin bestanden worden opgeslagen</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Vanaf nu in een andere map opslaan</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Wat is opgeslagen</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;pties…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opties voor het opslaan</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Hoe items worden opgeslagen: namen en mappen, zonder kleine, duplicaten, rapport</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Se&amp;lectie opslaan…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>De geselecteerde items opslaan</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>De geselecteerde items opslaan (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Aangevinkte opslaa&amp;n…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>De aangevinkte items opslaan</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Elk aangevinkt item opslaan, ook de items die niet worden getoond</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>&amp;Alles opslaan…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Alle gevonden items opslaan</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Elk gevonden item opslaan (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Details in kolommen</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Details in kolommen (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
Selecteer ten minste één bestandstype.</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>Het programma spreekt geen “%1”. Het spreekt %2.</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>Foto’s van alle camera’s</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Kantoordocumenten</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefoon</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>Geluidsrecorder</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Alles</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>“%1” is geen bestand.</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>Het map-bestand “%1” hoort bij een andere kopie. Kies een andere naam.</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>“%1” is een kopie van een medium van een andere grootte. Kies een andere naam.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>“%1” kan niet worden geschreven: %2.</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>“%1” wordt door een andere zoekactie geschreven.</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>“%1” bestaat al, en geen map-bestand ernaast geeft aan dat het een kopie is waarmee kan worden doorgegaan. Kies een andere naam.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>“%1” kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>Het map-bestand “%1” kan niet worden gebruikt: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>het is geen bestand</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>het bestaat niet</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>het is te groot voor een map-bestand</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>Het map-bestand “%1” kan niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>de regel is te lang</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>geen regel geeft de positie aan</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>een positie, een van ?*/-FG+ en een gang worden verwacht</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>een positie, een grootte en een van ?*/-+ worden verwacht</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>de grootte is niet mogelijk</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>ze overlapt met de vorige regel</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>ervoor zit een gat</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>er zijn te veel regels</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>regel %1: %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>“%1” is geen imagebestand.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>“%1” kan niet worden geopend: %2.</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>“%1” is leeg. Kies een imagebestand van een opslagmedium.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>“%1” kan niet worden geopend.</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>“%1” is een kopie van een ander medium.</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>De kopie “%1” eindigt hier: %2. Wat ze niet bevat, wordt van het medium gelezen.</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>U mag deze kaart niet lezen. Zoek opnieuw en sta het toe wanneer om het wachtwoord wordt gevraagd, of vraag de beheerder van deze computer om het recht opslagmedia te lezen.</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>U mag dit imagebestand niet lezen. Vraag de eigenaar om het recht het te lezen, of om een kopie.</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>Het medium is er niet meer. Plaats het terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>Op die plaats zit nu een ander medium. Ga terug naar de lijst van media en kies opnieuw.</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>Het imagebestand is tijdens het zoeken gewijzigd; wat gevonden is, kan daardoor beschadigd zijn. Zoek opnieuw wanneer niets er meer in schrijft.</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>Pak het eerst uit en open het imagebestand dat erin zit.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>Zet het eerst om in een ruw image (bijvoorbeeld met “qemu-img convert -O raw”) en open dat.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>Zet het eerst om in een ruw image en open dat.</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>“%1” is ingepakt (%2) en kan zo niet worden doorzocht. %3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>Geen opslagmedium en ook geen imagebestand</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>Het image bestaat uit meer dan %1 delen; voeg ze eerst samen tot één bestand</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>Er ontbreekt een deel van het image: %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>Voer een geldige beginsector in.</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>Voer een geldige eindsector in.</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
Het maximale bereik van sectoren is overschreden</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
De eindsector moet groter zijn dan de beginsector.</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>Deze kaart lijkt gewist: behalve de eigen sectoren van het bestandssysteem zijn alle bekeken plaatsen leeg. Sommige camera’s en programma’s wissen bij het formatteren de hele kaart, en dan kan niets worden gevonden.</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>Onder 100 kB</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>100 kB tot 1 MB</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>1 MB tot 10 MB</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>10 MB tot 100 MB</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>100 MB tot 1 GB</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>Boven 1 GB</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto’s</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Camera-RAW</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Video’s</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Geluid</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenten</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archieven</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Overig</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>geen bestand van zijn type</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>volledig</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>eindigt waar het aangeeft, inhoud niet gecontroleerd</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>afgekapt</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>beschadigd</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>van onbekende lengte</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>samengevoegd uit %1 stuk</numerusform>
            <numerusform>samengevoegd uit %1 stukken</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>niet al zijn sectoren konden worden gelezen</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>opgenomen %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>“%1” staat op het medium dat wordt gekopieerd; daar schrijven zou overschrijven wat nog te vinden is. Kies een plaats op een andere schijf.</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1. De kopie eindigt daar; de zoekactie gaat verder vanaf het medium.</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>Bestanden op deze schijf kunnen hoogstens 4 GB groot zijn. De kopie eindigt daar; de zoekactie gaat verder vanaf het medium.</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>De schijf van de kopie verwerkt maar %1 per seconde: een hele kopie duurt ongeveer %2 minuten.</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 defecte sector</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 defecte sector</numerusform>
            <numerusform>%1 defecte sectoren</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>%1% gekopieerd</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>eromheen wordt gelezen</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>het medium is weg</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>de kopie is geëindigd</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>ander medium</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>%1 van %2 gekopieerd</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>%1 sector tussen defecte weggelaten</numerusform>
            <numerusform>%1 sectoren tussen defecte weggelaten</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>De map %1 bestaat niet.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 is geen map.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>In de map %1 kan niets worden geschreven: %2.</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 staat op een FAT-bestandssysteem, dat geen bestand van 4 GiB of meer opneemt, en %2 is nodig</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>Er is niet genoeg ruimte in %1: %2 nodig, %3 vrij</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>De map %1 bestaat niet meer</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>De map %1 staat op het medium dat wordt doorzocht</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>Het medium kan niet meer worden gelezen</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>Geen van zijn sectoren kon worden gelezen</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>nog aanwezig</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>verwijderd</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>map verloren</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>gewijzigd %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>kleiner dan gevraagd</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>deel van %1</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>nog aanwezig als bestand</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>lengte geschat</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 onleesbare sector</numerusform>
            <numerusform>%1 onleesbare sectoren</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totalen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Opgeslagen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Volledig</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>Eindigt waar aangegeven</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Afgekapt</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>Beschadigd</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>Lengte onbekend</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicaten</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Weggelaten</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>weggelaten: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>mislukt: %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>zelfde bytes als een eerder bestand; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 tot %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>Sectoren van 512 bytes</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>Gezocht naar</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Geëindigd</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoekactie</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>Herstelrapport</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>Op de kaart</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Opgenomen</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>Gevonden in sectoren</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>video’s</translation>
    </message>
    <message>
        <source>files</source>
        <translation>bestanden</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>foto’s</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>Het rapport kan niet in %1 worden geschreven: %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Overgeslagen</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>Waarvan: %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>%1 konden niet worden opgeslagen:</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   en nog %1</numerusform>
            <numerusform>   en nog %1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 item</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 item</numerusform>
            <numerusform>%1 items</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>Er is niets nieuws opgeslagen.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Er is niets opgeslagen.</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>Er is 1 bestand opgeslagen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>Er is %1 bestand opgeslagen.</numerusform>
            <numerusform>Er zijn %1 bestanden opgeslagen.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>Ze staan in %1.</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>Slechts deels leesbaar: %1; wat niet kon worden gelezen, is met nullen gevuld.</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>Weggelaten: %1, %2.</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>Niet opnieuw geschreven: %1, dezelfde inhoud is al opgeslagen.</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>kleiner dan u hebt gevraagd</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>zeker geen bestanden van hun type</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>nog aanwezig als bestanden op de kaart</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>delen van bestanden die in hun geheel zijn opgeslagen</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>Het opslagmedium is intussen verdwenen. Plaats het terug en sla opnieuw op.</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>De rest is niet opgeslagen omdat u hebt geannuleerd.</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>“%1” in de doelmap vertelt meer over elk bestand.</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>%1 volledig</numerusform>
            <numerusform>%1 volledig</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>%1 eindigt waar het aangeeft (inhoud niet gecontroleerd)</numerusform>
            <numerusform>%1 eindigen waar ze aangeven (inhoud niet gecontroleerd)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>%1 afgekapt</numerusform>
            <numerusform>%1 afgekapt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>%1 beschadigd</numerusform>
            <numerusform>%1 beschadigd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 van onbekende lengte</numerusform>
            <numerusform>%1 van onbekende lengte</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%1 opgeslagen in %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%1 opgeslagen in %2 (%3): %4</numerusform>
            <numerusform>%1 opgeslagen in %2 (%3): %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 onder de naam die de kaart nog aangeeft</numerusform>
            <numerusform>%1 onder de namen die de kaart nog aangeeft</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>%1 daarvan heeft sectoren die niet konden worden gelezen</numerusform>
            <numerusform>%1 daarvan hebben sectoren die niet konden worden gelezen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 niet opnieuw geschreven: dezelfde bytes zijn al opgeslagen</numerusform>
            <numerusform>%1 niet opnieuw geschreven: dezelfde bytes zijn al opgeslagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 weggelaten: kleiner dan gevraagd</numerusform>
            <numerusform>%1 weggelaten: kleiner dan gevraagd</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 weggelaten: geen bestand van zijn type</numerusform>
            <numerusform>%1 weggelaten: geen bestanden van hun type</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 weggelaten: nog aanwezig als bestand op de kaart</numerusform>
            <numerusform>%1 weggelaten: nog aanwezig als bestanden op de kaart</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 weggelaten: deel van een bestand dat in zijn geheel is opgeslagen</numerusform>
            <numerusform>%1 weggelaten: delen van bestanden die in hun geheel zijn opgeslagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>Sectoren %1 van %2   ( %3% voltooid )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
Klik op de knop “Terug” om een andere schijf voor herstel te selecteren.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>nog enkele seconden</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>nog ongeveer %1 s</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>nog ongeveer %1 min</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>nog ongeveer %1 h</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 item gevonden</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 item gevonden</numerusform>
            <numerusform>%1 items gevonden</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( Nu wordt gezocht met: algemene herstelprocedure van Vantor )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( Nu wordt gezocht met: grondig zoekalgoritme van Vantor )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
Klik op de knop “Stoppen” om het herstel te stoppen, of wacht tot het proces is voltooid.</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
Fout bij het lezen van het opslagmedium.</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>sector %1 van %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>De grondige zoekactie</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>De zoekactie</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1 is afgebroken (%2).</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>De zoekactie is voltooid.</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>De zoekactie is voltooid, maar 1 sector kon niet worden gelezen.</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>De zoekactie is voltooid, maar %1 sector kon niet worden gelezen.</numerusform>
            <numerusform>De zoekactie is voltooid, maar %1 sectoren konden niet worden gelezen.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1 is gestopt bij %2 % (%3).</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>Het medium kon niet opnieuw worden geopend voor de grondige zoekactie.</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>Het medium kon niet worden geopend.</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1 had niets om naar te zoeken.</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>Het medium is verwijderd of antwoordt niet meer (%1).</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1 eindigde met een leesfout (%2).</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>De algemene zoekactie daarvoor was volledig.</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>Plaats het medium terug.</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>Het is geen zoekactie die dit programma heeft bewaard.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Het bestand is beschadigd.</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>“%1” is leeg: het bevat geen hele sector.</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>Toch doorzocht; alleen wat onverpakt is opgeslagen, kan worden gevonden.</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>Van %1 sectoren van “%2” zijn er %3 niet gelezen, volgens het map-bestand.</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>“%1” is geen bestand en ook geen opslagmedium van deze computer.</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>Kapotte bestanden zijn gelaten zoals ze zijn: het medium kan niet worden geopend.</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>%1 van %2 kapotte video’s aangevuld, nog %3 samengevoegd: controleer ze</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>%1 van %2 kapotte foto’s aangevuld, nog %3 samengevoegd: controleer ze</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>In de fotomodus wordt niet naar video’s gezocht, dus wordt er geen aangevuld</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>In de fotomodus wordt niet naar video’s gezocht, dus wordt er geen gerepareerd</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1: volledig, uit %2 stuk</numerusform>
            <numerusform>%1: volledig, uit %2 stukken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1: samengevoegd uit %2 stuk, controleer het</numerusform>
            <numerusform>%1: samengevoegd uit %2 stukken, controleer het</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>Het medium tijdens het zoeken naar dit imagebestand kopiëren, waarbij elke sector één keer wordt gelezen; zoeken en opslaan lezen daarna de kopie. FILE.map geeft aan wat is gelezen. Met een kopie die er al is, wordt doorgegaan, ook met een van GNU ddrescue.</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>Met --image: ook de sectoren lezen die tussen ver uiteen liggende defecte sectoren liggen, één voor één; kan zeer lang duren.</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>Het map-bestand van het image MEDIUM, zoals GNU ddrescue het schrijft: wat het niet gered noemt, telt als onleesbaar. Zonder deze optie wordt het map-bestand naast het image gebruikt, als dat er is (card.img.map, card.map, ook .mapfile en .log).</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map vereist een bestand.</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image vereist een bestand.</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape hoort bij --image.</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>De handtekeningcatalogi zijn niet die waarmee ze is begonnen.</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>Het medium %1 kan niet worden geopend.</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 is niet het medium dat is doorzocht.</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>Het medium kan niet worden geopend.</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>De mappenlijsten van het medium konden niet worden gelezen.</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>Namen van bestanden, en bestanden die alleen in de mappenlijsten staan, kunnen ontbreken.</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>Er is te weinig geheugen om door te gaan. Wat tot nu toe is opgeslagen, is volledig.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Bestandssysteem</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectoren</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>Geen opslagmedium gevonden. Plaats een kaart of stick, of noem in plaats daarvan een imagebestand.</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>De video %1 kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 is geen hele MP4- of QuickTime-video van een soort die kan worden gerepareerd.</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>%1 van %2 video’s zonder index gerepareerd</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1: er is geen hele video van dezelfde camera gevonden</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1: geen beeld gevonden</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1: %2 beelden, %3 s, en %4 s geluid, zoals in %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
Afsluitcodes: 0 voltooid, 2 onjuist gebruik, 3 gestopt, 4 het medium kon niet tot het einde worden gelezen, 5 het medium
kan niet worden geopend, 6 iets wat is gevonden, kon niet worden opgeslagen.
Ctrl-C beëindigt de zoekactie zoals de knop Stoppen: alles wat tot dan is gevonden, blijft behouden en wordt opgeslagen.
Het medium wordt alleen gelezen.
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
Probeer --help.</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>Vindt foto’s, video’s en andere bestanden op een opslagmedium aan de hand van de bytes waarmee ze beginnen.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Deze hulp tonen.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>De versie tonen.</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>Waarnaar te zoeken: photo (standaard), video of rawfile.</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>Alleen deze bestandstypen, gescheiden door komma’s (modi video en rawfile): extensies, of @photos, @office, @phone, @recorder, @everything.</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>Alleen de sectoren van START tot END, zonder END zelf.</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>De grondige gang van de fotomodus weglaten.</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>Het medium in de grondige gang en bij het opslaan opnieuw om defecte sectoren vragen.</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>De zoekactie in FILE bewaren, zodat --resume ermee kan doorgaan.</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>Doorgaan met de zoekactie die in FILE is bewaard; MEDIUM mag worden weggelaten.</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>Map van de zes handtekeningcatalogi.</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>Eén JSON-object per gevonden item afdrukken, en één voor het einde.</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>De opslagmedia van deze computer afdrukken (met --list-json als JSON) en niets zoeken.</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>Afdrukken wat de mappenlijsten van het medium zelf over de bestanden vertellen, die er zijn en die er waren, elk als één JSON-object, en niets zoeken.</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>Afdrukken waaruit --types in deze modus kan kiezen, en niets zoeken.</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>Niets melden behalve wat fout ging, en geen voortgang.</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>Deze taal spreken (en, de, fr, es, it, pt_BR, nl, pl, ja of zh_CN) in plaats van die van het bureaublad; met --list-json is het altijd Engels.</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>Een imagebestand, de aanduiding van een apparaat (sdb1) of het pad ervan (/dev/sdb1).</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>Onbekende modus “%1”.</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>Waarnaar te zoeken staat in het bestand van --resume.</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>Geen bestand opgegeven om de zoekactie in te bewaren.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>De fotomodus zoekt naar al zijn typen; --types hoort bij video of rawfile.</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range vereist START:END.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>De fotomodus zoekt naar al zijn typen; --list-types hoort bij video of rawfile.</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types neemt geen medium.</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media neemt geen medium.</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>Geen medium opgegeven.</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>Meer dan één medium opgegeven.</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>Kapotte bestanden worden aangevuld: %1 van %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 staat op het medium dat wordt doorzocht; daar opslaan zou overschrijven wat nog te vinden is. Kies een map op een andere schijf.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>In de map %1 kan niet worden geschreven.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>%1 kan niet worden gekopieerd: de grootte is niet bekend.</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>De map %1 bevat geen handtekeningcatalogus die kan worden gelezen.</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>Dit bestandstype bestaat niet in deze modus: %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>Toch doorzocht.</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 staat op het medium dat wordt doorzocht.</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>De zoekactie kan niet doorgaan. %1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>De zoekactie kon niet in %1 worden bewaard: %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>Opslaan wat wordt gevonden als DIR/&lt;type&gt;/&lt;name&gt;, elk bestand zo lang als de indeling aangeeft en dezelfde bytes één keer; niets wordt overschreven.</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>De sectoren van elk gevonden item opslaan zoals ze zijn vermeld, niet meer en niet minder.</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>“Recovery report.html” en “Recovery report.csv” naast de opgeslagen bestanden schrijven.</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original (standaard): opslaan onder de namen die de mappenlijst van de kaart nog aangeeft, waar dat zo is; found: onder de vermelde namen.</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card (standaard): opslaan in de mappen die de mappenlijst van de kaart nog aangeeft, en wat ze niet aangeeft in DIR/&lt;type&gt;; type: alles in DIR/&lt;type&gt;; date: als DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; waar een datum bekend is.</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>Niet opslaan wat nog als bestand op de kaart staat.</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>Hetzelfde als --folders date.</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>Bestanden met minder bytes niet opslaan.</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>Afbeeldingen waarvan de langste zijde minder pixels heeft, niet opslaan.</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>Dezelfde bytes opnieuw opslaan wanneer ze opnieuw worden gevonden.</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>Niet opslaan wat zeker geen bestand van zijn type is.</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>Ook delen van bestanden opslaan, zoals het voorbeeld van een afbeelding of een onderdeel van een archief: wat geheel binnen een aantoonbaar volledig bestand ligt, en anders wordt weggelaten.</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>Een afspeelbare tweeling, “... repaired.MP4”, schrijven van elke MP4-, QuickTime- of AVI-video waarvan de index nooit is geschreven; voor MP4 en QuickTime moet er ook een hele video van dezelfde camera worden gevonden.</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>Een hele video van de camera, in plaats van de gevonden video’s (met --repair-movies).</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save vereist een map.</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 hoort bij --save.</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published kijkt in geen enkel bestand en kent dus geen namen, datums, pixels of toestand.</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names vereist original of found.</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders vereist card, type of date.</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date is --folders date.</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference hoort bij --repair-movies.</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes en --min-pixels vereisen een getal.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>nog %1 bestand dat alleen de mappenlijst van de kaart kent</numerusform>
            <numerusform>nog %1 bestanden die alleen de mappenlijst van de kaart kent</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  en andere</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Rapport: %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>Om vandaar verder te gaan: --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>Om vandaar verder te gaan: --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>Wat is gevonden, kan niet naar de standaarduitvoer worden geschreven.</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>Niet alle items konden nog eens worden gelezen; die hebben geen controlesom.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopie: %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>de hele schijf doorzoeken</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>meer bestandstypen selecteren</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>grondig zoeken inschakelen</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>naar typen van Video of Ruw bestand zoeken</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>Nog geen foto’s gevonden</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>Ze verschijnen hier terwijl de zoekactie vordert.</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>Nog niets gevonden</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>Items verschijnen hier terwijl de zoekactie vordert.</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>Er zijn geen foto’s gevonden</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Er is niets gevonden</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>Alles is op alle typen doorzocht. Probeer een ander medium.</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>U kunt teruggaan en %1.</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>U kunt teruggaan en %1, of %2.</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>Geen van de gevonden items is zo</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>Klik links op “Alle items” en wis het zoekveld om alles te zien wat is gevonden: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>Geen van de gevonden items is van deze soort</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>Kies hierboven “Alle items” om alles te zien wat is gevonden: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>Geen van de gevonden items is van dit type</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>Druk op “Alle typen” om alles te zien wat is gevonden: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>Geen van de gevonden items is van dit type en deze soort</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>Druk op “Alle typen” en kies hierboven “Alle items” om alles te zien wat is gevonden: %1.</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>Datum onbekend</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Afbeeldingen</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>1 foto gevonden</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>%1 foto gevonden</numerusform>
            <numerusform>%1 foto’s gevonden</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>1 video gevonden</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>%1 video gevonden</numerusform>
            <numerusform>%1 video’s gevonden</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>1 bestand gevonden</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 bestand gevonden</numerusform>
            <numerusform>%1 bestanden gevonden</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>“%1”, %2: %3 % gelezen, %4.</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>De doelmap kiezen</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Vantor Recovery maintainers

Vrije software onder de GNU General Public License, versie 3 of later: u mag haar gebruiken, bestuderen, delen en wijzigen. Er wordt geen enkele garantie gegeven.

Gemaakt met %1.

Wordt uitgevoerd op %2.</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>Schijf				:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>Volumenaam	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>Bestandssysteem		:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>Capaciteit (grootte)	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>Beginsector		:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>Eindsector		:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Geen&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>meer dan %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>sector %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>sectoren %1 tot %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>vanaf sector %1, in stukken</translation>
    </message>
    <message>
        <source>some</source>
        <translation>enkele</translation>
    </message>
    <message>
        <source>none</source>
        <translation>geen</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>nog niet onderzocht</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Naam op de kaart</translation>
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
        <translation>Duur</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Stukken</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>Onleesbare sectoren</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>nog niet</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>Soort zoekactie: video’s herstellen</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>Soort zoekactie: ruwe bestanden herstellen</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Soort zoekactie: foto’s herstellen</translation>
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
        <translation>Nee</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>Geen afbeeldingen: dit systeem kan decoders niet insluiten (het heeft geen seccomp-filters), en niets van een medium wordt daarbuiten gedecodeerd.</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>Geen afbeeldingen: het programma dat ze decodeert, start niet. Installeer het programma opnieuw.</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>Geen afbeelding: documenten worden alleen binnen bubblewrap getekend, dat niet is geïnstalleerd of op dit systeem niet mag worden uitgevoerd.</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 gevonden</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>%1 gevonden: %2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>Exporteer het eerst als ruw image (dd) of E01-image en open dat.</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>Het bevat losse bestanden en geen opslagmedium. Open een image van het medium.</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>Volledig, samengevoegd uit %1 stuk</numerusform>
            <numerusform>Volledig, samengevoegd uit %1 stukken</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>Samengevoegd uit %1 stuk: controleer het</numerusform>
            <numerusform>Samengevoegd uit %1 stukken: controleer het</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>Gerepareerd: %1 beelden, %2 s, en %3 s geluid, zoals in %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 samengevoegd of gerepareerd (controleer het)</numerusform>
            <numerusform>%1 samengevoegd of gerepareerd (controleer ze)</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>gerepareerd</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 stuk</numerusform>
            <numerusform>%1 stukken</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Reparatie</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>Pixels onbekend</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>Onder 1 megapixel</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>1 tot 4 megapixels</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>4 tot 12 megapixels</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>12 tot 30 megapixels</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>Boven 30 megapixels</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>Druk op ‘Doorgaan’ om de rest te doorzoeken.</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>%1 van %2 kapotte documenten en archieven aangevuld, nog %3 samengevoegd: controleer ze</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>MP4-, QuickTime- en AVI-video’s, JPEG- of PNG-afbeeldingen, ZIP-archieven en kantoordocumenten die in stukken liggen samenvoegen, als “... complete.MP4”, of als “... put together.MP4” waar niet kon worden aangetoond dat alle stukken de juiste zijn.</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 weggelaten: alles wat alleen de mappenlijst van de kaart kent, zou de kaart meer dan twee keer vullen</numerusform>
            <numerusform>%1 weggelaten: alles wat alleen de mappenlijst van de kaart kent, zou de kaart meer dan twee keer vullen</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>Inhoud van opgeslagen bestanden controleren: %1 van %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>Lengte niet bekend</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>Onder 10 seconden</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>10 seconden tot 1 minuut</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>1 tot 5 minuten</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>5 tot 30 minuten</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>Boven 30 minuten</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>De schijf is vol</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>Uw deel van de schijf is opgebruikt</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>De schijf kan alleen worden gelezen</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>De schijf kan geen bestand van deze lengte bevatten</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>De schijf meldt een fout</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>U hebt niet het recht om dit te doen</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>De naam is te lang</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Er is niets met deze naam</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>Het apparaat is er niet</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>Er zit geen medium in het apparaat</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>De map %1 leidt ergens anders heen</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>De map %1 kan niet worden gemaakt: %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>Zoekcriteria</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>Hele schijf</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>Elke sector van het medium doorzoeken. De beste keuze als u twijfelt.</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>Hele schijf</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>Sectorbereik</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>Alleen zoeken tussen twee sectoren die u opgeeft.</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>Sectorbereik</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>Opslagmedium</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Geen&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Volumenaam</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Bestandssysteem</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capaciteit</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>Eerste sector</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>Eindsector</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>Sectoren worden vanaf 0 geteld; elke sector heeft 512 bytes. De eindsector zelf wordt niet doorzocht.</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>De schuifregelaars bereiken niet alle sectoren van dit medium: ze eindigen bij sector 2.147.483.647. Typ de sector om verderop te beginnen of te eindigen.</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>Beginsector</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>Beginnen bij sector</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>Schuifregelaar beginsector</translation>
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
        <translation>Kleinste beginsector</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>Grootste beginsector</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>Eindsector</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>Eindigen bij sector</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>Schuifregelaar eindsector</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>Kleinste eindsector</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>Grootste eindsector</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>Waar gevonden bestanden worden opgeslagen</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Doelmap</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>Nog geen; u kunt ze hier of bij het opslaan kiezen</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>&amp;Bladeren…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>Bladeren naar de doelmap</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>Op type</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>Gevonden items op type</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>Alleen gev&amp;onden typen</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>Alleen de typen tonen die zijn gevonden</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>Alle t&amp;ypen</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>De items van alle typen weer tonen</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>Gevonden items</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>Hoeveel items zijn gevonden</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Weergeven</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Welke items worden getoond</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>So&amp;rteren</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Hoe de items zijn gesorteerd</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Geen bestand geselecteerd</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>Voorbeeld van de video</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>Gegevens van het item in het voorbeeld</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Waar opgeslagen bestanden komen</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Wat is aangevinkt om op te slaan</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Getoonde aanvin&amp;ken</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Al het getoonde aanvinken om op te slaan</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Al het getoonde aanvinken om op te slaan; Insert en Delete vinken de geselecteerde items aan en uit</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Vink&amp;jes omkeren</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>De vinkjes van het getoonde omkeren</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Van het getoonde aanvinken wat niet is aangevinkt, en de rest uitvinken</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>&amp;Map openen</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>De map met opgeslagen bestanden openen</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Map wijzi&amp;gen…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>De map wijzigen waarin bestanden worden opgeslagen</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Vanaf nu in een andere map opslaan</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Wat is opgeslagen</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;pties…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opties voor het opslaan</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Hoe items worden opgeslagen: namen en mappen, zonder kleine, duplicaten, rapport</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Se&amp;lectie opslaan…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>De geselecteerde items opslaan</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>De geselecteerde items opslaan (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Aangevinkte opslaa&amp;n…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>De aangevinkte items opslaan</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Elk aangevinkt item opslaan, ook de items die niet worden getoond</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>&amp;Alles opslaan…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Alle gevonden items opslaan</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Elk gevonden item opslaan (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>Grootte van de afbeeldingen</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Details in kolommen</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Details in kolommen (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>Zoekactie beëindigd</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>Het zoeken naar foto’s is beëindigd</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>De gevonden foto’s worden als miniaturen getoond. Selecteer de gewenste foto’s en druk op “Selectie opslaan”, of neem alles met “Alles opslaan”. Ze staan pas op uw schijf als u ze hebt opgeslagen.</translation>
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
        <translation>Zoekactie beëindigd</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>Het zoeken naar bestanden is beëindigd</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>De tabel links telt wat van elk type is gevonden. Selecteer een item om het voorbeeld te zien en druk daarna op “Selectie opslaan”, of neem alles met “Alles opslaan”. Er staat pas iets op uw schijf als u het hebt opgeslagen.</translation>
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
        <translation>Opties voor het opslaan</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>&amp;Mappen</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>Mappen voor de opgeslagen bestanden</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>Wat de kaart niet aangeeft of waarvan geen datum bekend is, komt in de map van zijn type</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>De &amp;namen gebruiken die de bestanden op de kaart hadden</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>De namen gebruiken die de bestanden op de kaart hadden</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>Voor zover de kaart ze nog aangeeft</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>Kleine &amp;afbeeldingen weglaten, met een langste zijde onder</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>Kleine afbeeldingen weglaten</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>Minste pixels van de langste zijde</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>Kleine &amp;bestanden weglaten, van minder dan</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>Kleine bestanden weglaten</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>Minste grootte in kilobytes</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>Weglaten wat &amp;zeker geen bestand van zijn type is</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>Weglaten wat zeker geen bestand van zijn type is</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>Bytes die alleen beginnen als een bestand van het type</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>&amp;Ook delen van bestanden opslaan</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>Ook delen van bestanden opslaan</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>Wat geheel binnen een aantoonbaar volledig bestand ligt, zoals het voorbeeld van een afbeelding</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>&amp;Duplicaten behouden</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>Duplicaten behouden</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>Dezelfde inhoud telkens opnieuw opslaan als ze is gevonden</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>Een he&amp;rstelrapport naast de opgeslagen bestanden schrijven</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>Een herstelrapport naast de opgeslagen bestanden schrijven</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>Een pagina om te lezen en een tabel voor andere programma’s</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
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
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>Hoeveel items zijn opgeslagen</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>Het bestand dat wordt opgeslagen</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>Voortgang van het opslaan</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>Snelheid en resterende tijd</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>Wat zo lang duurt</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>Dit bestand over&amp;slaan</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>Dit bestand overslaan en doorgaan met het volgende</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>Opslaan annuleren</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>De schijfservice kent de kaart niet meer.</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>De schijfservice antwoordt niet.</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>De schijfservice heeft het geweigerd.</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>Alle items</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Volledig</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>Van onbekende lengte</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>Met onleesbare sectoren</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Nog niet opgeslagen</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>Zonder kleine</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>Zonder valse vondsten</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>Alleen wat verloren is</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Zoals gevonden</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>Op toestand</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Op grootte</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>Op opnamedatum</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>Op naam op de kaart</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Kapot</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>Samengevoegd of gerepareerd</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Op naam</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Op type</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Op camera</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Op pixels</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Op lengte</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>Op plaats op de kaart</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>Afbeelding van de kaart</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1 (%2 gebruikt)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>Geen bestandssysteem bekend</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>niets ervan zou worden doorzocht</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>alles wordt doorzocht</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>%1 ervan wordt doorzocht</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>%1 zoals fabrikanten tellen</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>Wat van het bereik is gelezen</translation>
    </message>
    <message>
        <source>read</source>
        <translation>gelezen</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>iets gevonden</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>defect</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>nog te lezen</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Naam op de kaart</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Camera</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>Pixels of duur</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Toestand</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>Plaats op de kaart</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, opgeslagen</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>Kolommen van de details</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>Zoeken op naam</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>Gevonden items op naam zoeken, ook op die op de kaart</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>Wat is gevonden, op type, dag, camera en grootte</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>Klik om alleen deze te tonen; houd Ctrl ingedrukt voor meer</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Alle items</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Op dag</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Op camera</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Op grootte</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Geen type</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>Camera onbekend</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>Alleen genoemd op de kaart</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>nog 1 bestand dat alleen de mappenlijst van de kaart kent</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>nog %1 bestand dat alleen de mappenlijst van de kaart kent</numerusform>
            <numerusform>nog %1 bestanden die alleen de mappenlijst van de kaart kent</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>“Alles opslaan” slaat ze ook op.</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>en nog %1</numerusform>
            <numerusform>en nog %1</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Op pixels</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Op lengte</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>Het helpdocument kon niet worden geopend.</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>Dit bureaublad heeft geen programma dat PDF-documenten toont. Het staat hier:</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>Het helpbestand bestaat niet!</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>opgeslagen</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>aangevinkt</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>Viewer</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ Resultaten</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>Terug naar de resultaten (Escape)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>Hele afbeelding (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>Werkelijke grootte (1)</translation>
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
        <translation>Groter (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Volledig scherm</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Volledig scherm (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Gegevens</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>De gegevens ernaast tonen (I)</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Item before this one (Left)</source>
        <translation>Vorig item (Links)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>Volgend item (Rechts)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Afbeelding van %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Aanvinken</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>Aanvinken om op te slaan (Insert, Delete)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Aangevinkt</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>Deze zoekactie &amp;onthouden</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>Om later door te gaan, ook na een stroomuitval. Ze komt in de plaats van de zoekactie die nu is onthouden.</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>Tijdens het zoeken een &amp;kopie van de kaart bewaren</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>Ki&amp;ezen…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>Kiezen waar de kopie wordt bewaard</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>Het best voor een kaart die faalt of traag is: ze wordt één keer gelezen, al het andere leest de kopie.</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>Om later door te gaan, ook na een stroomuitval.</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>De onthouden zoekactie</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Doorgaan</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>De rest van het medium doorzoeken; wat is gelezen, wordt niet opnieuw doorzocht</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>Tonen wat is &amp;gevonden</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>Een lijst tonen van wat de zoekactie had gevonden, zonder verder te zoeken</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>V&amp;ergeten</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>Verwijderen wat van deze zoekactie is onthouden; opgeslagen bestanden blijven</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>Doorgaan met de onthouden zoekactie</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>Tonen wat de onthouden zoekactie heeft gevonden</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>De onthouden zoekactie vergeten</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>Onthouden zoekactie: %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>Het bestand tonen zoals het is gevonden (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>Zoals gevonden</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>Het bestand tonen zoals het is samengevoegd (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Gerepareerd</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>Samengevoegd</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>Hoever het aanvullen van kapotte bestanden is, en wat het heeft opgeleverd</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>Voortgang van het aanvullen van kapotte bestanden</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Stopp&amp;en</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>Het aanvullen van kapotte bestanden stoppen; wat is samengevoegd, blijft</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>De&amp;ze tonen</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>De bestanden tonen die zijn samengevoegd of gerepareerd</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>Sl&amp;uiten</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Dit bericht sluiten</translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation>Positie</translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation>Afgespeelde tijd en duur</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Afspelen (Spatie)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Geluid uit</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pauzeren (Spatie)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Geluid aan</translation>
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
        <translation>Afspelen of pauzeren (Spatie)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>Geen video</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Selecteer een item om het voorbeeld te zien.</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 van %2 geselecteerd</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1, zonder miniaturen</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>&amp;Alles opslaan…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>&amp;Alle getoonde opslaan (%1)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Alle gevonden items opslaan</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>Alle getoonde items opslaan</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 van %2 opgeslagen</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;pties…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>O&amp;pties (%1)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>Kiezen waar de kopie van de kaart wordt bewaard</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>Images van media (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>De kopie kan daar niet worden bewaard.</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>De map staat op het medium dat wordt doorzocht; daar schrijven zou overschrijven wat nog te vinden is. Kies een plaats op een andere schijf.</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>Er is niet genoeg ruimte voor een kopie.</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>Ze heeft tot %1 nodig, en er is %2 vrij in %3. Kies een plaats op een andere schijf, of zoek zonder kopie.</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1: tot %2 nodig, %3 vrij</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1: tot %2 nodig</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>Hoe het met de kaart gaat</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>Kopie &amp;bewaren…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>De zoekactie stopt even en gaat dan door, waarbij de kaart één keer wordt gelezen naar het bestand dat u kiest</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>Deze kaart faalt: 1 defecte sector.</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>Deze kaart faalt: %1 defecte sector.</numerusform>
            <numerusform>Deze kaart faalt: %1 defecte sectoren.</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>Deze kaart is zeer traag.</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>Bewaar een kopie, zodat elke sector maar één keer wordt gelezen.</translation>
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
        <translation>Wanneer het programma eindigt, is de lijst van gevonden items weg.</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>Afsluiten zonder op te slaan</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
Wilt u “%1” echt afsluiten?</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>%1 van de %2 gevonden items zijn niet opgeslagen.</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>Het gevonden item is niet opgeslagen.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>Het gevonden item (%1) is niet opgeslagen.</numerusform>
            <numerusform>Geen van de %1 gevonden items is opgeslagen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Blijven</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>Alle typen van de groep %1</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>&amp;Alles selecteren</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>&amp;Alle getoonde selecteren</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>Geen type komt overeen</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>Geen bestandstypen</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>Wis het zoekveld om alle typen te zien.</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>De catalogus van bestandstypen kon niet worden gelezen. Installeer het programma opnieuw.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>Wat met het item te doen</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>&amp;Groot tonen</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>Gegevens t&amp;onen</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>&amp;Selectie opslaan…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>Alles van &amp;dag %1 selecteren</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>Alles van de &amp;dag selecteren</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>Alles van &amp;type %1 selecteren</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Doorgaan</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>Doorgaan met de zoekactie</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>De rest van het medium doorzoeken; wat is gelezen, wordt niet opnieuw doorzocht</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>De zoekactie begint opnieuw.</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>Ze is begonnen met andere lijsten van handtekeningen dan deze versie van het programma heeft.</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>Deze zoekactie wordt niet onthouden.</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>Uw persoonlijke map staat op het medium dat wordt doorzocht; daar schrijven zou overschrijven wat nog te vinden is.</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>De zoekactie kan niet doorgaan.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>Dit is niet het medium dat is doorzocht. Plaats het juiste en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>Het medium kan niet worden geopend. Plaats het terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>Het medium van deze zoekactie is er niet.</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>Het was %1. Plaats het, of open het image ervan, en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>Dit is niet het medium dat is doorzocht.</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>Het bevat iets anders dan %1. Plaats het juiste en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>Het medium van deze zoekactie kan niet worden geopend.</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>Er is 1 item gevonden voordat het medium niet meer kon worden geopend.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>Er is %1 item gevonden voordat het medium niet meer kon worden geopend.</numerusform>
            <numerusform>Er zijn %1 items gevonden voordat het medium niet meer kon worden geopend.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>De lijst blijft tot u opnieuw zoekt of teruggaat.</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>Het opslagmedium antwoordt niet.</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>De vorige zoekactie is nog niet beëindigd. Verwijder het medium, plaats het terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>Een nieuwe zoekactie maakt de lijst van gevonden items leeg.</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>Zoeken zonder op te slaan</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>Het image kon niet worden geopend.</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>%1 image kon niet worden geopend.</numerusform>
            <numerusform>%1 images konden niet worden geopend.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>Een video kiezen</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>Deze map kan niet het doel zijn.</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>Ze staat op het opslagmedium waarvan u herstelt. Daar schrijven zou de bestanden overschrijven die u terug wilt. Kies een map op een andere schijf.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Kies een andere map.</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>De schijf met %1 is verwijderd. Plaats ze terug, of wijzig de map.</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 is verwijderd of hernoemd, of de schijf ervan is verwijderd. Herstel de map, of wijzig de map.</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>Het doel bestaat niet meer.</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>Er is nog geen map voor opgeslagen bestanden gekozen</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>Opgeslagen bestanden gaan naar %1, maar die map bestaat niet</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>Opgeslagen bestanden gaan naar %1 (%2 vrij)</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>Opgeslagen bestanden gaan naar %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>Dit bureaublad heeft geen programma dat mappen toont.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>De map bestaat niet meer.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>De map kon niet worden geopend.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Het opslagmedium kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>Dit is nog het voorbeeld van %1.</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Selecteer een item om het voorbeeld te zien.</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>meer dan %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Voorbeeld van %1</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>Met de optie “Hele schijf” zoekt Vantor Recovery naar verloren gegevens op de hele opslagruimte van de geselecteerde schijf. Als u binnen een bepaald sectorbereik of een bepaalde partitie wilt zoeken, selecteert u het andere zoekcriterium. Druk anders op de knop “Volgende” om op de hele schijf te gaan zoeken.</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>Met de optie “Sectorbereik” geeft u de begin- en eindsector van het opslagmedium op waartussen naar verloren gegevens wordt gezocht. Versleep de schuifregelaars om het bereik in te stellen, of voer de waarden in de velden Beginsector en Eindsector in.</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>De instellingen zijn vergeten.</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>Wanneer het programma opnieuw wordt gestart, zijn venster, opslagopties en mappen die van een eerste start.</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>Het houdt het opslaan dat u hebt geannuleerd nog op. Verwijder het medium, plaats het terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>De zoekactie gaat door.</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Geen bestand geselecteerd</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
Selecteer een opslagmedium in de lijst.</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>Wanneer u teruggaat, wordt de lijst van gevonden items leeggemaakt.</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>Teruggaan zonder op te slaan</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
Selecteer in de lijst het opslagmedium waarvan u gegevens wilt herstellen. Druk op de knop “Volgende” om door te gaan... </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
Selecteer de bestandstypen die u wilt herstellen. Druk op de knop “Volgende” om door te gaan... </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medium</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereik</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Bestandstypen</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>De zoekactie kon niet worden onthouden: %1.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 foto’s</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>alle volledig</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>Druk op “Stoppen”, of laat de zoekactie doorgaan.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Niets gevonden</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>Geen typen</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>Van de typen die u hebt aangevinkt, is niets gevonden.</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>Ga terug en vink de typen aan waarnaar moet worden gezocht.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Schijf</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Naam</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectoren</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Bestandssysteem</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>Hele schijf</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Zoekactie</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>Grondig</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschrijving</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gevonden</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>Geen opslagmedia gevonden</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>Plaats de geheugenkaart of sluit de kaartlezer aan en druk op “Vernieuwen”, of open een imagebestand van een medium. U kunt hier ook een imagebestand neerzetten.</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>Sectoren 0 van 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>%1 van %2 aangevinkt, %3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>Getoonde uitvin&amp;ken</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Getoonde aanvin&amp;ken</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>Al het getoonde uitvinken</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Al het getoonde aanvinken om op te slaan</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>Aangevinkte opslaa&amp;n (%1)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Een imagebestand van een medium openen</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>Images van media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;Alle bestanden (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>Kapotte &amp;bestanden aanvullen</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>Kapotte bestanden aanvullen</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>Op het medium naar de ontbrekende stukken van foto’s en video’s zoeken, en video’s zonder index repareren; wat is gevonden, blijft ernaast zoals het is</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>Naar kapotte bestanden wordt gezocht: %1 van %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>Kapotte video’s worden aangevuld…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>Kapotte video’s worden aangevuld: %1 van %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>Kapotte foto’s worden aangevuld…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>Kapotte foto’s worden aangevuld: %1 van %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>Video’s zonder index worden gerepareerd…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>Video’s zonder index worden gerepareerd: %1 van %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>Kapotte bestanden zijn gelaten zoals ze zijn: het opslagmedium kan niet worden geopend. Plaats het terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>Het opslagmedium is verdwenen. Plaats het terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Gestopt.</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 bestand aangevuld</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 bestand aangevuld</numerusform>
            <numerusform>%1 bestanden aangevuld</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 bestand samengevoegd (controleer het)</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 bestand samengevoegd (controleer het)</numerusform>
            <numerusform>%1 bestanden samengevoegd (controleer ze)</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>1 video gerepareerd</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>%1 video gerepareerd</numerusform>
            <numerusform>%1 video’s gerepareerd</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>Er is geen kapot bestand gevonden van een soort die kan worden aangevuld.</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>Geen kapot bestand kon worden aangevuld.</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>Er worden andere bestanden geschreven. Sleep over een ogenblik opnieuw.</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>Er is niet genoeg ruimte om %1 klaar te zetten voor het slepen. Sla de bestanden in plaats daarvan op.</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>Deze bestanden kunnen niet van het opslagmedium worden gelezen.</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>Bestanden worden klaargezet…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>De bestanden worden nog geschreven. Sleep ze over een ogenblik opnieuw.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Opslaan als</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>De kaart kan worden verwijderd.</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>De kaart kon niet worden uitgeworpen.</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>Uit&amp;vinken</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>Aan&amp;vinken om op te slaan</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>O&amp;pslaan als…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Zoekopties</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>Kapotte documenten worden aangevuld…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>Kapotte documenten worden aangevuld: %1 van %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>%1 van de %2 bestanden kon niet worden gesleept.</numerusform>
            <numerusform>%1 van de %2 bestanden konden niet worden gesleept.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>stuk %1: sectoren %2 tot %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>Stukken op de kaart</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Kaart</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>Er is ongeveer %1 nodig en %2 vrij in %3.</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>Zoals ze zijn gevonden, hebben de bestanden ongeveer %1 nodig; eenmaal onderzocht blijken ze vaak korter. Er is %2 vrij in %3.</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>Er is misschien niet genoeg ruimte in het doel.</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>Wat past, wordt in zijn geheel opgeslagen; de rest wordt weggelaten en blijft in de lijst.</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>Opslaan wat past</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>Map wijzigen…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Er is niets opgeslagen.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>Het opslagmedium kan niet meer worden gelezen. Plaats het terug en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Map openen</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>Kaart uitwerpen</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>Zoals op de kaart</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Op type</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>Op type en datum</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>Het medium weigert sectoren van dit bestand: tot nu toe %1. Elke sector kan seconden duren. Wat erachter ligt, wordt toch gelezen.</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>%1 van %2 wordt opgeslagen</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Bezig met annuleren…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>Inhoud controleren: %1 van %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>Er wordt niets meer van het medium gelezen. ‘Annuleren’ beëindigt alleen deze controle.</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Stap %1 van %2: %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>geselecteerd</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>niet geselecteerd</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Het opslagmedium kan niet worden gelezen.</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>Van dit bestand kan geen afbeelding worden getoond.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
</context>
</TS>
