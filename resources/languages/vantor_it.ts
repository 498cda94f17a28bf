<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>Cartella di destinazione</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>Scegliere dove vanno i file trovati</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>Nella prossima finestra scegliere una cartella su un altro disco, mai sul supporto da recuperare: ciò che viene scritto lì può sovrascrivere proprio i file da ritrovare.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>Anteprima</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>Preparazione dell’anteprima</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>L’elemento viene letto dal supporto. Con elementi grandi occorre un momento.</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>Qui non è possibile leggere immagini forensi</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>Le immagini forensi vengono lette solo in isolamento, cosa che questo sistema non permette</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>La parte del programma che legge le immagini forensi non si avvia</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>L’immagine forense è danneggiata o di un genere che non può essere letto</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>Tipi di file da cercare</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>Quanti tipi sono selezionati</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Modelli</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>Selezionare i tipi che vanno insieme</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>Modelli di tipi di file</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>Cerca tipi…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>Cercare tra i tipi di file</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>Selezionare tutti i tipi di file</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipi di file</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Ricerca approfondita</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>I tipi contrassegnati con «Approfondita» vengono cercati in un secondo passaggio sul supporto.</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
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
        <translation>1.  Scegliere la scheda di memoria e ciò che è andato perso: foto, video o altri file.
2.  Scegliere dove cercare: tutto il disco o un intervallo di settori.
3.  Per video e file, spuntare i tipi desiderati.
4.  Seguire la ricerca. Selezionare ciò che si vuole ritrovare e salvarlo su un altro disco.

La scheda viene soltanto letta, mai scritta. Non usarla finché i file non sono stati recuperati.</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>La guida completa, con immagini:</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>Aprire il documento di aiuto</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Informazioni…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>Informazioni sul programma: versione, licenza, librerie</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>&amp;Dimentica impostazioni</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>Dimensioni della finestra, opzioni di salvataggio e cartelle degli avvii precedenti</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>Dimenticare le impostazioni degli avvii precedenti</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>Supporti di memoria</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>Ricerca dei supporti di memoria</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>È in corso la lettura dell’elenco di schede di memoria e dischi rimovibili.</translation>
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
        <translation>Passi del recupero</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Ai&amp;uto</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>Aprire la finestra di aiuto (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Tipo di ricerca: recupero foto</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Tipo di ricerca</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nessuno&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>Identificativo del supporto scelto</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Settori</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>Numero di settori del supporto scelto</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>Mostra elementi tro&amp;vati</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>Mostrare gli elementi trovati finora</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>Esaminare ciò che è stato trovato e salvarlo</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>Com’è finita la ricerca</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>Com’è finita la ricerca e come proseguire</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>Che cosa ha trovato la ricerca e quanto è durata</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>Riprova settori danne&amp;ggiati</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>Riprovare i settori danneggiati</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>Anteprima e salvataggio chiedono ancora una volta al supporto ciò che non ha potuto leggere</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Ricerca approfondita</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>Dopo la ricerca generale, cercare ancora una volta con un elenco più lungo di tipi di immagine.</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>Procedura di ricerca attuale</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>Eliminazione delle miniature non pronte…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>La ricerca viene fermata</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>Velocità, tempo rimanente ed elementi trovati</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>Avanzamento della ricerca</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Fermare la ricerca</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>Terminare ora la ricerca e tenere ciò che è stato trovato</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>Settori esaminati</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>Che cosa fare in questa schermata</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Esci</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>Uscire dal programma (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Indietro</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>Alla schermata precedente (Alt+Sinistra)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>&amp;Avanti ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Avanti</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>Alla schermata successiva (Invio)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>Supporti di memoria</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>Non è nell’elenco?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ggiorna</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>Aggiornare l’elenco dei supporti</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>Cercare di nuovo i supporti di memoria (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>Apri i&amp;mmagine…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Aprire un file immagine di un supporto</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>Esaminare la copia di un supporto salvata come file (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>Che cosa è andato perso?</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>Modalità di recupero</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>Immagini di fotocamere e telefoni, mostrate come miniature man mano che vengono trovate.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>Filmati e clip dei tipi scelti, ciascuno con anteprima.</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>File grezzo</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>Documenti, archivi, audio e tutti gli altri tipi scelti.</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>File grezzo</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>Foto trovate</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>Quante foto sono state trovate</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Mostra</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Quali elementi sono mostrati</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>O&amp;rdina</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Come sono ordinati gli elementi</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>Zoom delle miniature</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Dove vanno i file salvati</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Che cosa è spuntato per il salvataggio</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Spun&amp;ta mostrati</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Spuntare per il salvataggio tutto ciò che è mostrato</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Spuntare per il salvataggio tutto ciò che è mostrato; Ins e Canc mettono e tolgono la spunta agli elementi selezionati</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>In&amp;verti spunte</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Invertire le spunte di ciò che è mostrato</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Di ciò che è mostrato, spuntare ciò che non è spuntato e togliere la spunta al resto</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>A&amp;pri cartella</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Aprire la cartella dei file salvati</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Cam&amp;bia cartella…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Cambiare la cartella in cui vengono salvati i file</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Salvare d’ora in poi in un’altra cartella</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Che cosa è stato salvato</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>Op&amp;zioni…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opzioni di salvataggio</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Come vengono salvati gli elementi: nomi e cartelle, senza i piccoli, duplicati, rapporto</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Salva se&amp;lezionati…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Salvare gli elementi selezionati</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Salvare gli elementi selezionati (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Salva &amp;spuntati…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Salvare gli elementi spuntati</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Salvare ogni elemento spuntato, anche quelli non mostrati</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Salva tutt&amp;o…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Salvare tutti gli elementi trovati</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Salvare ogni elemento trovato (Ctrl+Maiusc+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Dettagli in colonne</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Dettagli in colonne (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
Selezionare almeno un tipo di file.</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>Il programma non parla «%1». Parla %2.</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>Foto di tutte le fotocamere</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Documenti d’ufficio</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefono</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>Registratore vocale</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tutto</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>«%1» non è un file.</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>Il file map «%1» appartiene a un’altra copia. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>«%1» è la copia di un supporto di altra dimensione. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Impossibile scrivere «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>Un’altra ricerca sta scrivendo «%1».</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>«%1» esiste già, e nessun file map accanto indica che sia una copia da proseguire. Scegliere un altro nome.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>Impossibile scrivere «%1»: %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>Impossibile usare il file map «%1»: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>non esiste</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>è troppo grande per un file map</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>Impossibile scrivere il file map «%1»: %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la riga è troppo lunga</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>nessuna riga indica la posizione</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>sono attesi una posizione, uno tra ?*/-FG+ e un passaggio</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>sono attesi una posizione, una dimensione e uno tra ?*/-+</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>la dimensione non è possibile</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>si sovrappone alla riga precedente</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>c’è un vuoto prima di essa</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>ci sono troppe righe</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>riga %1: %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>«%1» non è un file immagine.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>Impossibile aprire «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>«%1» è vuoto. Scegliere un file immagine di un supporto di memoria.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>Impossibile aprire «%1».</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>«%1» è la copia di un altro supporto.</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>La copia «%1» finisce qui: %2. Ciò che non contiene viene letto dal supporto.</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>Non si ha il permesso di leggere questa scheda. Cercare di nuovo e autorizzare la lettura quando viene chiesta la password, oppure chiedere all’amministratore di questo computer il diritto di leggere i supporti di memoria.</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>Non si ha il permesso di leggere questo file immagine. Chiedere al proprietario il diritto di leggerlo, o una copia.</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>Il supporto non c’è più. Reinserirlo e riprovare.</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>Al suo posto ora c’è un altro supporto. Tornare all’elenco dei supporti e scegliere di nuovo.</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>Il file immagine è stato modificato durante la ricerca: ciò che è stato trovato può essere danneggiato. Ripeta la ricerca quando nulla vi scrive più.</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>Prima decomprimerlo e aprire il file immagine che contiene.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>Prima convertirlo in un’immagine grezza (per esempio con «qemu-img convert -O raw») e aprire quella.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>Prima convertirlo in un’immagine grezza e aprire quella.</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>«%1» è compresso (%2) e non può essere esaminato così com’è. %3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>Né un supporto di memoria né un file immagine</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>L’immagine è in più di %1 parti; prima unirle in un solo file</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>Manca una parte dell’immagine: %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>Inserire un valore valido per il settore iniziale.</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>Inserire un valore valido per il settore finale.</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
Superato l’intervallo massimo di settori</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
Il settore finale deve essere maggiore del settore iniziale.</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>Questa scheda risulta cancellata: a parte i settori propri del suo file system, tutti i punti esaminati sono vuoti. Alcune fotocamere e alcuni programmi cancellano l’intera scheda quando la formattano, e allora non si può trovare nulla.</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>Meno di 100 kB</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>Da 100 kB a 1 MB</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>Da 1 MB a 10 MB</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>Da 10 MB a 100 MB</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>Da 100 MB a 1 GB</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>Più di 1 GB</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>RAW di fotocamera</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documenti</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archivi</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Altro</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>non è un file del suo tipo</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completo</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>finisce dove indica, contenuto non verificato</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>troncato</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>danneggiato</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>di lunghezza sconosciuta</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>ricomposto da %1 pezzo</numerusform>
            <numerusform>ricomposto da %1 pezzi</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>non tutti i suoi settori sono stati letti</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixel</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>ripreso il %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>«%1» si trova sul supporto da copiare; scrivere lì sovrascriverebbe ciò che resta da trovare. Scegliere una posizione su un altro disco.</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1. La copia finirà lì; la ricerca prosegue dal supporto.</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>I file su questo disco possono avere al massimo 4 GB. La copia finirà lì; la ricerca prosegue dal supporto.</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>Il disco della copia accetta solo %1 al secondo: una copia intera richiede circa %2 minuti.</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 settore danneggiato</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 settore danneggiato</numerusform>
            <numerusform>%1 settori danneggiati</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>%1% copiato</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>lettura attorno a essi</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>il supporto non c’è più</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>la copia è finita</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>altro supporto</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>%1 di %2 copiati</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>%1 settore tra danneggiati tralasciato</numerusform>
            <numerusform>%1 settori tra danneggiati tralasciati</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>La cartella %1 non esiste.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 non è una cartella.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>Impossibile scrivere nella cartella %1: %2.</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 si trova su un file system FAT, che non accetta file di 4 GiB o più, e servono %2</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>Spazio insufficiente in %1: servono %2, liberi %3</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>La cartella %1 non esiste più</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>La cartella %1 si trova sul supporto in esame</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>Il supporto non è più leggibile</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>Nessuno dei suoi settori è stato letto</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>ancora presente</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>eliminato</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>cartella persa</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>modificato %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>più piccolo di quanto richiesto</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>parte di %1</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>ancora presente come file</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>lunghezza stimata</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 settore illeggibile</numerusform>
            <numerusform>%1 settori illeggibili</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totali</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvato</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completi</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>Finiscono dove indicano</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Troncati</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>Danneggiati</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>Lunghezza sconosciuta</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicati</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Tralasciati</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riusciti</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>tralasciato: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>non riuscito: %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>stessi byte di un file precedente; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>da %1 a %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>Settori da 512 byte</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>Cercato</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Inizio</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>Rapporto di recupero</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>Sulla scheda</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Ripreso</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixel</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>Trovato nei settori</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>video</translation>
    </message>
    <message>
        <source>files</source>
        <translation>file</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>foto</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>Impossibile scrivere il rapporto in %1: %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Saltato</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>Di questi: %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>Impossibile salvare %1:</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   e altri %1</numerusform>
            <numerusform>   e altri %1</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 elemento</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 elemento</numerusform>
            <numerusform>%1 elementi</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>Non è stato salvato nulla di nuovo.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Non è stato salvato nulla.</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>È stato salvato 1 file.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>È stato salvato %1 file.</numerusform>
            <numerusform>Sono stati salvati %1 file.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>Sono in %1.</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>Letti solo in parte: %1; ciò che non è stato letto è riempito di zeri.</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>Tralasciati: %1, %2.</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>Non scritti di nuovo: %1, lo stesso contenuto è già salvato.</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>più piccoli di quanto richiesto</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>certamente non file del loro tipo</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>ancora presenti come file sulla scheda</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>parti di file salvati per intero</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>Il supporto di memoria nel frattempo è scomparso. Reinserirlo e salvare di nuovo.</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>Il resto non è stato salvato perché il salvataggio è stato annullato.</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>«%1» nella cartella di destinazione dice di più su ogni file.</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>%1 completo</numerusform>
            <numerusform>%1 completi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>%1 finisce dove indica (contenuto non verificato)</numerusform>
            <numerusform>%1 finiscono dove indicano (contenuto non verificato)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>%1 troncato</numerusform>
            <numerusform>%1 troncati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>%1 danneggiato</numerusform>
            <numerusform>%1 danneggiati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 di lunghezza sconosciuta</numerusform>
            <numerusform>%1 di lunghezza sconosciuta</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%1 salvati in %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%1 salvato in %2 (%3): %4</numerusform>
            <numerusform>%1 salvati in %2 (%3): %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 con il nome che la scheda indica ancora</numerusform>
            <numerusform>%1 con i nomi che la scheda indica ancora</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>%1 di essi ha settori non letti</numerusform>
            <numerusform>%1 di essi hanno settori non letti</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 non scritto di nuovo: gli stessi byte sono già salvati</numerusform>
            <numerusform>%1 non scritti di nuovo: gli stessi byte sono già salvati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 tralasciato: più piccolo di quanto richiesto</numerusform>
            <numerusform>%1 tralasciati: più piccoli di quanto richiesto</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 tralasciato: non è un file del suo tipo</numerusform>
            <numerusform>%1 tralasciati: non sono file del loro tipo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 tralasciato: ancora presente come file sulla scheda</numerusform>
            <numerusform>%1 tralasciati: ancora presenti come file sulla scheda</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 tralasciato: parte di un file salvato per intero</numerusform>
            <numerusform>%1 tralasciati: parti di file salvati per intero</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>Settori %1 di %2   ( %3% completato )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
Per selezionare un altro disco da recuperare, fare clic sul pulsante «Indietro».</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>pochi secondi rimanenti</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>circa %1 s rimanenti</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>circa %1 min rimanenti</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>circa %1 h rimanenti</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 elemento trovato</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 elemento trovato</numerusform>
            <numerusform>%1 elementi trovati</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( Ricerca in corso secondo: procedura generale di recupero Vantor )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( Ricerca in corso secondo: algoritmo di ricerca approfondita Vantor )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
Per fermare il recupero, fare clic sul pulsante «Ferma», oppure attendere la fine del processo.</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
Errore di lettura del supporto di memoria.</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>settore %1 di %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>La ricerca approfondita</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>La ricerca</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1 si è interrotta (%2).</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>La ricerca è terminata.</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>La ricerca è terminata, ma non è stato possibile leggere 1 settore.</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>La ricerca è terminata, ma non è stato possibile leggere %1 settore.</numerusform>
            <numerusform>La ricerca è terminata, ma non è stato possibile leggere %1 settori.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1 è stata fermata al %2 % (%3).</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>Impossibile riaprire il supporto per la ricerca approfondita.</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>Impossibile aprire il supporto.</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1 non aveva nulla da cercare.</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>Il supporto è stato estratto o ha smesso di rispondere (%1).</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1 è finita con un errore di lettura (%2).</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>La ricerca generale precedente era completa.</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>Reinserire il supporto.</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>Non è una ricerca conservata da questo programma.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Il file è danneggiato.</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>«%1» è vuoto: non contiene alcun settore intero.</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>Esaminato comunque; si può trovare solo ciò che è memorizzato non compresso.</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>Di %1 settori di «%2», %3 non sono stati letti, secondo il suo file map.</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>«%1» non è né un file né un supporto di memoria di questo computer.</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>I file rotti sono stati lasciati come sono: impossibile aprire il supporto.</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>%1 di %2 video rotti completati, altri %3 ricomposti: da controllare</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>%1 di %2 foto rotte completate, altre %3 ricomposte: da controllare</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>In modalità foto non si cercano video, quindi nessuno viene completato</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>In modalità foto non si cercano video, quindi nessuno viene riparato</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1: completo, da %2 pezzo</numerusform>
            <numerusform>%1: completo, da %2 pezzi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1: ricomposto da %2 pezzo, da controllare</numerusform>
            <numerusform>%1: ricomposto da %2 pezzi, da controllare</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>Copiare il supporto in questo file immagine durante la ricerca, leggendo ogni settore una sola volta; ricerca e salvataggio leggono poi la copia. FILE.map indica che cosa è stato letto. Una copia già presente viene proseguita, anche una di GNU ddrescue.</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>Con --image: leggere anche, uno per uno, i settori che si trovano tra settori danneggiati lontani tra loro; può durare molto a lungo.</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>Il file map dell’immagine MEDIUM, come lo scrive GNU ddrescue: ciò che non indica come recuperato vale come illeggibile. Senza questa opzione si usa il file map accanto all’immagine, se esiste (card.img.map, card.map, anche .mapfile e .log).</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map richiede un file.</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image richiede un file.</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape va con --image.</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>I cataloghi di firme non sono quelli con cui è stata iniziata.</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>Impossibile aprire il supporto %1.</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 non è il supporto che è stato esaminato.</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>Impossibile aprire il supporto.</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>Impossibile leggere le directory del supporto.</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>Possono mancare nomi di file e file indicati soltanto dalle directory.</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>La memoria non basta per continuare. Quanto salvato finora è integro.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Settori</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>Nessun supporto di memoria trovato. Inserire una scheda o una chiavetta, oppure indicare un file immagine.</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>Impossibile leggere il video %1.</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 non è un video MP4 o QuickTime intero di un genere riparabile.</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>%1 di %2 video senza indice riparati</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1: non è stato trovato alcun video intero della sua fotocamera</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1: nessuna immagine trovata</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1: %2 immagini, %3 s, e %4 s di audio, come in %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
Codici di uscita: 0 completato, 2 uso errato, 3 fermato, 4 il supporto non è stato letto fino alla fine, 5 impossibile
aprire il supporto, 6 qualcosa di trovato non è stato salvato.
Ctrl-C termina la ricerca come il pulsante Ferma: tutto ciò che è stato trovato fino ad allora viene tenuto e salvato.
Il supporto viene soltanto letto.
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
Provare --help.</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>Trova foto, video e altri file su un supporto di memoria in base ai byte con cui iniziano.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrare questo aiuto.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrare la versione.</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>Che cosa cercare: photo (predefinito), video o rawfile.</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>Solo questi tipi di file, separati da virgole (modalità video e rawfile): estensioni, oppure @photos, @office, @phone, @recorder, @everything.</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>Solo i settori da START fino a END escluso.</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>Tralasciare il passaggio approfondito della modalità foto.</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>Chiedere di nuovo al supporto i settori danneggiati nel passaggio approfondito e per il salvataggio.</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>Conservare la ricerca in FILE, in modo che --resume possa proseguirla.</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>Proseguire la ricerca conservata in FILE; MEDIUM può essere omesso.</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>Cartella dei sei cataloghi di firme.</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>Scrivere un oggetto JSON per ogni elemento trovato e uno per la fine.</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>Elencare i supporti di memoria di questo computer (con --list-json in JSON) e non cercare nulla.</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>Scrivere ciò che le directory del supporto indicano dei suoi file, quelli presenti e quelli che c’erano, ciascuno come oggetto JSON, e non cercare nulla.</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>Elencare ciò che --types può scegliere in questa modalità e non cercare nulla.</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>Non dire nulla se non ciò che non è riuscito, e nessun avanzamento.</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>Parlare questa lingua (en, de, fr, es, it, pt_BR, nl, pl, ja o zh_CN) al posto di quella del desktop; con --list-json è sempre inglese.</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>Un file immagine, l’identificativo di un dispositivo (sdb1) o il suo percorso (/dev/sdb1).</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>Modalità sconosciuta «%1».</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>Che cosa cercare è indicato nel file di --resume.</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>Nessun file indicato in cui conservare la ricerca.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>La modalità foto cerca tutti i suoi tipi; --types va con video o rawfile.</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range richiede START:END.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>La modalità foto cerca tutti i suoi tipi; --list-types va con video o rawfile.</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types non accetta supporti.</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media non accetta supporti.</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>Nessun supporto indicato.</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>Indicato più di un supporto.</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>Completamento dei file rotti: %1 di %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 si trova sul supporto da esaminare; salvare lì sovrascriverebbe ciò che resta da trovare. Scegliere una cartella su un altro disco.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>Impossibile scrivere nella cartella %1.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>Impossibile copiare %1: la sua dimensione è sconosciuta.</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>La cartella %1 non contiene alcun catalogo di firme leggibile.</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>Tipo di file inesistente in questa modalità: %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>Esaminato comunque.</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 si trova sul supporto da esaminare.</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>La ricerca non può proseguire. %1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>Impossibile conservare la ricerca in %1: %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>Salvare ciò che viene trovato come DIR/&lt;type&gt;/&lt;name&gt;, ogni file lungo quanto indica il suo formato e gli stessi byte una sola volta; nulla viene sovrascritto.</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>Salvare i settori di ogni elemento trovato così come sono elencati, né più né meno.</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>Scrivere «Recovery report.html» e «Recovery report.csv» accanto ai file salvati.</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original (predefinito): salvare con i nomi che la directory della scheda indica ancora, dove lo fa; found: con i nomi elencati.</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card (predefinito): salvare nelle cartelle che la directory della scheda indica ancora, e ciò che non indica in DIR/&lt;type&gt;; type: tutto in DIR/&lt;type&gt;; date: come DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; dove è nota una data.</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>Non salvare ciò che la scheda contiene ancora come file.</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>Come --folders date.</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>Non salvare i file con meno byte.</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>Non salvare le immagini il cui lato più lungo ha meno pixel.</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>Salvare di nuovo gli stessi byte quando vengono trovati di nuovo.</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>Non salvare ciò che certamente non è un file del suo tipo.</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>Salvare anche le parti di file, come l’anteprima di un’immagine o un membro di un archivio: ciò che si trova per intero in un file di cui è provata la completezza, e che altrimenti viene tralasciato.</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>Scrivere un gemello riproducibile, «... repaired.MP4», di ogni video MP4, QuickTime o AVI il cui indice non è mai stato scritto; per MP4 e QuickTime deve essere trovato anche un video intero della stessa fotocamera.</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>Un video intero della fotocamera, al posto di quelli trovati (con --repair-movies).</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save richiede una cartella.</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 va con --save.</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published non guarda in alcun file, quindi non conosce né nomi, né date, né pixel, né stato.</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names richiede original o found.</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders richiede card, type o date.</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date è --folders date.</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference va con --repair-movies.</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes e --min-pixels richiedono un numero.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 altro file noto solo alla directory della scheda</numerusform>
            <numerusform>altri %1 file noti solo alla directory della scheda</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  e altri</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Rapporto: %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>Per proseguire da lì: --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>Per proseguire da lì: --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>Impossibile scrivere ciò che è stato trovato sull’uscita standard.</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>Non tutti gli elementi sono stati riletti; quelli non letti non hanno checksum.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Copia: %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>esaminare tutto il disco</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>selezionare altri tipi di file</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>attivare la ricerca approfondita</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>cercare tipi Video o File grezzo</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>Ancora nessuna foto trovata</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>Compaiono qui man mano che la ricerca procede.</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>Ancora nulla trovato</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>Gli elementi compaiono qui man mano che la ricerca procede.</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>Nessuna foto trovata</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Nulla trovato</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>È stato esaminato tutto per tutti i tipi. Provare un altro supporto.</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>Si può tornare indietro e %1.</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>Si può tornare indietro e %1, oppure %2.</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>Nessuno degli elementi trovati è così</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>Fare clic su «Tutti gli elementi» a sinistra e svuotare il campo di ricerca per vedere tutto ciò che è stato trovato: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>Nessuno degli elementi trovati è di questo genere</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>Scegliere in alto «Tutti gli elementi» per vedere tutto ciò che è stato trovato: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>Nessuno degli elementi trovati è di questo tipo</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>Premere «Vedi tutti» per vedere tutto ciò che è stato trovato: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>Nessuno degli elementi trovati è di questo tipo e genere</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>Premere «Vedi tutti» e scegliere in alto «Tutti gli elementi» per vedere tutto ciò che è stato trovato: %1.</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>Data sconosciuta</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>1 foto trovata</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>%1 foto trovata</numerusform>
            <numerusform>%1 foto trovate</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>1 video trovato</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>%1 video trovato</numerusform>
            <numerusform>%1 video trovati</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>1 file trovato</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 file trovato</numerusform>
            <numerusform>%1 file trovati</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>«%1», %2: %3 % letto, %4.</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Scegliere la cartella di destinazione</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Vantor Recovery maintainers

Software libero con licenza GNU General Public License, versione 3 o successiva: è possibile usarlo, studiarlo, condividerlo e modificarlo. È fornito senza alcuna garanzia.

Realizzato con %1.

In esecuzione su %2.</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>Disco				:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>Nome del volume	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>File system		:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>Capacità (dimensione)	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>Settore iniziale		:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>Settore finale		:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nessuno&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>più di %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>settore %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>settori da %1 a %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>dal settore %1, in pezzi</translation>
    </message>
    <message>
        <source>some</source>
        <translation>alcuni</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nessuno</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>non ancora esaminato</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nome sulla scheda</translation>
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
        <translation>Durata</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Pezzi</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>Settori illeggibili</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>non ancora</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>Tipo di ricerca: recupero video</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>Tipo di ricerca: recupero file grezzi</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Tipo di ricerca: recupero foto</translation>
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
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>Nessuna immagine: questo sistema non può isolare i decodificatori (non ha filtri seccomp), e nulla di un supporto viene decodificato fuori dall’isolamento.</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>Nessuna immagine: il programma che le decodifica non si avvia. Installare di nuovo il programma.</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>Nessuna immagine: i documenti vengono disegnati solo dentro bubblewrap, che non è installato o non può essere eseguito su questo sistema.</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 trovati</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>%1 trovati: %2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>Prima esportarlo come immagine grezza (dd) o E01 e aprire quella.</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>Contiene singoli file e non un supporto di memoria. Aprire un’immagine del supporto.</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>Completo, ricomposto da %1 pezzo</numerusform>
            <numerusform>Completo, ricomposto da %1 pezzi</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>Ricomposto da %1 pezzo: da controllare</numerusform>
            <numerusform>Ricomposto da %1 pezzi: da controllare</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>Riparato: %1 immagini, %2 s, e %3 s di audio, come in %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 ricomposto o riparato (da controllare)</numerusform>
            <numerusform>%1 ricomposti o riparati (da controllare)</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>riparato</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 pezzo</numerusform>
            <numerusform>%1 pezzi</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Ricostruito</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>Pixel sconosciuti</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>Meno di 1 megapixel</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>Da 1 a 4 megapixel</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>Da 4 a 12 megapixel</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>Da 12 a 30 megapixel</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>Oltre 30 megapixel</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Fotocamera</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>Premere «Continua» per cercare nel resto.</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>%1 di %2 documenti e archivi rotti completati, altri %3 ricomposti: da controllare</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>Ricomporre i video MP4, QuickTime e AVI, le immagini JPEG o PNG, gli archivi ZIP e i documenti d&apos;ufficio che sono in pezzi, come «... complete.MP4», oppure come «... put together.MP4» dove non è stato possibile provare che tutti i pezzi siano quelli giusti.</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 tralasciato: tutto ciò che è noto solo alla directory della scheda la riempirebbe più di due volte</numerusform>
            <numerusform>%1 tralasciati: tutto ciò che è noto solo alla directory della scheda la riempirebbe più di due volte</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>Verifica del contenuto dei file salvati: %1 di %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>Durata sconosciuta</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>Meno di 10 secondi</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>Da 10 secondi a 1 minuto</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>Da 1 a 5 minuti</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>Da 5 a 30 minuti</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>Oltre 30 minuti</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Il disco è pieno</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>La Sua parte del disco è esaurita</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>Il disco può essere solo letto</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>Il disco non accetta file così lunghi</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>Il disco segnala un errore</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>Non ha il diritto di fare questo</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>Il nome è troppo lungo</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Non c’è nulla con questo nome</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>Il dispositivo non c’è</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>Non c’è alcun supporto nel dispositivo</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>La cartella %1 porta altrove</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>Impossibile creare la cartella %1: %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>Criteri di ricerca</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>Tutto il disco</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>Esaminare ogni settore del supporto. La scelta migliore in caso di dubbio.</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>Tutto il disco</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>Intervallo di settori</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>Cercare solo tra due settori indicati.</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>Intervallo di settori</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>Supporto di memoria</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nessuno&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nome del volume</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacità</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>Primo settore</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>Settore finale</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>I settori si contano da 0; ciascuno ha 512 byte. Il settore finale stesso non viene esaminato.</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>I cursori non raggiungono tutti i settori di questo supporto: finiscono al settore 2.147.483.647. Per iniziare o finire più avanti, digitare il settore.</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>Settore iniziale</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>Iniziare dal settore</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>Cursore del settore iniziale</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimo</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Smallest Start Sector</source>
        <translation>Settore iniziale più piccolo</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Massimo</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>Settore iniziale più grande</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>Settore finale</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>Finire al settore</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>Cursore del settore finale</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>Settore finale più piccolo</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>Settore finale più grande</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>Dove vengono salvati i file trovati</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Cartella di destinazione</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>Ancora nessuna; si può scegliere qui o al salvataggio</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>&amp;Sfoglia…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>Sfogliare per scegliere la cartella di destinazione</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>Per tipo</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>Elementi trovati per tipo</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>Solo tipi co&amp;n elementi</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>Mostrare solo i tipi che sono stati trovati</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>Ve&amp;di tutti</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>Mostrare di nuovo gli elementi di tutti i tipi</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>Elementi trovati</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>Quanti elementi sono stati trovati</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Mostra</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Quali elementi sono mostrati</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>O&amp;rdina</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Come sono ordinati gli elementi</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Nessun file selezionato</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>Anteprima video</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>Dati dell’elemento in anteprima</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Dove vanno i file salvati</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Che cosa è spuntato per il salvataggio</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Spun&amp;ta mostrati</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Spuntare per il salvataggio tutto ciò che è mostrato</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Spuntare per il salvataggio tutto ciò che è mostrato; Ins e Canc mettono e tolgono la spunta agli elementi selezionati</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>In&amp;verti spunte</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Invertire le spunte di ciò che è mostrato</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Di ciò che è mostrato, spuntare ciò che non è spuntato e togliere la spunta al resto</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>A&amp;pri cartella</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Aprire la cartella dei file salvati</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Cam&amp;bia cartella…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Cambiare la cartella in cui vengono salvati i file</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Salvare d’ora in poi in un’altra cartella</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Che cosa è stato salvato</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>Op&amp;zioni…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opzioni di salvataggio</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Come vengono salvati gli elementi: nomi e cartelle, senza i piccoli, duplicati, rapporto</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Salva se&amp;lezionati…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Salvare gli elementi selezionati</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Salvare gli elementi selezionati (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Salva &amp;spuntati…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Salvare gli elementi spuntati</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Salvare ogni elemento spuntato, anche quelli non mostrati</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Salva tutt&amp;o…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Salvare tutti gli elementi trovati</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Salvare ogni elemento trovato (Ctrl+Maiusc+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>Dimensione delle immagini</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Dettagli in colonne</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Dettagli in colonne (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>Ricerca finita</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>La ricerca di foto è finita</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>Le foto trovate sono mostrate come miniature. Selezionare quelle desiderate e premere «Salva selezionati», oppure prendere tutto con «Salva tutto». Non sono sul disco finché non vengono salvate.</translation>
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
        <translation>Ricerca finita</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>La ricerca di file è finita</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>La tabella a sinistra conta ciò che è stato trovato di ogni tipo. Selezionare un elemento per vederne l’anteprima, poi premere «Salva selezionati», oppure prendere tutto con «Salva tutto». Nulla è sul disco finché non viene salvato.</translation>
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
        <translation>Opzioni di salvataggio</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>Ca&amp;rtelle</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>Cartelle per i file salvati</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>Ciò che la scheda non indica, o di cui non è nota la data, va nella cartella del suo tipo</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>Usare i &amp;nomi che i file avevano sulla scheda</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>Usare i nomi che i file avevano sulla scheda</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>Per quanto la scheda li indica ancora</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>Tralasciare le &amp;immagini piccole, con lato più lungo inferiore a</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>Tralasciare le immagini piccole</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixel</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>Pixel minimi del lato più lungo</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>Tralasciare i &amp;file piccoli, di meno di</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>Tralasciare i file piccoli</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>Dimensione minima in kilobyte</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>Tralasciare ciò che &amp;certamente non è un file del suo tipo</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>Tralasciare ciò che certamente non è un file del suo tipo</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>Byte che iniziano soltanto come un file di quel tipo</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>Salvare anche le &amp;parti di file</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>Salvare anche le parti di file</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>Ciò che si trova per intero in un file di cui è provata la completezza, come l’anteprima di un’immagine</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>Tenere i &amp;duplicati</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>Tenere i duplicati</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>Salvare di nuovo lo stesso contenuto ogni volta che è stato trovato</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>&amp;Scrivere un rapporto di recupero accanto ai file salvati</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>Scrivere un rapporto di recupero accanto ai file salvati</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>Una pagina da leggere e una tabella per altri programmi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
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
        <translation>Salvataggio</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>Quanti elementi sono salvati</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>Il file che viene salvato</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>Avanzamento del salvataggio</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>Velocità e tempo rimanente</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>Che cosa richiede tanto tempo</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>&amp;Salta questo file</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>Saltare questo file e proseguire con il successivo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>Annullare il salvataggio</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>Il servizio dei dischi non la riconosce più.</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>Il servizio dei dischi non risponde.</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>Il servizio dei dischi lo ha rifiutato.</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>Tutti gli elementi</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completi</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>Di lunghezza sconosciuta</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>Con settori illeggibili</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Non ancora salvati</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>Senza i piccoli</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>Senza i falsi</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>Solo il perduto</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Come trovati</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>Per stato</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Per dimensione</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>Per data di ripresa</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>Per nome sulla scheda</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Rotti</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>Ricomposti o riparati</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Per nome</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Per tipo</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Per fotocamera</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Per pixel</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Per durata</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>Per posizione sulla scheda</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>Immagine della scheda</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1 (%2 occupato)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>Nessun file system riconosciuto</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>non ne verrebbe esaminato nulla</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>viene esaminato tutto</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>parte esaminata: %1</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>%1 secondo il calcolo dei produttori</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>Che cosa dell’intervallo è stato letto</translation>
    </message>
    <message>
        <source>read</source>
        <translation>letto</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>qualcosa trovato</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>danneggiato</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>da esaminare</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nome sulla scheda</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Fotocamera</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>Pixel o durata</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stato</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>Posizione sulla scheda</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, salvato</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>Colonne dei dettagli</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>Cerca per nome</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>Cercare gli elementi trovati per nome, anche quello sulla scheda</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>Ciò che è stato trovato, per tipo, giorno, fotocamera e dimensione</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>Fare clic per mostrare solo questi; tenere premuto Ctrl per più di uno</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Tutti gli elementi</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Per giorno</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Per fotocamera</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Per dimensione</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Nessun tipo</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>Fotocamera sconosciuta</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>Solo nominati sulla scheda</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>1 altro file noto solo alla directory della scheda</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 altro file noto solo alla directory della scheda</numerusform>
            <numerusform>altri %1 file noti solo alla directory della scheda</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>«Salva tutto» salva anche questi.</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>e altri %1</numerusform>
            <numerusform>e altri %1</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Per pixel</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Per durata</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>Impossibile aprire il documento di aiuto.</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>Questo desktop non ha un programma che mostri documenti PDF. Il documento si trova qui:</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>Il file di aiuto non esiste!</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>salvato</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>spuntato</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>Visualizzatore</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ Risultati</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>Torna ai risultati (Esc)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>Immagine intera (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>Dimensioni reali (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>Più piccolo (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>Più grande (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Schermo intero</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Schermo intero (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Dati</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>Mostrare i dati a lato (I)</translation>
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
        <translation>Elemento precedente (Sinistra)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>Elemento successivo (Destra)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Immagine di %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Spunta</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>Spuntare per il salvataggio (Ins, Canc)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Spuntato</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>&amp;Ricorda questa ricerca</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>Per proseguire più tardi, anche dopo un’interruzione di corrente. Prende il posto della ricerca ricordata ora.</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>Conserva una &amp;copia della scheda durante la ricerca</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>Sceg&amp;li…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>Scegliere dove conservare la copia</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>Ideale per una scheda guasta o lenta: viene letta una sola volta, tutto il resto legge la copia.</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>Per proseguire più tardi, anche dopo un’interruzione di corrente.</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>La ricerca ricordata</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Continua</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Esaminare il resto del supporto; ciò che è stato letto non viene esaminato di nuovo</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>Mostra ciò che è stato &amp;trovato</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>Elencare ciò che la ricerca aveva trovato, senza proseguire</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Dimentica</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>Eliminare ciò che è ricordato di questa ricerca; i file salvati restano</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>Proseguire la ricerca ricordata</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>Mostrare ciò che ha trovato la ricerca ricordata</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>Dimenticare la ricerca ricordata</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>Ricerca ricordata: %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>Mostrare il file come è stato trovato (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>Come trovato</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>Mostrare il file come è stato ricomposto (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Riparato</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>Ricomposto</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>A che punto è il completamento dei file rotti, e con quale esito</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>Avanzamento del completamento dei file rotti</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>&amp;Ferma</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>Fermare il completamento dei file rotti; ciò che è stato ricomposto resta</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>Mostra &amp;questi</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>Mostrare i file che sono stati ricomposti o riparati</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>C&amp;hiudi</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Chiudere questo messaggio</translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation>Tempo riprodotto e durata</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Riproduci (Spazio)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Disattiva audio</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausa (Spazio)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Attiva audio</translation>
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
        <translation>Riproduci o pausa (Spazio)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>Nessun video</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Selezionare un elemento per vederne l’anteprima.</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 di %2 selezionati</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1, senza miniature</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Salva tutt&amp;o…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>Salva tutti i m&amp;ostrati (%1)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Salvare tutti gli elementi trovati</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>Salvare tutti gli elementi mostrati</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 di %2 salvati</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>Op&amp;zioni…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>Op&amp;zioni (%1)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>Scegliere dove conservare la copia della scheda</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>Immagini di supporti (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>La copia non può essere conservata lì.</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>La cartella si trova sul supporto da esaminare; scrivere lì sovrascriverebbe ciò che resta da trovare. Scegliere una posizione su un altro disco.</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>Spazio insufficiente per una copia.</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>Richiede fino a %1, e %2 sono liberi in %3. Scegliere una posizione su un altro disco, oppure cercare senza copia.</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1: servono fino a %2, liberi %3</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1: servono fino a %2</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>Come sta la scheda</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>&amp;Conserva una copia…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>La ricerca viene fermata un momento e prosegue, leggendo la scheda una sola volta nel file scelto</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>Questa scheda si sta guastando: 1 settore danneggiato.</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>Questa scheda si sta guastando: %1 settore danneggiato.</numerusform>
            <numerusform>Questa scheda si sta guastando: %1 settori danneggiati.</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>Questa scheda è molto lenta.</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>Conservare una copia, in modo che ogni settore venga letto una sola volta.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Copia: %1</translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation>Copia: %1. %2</translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation>Quando il programma finisce, l’elenco degli elementi trovati va perso.</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>Esci senza salvare</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
Uscire davvero da «%1»?</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>%1 dei %2 elementi trovati non sono stati salvati.</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>L’elemento trovato non è stato salvato.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>L’elemento trovato (%1) non è stato salvato.</numerusform>
            <numerusform>Nessuno dei %1 elementi trovati è stato salvato.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Resta</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>Tutti i tipi del gruppo %1</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleziona &amp;tutto</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>Seleziona &amp;tutti i mostrati</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>Nessun tipo corrisponde</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>Nessun tipo di file</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>Svuotare il campo di ricerca per vedere tutti i tipi.</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>Impossibile leggere il catalogo dei tipi di file. Installare di nuovo il programma.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>Che cosa fare con l’elemento</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>Mostra in &amp;grande</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>Mostra &amp;dati</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>&amp;Salva selezionati…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>Seleziona tutto il gio&amp;rno %1</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>Seleziona tutto il gio&amp;rno</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>Seleziona tutto il ti&amp;po %1</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Continua</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>Prosegui la ricerca</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Esaminare il resto del supporto; ciò che è stato letto non viene esaminato di nuovo</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>La ricerca ricomincia da capo.</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>È stata iniziata con elenchi di firme diversi da quelli di questa versione del programma.</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>Questa ricerca non viene ricordata.</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>La cartella personale si trova sul supporto da esaminare; scrivere lì sovrascriverebbe ciò che resta da trovare.</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>La ricerca non può proseguire.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>Questo non è il supporto che è stato esaminato. Inserire quello giusto e riprovare.</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>Impossibile aprire il supporto. Reinserirlo e riprovare.</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>Il supporto di questa ricerca non c’è.</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>Era %1. Inserirlo, o aprire la sua immagine, e riprovare.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>Questo non è il supporto che è stato esaminato.</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>Contiene qualcosa di diverso da %1. Inserire quello giusto e riprovare.</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>Impossibile aprire il supporto di questa ricerca.</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>È stato trovato 1 elemento prima che il supporto non si potesse più aprire.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>È stato trovato %1 elemento prima che il supporto non si potesse più aprire.</numerusform>
            <numerusform>Sono stati trovati %1 elementi prima che il supporto non si potesse più aprire.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>L’elenco resta finché non si cerca di nuovo o non si torna indietro.</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>Il supporto di memoria non risponde.</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>La ricerca precedente non è ancora finita. Estrarre il supporto e reinserirlo, poi riprovare.</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>Una nuova ricerca svuota l’elenco degli elementi trovati.</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>Cerca senza salvare</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>Impossibile aprire l’immagine.</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>Impossibile aprire %1 immagine.</numerusform>
            <numerusform>Impossibile aprire %1 immagini.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>Scegliere un video</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>Questa cartella non può essere la destinazione.</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>Si trova sul supporto di memoria da recuperare. Scrivere lì sovrascriverebbe i file da ritrovare. Scegliere una cartella su un altro disco.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Scegliere un’altra cartella.</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>Il disco che conteneva %1 è stato estratto. Reinserirlo, o cambiare cartella.</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 è stata eliminata o rinominata, o il suo disco è stato estratto. Ripristinarla, o cambiare cartella.</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>La destinazione non esiste più.</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>Nessuna cartella ancora scelta per i file salvati</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>I file salvati vanno in %1, che non esiste</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>I file salvati vanno in %1 (liberi %2)</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>I file salvati vanno in %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>Questo desktop non ha un programma che mostri cartelle.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Non esiste più.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Impossibile aprire la cartella.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Impossibile leggere il supporto di memoria.</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>Questa è ancora l’anteprima di %1.</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Selezionare un elemento per vederne l’anteprima.</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>più di %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Anteprima di %1</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>Con l’opzione «Tutto il disco», Vantor Recovery cerca i dati persi in tutta la memoria del disco selezionato. Per cercare in un determinato intervallo di settori o in una determinata partizione, selezionare l’altro criterio di ricerca. Altrimenti premere il pulsante «Avanti» per iniziare la ricerca in tutto il disco.</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>L’opzione «Intervallo di settori» permette di indicare il settore iniziale e il settore finale del supporto di memoria tra i quali cercare i dati persi. Trascinare i cursori per impostare l’intervallo, oppure inserire i valori nei campi Settore iniziale e Settore finale.</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>Le impostazioni sono state dimenticate.</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>Al prossimo avvio del programma, finestra, opzioni di salvataggio e cartelle saranno quelle di un primo avvio.</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>Trattiene ancora il salvataggio annullato. Estrarre il supporto e reinserirlo, poi riprovare.</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>La ricerca prosegue.</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Nessun file selezionato</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
Selezionare un supporto di memoria dall’elenco.</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>Tornando indietro, l’elenco degli elementi trovati viene svuotato.</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>Torna senza salvare</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
Selezionare dall’elenco il supporto di memoria da cui recuperare i dati. Premere il pulsante «Avanti» per continuare... </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
Selezionare i tipi di file da recuperare. Premere il pulsante «Avanti» per continuare... </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Supporto</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervallo</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipi di file</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recupera</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>Impossibile ricordare la ricerca: %1.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 foto</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>tutti completi</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>Premere «Ferma», o lasciare proseguire la ricerca.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Nulla trovato</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>Nessun tipo</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>Non è stato trovato nulla dei tipi spuntati.</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>Tornare indietro e spuntare i tipi da cercare.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Settori</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>File system</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>Disco intero</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Ricerca</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>Approfondita</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrizione</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trovati</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>Nessun supporto di memoria trovato</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>Inserire la scheda di memoria o collegare il suo lettore e premere «Aggiorna», oppure aprire un file immagine di un supporto. È anche possibile trascinare qui un file immagine.</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>Settori 0 di 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>%1 di %2 spuntati, %3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>Togli spun&amp;ta</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Spun&amp;ta mostrati</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>Togliere la spunta a tutto ciò che è mostrato</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Spuntare per il salvataggio tutto ciò che è mostrato</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>Salva &amp;spuntati (%1)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Aprire un file immagine di un supporto</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>Immagini di supporti (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;Tutti i file (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>Completa &amp;file rotti</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>Completare i file rotti</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>Cercare sul supporto i pezzi mancanti di foto e video, e riparare i video senza indice; ciò che è stato trovato resta accanto così com’è</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>Ricerca dei file rotti: %1 di %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>Completamento dei video rotti…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>Completamento dei video rotti: %1 di %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>Completamento delle foto rotte…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>Completamento delle foto rotte: %1 di %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>Riparazione dei video senza indice…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>Riparazione dei video senza indice: %1 di %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>I file rotti sono stati lasciati come sono: impossibile aprire il supporto di memoria. Reinserirlo e riprovare.</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>Il supporto di memoria è scomparso. Reinserirlo e riprovare.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Fermato.</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 file completato</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 file completato</numerusform>
            <numerusform>%1 file completati</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 file ricomposto (da controllare)</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 file ricomposto (da controllare)</numerusform>
            <numerusform>%1 file ricomposti (da controllare)</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>1 video riparato</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>%1 video riparato</numerusform>
            <numerusform>%1 video riparati</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>Non è stato trovato alcun file rotto di un genere completabile.</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>Non è stato possibile completare alcun file rotto.</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>Altri file sono in corso di scrittura. Trascinare di nuovo tra un momento.</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>Spazio insufficiente per preparare %1 da trascinare. Salvare invece i file.</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>Impossibile leggere questi file dal supporto di memoria.</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>Preparazione dei file…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>I file sono ancora in corso di scrittura. Trascinarli di nuovo tra un momento.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Salva con nome</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>La scheda può essere estratta.</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>Impossibile espellere la scheda.</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>Togli spun&amp;ta per il salvataggio</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>Spun&amp;ta per il salvataggio</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Salva &amp;con nome…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Opzioni di ricerca</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>Completamento dei documenti rotti…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>Completamento dei documenti rotti: %1 di %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>Non è stato possibile trascinare %1 dei %2 file.</numerusform>
            <numerusform>Non è stato possibile trascinare %1 dei %2 file.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>pezzo %1: settori da %2 a %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>Pezzi sulla scheda</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Scheda</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>Servono circa %1 e %2 sono liberi in %3.</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>Così come sono stati trovati, i file richiedono circa %1; una volta esaminati, spesso risultano più corti. %2 sono liberi in %3.</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>Lo spazio nella destinazione potrebbe non bastare.</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>Ciò che ci sta viene salvato per intero; il resto viene tralasciato e rimane nell’elenco.</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>Salva ciò che ci sta</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>Cambia cartella…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Non è stato salvato nulla.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>Il supporto di memoria non è più leggibile. Reinserirlo e riprovare.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>Espelli scheda</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>Come sulla scheda</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Per tipo</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>Per tipo e data</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>Il supporto rifiuta settori di questo file: finora %1. Ciascuno può richiedere secondi. Ciò che si trova dietro viene letto comunque.</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>Salvataggio di %1 su %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annullamento…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>Verifica del contenuto: %1 di %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>Dal supporto non si legge più nulla. «Annulla» termina solo questa verifica.</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Passo %1 di %2: %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>selezionato</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>non selezionato</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>Caricamento…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Impossibile leggere il supporto di memoria.</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>Impossibile mostrare un’immagine di questo file.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 di %2</translation>
    </message>
</context>
</TS>
