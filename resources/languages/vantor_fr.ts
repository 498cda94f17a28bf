<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>Choisissez où vont les fichiers trouvés</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>Dans la fenêtre suivante, choisissez un dossier sur un autre disque, jamais sur le support que vous récupérez : tout ce qui y est écrit peut écraser les fichiers mêmes que vous voulez retrouver.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>Préparation de l&apos;aperçu</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>L&apos;élément est en cours de lecture sur le support. Cela prend un moment pour les gros éléments.</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>Les images d&apos;expertise ne peuvent pas être lues ici</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>Les images d&apos;expertise ne sont lues qu&apos;enfermées, ce que ce système ne permet pas</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>La partie du programme qui lit les images d&apos;expertise ne démarre pas</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>L&apos;image d&apos;expertise est endommagée ou d&apos;un genre qui ne peut pas être lu</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>Types de fichiers à rechercher</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>Combien de types sont sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Préréglages</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>Sélectionner les types qui vont ensemble</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>Préréglages de types de fichiers</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>Rechercher des types…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>Rechercher parmi les types de fichiers</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Tout sélectio&amp;nner</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>Sélectionner tous les types de fichiers</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Recherche approfondie</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>Les types marqués « Approfondie » sont recherchés lors d&apos;un second passage sur le support.</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
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
        <translation>1.  Choisissez la carte mémoire et ce qui a été perdu : photos, vidéos ou autres fichiers.
2.  Choisissez où chercher : le disque entier ou une plage de secteurs.
3.  Pour les vidéos et les fichiers, cochez les types voulus.
4.  Suivez la recherche. Sélectionnez ce que vous voulez retrouver et enregistrez-le sur un autre disque.

La carte est seulement lue, jamais écrite. Cessez de l&apos;utiliser tant que vous n&apos;avez pas retrouvé vos fichiers.</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>Le guide complet, avec images :</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>Ouvrir le document d&apos;aide</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>À &amp;propos…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>À propos de ce programme : version, licence, bibliothèques</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>&amp;Oublier les réglages</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>Taille de la fenêtre, options d&apos;enregistrement et dossiers des utilisations précédentes</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>Oublier les réglages des utilisations précédentes</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>Supports de stockage</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>Recherche de supports de stockage</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>La liste des cartes mémoire et des disques amovibles est en cours de lecture.</translation>
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
        <translation>Étapes de la récupération</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aide</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>Ouvrir la fenêtre d&apos;aide (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Type de recherche : récupérer des photos</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Type de recherche</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Aucun&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>Identifiant du support choisi</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>Nombre de secteurs du support choisi</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>Afficher les éléments &amp;trouvés</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>Afficher les éléments trouvés jusqu&apos;ici</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>Parcourir ce qui a été trouvé et l&apos;enregistrer</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>Comment la recherche s&apos;est terminée</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>Comment la recherche s&apos;est terminée, et comment continuer</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>Ce que la recherche a trouvé, et combien de temps elle a duré</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>Réessayer les secte&amp;urs défectueux</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>Réessayer les secteurs défectueux</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>Les aperçus et l&apos;enregistrement redemandent une fois au support ce qu&apos;il n&apos;a pas pu lire</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Recherche approfondie</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>Après la recherche générale, chercher encore avec une liste plus longue de types d&apos;images.</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>Procédure de recherche en cours</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>Suppression des vignettes qui ne sont pas prêtes…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>La recherche est en cours d&apos;arrêt</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>Vitesse, temps restant et éléments trouvés</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>Progression de la recherche</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>Arrêt&amp;er</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Arrêter la recherche</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>Terminer la recherche maintenant et garder ce qui a été trouvé</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>Secteurs parcourus</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>Que faire sur cet écran</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>Quitter le programme (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Retour</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>Vers l&apos;écran précédent (Alt+Gauche)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>&amp;Suivant ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>Vers l&apos;écran suivant (Entrée)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>Supports de stockage</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>Absent de la liste ?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>A&amp;ctualiser</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>Actualiser la liste des supports</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>Rechercher à nouveau les supports de stockage (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>&amp;Ouvrir une image…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Ouvrir le fichier image d&apos;un support</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>Rechercher dans la copie d&apos;un support enregistrée sous forme de fichier (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>Qu&apos;avez-vous perdu ?</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>Mode de récupération</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Photo</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>Images d&apos;appareils photo et de téléphones, affichées en vignettes dès qu&apos;elles sont trouvées.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>Films et clips des types que vous choisissez, chacun avec un aperçu.</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>Fichier brut</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>Documents, archives, sons et tous les autres types que vous choisissez.</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>Fichier brut</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>Photos trouvées</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>Combien de photos ont été trouvées</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>A&amp;fficher</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Quels éléments sont affichés</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>&amp;Trier</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Comment les éléments sont triés</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>Zoom des vignettes</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Où vont les fichiers enregistrés</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Ce qui est coché pour l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Coc&amp;her l&apos;affiché</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Cocher tout ce qui est affiché pour l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Cocher tout ce qui est affiché pour l&apos;enregistrement ; Inser et Suppr cochent et décochent les éléments sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>&amp;Inverser les coches</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Inverser les coches de ce qui est affiché</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Cocher ce qui n&apos;est pas coché parmi ce qui est affiché, et décocher le reste</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Ouvrir le &amp;dossier</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Ouvrir le dossier des fichiers enregistrés</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>&amp;Changer de dossier…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Changer le dossier où les fichiers sont enregistrés</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Enregistrer désormais dans un autre dossier</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Ce qui est enregistré</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;ptions…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Options d&apos;enregistrement</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Comment les éléments sont enregistrés : noms et dossiers, sans les petits, doublons, rapport</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Enregistrer la sé&amp;lection…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Enregistrer les éléments sélectionnés</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Enregistrer les éléments sélectionnés (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Enregistrer les c&amp;ochés…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Enregistrer les éléments cochés</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Enregistrer tous les éléments cochés, même ceux qui ne sont pas affichés</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Tout enre&amp;gistrer…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Enregistrer tous les éléments trouvés</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Enregistrer tous les éléments trouvés (Ctrl+Maj+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Détails en colonnes</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Détails en colonnes (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
Veuillez sélectionner au moins un type de fichier.</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>Le programme ne parle pas « %1 ». Il parle %2.</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>Photos de tous les appareils</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Documents bureautiques</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>Enregistreur vocal</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tout</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>« %1 » n&apos;est pas un fichier.</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>La carte « %1 » (map) appartient à une autre copie. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>« %1 » est la copie d&apos;un support d&apos;une autre taille. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Impossible d&apos;écrire « %1 » : %2.</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>« %1 » est en cours d&apos;écriture par une autre recherche.</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>« %1 » existe déjà, et aucune carte (map) à côté n&apos;indique que c&apos;est une copie à poursuivre. Veuillez choisir un autre nom.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>Impossible d&apos;écrire « %1 » : %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>La carte « %1 » (map) est inutilisable : %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>ce n&apos;est pas un fichier</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>elle n&apos;existe pas</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>elle est trop grande pour une carte</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>Impossible d&apos;écrire la carte « %1 » (map) : %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la ligne est trop longue</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>aucune ligne n&apos;indique la position</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>une position, un des signes ?*/-FG+ et un passage sont attendus</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>une position, une taille et un des signes ?*/-+ sont attendus</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>cette taille est impossible</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>elle chevauche la ligne précédente</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>il y a un vide avant elle</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>il y a trop de lignes</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1 : %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>« %1 » n&apos;est pas un fichier image.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>Impossible d&apos;ouvrir « %1 » : %2.</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>« %1 » est vide. Veuillez choisir le fichier image d&apos;un support de stockage.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>Impossible d&apos;ouvrir « %1 ».</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>« %1 » est la copie d&apos;un autre support.</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>La copie « %1 » s&apos;arrête ici : %2. Ce qu&apos;elle ne contient pas est lu sur le support.</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>Vous n&apos;avez pas le droit de lire cette carte. Relancez la recherche et accordez-le quand le mot de passe vous est demandé, ou demandez à l&apos;administrateur de cet ordinateur le droit de lire les supports de stockage.</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>Vous n&apos;avez pas le droit de lire ce fichier image. Demandez à son propriétaire le droit de le lire, ou une copie.</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>Le support n&apos;est plus là. Remettez-le en place et réessayez.</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>Un autre support est maintenant à sa place. Revenez à la liste des supports et choisissez à nouveau.</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>Le fichier image a été modifié pendant la recherche : ce qui a été trouvé peut être endommagé. Relancez la recherche quand plus rien n’y écrit.</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>Veuillez d&apos;abord le décompresser et ouvrir le fichier image qu&apos;il contient.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>Veuillez d&apos;abord le convertir en image brute (par exemple avec « qemu-img convert -O raw ») et ouvrir celle-ci.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>Veuillez d&apos;abord le convertir en image brute et ouvrir celle-ci.</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>« %1 » est compressé (%2) et ne peut pas être parcouru tel quel. %3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>Ni un support de stockage ni un fichier image</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>L&apos;image est en plus de %1 parties ; veuillez d&apos;abord les réunir en un seul fichier</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>Une partie de l&apos;image manque : %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>Veuillez saisir un secteur de début valide.</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>Veuillez saisir un secteur de fin valide.</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
Plage maximale de secteurs dépassée</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
Le secteur de fin doit être supérieur au secteur de début.</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>Cette carte se lit comme effacée : hormis les secteurs de son système de fichiers, tous les endroits examinés sont vides. Certains appareils et programmes effacent toute la carte en la formatant, et alors rien ne peut être trouvé.</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>Moins de 100 ko</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>100 ko à 1 Mo</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>1 Mo à 10 Mo</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>10 Mo à 100 Mo</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>100 Mo à 1 Go</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>Plus de 1 Go</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Photos</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>Photos brutes (RAW)</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Films</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sons</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Archives</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autres</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>pas un fichier de son type</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>complet</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>se termine où il l&apos;indique, contenu non vérifié</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>tronqué</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>endommagé</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>de longueur inconnue</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>assemblé à partir de %1 morceau</numerusform>
            <numerusform>assemblé à partir de %1 morceaux</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>tous ses secteurs n&apos;ont pas pu être lus</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>pris le %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>« %1 » se trouve sur le support à copier ; y écrire écraserait ce qui reste à trouver. Choisissez un endroit sur un autre disque.</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1. La copie s&apos;arrêtera là ; la recherche continuera depuis le support.</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>Les fichiers de ce disque ne peuvent dépasser 4 Go. La copie s&apos;arrêtera là ; la recherche continuera depuis le support.</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>Le disque de la copie ne prend que %1 par seconde : une copie entière demande environ %2 minutes.</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 secteur défectueux</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 secteur défectueux</numerusform>
            <numerusform>%1 secteurs défectueux</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>%1% copiés</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>lecture autour d&apos;eux</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>le support n&apos;est plus là</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>la copie s&apos;est arrêtée</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>un autre support</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>%1 sur %2 copiés</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>%1 secteur entre des défectueux laissé de côté</numerusform>
            <numerusform>%1 secteurs entre des défectueux laissés de côté</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>Le dossier %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 n&apos;est pas un dossier.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>Impossible d&apos;écrire dans le dossier %1 : %2.</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 se trouve sur un système de fichiers FAT, qui n&apos;accepte pas de fichier de 4 Gio ou plus, et %2 sont nécessaires</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>Il n&apos;y a pas assez de place dans %1 : %2 sont nécessaires, %3 sont libres</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>Le dossier %1 n&apos;est plus là</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>Le dossier %1 se trouve sur le support parcouru</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>Le support ne peut plus être lu</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>Aucun de ses secteurs n&apos;a pu être lu</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>encore là</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>supprimé</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>son dossier est perdu</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>modifié le %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>plus petit que demandé</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>partie de %1</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>encore là en tant que fichier</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>longueur estimée</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 secteur illisible</numerusform>
            <numerusform>%1 secteurs illisibles</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totaux</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistrés</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Complets</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>Se terminent où ils l&apos;indiquent</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Tronqués</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>Endommagés</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>Longueur inconnue</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Doublons</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Laissés de côté</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échecs</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>laissé de côté : %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>échec : %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>mêmes octets qu&apos;un fichier précédent ; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>Secteurs de 512 octets</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>Recherché</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>Rapport de récupération</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>Sur la carte</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Pris le</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>Trouvé dans les secteurs</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>vidéos</translation>
    </message>
    <message>
        <source>files</source>
        <translation>fichiers</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>photos</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>Impossible d&apos;écrire le rapport dans %1 : %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Ignoré</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>Dont : %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>%1 n&apos;ont pas pu être enregistrés :</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   et %1 autre</numerusform>
            <numerusform>   et %1 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>1 item</source>
        <translation>1 élément</translation>
    </message>
    <message numerus="yes">
        <source>%1 items</source>
        <translation>
            <numerusform>%1 élément</numerusform>
            <numerusform>%1 éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>Rien de nouveau n&apos;a été enregistré.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Rien n&apos;a été enregistré.</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>1 fichier a été enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>%1 fichier a été enregistré.</numerusform>
            <numerusform>%1 fichiers ont été enregistrés.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>Ils se trouvent dans %1.</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>Lecture partielle seulement : %1 ; ce qui n&apos;a pas pu être lu est rempli de zéros.</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>Laissé de côté : %1, %2.</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>Pas écrit de nouveau : %1, le même contenu est déjà enregistré.</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>plus petit que vous ne l&apos;avez demandé</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>certainement pas des fichiers de leur type</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>encore là en tant que fichiers sur la carte</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>parties de fichiers enregistrés en entier</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>Le support de stockage a disparu entre-temps. Remettez-le en place et enregistrez à nouveau.</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>Le reste n&apos;a pas été enregistré parce que vous avez annulé.</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>« %1 », dans le dossier de destination, en dit plus sur chaque fichier.</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>%1 complet</numerusform>
            <numerusform>%1 complets</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>%1 se termine où il l&apos;indique (contenu non vérifié)</numerusform>
            <numerusform>%1 se terminent où ils l&apos;indiquent (contenu non vérifié)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>%1 tronqué</numerusform>
            <numerusform>%1 tronqués</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>%1 endommagé</numerusform>
            <numerusform>%1 endommagés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 de longueur inconnue</numerusform>
            <numerusform>%1 de longueur inconnue</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%1 enregistré dans %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%1 enregistré dans %2 (%3) : %4</numerusform>
            <numerusform>%1 enregistrés dans %2 (%3) : %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 sous le nom que la carte indique encore</numerusform>
            <numerusform>%1 sous les noms que la carte indique encore</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>%1 d&apos;entre eux a des secteurs qui n&apos;ont pas pu être lus</numerusform>
            <numerusform>%1 d&apos;entre eux ont des secteurs qui n&apos;ont pas pu être lus</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 pas écrit de nouveau : les mêmes octets sont déjà enregistrés</numerusform>
            <numerusform>%1 pas écrits de nouveau : les mêmes octets sont déjà enregistrés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 laissé de côté : plus petit que demandé</numerusform>
            <numerusform>%1 laissés de côté : plus petits que demandé</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 laissé de côté : pas un fichier de son type</numerusform>
            <numerusform>%1 laissés de côté : pas des fichiers de leur type</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 laissé de côté : encore là en tant que fichier sur la carte</numerusform>
            <numerusform>%1 laissés de côté : encore là en tant que fichiers sur la carte</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 laissé de côté : partie d&apos;un fichier enregistré en entier</numerusform>
            <numerusform>%1 laissés de côté : parties de fichiers enregistrés en entier</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>Secteurs %1 sur %2   ( %3% terminés )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
Pour choisir un autre disque à récupérer, cliquez sur le bouton ‘Retour’.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>encore quelques secondes</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>encore environ %1 s</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>encore environ %1 min</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>encore environ %1 h</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 élément trouvé</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 élément trouvé</numerusform>
            <numerusform>%1 éléments trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( Recherche en cours selon : procédure générale de récupération Vantor )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( Recherche en cours selon : algorithme d&apos;analyse approfondie Vantor )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
Pour arrêter la récupération, cliquez sur le bouton ‘Arrêter’, ou attendez la fin du traitement.</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
Erreur de lecture du support de stockage.</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>secteur %1 sur %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>La recherche approfondie</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>La recherche</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1 a été interrompue au %2.</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>La recherche est terminée.</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>La recherche est terminée, mais 1 secteur n&apos;a pas pu être lu.</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>La recherche est terminée, mais %1 secteur n&apos;a pas pu être lu.</numerusform>
            <numerusform>La recherche est terminée, mais %1 secteurs n&apos;ont pas pu être lus.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1 a été arrêtée à %2 % (%3).</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>Le support n&apos;a pas pu être rouvert pour la recherche approfondie.</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>Le support n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1 n&apos;avait rien à chercher.</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>Le support a été retiré ou ne répond plus depuis le %1.</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1 s&apos;est terminée par une erreur de lecture au %2.</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>La recherche générale précédente était complète.</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>Remettez le support en place.</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>Ce n&apos;est pas une recherche conservée par ce programme.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>Le fichier est endommagé.</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>« %1 » est vide : il ne contient aucun secteur entier.</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>Recherche effectuée malgré tout ; seul ce qui est stocké sans compression peut être trouvé.</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>Sur %1 secteurs de « %2 », %3 n&apos;ont pas été lus, d&apos;après sa carte (map).</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>« %1 » n&apos;est ni un fichier ni un support de stockage de cet ordinateur.</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>Les fichiers incomplets ont été laissés tels quels : le support ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>%1 films incomplets sur %2 complétés, %3 autres assemblés : à regarder</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>%1 photos incomplètes sur %2 complétées, %3 autres assemblées : à regarder</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>Les films ne sont pas recherchés en mode photo, donc aucun n&apos;est complété</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>Les films ne sont pas recherchés en mode photo, donc aucun n&apos;est réparé</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1 : complet, à partir de %2 morceau</numerusform>
            <numerusform>%1 : complet, à partir de %2 morceaux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1 : assemblé à partir de %2 morceau, à regarder</numerusform>
            <numerusform>%1 : assemblé à partir de %2 morceaux, à regarder</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>Copier le support dans ce fichier image pendant la recherche, chaque secteur lu une seule fois ; la recherche et l&apos;enregistrement lisent ensuite la copie. FILE.map indique ce qui a été lu. Une copie déjà présente est poursuivie, même celle de GNU ddrescue.</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>Avec --image : lire aussi un par un les secteurs situés entre des défectueux éloignés ; peut être très long.</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>La carte (map) de l&apos;image MEDIUM, telle que GNU ddrescue l&apos;écrit : ce qu&apos;elle ne dit pas sauvé compte comme illisible. Sans cette option, la carte à côté de l&apos;image est utilisée s&apos;il y en a une (card.img.map, card.map, aussi .mapfile et .log).</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map demande un fichier.</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image demande un fichier.</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape va avec --image.</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>Les catalogues de signatures ne sont pas ceux avec lesquels elle a été commencée.</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>Impossible d&apos;ouvrir le support %1.</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 n&apos;est pas le support qui a été parcouru.</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>Impossible d&apos;ouvrir le support.</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>Les répertoires du support n&apos;ont pas pu être lus.</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>Des noms de fichiers, et des fichiers que seuls les répertoires indiquent, peuvent manquer.</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>Il n’y a pas assez de mémoire pour continuer. Ce qui a été enregistré jusqu’ici est entier.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>Aucun support de stockage trouvé. Insérez une carte ou une clé, ou indiquez plutôt un fichier image.</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>Impossible de lire le film %1.</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 n&apos;est pas un film MP4 ou QuickTime entier d&apos;un genre réparable.</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>%1 films sans index sur %2 réparés</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1 : aucun film entier de son appareil n&apos;a été trouvé</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1 : aucune image trouvée</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1 : %2 images, %3 s, et %4 s de son, comme dans %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
Codes de sortie : 0 terminé, 2 mauvaise utilisation, 3 arrêté, 4 le support n&apos;a pas pu être lu jusqu&apos;au bout, 5 le support
ne peut pas être ouvert, 6 quelque chose de trouvé n&apos;a pas pu être enregistré.
Ctrl-C termine la recherche comme le bouton Arrêter : tout ce qui a été trouvé jusque-là est gardé et enregistré.
Le support est seulement lu.
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
Essayez --help.</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>Trouve des photos, des vidéos et d&apos;autres fichiers sur un support de stockage d&apos;après leurs premiers octets.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Afficher la version.</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>Que chercher : photo (par défaut), video ou rawfile.</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>Seulement ces types de fichiers, séparés par des virgules (modes video et rawfile) : extensions, ou @photos, @office, @phone, @recorder, @everything.</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>Seulement les secteurs de START jusqu&apos;à END non compris.</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>Omettre le passage approfondi du mode photo.</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>Redemander au support les secteurs défectueux, lors du passage approfondi et pour l&apos;enregistrement.</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>Conserver la recherche dans FILE, pour que --resume puisse la poursuivre.</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>Poursuivre la recherche conservée dans FILE ; MEDIUM peut être omis.</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>Dossier des six catalogues de signatures.</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>Afficher un objet JSON par élément trouvé, et un pour la fin.</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>Afficher les supports de stockage de cet ordinateur (en JSON avec --list-json) sans rien chercher.</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>Afficher ce que les répertoires du support disent de ses fichiers, présents et passés, un objet JSON pour chacun, sans rien chercher.</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>Afficher ce que --types peut choisir dans ce mode, sans rien chercher.</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>Ne rien dire d&apos;autre que ce qui a échoué, et sans progression.</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>Parler cette langue (en, de, fr, es, it, pt_BR, nl, pl, ja ou zh_CN) au lieu de celle du bureau ; avec --list-json, toujours l&apos;anglais.</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>Un fichier image, l&apos;identifiant d&apos;un périphérique (sdb1) ou son chemin (/dev/sdb1).</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>Mode inconnu « %1 ».</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>Ce qu&apos;il faut chercher se trouve dans le fichier de --resume.</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>Aucun fichier indiqué pour conserver la recherche.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>Le mode photo cherche tous ses types ; --types va avec video ou rawfile.</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range demande START:END.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>Le mode photo cherche tous ses types ; --list-types va avec video ou rawfile.</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types ne prend pas de support.</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media ne prend pas de support.</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>Aucun support indiqué.</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>Plus d&apos;un support indiqué.</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>Fichiers incomplets en cours de complétion : %1 sur %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 se trouve sur le support à parcourir ; y enregistrer écraserait ce qui reste à trouver. Choisissez un dossier sur un autre disque.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>Impossible d&apos;écrire dans le dossier %1.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>%1 ne peut pas être copié : sa taille n&apos;est pas connue.</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>Le dossier %1 ne contient aucun catalogue de signatures lisible.</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>Type de fichier inexistant dans ce mode : %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>Recherche effectuée malgré tout.</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 se trouve sur le support à parcourir.</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>La recherche ne peut pas continuer. %1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>La recherche n&apos;a pas pu être conservée dans %1 : %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>Enregistrer ce qui est trouvé sous DIR/&lt;type&gt;/&lt;nom&gt;, chaque fichier aussi long que son format l&apos;indique et les mêmes octets une seule fois ; rien n&apos;est écrasé.</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>Enregistrer les secteurs de chaque élément trouvé tels qu&apos;ils sont listés, ni plus ni moins.</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>Écrire « Recovery report.html » et « Recovery report.csv » à côté des fichiers enregistrés.</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original (par défaut) : enregistrer sous les noms que le répertoire de la carte indique encore, là où il le fait ; found : sous les noms listés.</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card (par défaut) : enregistrer dans les dossiers que le répertoire de la carte indique encore, et ce qu&apos;il n&apos;indique pas dans DIR/&lt;type&gt; ; type : tout dans DIR/&lt;type&gt; ; date : sous DIR/&lt;type&gt;/&lt;date&gt;/&lt;date et heure&gt; &lt;nom&gt; quand une date est connue.</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>Ne pas enregistrer ce que la carte contient encore en tant que fichier.</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>Identique à --folders date.</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>Ne pas enregistrer les fichiers de moins d&apos;octets.</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>Ne pas enregistrer les images dont le grand côté a moins de pixels.</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>Enregistrer à nouveau les mêmes octets quand ils sont retrouvés.</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>Ne pas enregistrer ce qui n&apos;est certainement pas un fichier de son type.</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>Enregistrer aussi des parties de fichiers, comme l&apos;aperçu d&apos;une photo ou un membre d&apos;archive : ce qui se trouve entièrement dans un fichier prouvé complet, et qui est sinon laissé de côté.</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>Écrire un jumeau lisible, « ... repaired.MP4 », de chaque film MP4, QuickTime ou AVI dont l&apos;index n&apos;a jamais été écrit ; pour MP4 et QuickTime, un film entier du même appareil doit aussi être trouvé.</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>Un film entier de l&apos;appareil, à la place de ceux qui sont trouvés (avec --repair-movies).</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save demande un dossier.</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 va avec --save.</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published ne regarde dans aucun fichier : il ne connaît ni noms, ni dates, ni pixels, ni état.</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names demande original ou found.</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders demande card, type ou date.</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date est --folders date.</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference va avec --repair-movies.</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes et --min-pixels demandent un nombre.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 autre fichier que seul le répertoire de la carte indique</numerusform>
            <numerusform>%1 autres fichiers que seul le répertoire de la carte indique</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  et d&apos;autres</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Rapport : %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>Pour continuer à partir de là : --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>Pour continuer à partir de là : --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>Ce qui a été trouvé ne peut pas être écrit sur la sortie standard.</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>Tous les éléments n&apos;ont pas pu être relus ; ceux-là n&apos;ont pas de somme de contrôle.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Copie : %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>parcourir le disque entier</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>sélectionner plus de types de fichiers</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>activer la recherche approfondie</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>chercher des vidéos ou des fichiers bruts</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>Aucune photo trouvée pour l&apos;instant</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>Elles apparaissent ici au fil de la recherche.</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>Rien de trouvé pour l&apos;instant</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>Les éléments apparaissent ici au fil de la recherche.</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>Aucune photo n&apos;a été trouvée</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Rien n&apos;a été trouvé</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>Tout a été parcouru pour tous les types. Essayez un autre support.</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>Vous pouvez revenir en arrière et %1.</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>Vous pouvez revenir en arrière et %1, ou %2.</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>Aucun élément trouvé ne correspond</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>Cliquez sur « Tous les éléments » à gauche et videz le champ de recherche pour voir tout ce qui a été trouvé : %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>Aucun élément trouvé n&apos;est de ce genre</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>Choisissez « Tous les éléments » ci-dessus pour voir tout ce qui a été trouvé : %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>Aucun élément trouvé n&apos;est de ce type</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>Appuyez sur « Tous les types » pour voir tout ce qui a été trouvé : %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>Aucun élément trouvé n&apos;est de ce type et de ce genre</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>Appuyez sur « Tous les types » et choisissez « Tous les éléments » ci-dessus pour voir tout ce qui a été trouvé : %1.</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>Date inconnue</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>ddd d MMM yyyy</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>1 photo trouvée</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>%1 photo trouvée</numerusform>
            <numerusform>%1 photos trouvées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>1 vidéo trouvée</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>%1 vidéo trouvée</numerusform>
            <numerusform>%1 vidéos trouvées</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>1 fichier trouvé</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 fichier trouvé</numerusform>
            <numerusform>%1 fichiers trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>« %1 », %2 : %3 % lus, %4.</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Choisir le dossier de destination</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Les responsables de Vantor Recovery

Logiciel libre sous la licence publique générale GNU, version 3 ou ultérieure : vous pouvez l&apos;utiliser, l&apos;étudier, le partager et le modifier. Il est fourni sans aucune garantie.

Réalisé avec %1.

Fonctionne avec %2.</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>Disque	:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>Nom du volume	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>Système de fichiers	:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>Capacité (taille)	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>Secteur de début	:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>Secteur de fin	:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Aucun&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>plus de %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>secteur %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>secteurs %1 à %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>à partir du secteur %1, en morceaux</translation>
    </message>
    <message>
        <source>some</source>
        <translation>certains</translation>
    </message>
    <message>
        <source>none</source>
        <translation>aucun</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>pas encore examiné</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nom sur la carte</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Morceaux</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>Secteurs illisibles</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>pas encore</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>Type de recherche : récupérer des vidéos</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>Type de recherche : récupérer des fichiers bruts</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Type de recherche : récupérer des photos</translation>
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
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>Pas d&apos;images : ce système ne peut pas enfermer les décodeurs (il n&apos;a pas de filtres seccomp), et rien d&apos;un support n&apos;est décodé au-dehors.</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>Pas d&apos;images : le programme qui les décode ne démarre pas. Réinstallez le programme.</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>Pas d&apos;image : les documents ne sont dessinés que dans bubblewrap, qui n&apos;est pas installé ou ne peut pas fonctionner sur ce système.</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 trouvés</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>%1 trouvés : %2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>Veuillez d&apos;abord l&apos;exporter en image brute (dd) ou E01 et ouvrir celle-ci.</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>Elle contient des fichiers isolés plutôt qu&apos;un support de stockage. Veuillez ouvrir une image du support.</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>Complet, assemblé à partir de %1 morceau</numerusform>
            <numerusform>Complet, assemblé à partir de %1 morceaux</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>Assemblé à partir de %1 morceau : à regarder</numerusform>
            <numerusform>Assemblé à partir de %1 morceaux : à regarder</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>Réparé : %1 images, %2 s, et %3 s de son, comme dans %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 assemblé ou réparé (à regarder)</numerusform>
            <numerusform>%1 assemblés ou réparés (à regarder)</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>réparé</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 morceau</numerusform>
            <numerusform>%1 morceaux</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Réparés</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>Pixels inconnus</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>Moins de 1 mégapixel</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>1 à 4 mégapixels</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>4 à 12 mégapixels</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>12 à 30 mégapixels</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>Plus de 30 mégapixels</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>« Continuer » recherche dans le reste.</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>%1 documents et archives incomplets sur %2 complétés, %3 autres assemblés : à regarder</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>Assembler les films MP4, QuickTime et AVI, les images JPEG ou PNG, les archives ZIP et les documents bureautiques en morceaux, sous « ... complete.MP4 », ou « ... put together.MP4 » quand il n&apos;a pas pu être prouvé que tous les morceaux sont les bons.</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 laissé de côté : tout ce que seul le répertoire de la carte indique remplirait la carte plus de deux fois</numerusform>
            <numerusform>%1 laissés de côté : tout ce que seul le répertoire de la carte indique remplirait la carte plus de deux fois</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>Vérification du contenu des fichiers enregistrés : %1 sur %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>Durée inconnue</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>Moins de 10 secondes</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>De 10 secondes à 1 minute</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>De 1 à 5 minutes</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>De 5 à 30 minutes</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>Plus de 30 minutes</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>Le disque est plein</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>Votre part du disque est épuisée</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>Le disque ne peut être que lu</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>Le disque n’accepte aucun fichier de cette longueur</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>Le disque signale une erreur</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>Vous n’avez pas le droit de faire cela</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>Le nom est trop long</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Rien ne porte ce nom</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>L’appareil n’est pas là</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>Il n’y a pas de support dans l’appareil</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>Le dossier %1 mène ailleurs</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>Impossible de créer le dossier %1 : %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>Critères de recherche</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>Disque entier</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>Parcourir chaque secteur du support. Le mieux en cas de doute.</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>Disque entier</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>Plage de secteurs</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>Chercher seulement entre deux secteurs que vous indiquez.</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>Plage de secteurs</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>Support de stockage</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Aucun&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nom du volume</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacité</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>Premier secteur</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>Secteur de fin</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>Les secteurs sont comptés à partir de 0 ; chacun a 512 octets. Le secteur de fin lui-même n&apos;est pas parcouru.</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>Les curseurs n&apos;atteignent pas tous les secteurs de ce support : ils s&apos;arrêtent au secteur 2 147 483 647. Pour commencer ou finir plus loin, saisissez le secteur.</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>Secteur de début</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>Commencer au secteur</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>Curseur du secteur de début</translation>
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
        <translation>Plus petit secteur de début</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>Plus grand secteur de début</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>Secteur de fin</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>Finir au secteur</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>Curseur du secteur de fin</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>Plus petit secteur de fin</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>Plus grand secteur de fin</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>Où les fichiers trouvés sont enregistrés</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Dossier de destination</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>Aucun pour l&apos;instant ; vous pouvez le choisir ici ou à l&apos;enregistrement</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>Par&amp;courir…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>Choisir le dossier de destination</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>Par type</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>Éléments trouvés par type</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>Types trou&amp;vés seulement</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>Afficher seulement les types qui ont été trouvés</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>Tous les t&amp;ypes</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>Afficher à nouveau les éléments de tous les types</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>Éléments trouvés</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>Combien d&apos;éléments ont été trouvés</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>A&amp;fficher</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Quels éléments sont affichés</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>&amp;Trier</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Comment les éléments sont triés</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Aucun fichier sélectionné</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>Film de l&apos;aperçu</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>Informations sur l&apos;élément de l&apos;aperçu</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Où vont les fichiers enregistrés</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Ce qui est coché pour l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Coc&amp;her l&apos;affiché</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Cocher tout ce qui est affiché pour l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Cocher tout ce qui est affiché pour l&apos;enregistrement ; Inser et Suppr cochent et décochent les éléments sélectionnés</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>&amp;Inverser les coches</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Inverser les coches de ce qui est affiché</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Cocher ce qui n&apos;est pas coché parmi ce qui est affiché, et décocher le reste</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Ouvrir le &amp;dossier</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Ouvrir le dossier des fichiers enregistrés</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>&amp;Changer de dossier…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Changer le dossier où les fichiers sont enregistrés</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Enregistrer désormais dans un autre dossier</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Ce qui est enregistré</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;ptions…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Options d&apos;enregistrement</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Comment les éléments sont enregistrés : noms et dossiers, sans les petits, doublons, rapport</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Enregistrer la sé&amp;lection…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Enregistrer les éléments sélectionnés</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Enregistrer les éléments sélectionnés (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Enregistrer les c&amp;ochés…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Enregistrer les éléments cochés</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Enregistrer tous les éléments cochés, même ceux qui ne sont pas affichés</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Tout enre&amp;gistrer…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Enregistrer tous les éléments trouvés</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Enregistrer tous les éléments trouvés (Ctrl+Maj+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>Taille des images</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Détails en colonnes</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Détails en colonnes (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>Recherche terminée</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>La recherche de photos est terminée</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>Les photos trouvées sont affichées en vignettes. Sélectionnez celles que vous voulez et appuyez sur « Enregistrer la sélection », ou prenez tout avec « Tout enregistrer ». Elles ne sont pas sur votre disque tant que vous ne les enregistrez pas.</translation>
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
        <translation>Recherche terminée</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>La recherche de fichiers est terminée</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>Le tableau de gauche compte ce qui a été trouvé de chaque type. Sélectionnez un élément pour en voir l&apos;aperçu, puis appuyez sur « Enregistrer la sélection », ou prenez tout avec « Tout enregistrer ». Rien n&apos;est sur votre disque tant que vous ne l&apos;enregistrez pas.</translation>
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
        <translation>Options d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>Do&amp;ssiers</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>Dossiers des fichiers enregistrés</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>Ce que la carte n&apos;indique pas, ou dont aucune date n&apos;est connue, va dans le dossier de son type</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>Utiliser les &amp;noms que les fichiers avaient sur la carte</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>Utiliser les noms que les fichiers avaient sur la carte</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>Dans la mesure où la carte les indique encore</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>Laisser les petites &amp;images, de grand côté inférieur à</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>Laisser les petites images</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>Nombre minimal de pixels du grand côté</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>Laisser les petits &amp;fichiers, de moins de</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>Laisser les petits fichiers</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> ko</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>Taille minimale en kilooctets</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>Laisser ce qui n&apos;est &amp;certainement pas un fichier de son type</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>Laisser ce qui n&apos;est certainement pas un fichier de son type</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>Des octets qui commencent seulement comme un fichier de ce type</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>Enregistrer aussi des &amp;parties de fichiers</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>Enregistrer aussi des parties de fichiers</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>Ce qui se trouve entièrement dans un fichier prouvé complet, comme l&apos;aperçu d&apos;une photo</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>&amp;Garder les doublons</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>Garder les doublons</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>Enregistrer le même contenu chaque fois qu&apos;il a été trouvé</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>Écrire un &amp;rapport de récupération à côté des fichiers enregistrés</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>Écrire un rapport de récupération à côté des fichiers enregistrés</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>Une page à lire, et un tableau pour d&apos;autres programmes</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
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
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>Combien d&apos;éléments sont enregistrés</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>Le fichier en cours d&apos;enregistrement</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>Progression de l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>Vitesse et temps restant</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>Ce qui prend si longtemps</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>&amp;Sauter ce fichier</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>Sauter ce fichier et passer au suivant</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>Annuler l&apos;enregistrement</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>Le service de disques ne le connaît plus.</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>Le service de disques ne répond pas.</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>Le service de disques l&apos;a refusé.</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>Tous les éléments</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Complets</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>De longueur inconnue</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>Avec des secteurs illisibles</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Pas encore enregistrés</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>Sans les petits</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>Sans les fausses découvertes</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>Seulement ce qui est perdu</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Ordre de découverte</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>Par état</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Par taille</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>Par date de prise de vue</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>Par nom sur la carte</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Incomplets</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>Assemblés ou réparés</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Par nom</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Par type</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Par appareil</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Par pixels</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Par durée</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>Par emplacement sur la carte</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>Image de la carte</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1 (%2 utilisés)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>Aucun système de fichiers connu</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>rien n&apos;en serait parcouru</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>tout en est parcouru</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>%1 en sont parcourus</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>%1 selon le calcul des fabricants</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>Ce qui a été lu de la plage</translation>
    </message>
    <message>
        <source>read</source>
        <translation>lu</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>quelque chose de trouvé</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>défectueux</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>à venir</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nom sur la carte</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Date</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>Pixels ou durée</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>Emplacement sur la carte</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, enregistré</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>Colonnes des détails</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>Rechercher par nom</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>Rechercher les éléments par nom, y compris celui sur la carte</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>Ce qui a été trouvé, par type, jour, appareil et taille</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>Cliquez pour n&apos;afficher que ceux-ci ; maintenez Ctrl pour plusieurs</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Tous les éléments</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Par jour</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Par appareil</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Par taille</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Sans type</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>Appareil inconnu</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>Nommés sur la carte seule</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>1 autre fichier que seul le répertoire de la carte indique</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 autre fichier que seul le répertoire de la carte indique</numerusform>
            <numerusform>%1 autres fichiers que seul le répertoire de la carte indique</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>« Tout enregistrer » les enregistre aussi.</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>et %1 autre</numerusform>
            <numerusform>et %1 autres</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Par pixels</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Par durée</translation>
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
        <translation>Le document d&apos;aide n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>Ce bureau n&apos;a pas de programme pour afficher les documents PDF. Il se trouve ici :</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>Le fichier d&apos;aide n&apos;existe pas !</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>enregistré</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>coché</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>Visionneuse</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ Résultats</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>Retour aux résultats (Échap)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>Image entière (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>Taille réelle (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>Réduire (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>Agrandir (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Plein écran (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Infos</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>Afficher les informations à côté (I)</translation>
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
        <translation>Élément précédent (Gauche)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>Élément suivant (Droite)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Image de %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Cocher</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>Cocher pour l&apos;enregistrement (Inser, Suppr)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Coché</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>&amp;Mémoriser cette recherche</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>Pour continuer plus tard, même après une coupure de courant. Elle remplace la recherche mémorisée actuellement.</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>&amp;Garder une copie de la carte pendant la recherche</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>C&amp;hoisir…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>Choisir où la copie est gardée</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>Le mieux pour une carte défaillante ou lente : elle est lue une seule fois, tout le reste lit la copie.</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>Pour continuer plus tard, même après une coupure de courant.</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>La recherche mémorisée</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Co&amp;ntinuer</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Parcourir le reste du support ; ce qui a été lu n&apos;est pas parcouru de nouveau</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>&amp;Voir ce qui a été trouvé</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>Lister ce que la recherche avait trouvé, sans la poursuivre</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>O&amp;ublier</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>Supprimer ce qui est mémorisé de cette recherche ; les fichiers enregistrés restent</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>Continuer la recherche mémorisée</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>Voir ce que la recherche mémorisée a trouvé</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>Oublier la recherche mémorisée</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>Recherche mémorisée : %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>Afficher le fichier tel qu&apos;il a été trouvé (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>Tel quel</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>Afficher le fichier tel qu&apos;il a été assemblé (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Réparé</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>Assemblé</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>Où en est la complétion des fichiers incomplets, et ce qu&apos;elle a donné</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>Progression de la complétion des fichiers incomplets</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Arrêt&amp;er</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>Arrêter de compléter les fichiers incomplets ; ce qui a été assemblé reste</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>Les e&amp;xaminer</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>Afficher les fichiers assemblés ou réparés</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Fermer ce message</translation>
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
        <translation>Temps écoulé et durée</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Lire (Espace)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Couper le son</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pause (Espace)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Rétablir le son</translation>
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
        <translation>Lire ou mettre en pause (Espace)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>Pas de film</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Sélectionnez un élément pour en voir l&apos;aperçu.</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 sur %2 sélectionnés</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1, sans vignettes</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Tout enre&amp;gistrer…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>Tout enre&amp;gistrer l&apos;affiché (%1)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Enregistrer tous les éléments trouvés</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>Enregistrer tous les éléments affichés</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 sur %2 enregistrés</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;ptions…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>O&amp;ptions (%1)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>Choisir où la copie de la carte est gardée</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>Images de supports (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>La copie ne peut pas être gardée là.</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>Le dossier se trouve sur le support à parcourir ; y écrire écraserait ce qui reste à trouver. Choisissez un endroit sur un autre disque.</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>Il n&apos;y a pas assez de place pour une copie.</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>Il lui faut jusqu&apos;à %1, et %2 sont libres dans %3. Choisissez un endroit sur un autre disque, ou cherchez sans copie.</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1 : jusqu&apos;à %2 nécessaires, %3 libres</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1 : jusqu&apos;à %2 nécessaires</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>Comment va la carte</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>Garder &amp;une copie…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>La recherche s&apos;arrête un instant puis continue, en lisant la carte une seule fois dans le fichier que vous choisissez</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>Cette carte est défaillante : 1 secteur défectueux.</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>Cette carte est défaillante : %1 secteur défectueux.</numerusform>
            <numerusform>Cette carte est défaillante : %1 secteurs défectueux.</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>Cette carte est très lente.</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>Gardez une copie, pour que chaque secteur ne soit lu qu&apos;une fois.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Copie : %1</translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation>Copie : %1. %2</translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation>Quand le programme se termine, la liste des éléments trouvés disparaît.</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>Quitter sans enregistrer</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
Voulez-vous vraiment quitter « %1 » ?</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>%1 des %2 éléments trouvés n&apos;ont pas été enregistrés.</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>L&apos;élément trouvé n&apos;a pas été enregistré.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>Aucun élément (%1) n&apos;a été enregistré.</numerusform>
            <numerusform>Aucun des %1 éléments trouvés n&apos;a été enregistré.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Rester</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>Tous les types du groupe %1</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Tout sélectio&amp;nner</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>Sélectio&amp;nner tout l&apos;affiché</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>Aucun type ne correspond</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>Aucun type de fichier</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>Videz le champ de recherche pour voir tous les types.</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>Le catalogue des types de fichiers n&apos;a pas pu être lu. Réinstallez le programme.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>Que faire de l&apos;élément</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>Afficher en &amp;grand</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>Afficher les &amp;informations</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>&amp;Enregistrer la sélection…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>Sélectionner tout le &amp;jour %1</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>Sélectionner tout le &amp;jour</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>Sélectionner tout le t&amp;ype %1</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Co&amp;ntinuer</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>Continuer la recherche</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Parcourir le reste du support ; ce qui a été lu n&apos;est pas parcouru de nouveau</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>La recherche recommence depuis le début.</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>Elle avait été commencée avec d&apos;autres listes de signatures que celles de cette version du programme.</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>Cette recherche n&apos;est pas mémorisée.</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>Votre dossier personnel se trouve sur le support à parcourir ; y écrire écraserait ce qui reste à trouver.</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>La recherche ne peut pas continuer.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>Ce n&apos;est pas le support qui a été parcouru. Insérez le bon et réessayez.</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>Le support ne peut pas être ouvert. Remettez-le en place et réessayez.</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>Le support de cette recherche n&apos;est pas là.</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>C&apos;était %1. Insérez-le, ou ouvrez son image, et réessayez.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>Ce n&apos;est pas le support qui a été parcouru.</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>Il contient autre chose que %1. Insérez le bon et réessayez.</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>Le support de cette recherche ne peut pas être ouvert.</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>1 élément a été trouvé avant que le support ne puisse plus être ouvert.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>%1 élément a été trouvé avant que le support ne puisse plus être ouvert.</numerusform>
            <numerusform>%1 éléments ont été trouvés avant que le support ne puisse plus être ouvert.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>La liste est gardée jusqu&apos;à une nouvelle recherche ou un retour en arrière.</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>Le support de stockage ne répond pas.</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>La recherche précédente n&apos;est pas encore terminée. Retirez le support, remettez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>Une nouvelle recherche vide la liste des éléments trouvés.</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>Chercher sans enregistrer</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>L&apos;image n&apos;a pas pu être ouverte.</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>%1 image n&apos;a pas pu être ouverte.</numerusform>
            <numerusform>%1 images n&apos;ont pas pu être ouvertes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>Choisir un film</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>Ce dossier ne peut pas être la destination.</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>Il se trouve sur le support de stockage que vous récupérez. Y écrire écraserait les fichiers que vous voulez retrouver. Choisissez un dossier sur un autre disque.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Choisissez un autre dossier.</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>Le disque qui contenait %1 a été retiré. Remettez-le, ou changez de dossier.</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 a été supprimé ou renommé, ou son disque a été retiré. Rétablissez-le, ou changez de dossier.</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>La destination n&apos;est plus là.</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>Aucun dossier choisi pour les fichiers enregistrés</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>Les fichiers enregistrés vont dans %1, qui n&apos;existe pas</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>Les fichiers enregistrés vont dans %1 (%2 libres)</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>Les fichiers enregistrés vont dans %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>Ce bureau n&apos;a pas de programme pour afficher les dossiers.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Il n&apos;est plus là.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Le dossier n&apos;a pas pu être ouvert.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Le support de stockage ne peut pas être lu.</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>Ceci est encore l&apos;aperçu de %1.</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Sélectionnez un élément pour en voir l&apos;aperçu.</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>plus de %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Aperçu de %1</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>Avec ‘Disque entier’, Vantor Recovery cherche les données perdues dans tout l&apos;espace du disque choisi. Pour chercher dans une plage de secteurs ou une partition précise, choisissez l&apos;autre critère de recherche. Sinon, appuyez sur ‘Suivant’ pour lancer la recherche sur le disque entier.</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>‘Plage de secteurs’ permet d&apos;indiquer les secteurs de début et de fin du support de stockage entre lesquels chercher les données perdues. Faites glisser les curseurs, ou saisissez les valeurs dans les champs Secteur de début et Secteur de fin.</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>Les réglages sont oubliés.</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>Fenêtre, options d&apos;enregistrement et dossiers seront ceux d&apos;un premier démarrage au prochain lancement du programme.</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>Il retient encore l&apos;enregistrement que vous avez annulé. Retirez le support, remettez-le, puis réessayez.</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>Ça continue.</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Aucun fichier sélectionné</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
Veuillez sélectionner un support de stockage dans la liste.</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>Si vous revenez en arrière, la liste des éléments trouvés est vidée.</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>Revenir sans enregistrer</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
Sélectionnez dans la liste le support de stockage dont vous voulez récupérer les données. Appuyez sur ‘Suivant’ pour continuer... </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
Veuillez sélectionner les types de fichiers à récupérer. Appuyez sur ‘Suivant’ pour continuer... </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Support</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Plage</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Types de fichiers</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Récupérer</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>La recherche n&apos;a pas pu être mémorisée : %1.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 photo</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 photo</numerusform>
            <numerusform>%1 photos</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>tout est complet</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>Appuyez sur Arrêter, ou laissez la recherche continuer.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Rien de trouvé</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>Aucun type</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>Rien des types cochés n&apos;a été trouvé.</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>Revenez en arrière et cochez les types à rechercher.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Secteurs</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Système de fichiers</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>Disque entier</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Recherche</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>Approfondie</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Trouvés</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>Aucun support de stockage trouvé</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>Insérez la carte mémoire ou branchez son lecteur et appuyez sur Actualiser, ou ouvrez le fichier image d&apos;un support. Vous pouvez aussi déposer un fichier image ici.</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>Secteurs 0 sur 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>%1 sur %2 cochés, %3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>Décoc&amp;her l&apos;affiché</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>Coc&amp;her l&apos;affiché</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>Décocher tout ce qui est affiché</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Cocher tout ce qui est affiché pour l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>Enregistrer les c&amp;ochés (%1)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Ouvrir le fichier image d&apos;un support</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>Images de supports (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>Co&amp;mpléter les fichiers incomplets</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>Compléter les fichiers incomplets</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>Chercher sur le support les morceaux manquants de photos et de films, et réparer les films sans index ; ce qui a été trouvé reste à côté tel quel</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>Recherche de fichiers incomplets : %1 sur %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>Complétion des films incomplets…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>Complétion des films incomplets : %1 sur %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>Complétion des photos incomplètes…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>Complétion des photos incomplètes : %1 sur %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>Réparation des films sans index…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>Réparation des films sans index : %1 sur %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>Les fichiers incomplets ont été laissés tels quels : le support de stockage ne peut pas être ouvert. Remettez-le en place et réessayez.</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>Le support de stockage a disparu. Remettez-le en place et réessayez.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Arrêté.</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 fichier complété</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 fichier complété</numerusform>
            <numerusform>%1 fichiers complétés</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 fichier assemblé (à regarder)</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 fichier assemblé (à regarder)</numerusform>
            <numerusform>%1 fichiers assemblés (à regarder)</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>1 film réparé</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>%1 film réparé</numerusform>
            <numerusform>%1 films réparés</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>Aucun fichier incomplet d&apos;un genre qui peut être complété n&apos;a été trouvé.</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>Aucun fichier incomplet n&apos;a pu être complété.</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>D&apos;autres fichiers sont en cours d&apos;écriture. Faites glisser à nouveau dans un instant.</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>Il n&apos;y a pas assez de place pour préparer %1 à glisser. Enregistrez plutôt les fichiers.</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>Ces fichiers ne peuvent pas être lus sur le support de stockage.</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>Préparation des fichiers…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>Les fichiers sont encore en cours d&apos;écriture. Faites-les glisser à nouveau dans un instant.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>La carte peut être retirée.</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>La carte n&apos;a pas pu être éjectée.</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>&amp;Décocher pour l&apos;enregistrement</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>Coc&amp;her pour l&apos;enregistrement</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Enregistrer &amp;sous…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Options de recherche</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>Complétion des documents incomplets…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>Complétion des documents incomplets : %1 sur %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>%1 des %2 fichiers n’a pas pu être glissé.</numerusform>
            <numerusform>%1 des %2 fichiers n’ont pas pu être glissés.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>morceau %1 : secteurs %2 à %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>Morceaux sur la carte</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Carte</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>Il faut environ %1, et %2 sont libres dans %3.</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>Tels qu&apos;ils ont été trouvés, les fichiers demandent environ %1 ; une fois examinés, ils se révèlent souvent plus courts. %2 sont libres dans %3.</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>Il n&apos;y a peut-être pas assez de place dans la destination.</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>Ce qui tient est enregistré en entier ; le reste est laissé de côté et demeure dans la liste.</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>Enregistrer ce qui tient</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>Changer de dossier…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Rien n&apos;a été enregistré.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>Le support de stockage ne peut plus être lu. Remettez-le en place et réessayez.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Ouvrir le dossier</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>Éjecter la carte</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>Comme sur la carte</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Par type</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>Par type et date</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>Le support refuse des secteurs de ce fichier : %1 jusqu&apos;ici. Chacun peut prendre des secondes. Ce qui se trouve derrière est lu malgré tout.</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>Enregistrement de %1 sur %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>Vérification du contenu : %1 sur %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>Plus rien n’est lu sur le support. « Annuler » n’arrête que cette vérification.</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Étape %1 sur %2 : %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>sélectionné</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>non sélectionné</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Le support de stockage ne peut pas être lu.</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>Aucune image de ce fichier ne peut être affichée.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
</TS>
