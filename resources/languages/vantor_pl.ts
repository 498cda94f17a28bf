<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>Folder docelowy</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>Wybór miejsca na znalezione pliki</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>W następnym oknie proszę wybrać folder na innym dysku, nigdy na odzyskiwanym nośniku: to, co się tam zapisze, może zastąpić właśnie te pliki, które mają zostać odzyskane.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>Przygotowywanie podglądu</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>Element jest odczytywany z nośnika. W przypadku dużych elementów trwa to chwilę.</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>Nie można tu odczytać obrazów dowodowych</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>Obrazy dowodowe są odczytywane tylko w izolacji, na co ten system nie pozwala</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>Część programu odczytująca obrazy dowodowe nie uruchamia się</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>Obraz dowodowy jest uszkodzony lub takiego rodzaju, którego nie można odczytać</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>Typy plików do wyszukania</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>Liczba wybranych typów</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>Ze&amp;stawy</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>Wybierz typy, które do siebie należą</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>Zestawy typów plików</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>Szukaj typów…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>Szukaj wśród typów plików</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Wybierz wszys&amp;tkie</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>Wybierz wszystkie typy plików</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Typy plików</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Dokładne wyszukiwanie</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>Typy z adnotacją „Dokładne” są wyszukiwane w drugim przebiegu po nośniku.</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
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
        <translation>1.  Wybrać kartę pamięci i to, co zostało utracone: zdjęcia, filmy lub inne pliki.
2.  Wybrać, gdzie szukać: na całym dysku czy w zakresie sektorów.
3.  Dla filmów i plików zaznaczyć potrzebne typy.
4.  Obserwować wyszukiwanie. Wybrać to, co ma zostać odzyskane, i zapisać na innym dysku.

Karta jest wyłącznie odczytywana, nic nie jest na niej zapisywane. Nie należy jej używać, dopóki pliki nie zostaną odzyskane.</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>Cały podręcznik, z ilustracjami:</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>Otwórz dokument pomocy</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;O programie…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>O programie: wersja, licencja, biblioteki</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>&amp;Zapomnij ustawienia</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>Rozmiar okna, opcje zapisu i foldery z wcześniejszych uruchomień</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>Zapomnij ustawienia z wcześniejszych uruchomień</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Kontynuuj</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>Nośniki danych</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>Szukanie nośników danych</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>Odczytywana jest lista kart pamięci i dysków wymiennych.</translation>
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
        <translation>Kroki odzyskiwania</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>Otwórz okno pomocy (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Pomoc</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Rodzaj wyszukiwania: odzyskiwanie zdjęć</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Rodzaj wyszukiwania</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Brak&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>Identyfikator wybranego nośnika</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektory</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>Liczba sektorów wybranego nośnika</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>Pokaż zna&amp;lezione</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>Pokaż elementy znalezione dotychczas</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>Przejrzyj to, co znaleziono, i zapisz</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>Jak zakończyło się wyszukiwanie</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>Jak zakończyło się wyszukiwanie i co dalej</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>Co znaleziono i jak długo to trwało</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>Ponów uszkodzon&amp;e sektory</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>Ponów odczyt uszkodzonych sektorów</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>Podgląd i zapis jeszcze raz pytają nośnik o to, czego nie mógł odczytać</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Dokładne wyszukiwanie</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>Po ogólnym wyszukiwaniu szukaj jeszcze raz z dłuższą listą typów obrazów.</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>Bieżąca procedura wyszukiwania</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>Usuwanie miniatur, które nie są gotowe…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>Wyszukiwanie jest zatrzymywane</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>Szybkość, pozostały czas i znalezione elementy</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>Postęp wyszukiwania</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>Z&amp;atrzymaj</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Zatrzymaj wyszukiwanie</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>Zakończ wyszukiwanie teraz i zachowaj to, co znaleziono</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>Przeszukane sektory</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>Co zrobić na tym ekranie</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Zakończ</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>Zakończ program (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Wstecz</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Wstecz</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>Do poprzedniego ekranu (Alt+Lewo)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>&amp;Dalej ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Dalej</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>Do następnego ekranu (Enter)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>Nośniki danych</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>Nie ma na liście?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Odświ&amp;eż</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>Odśwież listę nośników</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>Szukaj nośników danych ponownie (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>&amp;Otwórz obraz…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Otwórz plik obrazu nośnika</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>Przeszukaj kopię nośnika zapisaną jako plik (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>Co zostało utracone?</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>Tryb odzyskiwania</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Zdjęcie</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>Zdjęcia z aparatów i telefonów; ich miniatury pojawiają się w miarę znajdowania.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>Filmy i klipy wybranych typów, każdy z podglądem.</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>Inny plik</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>Dokumenty, archiwa, dźwięk i wszystkie inne wybrane typy.</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>Inny plik</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>Znalezione zdjęcia</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>Liczba znalezionych zdjęć</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Pokaż</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Które elementy są pokazane</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>&amp;Sortuj</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Jak elementy są posortowane</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>Powiększenie miniatur</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Dokąd trafiają zapisane pliki</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Co jest zaznaczone do zapisu</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Zaznacz po&amp;kazane</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Zaznacz do zapisu wszystko, co jest pokazane</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Zaznacz do zapisu wszystko, co jest pokazane; Insert i Delete zaznaczają i odznaczają wybrane elementy</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>&amp;Odwróć zaznaczenie</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Odwróć zaznaczenie tego, co jest pokazane</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Z tego, co jest pokazane, zaznacz niezaznaczone, a resztę odznacz</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Otwórz &amp;folder</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Otwórz folder zapisanych plików</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Z&amp;mień folder…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Zmień folder, w którym są zapisywane pliki</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Zapisuj odtąd w innym folderze</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Co jest zapisane</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>Opc&amp;je…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opcje zapisu</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Jak zapisywane są elementy: nazwy i foldery, bez małych, duplikaty, raport</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Zapisz wy&amp;brane…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Zapisz wybrane elementy</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Zapisz wybrane elementy (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Zapisz zaznaczo&amp;ne…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Zapisz zaznaczone elementy</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Zapisz każdy zaznaczony element, także niepokazane</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Zapisz wszys&amp;tkie…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Zapisz wszystkie znalezione elementy</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Zapisz każdy znaleziony element (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Szczegóły w kolumnach</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Szczegóły w kolumnach (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
Proszę wybrać co najmniej jeden typ pliku.</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>Program nie zna języka „%1”. Zna %2.</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>Zdjęcia ze wszystkich aparatów</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Dokumenty biurowe</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>Dyktafon</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Wszystko</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>„%1” nie jest plikiem.</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>Plik map „%1” należy do innej kopii. Proszę wybrać inną nazwę.</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>„%1” jest kopią nośnika o innym rozmiarze. Proszę wybrać inną nazwę.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Nie można zapisać „%1”: %2.</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>„%1” jest właśnie zapisywany przez inne wyszukiwanie.</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>„%1” już istnieje, a żaden plik map obok nie wskazuje, że jest to kopia, którą można kontynuować. Proszę wybrać inną nazwę.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>Nie można zapisać „%1”: %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>Nie można użyć pliku map „%1”: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>to nie jest plik</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>nie istnieje</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>jest za duży na plik map</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>Nie można zapisać pliku map „%1”: %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>wiersz jest za długi</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>żaden wiersz nie podaje pozycji</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>oczekiwane są pozycja, jeden ze znaków ?*/-FG+ i przebieg</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>oczekiwane są pozycja, rozmiar i jeden ze znaków ?*/-+</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>taki rozmiar jest niemożliwy</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>zachodzi na poprzedni wiersz</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>przed nim jest luka</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>jest za dużo wierszy</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>wiersz %1: %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>„%1” nie jest plikiem obrazu.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>Nie można otworzyć „%1”: %2.</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>„%1” jest pusty. Proszę wybrać plik obrazu nośnika danych.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>Nie można otworzyć „%1”.</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>„%1” jest kopią innego nośnika.</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>Kopia „%1” kończy się tutaj: %2. To, czego nie zawiera, jest odczytywane z nośnika.</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>Brak uprawnień do odczytu tej karty. Proszę wyszukać ponownie i zezwolić na to przy pytaniu o hasło albo poprosić administratora tego komputera o prawo odczytu nośników danych.</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>Brak uprawnień do odczytu tego pliku obrazu. Proszę poprosić jego właściciela o prawo odczytu lub o kopię.</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>Nośnika już nie ma. Proszę włożyć go z powrotem i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>Na jego miejscu jest teraz inny nośnik. Proszę wrócić do listy nośników i wybrać ponownie.</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>Plik obrazu zmienił się w trakcie wyszukiwania, więc to, co znaleziono, może być uszkodzone. Wyszukaj ponownie, gdy nic już do niego nie zapisuje.</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>Proszę najpierw go rozpakować i otworzyć plik obrazu, który jest w środku.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>Proszę najpierw przekształcić go w surowy obraz (na przykład poleceniem „qemu-img convert -O raw”) i otworzyć ten obraz.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>Proszę najpierw przekształcić go w surowy obraz i otworzyć ten obraz.</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>„%1” jest spakowany (%2) i w tej postaci nie można go przeszukać. %3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>Ani nośnik danych, ani plik obrazu</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>Liczba części obrazu przekracza %1; proszę najpierw połączyć je w jeden plik</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>Brakuje części obrazu: %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>Proszę podać prawidłowy sektor początkowy.</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>Proszę podać prawidłowy sektor końcowy.</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
Przekroczono największy zakres sektorów</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
Sektor końcowy musi być większy od sektora początkowego.</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>Ta karta wygląda na wymazaną: poza własnymi sektorami jej systemu plików wszystkie sprawdzone miejsca są puste. Niektóre aparaty i programy wymazują całą kartę podczas formatowania i wtedy nie można niczego znaleźć.</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>Poniżej 100 kB</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>100 kB do 1 MB</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>1 MB do 10 MB</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>10 MB do 100 MB</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>100 MB do 1 GB</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>Powyżej 1 GB</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Zdjęcia</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>RAW z aparatu</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Filmy</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Dźwięk</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Dokumenty</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archiwa</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Inne</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>nie jest plikiem swojego typu</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>kompletny</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>kończy się tam, gdzie podaje, treść niesprawdzona</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>ucięty</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>uszkodzony</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>o nieznanej długości</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>złożony z %1 kawałka</numerusform>
            <numerusform>złożony z %1 kawałków</numerusform>
            <numerusform>złożony z %1 kawałków</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>nie wszystkie jego sektory dało się odczytać</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pikseli</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>wykonano %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>„%1” leży na nośniku, który ma zostać skopiowany; zapis w tym miejscu zniszczyłby to, co jest jeszcze do znalezienia. Proszę wybrać miejsce na innym dysku.</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1. Kopia się tam zakończy; wyszukiwanie trwa dalej z nośnika.</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>Pliki na tym dysku mogą mieć najwyżej 4 GB. Kopia się tam zakończy; wyszukiwanie trwa dalej z nośnika.</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>Dysk kopii przyjmuje tylko %1 na sekundę: cała kopia potrwa około %2 min.</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 uszkodzony sektor</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 uszkodzony sektor</numerusform>
            <numerusform>%1 uszkodzone sektory</numerusform>
            <numerusform>%1 uszkodzonych sektorów</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>skopiowano %1%</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>odczyt wokół nich</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>nośnika nie ma</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>kopia się zakończyła</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>inny nośnik</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>skopiowano %1 z %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>pominięto %1 sektor między uszkodzonymi</numerusform>
            <numerusform>pominięto %1 sektory między uszkodzonymi</numerusform>
            <numerusform>pominięto %1 sektorów między uszkodzonymi</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>Folder %1 nie istnieje.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 nie jest folderem.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>W folderze %1 nie można niczego zapisać: %2.</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 leży w systemie plików FAT, który nie przyjmuje plików o rozmiarze 4 GiB lub większym, a potrzeba %2</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>W %1 nie ma dość miejsca: potrzeba %2, wolne jest %3</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Anulowano</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>Folder %1 już nie istnieje</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>Folder %1 leży na przeszukiwanym nośniku</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>Nośnika nie można już odczytać</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>Żadnego z jego sektorów nie dało się odczytać</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>nadal istnieje</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>usunięty</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>jego folder utracony</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>zmieniono %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>mniejszy niż żądano</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>część %1</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>nadal istnieje jako plik</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>długość oszacowana</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 nieczytelny sektor</numerusform>
            <numerusform>%1 nieczytelne sektory</numerusform>
            <numerusform>%1 nieczytelnych sektorów</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Podsumowanie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Zapisano</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Kompletne</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>Kończą się, gdzie podają</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Ucięte</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>Uszkodzone</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>Długość nieznana</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplikaty</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Pominięte</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Nieudane</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>pominięto: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>nie powiodło się: %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>te same bajty co wcześniejszy plik; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 do %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Nośnik</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>Sektory po 512 bajtów</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>Szukano</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Początek</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Koniec</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>Raport z odzyskiwania</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Pliki</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>Na karcie</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Wykonano</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Piksele</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>Znaleziono w sektorach</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>filmy</translation>
    </message>
    <message>
        <source>files</source>
        <translation>pliki</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>zdjęcia</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>Nie można zapisać raportu w %1: %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Pominięto</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>W tym: %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>Nie można było zapisać (%1):</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   i %1 więcej</numerusform>
            <numerusform>   i %1 więcej</numerusform>
            <numerusform>   i %1 więcej</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 element</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 element</numerusform>
            <numerusform>%1 elementy</numerusform>
            <numerusform>%1 elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>Nie zapisano niczego nowego.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Nic nie zapisano.</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>Zapisano 1 plik.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>Zapisano %1 plik.</numerusform>
            <numerusform>Zapisano %1 pliki.</numerusform>
            <numerusform>Zapisano %1 plików.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>Są w %1.</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>Tylko częściowo odczytano: %1; to, czego nie dało się odczytać, wypełniono zerami.</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>Pominięto: %1, %2.</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>Nie zapisano ponownie: %1, ta sama treść jest już zapisana.</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>mniejsze niż żądano</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>na pewno nie są plikami swojego typu</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>nadal istnieją jako pliki na karcie</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>części plików, które są zapisywane w całości</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>Nośnik danych w międzyczasie zniknął. Proszę włożyć go z powrotem i zapisać ponownie.</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>Reszty nie zapisano, bo zapis anulowano.</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>„%1” w folderze docelowym mówi więcej o każdym pliku.</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>%1 kompletny</numerusform>
            <numerusform>%1 kompletne</numerusform>
            <numerusform>%1 kompletnych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>%1 kończy się tam, gdzie podaje (treść niesprawdzona)</numerusform>
            <numerusform>%1 kończą się tam, gdzie podają (treść niesprawdzona)</numerusform>
            <numerusform>%1 kończy się tam, gdzie podaje (treść niesprawdzona)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>%1 ucięty</numerusform>
            <numerusform>%1 ucięte</numerusform>
            <numerusform>%1 uciętych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>%1 uszkodzony</numerusform>
            <numerusform>%1 uszkodzone</numerusform>
            <numerusform>%1 uszkodzonych</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 o nieznanej długości</numerusform>
            <numerusform>%1 o nieznanej długości</numerusform>
            <numerusform>%1 o nieznanej długości</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%1 zapisanych w %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%1 zapisany w %2 (%3): %4</numerusform>
            <numerusform>%1 zapisane w %2 (%3): %4</numerusform>
            <numerusform>%1 zapisanych w %2 (%3): %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 pod nazwą, którą karta jeszcze podaje</numerusform>
            <numerusform>%1 pod nazwami, które karta jeszcze podaje</numerusform>
            <numerusform>%1 pod nazwami, które karta jeszcze podaje</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>%1 z nich ma sektory, których nie dało się odczytać</numerusform>
            <numerusform>%1 z nich mają sektory, których nie dało się odczytać</numerusform>
            <numerusform>%1 z nich ma sektory, których nie dało się odczytać</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 niezapisany ponownie: te same bajty są już zapisane</numerusform>
            <numerusform>%1 niezapisane ponownie: te same bajty są już zapisane</numerusform>
            <numerusform>%1 niezapisanych ponownie: te same bajty są już zapisane</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 pominięty: mniejszy niż żądano</numerusform>
            <numerusform>%1 pominięte: mniejsze niż żądano</numerusform>
            <numerusform>%1 pominiętych: mniejsze niż żądano</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 pominięty: nie jest plikiem swojego typu</numerusform>
            <numerusform>%1 pominięte: nie są plikami swojego typu</numerusform>
            <numerusform>%1 pominiętych: nie są plikami swojego typu</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 pominięty: nadal istnieje jako plik na karcie</numerusform>
            <numerusform>%1 pominięte: nadal istnieją jako pliki na karcie</numerusform>
            <numerusform>%1 pominiętych: nadal istnieją jako pliki na karcie</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 pominięty: część pliku zapisywanego w całości</numerusform>
            <numerusform>%1 pominięte: części plików zapisywanych w całości</numerusform>
            <numerusform>%1 pominiętych: części plików zapisywanych w całości</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>Sektory %1 z %2   ( ukończono %3% )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
Aby wybrać do odzyskiwania inny dysk, proszę kliknąć przycisk „Wstecz”.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>pozostało kilka sekund</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>pozostało około %1 s</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>pozostało około %1 min</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>pozostało około %1 h</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 znaleziony element</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 znaleziony element</numerusform>
            <numerusform>%1 znalezione elementy</numerusform>
            <numerusform>%1 znalezionych elementów</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( Bieżące wyszukiwanie według: ogólna procedura odzyskiwania Vantor )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( Bieżące wyszukiwanie według: algorytm dokładnego wyszukiwania Vantor )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
Aby zatrzymać odzyskiwanie, proszę kliknąć przycisk „Zatrzymaj” albo poczekać na zakończenie procesu.</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
Błąd odczytu nośnika danych.</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>sektor %1 z %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>Dokładne wyszukiwanie</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1 zostało przerwane (%2).</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>Wyszukiwanie zostało ukończone.</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>Wyszukiwanie zostało ukończone, ale 1 sektora nie dało się odczytać.</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>Wyszukiwanie zostało ukończone, ale %1 sektora nie dało się odczytać.</numerusform>
            <numerusform>Wyszukiwanie zostało ukończone, ale %1 sektorów nie dało się odczytać.</numerusform>
            <numerusform>Wyszukiwanie zostało ukończone, ale %1 sektorów nie dało się odczytać.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1 zostało zatrzymane przy %2 % (%3).</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>Nie można było ponownie otworzyć nośnika do dokładnego wyszukiwania.</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>Nie można było otworzyć nośnika.</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1 nie miało czego szukać.</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>Nośnik został wyjęty lub przestał odpowiadać (%1).</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1 zakończyło się błędem odczytu (%2).</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>Poprzedzające je ogólne wyszukiwanie było kompletne.</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>Proszę włożyć nośnik z powrotem.</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>To nie jest wyszukiwanie zachowane przez ten program.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Plik jest uszkodzony.</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>„%1” jest pusty: nie zawiera ani jednego całego sektora.</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>Przeszukano mimo to; znaleźć można tylko to, co jest zapisane bez kompresji.</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>Z %1 sektorów „%2” nie odczytano %3, jak podaje jego plik map.</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>„%1” nie jest ani plikiem, ani nośnikiem danych tego komputera.</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>Uszkodzone pliki pozostawiono bez zmian: nie można otworzyć nośnika.</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>Uzupełnione uszkodzone filmy: %1 z %2, złożone dodatkowo: %3, proszę sprawdzić</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>Uzupełnione uszkodzone zdjęcia: %1 z %2, złożone dodatkowo: %3, proszę sprawdzić</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>W trybie zdjęć nie szuka się filmów, więc żaden nie jest uzupełniany</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>W trybie zdjęć nie szuka się filmów, więc żaden nie jest naprawiany</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1: kompletny, z %2 kawałka</numerusform>
            <numerusform>%1: kompletny, z %2 kawałków</numerusform>
            <numerusform>%1: kompletny, z %2 kawałków</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1: złożony z %2 kawałka, proszę sprawdzić</numerusform>
            <numerusform>%1: złożony z %2 kawałków, proszę sprawdzić</numerusform>
            <numerusform>%1: złożony z %2 kawałków, proszę sprawdzić</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>Kopiuj nośnik do tego pliku obrazu podczas przeszukiwania, odczytując każdy sektor jeden raz; wyszukiwanie i zapis czytają wtedy kopię. FILE.map podaje, co odczytano. Istniejąca już kopia jest kontynuowana, także kopia GNU ddrescue.</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>Z --image: odczytuj też, jeden po drugim, sektory leżące między odległymi od siebie uszkodzonymi; może trwać bardzo długo.</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>Plik map obrazu MEDIUM, taki jak zapisuje GNU ddrescue: to, czego nie podaje jako odzyskane, liczy się jako nieczytelne. Bez tej opcji używany jest plik map leżący obok obrazu, jeśli istnieje (card.img.map, card.map, także .mapfile i .log).</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map wymaga pliku.</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image wymaga pliku.</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape działa razem z --image.</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>Katalogi sygnatur nie są tymi, z którymi je rozpoczęto.</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>Nie można otworzyć nośnika %1.</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 nie jest nośnikiem, który przeszukano.</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>Nie można otworzyć nośnika.</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>Nie dało się odczytać katalogów nośnika.</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>Może brakować nazw plików oraz plików, o których mówią tylko katalogi.</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>Brakuje pamięci, aby kontynuować. To, co zapisano do tej pory, jest całe.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektory</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>Nie znaleziono nośnika danych. Proszę włożyć kartę lub pamięć USB albo podać plik obrazu.</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>Nie można odczytać filmu %1.</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 nie jest całym filmem MP4 lub QuickTime takiego rodzaju, który można naprawić.</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>Naprawione filmy bez indeksu: %1 z %2</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1: nie znaleziono całego filmu z tego aparatu</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1: nie znaleziono obrazu</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1: %2 obrazów, %3 s, oraz %4 s dźwięku, jak w %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
Kody wyjścia: 0 ukończono, 2 błędne użycie, 3 zatrzymano, 4 nośnika nie dało się odczytać do końca, 5 nośnika nie można
otworzyć, 6 czegoś ze znalezionych nie dało się zapisać.
Ctrl-C kończy wyszukiwanie tak jak przycisk Zatrzymaj: wszystko znalezione do tej pory jest zachowane i zapisywane.
Nośnik jest wyłącznie odczytywany.
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
Proszę użyć --help.</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>Znajduje zdjęcia, filmy i inne pliki na nośniku danych po bajtach, którymi się zaczynają.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Pokaż tę pomoc.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Pokaż wersję.</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>Czego szukać: photo (domyślnie), video lub rawfile.</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>Tylko te typy plików, rozdzielone przecinkami (tryby video i rawfile): rozszerzenia lub @photos, @office, @phone, @recorder, @everything.</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>Tylko sektory od START do END, bez END.</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>Pomiń dokładny przebieg trybu zdjęć.</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>Pytaj nośnik ponownie o uszkodzone sektory w dokładnym przebiegu i przy zapisie.</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>Zachowaj wyszukiwanie w FILE, aby --resume mogło je kontynuować.</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>Kontynuuj wyszukiwanie zachowane w FILE; MEDIUM można pominąć.</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>Folder sześciu katalogów sygnatur.</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>Wypisz jeden obiekt JSON na znaleziony element i jeden na koniec.</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>Wypisz nośniki danych tego komputera (z --list-json jako JSON) i niczego nie szukaj.</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>Wypisz, co katalogi samego nośnika mówią o jego plikach, tych, które są, i tych, które były, każdy jako jeden obiekt JSON, i niczego nie szukaj.</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>Wypisz, z czego może wybierać --types w tym trybie, i niczego nie szukaj.</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>Nie wypisuj nic poza tym, co się nie powiodło, ani postępu.</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>Używaj tego języka (en, de, fr, es, it, pt_BR, nl, pl, ja lub zh_CN) zamiast języka pulpitu; z --list-json zawsze angielski.</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>Plik obrazu, identyfikator urządzenia (sdb1) lub jego ścieżka (/dev/sdb1).</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>Nieznany tryb „%1”.</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>To, czego szukać, jest w pliku z --resume.</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>Nie podano pliku, w którym ma być zachowane wyszukiwanie.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>Tryb zdjęć szuka wszystkich swoich typów; --types działa z video lub rawfile.</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range wymaga START:END.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>Tryb zdjęć szuka wszystkich swoich typów; --list-types działa z video lub rawfile.</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types nie przyjmuje nośnika.</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media nie przyjmuje nośnika.</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>Nie podano nośnika.</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>Podano więcej niż jeden nośnik.</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>Uzupełnianie uszkodzonych plików: %1 z %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 leży na nośniku, który ma zostać przeszukany; zapis w tym miejscu zniszczyłby to, co jest jeszcze do znalezienia. Proszę wybrać folder na innym dysku.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>Nie można zapisywać w folderze %1.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>Nie można skopiować %1: rozmiar jest nieznany.</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>Folder %1 nie zawiera katalogu sygnatur, który dałoby się odczytać.</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>W tym trybie nie ma takiego typu pliku: %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>Przeszukano mimo to.</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 leży na nośniku, który ma zostać przeszukany.</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>Wyszukiwania nie można kontynuować. %1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>Nie można było zachować wyszukiwania w %1: %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>Zapisz to, co znaleziono, jako DIR/&lt;type&gt;/&lt;name&gt;, każdy plik o takiej długości, jaką podaje jego format, i te same bajty raz; nic nie jest nadpisywane.</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>Zapisz sektory każdego znalezionego elementu tak, jak są podane na liście, nie więcej i nie mniej.</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>Zapisz „Recovery report.html” i „Recovery report.csv” obok zapisanych plików.</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original (domyślnie): zapisz pod nazwami, które katalog karty jeszcze podaje, tam, gdzie je podaje; found: pod nazwami z listy.</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card (domyślnie): zapisz w folderach, które katalog karty jeszcze podaje, a to, czego nie podaje, w DIR/&lt;type&gt;; type: wszystko w DIR/&lt;type&gt;; date: jako DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt;, gdy data jest znana.</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>Nie zapisuj tego, co na karcie nadal istnieje jako plik.</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>To samo co --folders date.</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>Nie zapisuj plików o mniejszej liczbie bajtów.</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>Nie zapisuj obrazów, których dłuższy bok ma mniej pikseli.</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>Zapisz te same bajty ponownie, gdy zostaną znalezione ponownie.</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>Nie zapisuj tego, co na pewno nie jest plikiem swojego typu.</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>Zapisz też części plików, na przykład podgląd zdjęcia lub element archiwum: to, co leży w całości w pliku o dowiedzionej kompletności, a co inaczej jest pomijane.</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>Zapisz odtwarzalny odpowiednik, „... repaired.MP4”, każdego filmu MP4, QuickTime lub AVI, którego indeksu nigdy nie zapisano; dla MP4 i QuickTime musi zostać znaleziony także cały film z tego samego aparatu.</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>Cały film z tego aparatu, zamiast znalezionych (z --repair-movies).</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save wymaga folderu.</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 działa z --save.</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published nie zagląda do plików, więc nie zna nazw, dat, pikseli ani stanu.</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names wymaga original lub found.</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders wymaga card, type lub date.</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date to --folders date.</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference działa z --repair-movies.</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes i --min-pixels wymagają liczby.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>jeszcze %1 plik, o którym mówi tylko katalog karty</numerusform>
            <numerusform>jeszcze %1 pliki, o których mówi tylko katalog karty</numerusform>
            <numerusform>jeszcze %1 plików, o których mówi tylko katalog karty</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  i inne</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Raport: %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>Aby kontynuować od tego miejsca: --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>Aby kontynuować od tego miejsca: --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>Tego, co znaleziono, nie można wypisać na standardowe wyjście.</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>Nie wszystkie elementy dało się odczytać ponownie; te nie mają sumy kontrolnej.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopia: %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>przeszukać cały dysk</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>wybrać więcej typów plików</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>włączyć dokładne wyszukiwanie</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>poszukać typów Film lub Inny plik</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>Nie znaleziono jeszcze zdjęć</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>Pojawiają się tu w trakcie wyszukiwania.</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>Nic jeszcze nie znaleziono</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>Elementy pojawiają się tu w trakcie wyszukiwania.</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>Nie znaleziono zdjęć</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Nic nie znaleziono</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>Przeszukano wszystko pod kątem wszystkich typów. Można spróbować z innym nośnikiem.</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>Można wrócić i %1.</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>Można wrócić i %1 albo %2.</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>Żaden ze znalezionych elementów taki nie jest</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>Proszę kliknąć „Wszystkie elementy” po lewej i wyczyścić pole wyszukiwania, aby zobaczyć wszystko, co znaleziono: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>Żaden ze znalezionych elementów nie jest tego rodzaju</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>Proszę wybrać powyżej „Wszystkie elementy”, aby zobaczyć wszystko, co znaleziono: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>Żaden ze znalezionych elementów nie jest tego typu</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>Proszę nacisnąć „Wszystkie typy”, aby zobaczyć wszystko, co znaleziono: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>Żaden ze znalezionych elementów nie jest tego typu i rodzaju</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>Proszę nacisnąć „Wszystkie typy” i wybrać powyżej „Wszystkie elementy”, aby zobaczyć wszystko, co znaleziono: %1.</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>Data nieznana</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Film</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>Znaleziono 1 zdjęcie</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>Znaleziono %1 zdjęcie</numerusform>
            <numerusform>Znaleziono %1 zdjęcia</numerusform>
            <numerusform>Znaleziono %1 zdjęć</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>Znaleziono 1 film</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>Znaleziono %1 film</numerusform>
            <numerusform>Znaleziono %1 filmy</numerusform>
            <numerusform>Znaleziono %1 filmów</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>Znaleziono 1 plik</translation>
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
        <translation>„%1”, %2: odczytano %3 %, %4.</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Wybierz folder docelowy</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Vantor Recovery maintainers

Wolne oprogramowanie na Powszechnej Licencji Publicznej GNU w wersji 3 lub nowszej: można go używać, badać je, udostępniać i zmieniać. Nie jest objęte żadną gwarancją.

Wykonano z użyciem %1.

Działa w systemie %2.</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>Dysk				:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>Nazwa woluminu	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>System plików		:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>Pojemność	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>Sektor początkowy		:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>Sektor końcowy		:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Brak&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>ponad %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>sektor %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>sektory %1 do %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>od sektora %1, w kawałkach</translation>
    </message>
    <message>
        <source>some</source>
        <translation>są</translation>
    </message>
    <message>
        <source>none</source>
        <translation>brak</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>jeszcze niezbadany</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nazwa na karcie</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Czas trwania</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Kawałki</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>Nieczytelne sektory</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>tak</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>jeszcze nie</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>Rodzaj wyszukiwania: odzyskiwanie filmów</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>Rodzaj wyszukiwania: odzyskiwanie innych plików</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Rodzaj wyszukiwania: odzyskiwanie zdjęć</translation>
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
        <translation>Tak</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>Brak obrazów: ten system nie może odizolować dekoderów (nie ma filtrów seccomp), a nic z nośnika nie jest dekodowane poza izolacją.</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>Brak obrazów: program, który je dekoduje, nie uruchamia się. Proszę zainstalować program ponownie.</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>Brak obrazu: dokumenty są rysowane tylko wewnątrz bubblewrap, który nie jest zainstalowany lub nie może działać w tym systemie.</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>Znaleziono: %1</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>Znaleziono %1: %2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>Proszę najpierw wyeksportować go jako surowy obraz (dd) lub obraz E01 i otworzyć ten obraz.</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>Zawiera pojedyncze pliki, a nie nośnik danych. Proszę otworzyć obraz nośnika.</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>Kompletny, złożony z %1 kawałka</numerusform>
            <numerusform>Kompletny, złożony z %1 kawałków</numerusform>
            <numerusform>Kompletny, złożony z %1 kawałków</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>Złożony z %1 kawałka: proszę sprawdzić</numerusform>
            <numerusform>Złożony z %1 kawałków: proszę sprawdzić</numerusform>
            <numerusform>Złożony z %1 kawałków: proszę sprawdzić</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>Naprawiony: %1 obrazów, %2 s, oraz %3 s dźwięku, jak w %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 złożony lub naprawiony (proszę sprawdzić)</numerusform>
            <numerusform>%1 złożone lub naprawione (proszę sprawdzić)</numerusform>
            <numerusform>%1 złożonych lub naprawionych (proszę sprawdzić)</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>naprawiony</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 kawałek</numerusform>
            <numerusform>%1 kawałki</numerusform>
            <numerusform>%1 kawałków</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Naprawa</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>Piksele nieznane</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>Poniżej 1 megapiksela</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>1 do 4 megapikseli</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>4 do 12 megapikseli</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>12 do 30 megapikseli</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>Powyżej 30 megapikseli</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Aparat</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>Naciśnij „Kontynuuj”, aby przeszukać resztę.</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>Uzupełnione uszkodzone dokumenty i archiwa: %1 z %2, złożone dodatkowo: %3, proszę sprawdzić</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>Składaj filmy MP4, QuickTime i AVI, obrazy JPEG lub PNG, archiwa ZIP i dokumenty biurowe, które leżą w kawałkach, jako „... complete.MP4” lub jako „... put together.MP4”, gdy nie dało się dowieść, że wszystkie kawałki są właściwe.</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 pominięty: wszystko, o czym mówi tylko katalog karty, zapełniłoby kartę ponad dwukrotnie</numerusform>
            <numerusform>%1 pominięte: wszystko, o czym mówi tylko katalog karty, zapełniłoby kartę ponad dwukrotnie</numerusform>
            <numerusform>%1 pominiętych: wszystko, o czym mówi tylko katalog karty, zapełniłoby kartę ponad dwukrotnie</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>Sprawdzanie zawartości zapisanych plików: %1 z %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>Długość nieznana</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>Poniżej 10 sekund</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>Od 10 sekund do 1 minuty</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>Od 1 do 5 minut</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>Od 5 do 30 minut</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>Powyżej 30 minut</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Dysk jest pełny</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>Twój przydział na dysku jest wyczerpany</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>Dysk można tylko odczytywać</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>Dysk nie mieści tak długiego pliku</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>Dysk zgłasza błąd</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>Nie masz do tego uprawnień</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>Nazwa jest za długa</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Nie ma niczego o tej nazwie</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>Nie ma tego urządzenia</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>W urządzeniu nie ma nośnika</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>Folder %1 prowadzi gdzie indziej</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>Nie można utworzyć folderu %1: %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>Kryteria wyszukiwania</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>Cały dysk</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>Przeszukaj każdy sektor nośnika. Najlepsze w razie wątpliwości.</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>Cały dysk</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>Zakres sektorów</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>Szukaj tylko między dwoma podanymi sektorami.</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>Zakres sektorów</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>Nośnik danych</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Brak&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nazwa woluminu</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Pojemność</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>Pierwszy sektor</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>Sektor końcowy</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>Sektory liczy się od 0; każdy ma 512 bajtów. Sam sektor końcowy nie jest przeszukiwany.</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>Suwaki nie sięgają wszystkich sektorów tego nośnika: kończą się na sektorze 2 147 483 647. Aby zacząć lub skończyć dalej, proszę wpisać sektor.</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>Sektor początkowy</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>Zacznij od sektora</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>Suwak sektora początkowego</translation>
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
        <translation>Najmniejszy sektor początkowy</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maksimum</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>Największy sektor początkowy</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>Sektor końcowy</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>Zakończ na sektorze</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>Suwak sektora końcowego</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>Najmniejszy sektor końcowy</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>Największy sektor końcowy</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>Gdzie zapisywane są znalezione pliki</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Folder docelowy</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>Jeszcze brak; można go wybrać tutaj lub przy zapisie</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>P&amp;rzeglądaj…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>Przeglądaj, aby wybrać folder docelowy</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>Według typu</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>Znalezione elementy według typu</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>Tylko zna&amp;lezione typy</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>Pokaż tylko typy, które znaleziono</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>Wszystkie t&amp;ypy</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>Pokaż znowu elementy wszystkich typów</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>Znalezione elementy</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>Liczba znalezionych elementów</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Pokaż</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Które elementy są pokazane</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>&amp;Sortuj</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Jak elementy są posortowane</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Nie wybrano pliku do podglądu</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>Podgląd filmu</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>Informacje o elemencie w podglądzie</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Dokąd trafiają zapisane pliki</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Co jest zaznaczone do zapisu</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Zaznacz po&amp;kazane</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Zaznacz do zapisu wszystko, co jest pokazane</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Zaznacz do zapisu wszystko, co jest pokazane; Insert i Delete zaznaczają i odznaczają wybrane elementy</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>&amp;Odwróć zaznaczenie</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Odwróć zaznaczenie tego, co jest pokazane</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Z tego, co jest pokazane, zaznacz niezaznaczone, a resztę odznacz</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Otwórz &amp;folder</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Otwórz folder zapisanych plików</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Z&amp;mień folder…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Zmień folder, w którym są zapisywane pliki</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Zapisuj odtąd w innym folderze</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Co jest zapisane</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>Opc&amp;je…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opcje zapisu</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Jak zapisywane są elementy: nazwy i foldery, bez małych, duplikaty, raport</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Zapisz wy&amp;brane…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Zapisz wybrane elementy</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Zapisz wybrane elementy (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Zapisz zaznaczo&amp;ne…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Zapisz zaznaczone elementy</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Zapisz każdy zaznaczony element, także niepokazane</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Zapisz wszys&amp;tkie…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Zapisz wszystkie znalezione elementy</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Zapisz każdy znaleziony element (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>Rozmiar obrazów</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Szczegóły w kolumnach</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Szczegóły w kolumnach (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>Wyszukiwanie zakończone</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>Wyszukiwanie zdjęć zakończyło się</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>Znalezione zdjęcia są pokazane jako miniatury. Proszę wybrać potrzebne i nacisnąć „Zapisz wybrane” albo zapisać wszystko przyciskiem „Zapisz wszystkie”. Nie ma ich na dysku, dopóki nie zostaną zapisane.</translation>
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
        <translation>Wyszukiwanie zakończone</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>Wyszukiwanie plików zakończyło się</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>Tabela po lewej podaje, ile znaleziono plików każdego typu. Proszę wybrać element, aby zobaczyć podgląd, a potem nacisnąć „Zapisz wybrane” albo zapisać wszystko przyciskiem „Zapisz wszystkie”. Na dysku nie ma niczego, dopóki nie zostanie zapisane.</translation>
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
        <translation>Opcje zapisu</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>Fo&amp;ldery</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>Foldery na zapisane pliki</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>To, czego karta nie podaje lub dla czego data nie jest znana, trafia do folderu swojego typu</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>Używaj &amp;nazw, które pliki miały na karcie</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>Używaj nazw, które pliki miały na karcie</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>O ile karta je jeszcze podaje</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>Pomijaj małe &amp;obrazy, o dłuższym boku poniżej</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>Pomijaj małe obrazy</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pikseli</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>Najmniejsza liczba pikseli dłuższego boku</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>Pomijaj małe &amp;pliki, mniejsze niż</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>Pomijaj małe pliki</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>Najmniejszy rozmiar w kilobajtach</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>Pomijaj to, co na p&amp;ewno nie jest plikiem swojego typu</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>Pomijaj to, co na pewno nie jest plikiem swojego typu</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>Bajty, które tylko zaczynają się jak plik tego typu</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>Zapisuj &amp;też części plików</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>Zapisuj też części plików</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>To, co leży w całości w pliku o dowiedzionej kompletności, na przykład podgląd zdjęcia</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>&amp;Zachowuj duplikaty</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>Zachowuj duplikaty</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>Zapisuj tę samą treść za każdym razem, gdy została znaleziona</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>Zapisz &amp;raport z odzyskiwania obok zapisanych plików</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>Zapisz raport z odzyskiwania obok zapisanych plików</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>Strona do czytania i tabela dla innych programów</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
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
        <translation>Zapisywanie</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>Liczba zapisanych elementów</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>Plik, który jest zapisywany</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>Postęp zapisu</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>Szybkość i pozostały czas</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>Co trwa tak długo</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>&amp;Pomiń ten plik</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>Pomiń ten plik i przejdź do następnego</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>Anuluj zapis</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>Usługa dysków już jej nie zna.</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>Usługa dysków nie odpowiada.</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>Usługa dysków odmówiła.</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>Wszystkie elementy</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Kompletne</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>O nieznanej długości</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>Z nieczytelnymi sektorami</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Jeszcze niezapisane</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>Bez małych</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>Bez fałszywych</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>Tylko utracone</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Według znalezienia</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>Według stanu</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Według rozmiaru</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>Według daty wykonania</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>Według nazwy na karcie</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Niekompletne lub uszkodzone</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>Złożone lub naprawione</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Według nazwy</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Według typu</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Według aparatu</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Według pikseli</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Według długości</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>Według miejsca na karcie</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>Obraz karty</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1 (zajęte %2)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>System plików nieznany</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>nic z niej nie zostałoby przeszukane</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>przeszukiwana jest cała</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>przeszukiwane jest %1</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>%1 według liczenia producentów</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>Co z zakresu odczytano</translation>
    </message>
    <message>
        <source>read</source>
        <translation>odczytano</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>coś znaleziono</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>uszkodzone</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>pozostało</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nazwa na karcie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Aparat</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>Piksele lub czas</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stan</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>Miejsce na karcie</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, zapisano</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>Kolumny szczegółów</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>Szukaj według nazwy</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>Szukaj znalezionych elementów według nazwy, także tej na karcie</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>Co znaleziono, według typu, dnia, aparatu i rozmiaru</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>Kliknięcie pokazuje tylko te; z klawiszem Ctrl kilka</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Wszystkie elementy</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Według dnia</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Według aparatu</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Według rozmiaru</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Bez typu</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>Aparat nieznany</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>Tylko nazwane na karcie</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>jeszcze 1 plik, o którym mówi tylko katalog karty</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>jeszcze %1 plik, o którym mówi tylko katalog karty</numerusform>
            <numerusform>jeszcze %1 pliki, o których mówi tylko katalog karty</numerusform>
            <numerusform>jeszcze %1 plików, o których mówi tylko katalog karty</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>„Zapisz wszystkie” zapisuje także je.</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>i %1 więcej</numerusform>
            <numerusform>i %1 więcej</numerusform>
            <numerusform>i %1 więcej</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Według pikseli</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Według długości</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>Wersja %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>Nie można było otworzyć dokumentu pomocy.</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>Ten pulpit nie ma programu, który pokazuje dokumenty PDF. Dokument leży tutaj:</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>Plik pomocy nie istnieje!</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>zapisano</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>zaznaczono</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>Przeglądarka</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ Wyniki</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>Z powrotem do wyników (Escape)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Dopasuj</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>Cały obraz (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>Rzeczywisty rozmiar (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>Mniejszy (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>Większy (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pełny ekran</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Pełny ekran (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Informacje</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>Pokaż informacje obok (I)</translation>
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
        <translation>Poprzedni element (Lewo)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>Następny element (Prawo)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Obraz %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Zaznacz</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>Zaznacz do zapisu (Insert, Delete)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Zaznaczono</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>Zapa&amp;miętaj to wyszukiwanie</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>Aby kontynuować później, także po zaniku zasilania. Zastępuje wyszukiwanie zapamiętane obecnie.</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>Zachowaj &amp;kopię karty podczas wyszukiwania</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>Wy&amp;bierz…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>Wybierz, gdzie leży kopia</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>Najlepsze dla karty, która zawodzi lub jest wolna: jest odczytywana raz, wszystko inne czyta kopię.</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>Aby kontynuować później, także po zaniku zasilania.</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>Zapamiętane wyszukiwanie</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Kontyn&amp;uuj</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Przeszukaj resztę nośnika; to, co odczytano, nie jest przeszukiwane ponownie</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>&amp;Pokaż znalezione</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>Pokaż listę tego, co znaleziono, bez dalszego szukania</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>Zapo&amp;mnij</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>Usuń to, co zapamiętano z tego wyszukiwania; zapisane pliki pozostają</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>Kontynuuj zapamiętane wyszukiwanie</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>Pokaż, co znalazło zapamiętane wyszukiwanie</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>Zapomnij zapamiętane wyszukiwanie</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>Zapamiętane wyszukiwanie: %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>Pokaż plik tak, jak go znaleziono (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>Jak znaleziono</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>Pokaż plik tak, jak go złożono (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Naprawiony</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>Złożony</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>Jak daleko jest uzupełnianie uszkodzonych plików i co dało</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>Postęp uzupełniania uszkodzonych plików</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Zat&amp;rzymaj</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>Zatrzymaj uzupełnianie uszkodzonych plików; to, co złożono, pozostaje</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>Pokaż j&amp;e</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>Pokaż pliki, które złożono lub naprawiono</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>Zamkn&amp;ij</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Zamknij ten komunikat</translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation>Pozycja</translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation>Czas odtworzony i długość</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Odtwórz (Spacja)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Wyłącz dźwięk</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Głośność</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Wstrzymaj (Spacja)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Włącz dźwięk</translation>
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
        <translation>Odtwórz lub wstrzymaj (Spacja)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>Brak filmu</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Proszę wybrać element, aby zobaczyć jego podgląd.</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>wybrano %1 z %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1, bez miniatur</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Zapisz wszys&amp;tkie…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>Zapisz wszys&amp;tkie pokazane (%1)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Zapisz wszystkie znalezione elementy</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>Zapisz wszystkie pokazane elementy</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>zapisano %1 z %2</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>Opc&amp;je…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>Opc&amp;je (%1)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>Wybierz, gdzie ma leżeć kopia karty</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>Obrazy nośników (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>Kopia nie może tam leżeć.</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>Folder leży na nośniku, który ma zostać przeszukany; zapis w tym miejscu zniszczyłby to, co jest jeszcze do znalezienia. Proszę wybrać miejsce na innym dysku.</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>Nie ma dość miejsca na kopię.</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>Potrzeba do %1, a wolne jest %2 w %3. Proszę wybrać miejsce na innym dysku albo wyszukiwać bez kopii.</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1: potrzeba do %2, wolne %3</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1: potrzeba do %2</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>W jakim stanie jest karta</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>Zac&amp;howaj kopię…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>Wyszukiwanie na chwilę się zatrzymuje i trwa dalej, odczytując kartę jeden raz do wybranego pliku</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>Ta karta zawodzi: 1 uszkodzony sektor.</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>Ta karta zawodzi: %1 uszkodzony sektor.</numerusform>
            <numerusform>Ta karta zawodzi: %1 uszkodzone sektory.</numerusform>
            <numerusform>Ta karta zawodzi: %1 uszkodzonych sektorów.</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>Ta karta jest bardzo wolna.</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>Warto zachować kopię, wtedy każdy sektor jest odczytywany tylko raz.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Kopia: %1</translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation>Kopia: %1. %2</translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation>Gdy program się zakończy, lista znalezionych elementów przepadnie.</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>Zakończ bez zapisu</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
Czy na pewno zakończyć „%1”?</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>%1 z %2 znalezionych elementów nie zapisano.</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>Znalezionego elementu nie zapisano.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>Znalezionego elementu (%1) nie zapisano.</numerusform>
            <numerusform>Żadnego z %1 znalezionych elementów nie zapisano.</numerusform>
            <numerusform>Żadnego z %1 znalezionych elementów nie zapisano.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Zostań</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>Wszystkie typy grupy %1</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Wybierz wszys&amp;tkie</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>Wybierz wszystkie po&amp;kazane</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>Żaden typ nie pasuje</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>Brak typów plików</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>Proszę wyczyścić pole wyszukiwania, aby zobaczyć wszystkie typy.</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>Nie można było odczytać katalogu typów plików. Proszę zainstalować program ponownie.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>Co zrobić z elementem</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>Pokaż &amp;duży</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>Pokaż &amp;informacje</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>Zapisz wy&amp;brane…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>Wybierz wszystkie z d&amp;nia %1</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>Wybierz wszystkie z d&amp;nia</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>Wybierz wszystkie &amp;typu %1</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Kontyn&amp;uuj</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>Kontynuuj wyszukiwanie</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Przeszukaj resztę nośnika; to, co odczytano, nie jest przeszukiwane ponownie</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>Wyszukiwanie zaczyna się od nowa.</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>Rozpoczęto je z innymi listami sygnatur niż te, które ma ta wersja programu.</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>To wyszukiwanie nie jest zapamiętane.</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>Folder domowy leży na nośniku, który ma zostać przeszukany; zapis w tym miejscu zniszczyłby to, co jest jeszcze do znalezienia.</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>Wyszukiwania nie można kontynuować.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>To nie jest nośnik, który przeszukano. Proszę włożyć właściwy i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>Nie można otworzyć nośnika. Proszę włożyć go z powrotem i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>Nie ma nośnika tego wyszukiwania.</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>Był to %1. Proszę go włożyć lub otworzyć jego obraz i spróbować ponownie.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>To nie jest nośnik, który przeszukano.</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>Zawiera co innego niż %1. Proszę włożyć właściwy i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>Nie można otworzyć nośnika tego wyszukiwania.</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>Znaleziono 1 element, zanim nośnika nie dało się już otworzyć.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>Znaleziono %1 element, zanim nośnika nie dało się już otworzyć.</numerusform>
            <numerusform>Znaleziono %1 elementy, zanim nośnika nie dało się już otworzyć.</numerusform>
            <numerusform>Znaleziono %1 elementów, zanim nośnika nie dało się już otworzyć.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>Lista pozostaje do następnego wyszukiwania lub cofnięcia się.</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>Nośnik danych nie odpowiada.</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>Poprzednie wyszukiwanie jeszcze się nie zakończyło. Proszę wyjąć nośnik, włożyć go z powrotem i spróbować ponownie.</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>Nowe wyszukiwanie opróżnia listę znalezionych elementów.</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>Szukaj bez zapisu</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>Nie można było otworzyć obrazu.</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>Nie można było otworzyć %1 obrazu.</numerusform>
            <numerusform>Nie można było otworzyć %1 obrazów.</numerusform>
            <numerusform>Nie można było otworzyć %1 obrazów.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>Wybierz film</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>Ten folder nie może być folderem docelowym.</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>Leży na odzyskiwanym nośniku danych. Zapis w tym miejscu zniszczyłby pliki, które mają zostać odzyskane. Proszę wybrać folder na innym dysku.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Proszę wybrać inny folder.</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>Dysk zawierający %1 został wyjęty. Proszę włożyć go z powrotem albo zmienić folder.</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 usunięto lub przemianowano albo wyjęto jego dysk. Proszę przywrócić folder albo go zmienić.</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>Miejsca docelowego już nie ma.</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>Nie wybrano jeszcze folderu na zapisane pliki</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>Zapisane pliki trafiają do %1, ale tego folderu nie ma</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>Zapisane pliki trafiają do %1 (wolne: %2)</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>Zapisane pliki trafiają do %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>Ten pulpit nie ma programu, który pokazuje foldery.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Już go nie ma.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Nie można było otworzyć folderu.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Nie można odczytać nośnika danych.</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>To jest nadal podgląd %1.</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Proszę wybrać element, aby zobaczyć jego podgląd.</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>ponad %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Podgląd %1</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>Przy opcji „Cały dysk” Vantor Recovery szuka utraconych danych w całej pamięci wybranego dysku. Aby szukać w określonym zakresie sektorów lub w określonej partycji, proszę wybrać inne kryterium wyszukiwania. W przeciwnym razie proszę nacisnąć przycisk „Dalej”, aby rozpocząć wyszukiwanie na całym dysku.</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>Opcja „Zakres sektorów” pozwala podać sektor początkowy i końcowy nośnika danych, między którymi mają być szukane utracone dane. Proszę przeciągnąć suwaki, aby ustawić zakres, albo wpisać wartości w pola Sektor początkowy i Sektor końcowy.</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>Ustawienia zostały zapomniane.</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>Przy następnym uruchomieniu programu okno, opcje zapisu i foldery będą takie jak przy pierwszym uruchomieniu.</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>Nadal wstrzymuje zapis, który anulowano. Proszę wyjąć nośnik, włożyć go z powrotem i spróbować ponownie.</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>Wyszukiwanie trwa.</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Nie wybrano pliku do podglądu</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
Proszę wybrać nośnik danych z listy.</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>Cofnięcie się opróżnia listę znalezionych elementów.</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>Wróć bez zapisu</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
Proszę wybrać z listy nośnik danych, z którego mają zostać odzyskane dane. Przycisk „Dalej” prowadzi dalej... </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
Proszę wybrać typy plików do odzyskania. Przycisk „Dalej” prowadzi dalej... </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Nośnik</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Zakres</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Typy plików</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Odzyskaj</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>Nie można było zapamiętać wyszukiwania: %1.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 zdjęcie</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 zdjęcie</numerusform>
            <numerusform>%1 zdjęcia</numerusform>
            <numerusform>%1 zdjęć</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>wszystkie kompletne</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>Proszę nacisnąć „Zatrzymaj” albo pozwolić na dalsze wyszukiwanie.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Nic nie znaleziono</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>Brak typów</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>Nie znaleziono niczego z zaznaczonych typów.</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>Proszę wrócić i zaznaczyć typy, które mają być wyszukane.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Dysk</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nazwa</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sektory</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Rozmiar</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>System plików</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>Cały dysk</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Wyszukiwanie</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>Dokładne</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Opis</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Znaleziono</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>Nie znaleziono nośników danych</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>Proszę włożyć kartę pamięci lub podłączyć jej czytnik i nacisnąć „Odśwież” albo otworzyć plik obrazu nośnika. Plik obrazu można też tutaj upuścić.</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>Sektory 0 z 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>zaznaczono %1 z %2, %3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>Odznacz po&amp;kazane</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Zaznacz po&amp;kazane</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>Odznacz wszystko, co jest pokazane</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Zaznacz do zapisu wszystko, co jest pokazane</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>Zapisz zaznaczo&amp;ne (%1)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Otwórz plik obrazu nośnika</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>Obrazy nośników (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;Wszystkie pliki (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>Uzupełnij br&amp;aki w plikach</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>Uzupełnij uszkodzone pliki</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>Szukaj na nośniku brakujących kawałków zdjęć i filmów oraz napraw filmy bez indeksu; to, co znaleziono, pozostaje obok bez zmian</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>Szukanie uszkodzonych plików: %1 z %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>Uzupełnianie uszkodzonych filmów…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>Uzupełnianie uszkodzonych filmów: %1 z %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>Uzupełnianie uszkodzonych zdjęć…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>Uzupełnianie uszkodzonych zdjęć: %1 z %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>Naprawianie filmów bez indeksu…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>Naprawianie filmów bez indeksu: %1 z %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>Uszkodzone pliki pozostawiono bez zmian: nie można otworzyć nośnika danych. Proszę włożyć go z powrotem i spróbować ponownie.</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>Nośnik danych zniknął. Proszę włożyć go z powrotem i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Zatrzymano.</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 plik uzupełniony</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 plik uzupełniony</numerusform>
            <numerusform>%1 pliki uzupełnione</numerusform>
            <numerusform>%1 plików uzupełnionych</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 plik złożony (proszę sprawdzić)</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 plik złożony (proszę sprawdzić)</numerusform>
            <numerusform>%1 pliki złożone (proszę sprawdzić)</numerusform>
            <numerusform>%1 plików złożonych (proszę sprawdzić)</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>1 film naprawiony</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>%1 film naprawiony</numerusform>
            <numerusform>%1 filmy naprawione</numerusform>
            <numerusform>%1 filmów naprawionych</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>Nie znaleziono uszkodzonego pliku takiego rodzaju, który można uzupełnić.</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>Żadnego uszkodzonego pliku nie dało się uzupełnić.</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>Zapisywane są inne pliki. Proszę przeciągnąć ponownie za chwilę.</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>Nie ma dość miejsca, aby przygotować %1 do przeciągnięcia. Zamiast tego proszę zapisać pliki.</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>Tych plików nie można odczytać z nośnika danych.</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>Przygotowywanie plików…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>Pliki są jeszcze zapisywane. Proszę przeciągnąć je ponownie za chwilę.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Zapisz jako</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>Kartę można wyjąć.</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>Nie można było wysunąć karty.</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>Odzn&amp;acz</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>Z&amp;aznacz do zapisu</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Zapisz &amp;jako…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Opcje wyszukiwania</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>Uzupełnianie uszkodzonych dokumentów…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>Uzupełnianie uszkodzonych dokumentów: %1 z %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>Nie udało się przeciągnąć %1 z %2 plików.</numerusform>
            <numerusform>Nie udało się przeciągnąć %1 z %2 plików.</numerusform>
            <numerusform>Nie udało się przeciągnąć %1 z %2 plików.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>kawałek %1: sektory %2 do %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>Kawałki na karcie</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Plik</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Karta</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>Potrzeba około %1, a wolne jest %2 w %3.</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>Tak jak je znaleziono, pliki wymagają około %1; po zbadaniu często okazują się krótsze. Wolne jest %2 w %3.</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>W miejscu docelowym może być za mało miejsca.</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>To, co się mieści, jest zapisywane w całości; reszta jest pomijana i pozostaje na liście.</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>Zapisz, co się mieści</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>Zmień folder…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Nic nie zapisano.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>Nośnika danych nie można już odczytać. Proszę włożyć go z powrotem i spróbować ponownie.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Otwórz folder</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>Wysuń kartę</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>Jak na karcie</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Według typu</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>Według typu i daty</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>Nośnik odmawia odczytu sektorów tego pliku: dotąd %1. Każdy może trwać kilka sekund. To, co leży za nimi, i tak jest odczytywane.</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>Zapisywanie %1 z %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Anulowanie…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>Sprawdzanie zawartości: %1 z %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>Z nośnika nic już nie jest czytane. „Anuluj” kończy tylko to sprawdzanie.</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Krok %1 z %2: %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>wybrano</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>nie wybrano</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>Wczytywanie…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Nie można odczytać nośnika danych.</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>Nie można pokazać obrazu tego pliku.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 z %2</translation>
    </message>
</context>
</TS>
