<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>Elegir dónde guardar los archivos encontrados</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>En la ventana siguiente, elija una carpeta de otro disco, nunca del medio que se quiere recuperar: lo que se escribe allí puede sobrescribir precisamente los archivos que se buscan.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>ClearPreview</name>
    <message>
        <source>Preview</source>
        <translation>Vista previa</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>Preparando la vista previa</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>El elemento se está leyendo del medio. Con elementos grandes tarda un momento.</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>Aquí no se pueden leer imágenes forenses</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>Las imágenes forenses solo se leen en aislamiento, lo que este sistema no permite</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>La parte del programa que lee imágenes forenses no se inicia</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>La imagen forense está dañada o es de una clase que no se puede leer</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>Tipos de archivo que buscar</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>Cuántos tipos están seleccionados</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>&amp;Modelos</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>Seleccionar los tipos que van juntos</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>Modelos de tipos de archivo</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>Buscar tipos…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>Buscar entre los tipos de archivo</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>Seleccionar todos los tipos de archivo</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipos de archivo</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Búsqueda exhaustiva</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>Los tipos marcados como «Exhaustiva» se buscan en una segunda pasada por el medio.</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
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
        <translation>1.  Elija la tarjeta de memoria y lo que se perdió: fotos, vídeos u otros archivos.
2.  Elija dónde buscar: en todo el disco o en un rango de sectores.
3.  Para vídeos y archivos, marque los tipos deseados.
4.  Siga la búsqueda. Seleccione lo que quiera recuperar y guárdelo en otro disco.

La tarjeta solo se lee, nunca se escribe en ella. No la use hasta haber recuperado los archivos.</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>La guía completa, con imágenes:</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>Abrir el documento de ayuda</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Acerca de…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>Acerca de este programa: versión, licencia, bibliotecas</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>&amp;Olvidar ajustes</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>Tamaño de la ventana, opciones de guardado y carpetas de usos anteriores</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>Olvidar los ajustes de usos anteriores</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
</context>
<context>
    <name>LoadDrive</name>
    <message>
        <source>Storage media</source>
        <translation>Medios de almacenamiento</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>Buscando medios de almacenamiento</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>Se está leyendo la lista de tarjetas de memoria y discos extraíbles.</translation>
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
        <translation>Pasos de la recuperación</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>Abrir la ventana de ayuda (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Tipo de búsqueda: recuperar fotos</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Tipo de búsqueda</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Ninguno&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>Identificador del medio elegido</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectores</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>Número de sectores del medio elegido</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>Ver elementos en&amp;contrados</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>Mostrar los elementos encontrados hasta ahora</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>Examinar lo encontrado y guardarlo</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>Cómo terminó la búsqueda</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>Cómo terminó la búsqueda y cómo continuar</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>Qué encontró la búsqueda y cuánto tardó</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>R&amp;eleer sectores dañados</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>Releer los sectores dañados</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>La vista previa y el guardado piden otra vez al medio lo que no pudo leer</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Búsqueda exhaustiva</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>Tras la búsqueda general, buscar de nuevo con una lista más larga de tipos de imagen.</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>Procedimiento de búsqueda actual</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>Descartando las miniaturas que no están listas…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>Se está deteniendo la búsqueda</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>Velocidad, tiempo restante y elementos encontrados</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>Progreso de la búsqueda</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>D&amp;etener</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Detener la búsqueda</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>Terminar la búsqueda ahora y conservar lo encontrado</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>Sectores examinados</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>Qué hacer en esta pantalla</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>Salir del programa (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Atrás</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>A la pantalla anterior (Alt+Izquierda)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>Sigu&amp;iente ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Siguiente</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>A la pantalla siguiente (Intro)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>Medios de almacenamiento</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>¿No está en la lista?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>Actuali&amp;zar</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>Actualizar la lista de medios</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>Buscar de nuevo medios de almacenamiento (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>Abrir i&amp;magen…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Abrir un archivo de imagen de un medio</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>Examinar una copia de un medio guardada como archivo (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>¿Qué se perdió?</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>Modo de recuperación</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>Imágenes de cámaras y teléfonos; sus miniaturas se muestran a medida que se encuentran.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>Películas y clips de los tipos que elija, con vista previa de cada uno.</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>Archivo en bruto</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>Documentos, archivos comprimidos, sonido y los demás tipos que elija.</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>Archivo en bruto</translation>
    </message>
</context>
<context>
    <name>PhotoScreen</name>
    <message>
        <source>Found photos</source>
        <translation>Fotos encontradas</translation>
    </message>
    <message>
        <source>How many photos were found</source>
        <translation>Cuántas fotos se encontraron</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Qué elementos se muestran</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>Or&amp;denar</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Cómo se ordenan los elementos</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>Zoom de las miniaturas</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Adónde van los archivos guardados</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Qué está marcado para guardar</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>&amp;Marcar lo visible</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Marcar para guardar todo lo que se muestra</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Marcar para guardar todo lo que se muestra; Insertar y Suprimir marcan y desmarcan los elementos seleccionados</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Inve&amp;rtir marcas</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Invertir las marcas de lo que se muestra</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>De lo que se muestra, marcar lo que no está marcado y desmarcar el resto</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Abrir &amp;carpeta</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Abrir la carpeta de archivos guardados</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Cam&amp;biar carpeta…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Cambiar la carpeta donde se guardan los archivos</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Guardar en otra carpeta a partir de ahora</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Qué se ha guardado</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;pciones…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opciones de guardado</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Cómo se guardan los elementos: nombres y carpetas, sin los pequeños, duplicados, informe</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Guardar se&amp;leccionados…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Guardar los elementos seleccionados</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Guardar los elementos seleccionados (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>&amp;Guardar marcados…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Guardar los elementos marcados</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Guardar todos los elementos marcados, también los que no se muestran</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Guardar &amp;todo…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Guardar todos los elementos encontrados</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Guardar todos los elementos encontrados (Ctrl+Mayús+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Detalles en columnas</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Detalles en columnas (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
Seleccione al menos un tipo de archivo.</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>El programa no habla «%1». Habla %2.</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>Fotos de todas las cámaras</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Documentos de oficina</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>Grabadora de sonido</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Todo</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>«%1» no es un archivo.</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>El archivo map «%1» pertenece a otra copia. Elija otro nombre.</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>«%1» es una copia de un medio de otro tamaño. Elija otro nombre.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>No se puede escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>Otra búsqueda está escribiendo «%1».</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>«%1» ya existe, y ningún archivo map junto a él indica que sea una copia que se pueda continuar. Elija otro nombre.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>No se puede escribir «%1»: %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>No se puede usar el archivo map «%1»: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>no es un archivo</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>no existe</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>es demasiado grande para un archivo map</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>No se puede escribir el archivo map «%1»: %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>la línea es demasiado larga</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>ninguna línea indica la posición</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>se espera una posición, uno de ?*/-FG+ y una pasada</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>se espera una posición, un tamaño y uno de ?*/-+</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>el tamaño no es posible</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>se solapa con la línea anterior</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>hay un hueco antes de ella</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>hay demasiadas líneas</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>línea %1: %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>«%1» no es un archivo de imagen.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>No se puede abrir «%1»: %2.</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>«%1» está vacío. Elija un archivo de imagen de un medio de almacenamiento.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>No se puede abrir «%1».</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>«%1» es una copia de otro medio.</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>La copia «%1» termina aquí: %2. Lo que no contiene se lee del medio.</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>No tiene permiso para leer esta tarjeta. Busque de nuevo y autorícelo cuando se le pida la contraseña, o pida al administrador de este equipo el derecho a leer medios de almacenamiento.</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>No tiene permiso para leer este archivo de imagen. Pida a su propietario el derecho a leerlo, o una copia.</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>El medio ya no está. Vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>Ahora hay otro medio en su lugar. Vuelva a la lista de medios y elija de nuevo.</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>El archivo de imagen cambió durante la búsqueda, así que lo encontrado puede estar dañado. Busque de nuevo cuando ya nada escriba en él.</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>Descomprímalo primero y abra el archivo de imagen que contiene.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>Conviértalo primero en una imagen en bruto (por ejemplo, con «qemu-img convert -O raw») y abra esta.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>Conviértalo primero en una imagen en bruto y abra esta.</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>«%1» está comprimido (%2) y no se puede examinar tal como está. %3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>Ni un medio de almacenamiento ni un archivo de imagen</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>La imagen consta de más de %1 partes; únalas primero en un solo archivo</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>Falta una parte de la imagen: %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>Introduzca un valor válido para el sector inicial.</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>Introduzca un valor válido para el sector final.</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
Se ha superado el rango máximo de sectores</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
El sector final debe ser mayor que el sector inicial.</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>Esta tarjeta parece borrada: salvo los sectores propios de su sistema de archivos, todos los lugares examinados están vacíos. Algunas cámaras y programas borran toda la tarjeta al formatearla, y entonces no se puede encontrar nada.</translation>
    </message>
    <message>
        <source>Under 100 kB</source>
        <translation>Menos de 100 kB</translation>
    </message>
    <message>
        <source>100 kB to 1 MB</source>
        <translation>100 kB a 1 MB</translation>
    </message>
    <message>
        <source>1 MB to 10 MB</source>
        <translation>1 MB a 10 MB</translation>
    </message>
    <message>
        <source>10 MB to 100 MB</source>
        <translation>10 MB a 100 MB</translation>
    </message>
    <message>
        <source>100 MB to 1 GB</source>
        <translation>100 MB a 1 GB</translation>
    </message>
    <message>
        <source>Over 1 GB</source>
        <translation>Más de 1 GB</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>RAW de cámara</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Sonido</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Comprimidos</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Otros</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>no es un archivo de su tipo</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completo</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>termina donde indica, contenido no comprobado</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>cortado</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>dañado</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>de longitud desconocida</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>unido a partir de %1 fragmento</numerusform>
            <numerusform>unido a partir de %1 fragmentos</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>no se pudieron leer todos sus sectores</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 píxeles</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>tomado %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>«%1» está en el medio que se va a copiar; escribir allí sobrescribiría lo que aún queda por encontrar. Elija un lugar en otro disco.</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1. La copia terminará ahí; la búsqueda continúa desde el medio.</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>Los archivos de este disco no pueden superar los 4 GB. La copia terminará ahí; la búsqueda continúa desde el medio.</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>El disco de la copia solo admite %1 por segundo: una copia completa tarda unos %2 minutos.</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 sector dañado</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 sector dañado</numerusform>
            <numerusform>%1 sectores dañados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>%1% copiado</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>leyendo a su alrededor</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>el medio ya no está</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>la copia ha terminado</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>otro medio</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>%1 de %2 copiados</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>%1 sector entre dañados omitido</numerusform>
            <numerusform>%1 sectores entre dañados omitidos</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>La carpeta %1 no existe.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 no es una carpeta.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>No se puede escribir nada en la carpeta %1: %2.</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 está en un sistema de archivos FAT, que no admite archivos de 4 GiB o más, y se necesitan %2</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>No hay espacio suficiente en %1: se necesitan %2 y hay %3 libres</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>La carpeta %1 ya no existe</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>La carpeta %1 está en el medio que se examina</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>El medio ya no se puede leer</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>No se pudo leer ninguno de sus sectores</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>aún presente</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>eliminado</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>su carpeta perdida</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>modificado %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>menor de lo pedido</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>parte de %1</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>aún presente como archivo</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>longitud estimada</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 sector ilegible</numerusform>
            <numerusform>%1 sectores ilegibles</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totales</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Guardado</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completos</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>Terminan donde indican</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Cortados</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>Dañados</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>Longitud desconocida</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicados</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fallidos</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>omitido: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>fallido: %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>mismos bytes que un archivo anterior; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>Sectores de 512 bytes</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>Se buscó</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Comienzo</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>Informe de recuperación</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Archivos</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>En la tarjeta</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Tomado</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Píxeles</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>Encontrado en los sectores</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>vídeos</translation>
    </message>
    <message>
        <source>files</source>
        <translation>archivos</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>No se puede escribir el informe en %1: %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Saltado</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>De ellos: %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>No se pudieron guardar %1:</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   y %1 más</numerusform>
            <numerusform>   y %1 más</numerusform>
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
            <numerusform>%1 elementos</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>No se guardó nada nuevo.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>No se guardó nada.</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>Se guardó 1 archivo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>Se guardó %1 archivo.</numerusform>
            <numerusform>Se guardaron %1 archivos.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>Están en %1.</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>Solo se pudieron leer en parte: %1; lo que no se pudo leer se rellena con ceros.</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>Omitidos: %1, %2.</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>No escritos de nuevo: %1, el mismo contenido ya está guardado.</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>menores de lo pedido</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>con certeza no son archivos de su tipo</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>aún presentes como archivos en la tarjeta</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>partes de archivos que se guardan enteros</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>El medio de almacenamiento desapareció entretanto. Vuelva a conectarlo y guarde de nuevo.</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>El resto no se guardó porque se canceló.</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>«%1», en la carpeta de destino, dice más de cada archivo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 complete</source>
        <translation>
            <numerusform>%1 completo</numerusform>
            <numerusform>%1 completos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 ending where they say (content not checked)</source>
        <translation>
            <numerusform>%1 termina donde indica (contenido no comprobado)</numerusform>
            <numerusform>%1 terminan donde indican (contenido no comprobado)</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 cut off</source>
        <translation>
            <numerusform>%1 cortado</numerusform>
            <numerusform>%1 cortados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 damaged</source>
        <translation>
            <numerusform>%1 dañado</numerusform>
            <numerusform>%1 dañados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 de longitud desconocida</numerusform>
            <numerusform>%1 de longitud desconocida</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%1 guardados en %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%1 guardado en %2 (%3): %4</numerusform>
            <numerusform>%1 guardados en %2 (%3): %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 con el nombre que la tarjeta aún indica</numerusform>
            <numerusform>%1 con los nombres que la tarjeta aún indica</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>%1 de ellos tiene sectores que no se pudieron leer</numerusform>
            <numerusform>%1 de ellos tienen sectores que no se pudieron leer</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 no escrito de nuevo: los mismos bytes ya están guardados</numerusform>
            <numerusform>%1 no escritos de nuevo: los mismos bytes ya están guardados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 omitido: menor de lo pedido</numerusform>
            <numerusform>%1 omitidos: menores de lo pedido</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 omitido: no es un archivo de su tipo</numerusform>
            <numerusform>%1 omitidos: no son archivos de su tipo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 omitido: aún presente como archivo en la tarjeta</numerusform>
            <numerusform>%1 omitidos: aún presentes como archivos en la tarjeta</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 omitido: parte de un archivo que se guarda entero</numerusform>
            <numerusform>%1 omitidos: partes de archivos que se guardan enteros</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>Sectores %1 de %2   ( %3% completado )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
Para seleccionar otro disco que recuperar, pulse el botón «Atrás».</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>quedan unos segundos</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>quedan unos %1 s</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>quedan unos %1 min</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>quedan unas %1 h</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 elemento encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 elemento encontrado</numerusform>
            <numerusform>%1 elementos encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( Búsqueda en curso según: procedimiento general de recuperación de Vantor )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( Búsqueda en curso según: algoritmo de búsqueda exhaustiva de Vantor )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
Para detener la recuperación, pulse el botón «Detener», o espere a que termine el proceso.</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
Error al leer el medio de almacenamiento.</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>sector %1 de %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>La búsqueda exhaustiva</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>La búsqueda</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1 se interrumpió (%2).</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>La búsqueda ha terminado.</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>La búsqueda ha terminado, pero no se pudo leer 1 sector.</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>La búsqueda ha terminado, pero no se pudo leer %1 sector.</numerusform>
            <numerusform>La búsqueda ha terminado, pero no se pudieron leer %1 sectores.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1 se detuvo al %2 % (%3).</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>No se pudo volver a abrir el medio para la búsqueda exhaustiva.</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>No se pudo abrir el medio.</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1 no tenía nada que buscar.</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>El medio se retiró o dejó de responder (%1).</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1 terminó con un error de lectura (%2).</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>La búsqueda general anterior fue completa.</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>Vuelva a conectar el medio.</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>No es una búsqueda que este programa haya conservado.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>El archivo está dañado.</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>«%1» está vacío: no contiene ningún sector entero.</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>Examinado de todos modos; solo se puede encontrar lo que está almacenado sin comprimir.</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>De %1 sectores de «%2» no se leyeron %3, según su archivo map.</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>«%1» no es ni un archivo ni un medio de almacenamiento de este equipo.</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>Los archivos rotos se dejaron como están: no se puede abrir el medio.</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>%1 de %2 vídeos rotos completados, %3 más unidos: conviene revisarlos</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>%1 de %2 fotos rotas completadas, %3 más unidas: conviene revisarlas</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>En el modo de fotos no se buscan vídeos, así que no se completa ninguno</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>En el modo de fotos no se buscan vídeos, así que no se repara ninguno</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1: completo, a partir de %2 fragmento</numerusform>
            <numerusform>%1: completo, a partir de %2 fragmentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1: unido a partir de %2 fragmento, conviene revisarlo</numerusform>
            <numerusform>%1: unido a partir de %2 fragmentos, conviene revisarlo</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>Copiar el medio en este archivo de imagen mientras se busca, leyendo cada sector una sola vez; la búsqueda y el guardado leen después la copia. FILE.map indica qué se leyó. Una copia que ya exista se continúa, también una de GNU ddrescue.</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>Con --image: leer también, uno por uno, los sectores que hay entre sectores dañados muy separados; puede tardar mucho.</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>El archivo map de la imagen MEDIUM, tal como lo escribe GNU ddrescue: lo que no indica como rescatado cuenta como ilegible. Sin esto se usa el archivo map que haya junto a la imagen (card.img.map, card.map, también .mapfile y .log).</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map requiere un archivo.</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image requiere un archivo.</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape va con --image.</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>Los catálogos de firmas no son aquellos con los que se empezó.</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>No se puede abrir el medio %1.</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 no es el medio que se examinó.</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>No se puede abrir el medio.</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>No se pudieron leer los directorios del medio.</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>Pueden faltar nombres de archivos y archivos de los que solo informan los directorios.</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>No hay memoria suficiente para continuar. Lo guardado hasta ahora está completo.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectores</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>No se encontró ningún medio de almacenamiento. Inserte una tarjeta o memoria USB, o indique en su lugar un archivo de imagen.</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>No se puede leer el vídeo %1.</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 no es un vídeo MP4 o QuickTime entero de una clase que se pueda reparar.</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>%1 de %2 vídeos sin índice reparados</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1: no se encontró ningún vídeo entero de su cámara</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1: no se encontró ninguna imagen</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1: %2 imágenes, %3 s, y %4 s de sonido, como en %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
Códigos de salida: 0 terminado, 2 uso incorrecto, 3 detenido, 4 no se pudo leer el medio hasta el final, 5 no se puede
abrir el medio, 6 no se pudo guardar algo encontrado.
Ctrl-C termina la búsqueda como el botón Detener: todo lo encontrado hasta entonces se conserva y se guarda.
El medio solo se lee.
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
Pruebe --help.</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>Encuentra fotos, vídeos y otros archivos en un medio de almacenamiento por los bytes con que empiezan.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ayuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar la versión.</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>Qué buscar: photo (predeterminado), video o rawfile.</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>Solo estos tipos de archivo, separados por comas (modos video y rawfile): extensiones, o @photos, @office, @phone, @recorder, @everything.</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>Solo los sectores desde START hasta END, sin incluir este.</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>Omitir la pasada exhaustiva del modo de fotos.</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>Pedir de nuevo al medio los sectores dañados en la pasada exhaustiva y al guardar.</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>Conservar la búsqueda en FILE, para que --resume pueda continuarla.</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>Continuar la búsqueda conservada en FILE; MEDIUM se puede omitir.</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>Carpeta de los seis catálogos de firmas.</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>Escribir un objeto JSON por cada elemento encontrado y otro para el final.</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>Listar los medios de almacenamiento de este equipo (con --list-json, en JSON) y no buscar nada.</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>Escribir lo que los directorios del medio indican de sus archivos, los que están y los que estuvieron, como un objeto JSON cada uno, y no buscar nada.</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>Listar lo que --types puede elegir en este modo y no buscar nada.</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>No decir nada salvo lo que falló, y sin progreso.</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>Hablar este idioma (en, de, fr, es, it, pt_BR, nl, pl, ja o zh_CN) en lugar del idioma del escritorio; con --list-json es siempre inglés.</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>Un archivo de imagen, el identificador de un dispositivo (sdb1) o su ruta (/dev/sdb1).</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>Modo desconocido «%1».</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>Lo que hay que buscar está en el archivo de --resume.</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>No se indicó ningún archivo donde conservar la búsqueda.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>El modo de fotos busca todos sus tipos; --types va con video o rawfile.</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range requiere START:END.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>El modo de fotos busca todos sus tipos; --list-types va con video o rawfile.</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types no admite ningún medio.</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media no admite ningún medio.</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>No se indicó ningún medio.</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>Se indicó más de un medio.</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>Completando archivos rotos: %1 de %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 está en el medio que se va a examinar; guardar allí sobrescribiría lo que aún queda por encontrar. Elija una carpeta en otro disco.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>No se puede escribir en la carpeta %1.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>No se puede copiar %1: se desconoce su tamaño.</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>La carpeta %1 no contiene ningún catálogo de firmas que se pueda leer.</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>No existe ese tipo de archivo en este modo: %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>Examinado de todos modos.</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 está en el medio que se va a examinar.</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>La búsqueda no puede continuar. %1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>No se pudo conservar la búsqueda en %1: %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>Guardar lo encontrado como DIR/&lt;type&gt;/&lt;name&gt;, cada archivo tan largo como indica su formato y los mismos bytes una sola vez; no se sobrescribe nada.</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>Guardar los sectores de cada elemento encontrado tal como se listan, ni más ni menos.</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>Escribir «Recovery report.html» y «Recovery report.csv» junto a los archivos guardados.</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original (predeterminado): guardar con los nombres que el directorio de la tarjeta aún indica, cuando los indica; found: con los nombres listados.</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card (predeterminado): guardar en las carpetas que el directorio de la tarjeta aún indica, y lo que no indica en DIR/&lt;type&gt;; type: todo en DIR/&lt;type&gt;; date: como DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; cuando se conoce la fecha.</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>No guardar lo que la tarjeta aún contiene como archivo.</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>Lo mismo que --folders date.</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>No guardar los archivos de menos bytes.</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>No guardar las imágenes cuyo lado mayor tenga menos píxeles.</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>Guardar de nuevo los mismos bytes cuando se encuentran de nuevo.</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>No guardar lo que con certeza no es un archivo de su tipo.</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>Guardar también partes de archivos, como la vista previa de una imagen o un miembro de un archivo comprimido: lo que está por entero dentro de un archivo que se comprobó completo, y que si no se omite.</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>Escribir una versión reproducible, «... repaired.MP4», de cada vídeo MP4, QuickTime o AVI cuyo índice nunca se escribió; para MP4 y QuickTime también debe encontrarse un vídeo entero de la misma cámara.</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>Un vídeo entero de la cámara, en lugar de los que se encuentren (con --repair-movies).</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save requiere una carpeta.</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 va con --save.</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published no mira dentro de ningún archivo, así que no conoce nombres, fechas, píxeles ni estado.</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names requiere original o found.</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders requiere card, type o date.</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date es --folders date.</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference va con --repair-movies.</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes y --min-pixels requieren un número.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 archivo más que solo conoce el directorio de la tarjeta</numerusform>
            <numerusform>%1 archivos más que solo conoce el directorio de la tarjeta</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  y otros</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Informe: %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>Para continuar desde ahí: --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>Para continuar desde ahí: --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>Lo encontrado no se puede escribir en la salida estándar.</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>No todos los elementos se pudieron leer de nuevo; esos no tienen suma de comprobación.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Copia: %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>examinar todo el disco</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>seleccionar más tipos de archivo</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>activar la búsqueda exhaustiva</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>buscar tipos de vídeo o archivo en bruto</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>Aún no se han encontrado fotos</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>Aparecen aquí a medida que avanza la búsqueda.</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>Aún no se ha encontrado nada</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>Los elementos aparecen aquí a medida que avanza la búsqueda.</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>No se encontraron fotos</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>No se encontró nada</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>Se examinó todo para todos los tipos. Pruebe con otro medio.</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>Puede volver atrás y %1.</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>Puede volver atrás y %1, o %2.</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>Ninguno de los elementos encontrados es así</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>Pulse «Todos los elementos» a la izquierda y vacíe el campo de búsqueda para ver todo lo encontrado: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>Ninguno de los elementos encontrados es de esta clase</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>Elija arriba «Todos los elementos» para ver todo lo encontrado: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>Ninguno de los elementos encontrados es de este tipo</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>Pulse «Todos los tipos» para ver todo lo encontrado: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>Ninguno de los elementos encontrados es de este tipo y clase</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>Pulse «Todos los tipos» y elija arriba «Todos los elementos» para ver todo lo encontrado: %1.</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>Fecha desconocida</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>1 photo found</source>
        <translation>1 foto encontrada</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos found</source>
        <translation>
            <numerusform>%1 foto encontrada</numerusform>
            <numerusform>%1 fotos encontradas</numerusform>
        </translation>
    </message>
    <message>
        <source>1 video found</source>
        <translation>1 vídeo encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%1 videos found</source>
        <translation>
            <numerusform>%1 vídeo encontrado</numerusform>
            <numerusform>%1 vídeos encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file found</source>
        <translation>1 archivo encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 archivo encontrado</numerusform>
            <numerusform>%1 archivos encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>«%1», %2: %3 % leído, %4.</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Elegir la carpeta de destino</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Vantor Recovery maintainers

Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior: se puede usar, estudiar, compartir y modificar. Se ofrece sin garantía alguna.

Hecho con %1.

Se ejecuta en %2.</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>Disco				:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>Nombre del volumen	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>Sistema de archivos		:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>Capacidad (tamaño)	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>Sector inicial		:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>Sector final		:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Ninguno&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>más de %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>sector %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>sectores %1 a %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>desde el sector %1, en fragmentos</translation>
    </message>
    <message>
        <source>some</source>
        <translation>algunos</translation>
    </message>
    <message>
        <source>none</source>
        <translation>ninguno</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>aún no examinado</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nombre en la tarjeta</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Duración</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Fragmentos</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>Sectores ilegibles</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>aún no</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>Tipo de búsqueda: recuperar vídeos</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>Tipo de búsqueda: recuperar archivos en bruto</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Tipo de búsqueda: recuperar fotos</translation>
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
        <translation>Sí</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>Sin imágenes: este sistema no puede aislar los decodificadores (no tiene filtros seccomp), y nada de un medio se decodifica fuera del aislamiento.</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>Sin imágenes: el programa que las decodifica no se inicia. Instale el programa de nuevo.</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>Sin imagen: los documentos solo se dibujan dentro de bubblewrap, que no está instalado o no puede ejecutarse en este sistema.</translation>
    </message>
    <message>
        <source>%1 found</source>
        <translation>%1 encontrados</translation>
    </message>
    <message>
        <source>%1 found: %2</source>
        <translation>%1 encontrados: %2</translation>
    </message>
    <message>
        <source>Please export it as a raw (dd) or E01 image first and open that.</source>
        <translation>Expórtelo primero como imagen en bruto (dd) o E01 y abra esta.</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>Contiene archivos sueltos y no un medio de almacenamiento. Abra una imagen del medio.</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>Completo, unido a partir de %1 fragmento</numerusform>
            <numerusform>Completo, unido a partir de %1 fragmentos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>Unido a partir de %1 fragmento: conviene revisarlo</numerusform>
            <numerusform>Unido a partir de %1 fragmentos: conviene revisarlo</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>Reparado: %1 imágenes, %2 s, y %3 s de sonido, como en %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 unido o reparado (conviene revisarlo)</numerusform>
            <numerusform>%1 unidos o reparados (conviene revisarlos)</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>reparado</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 fragmento</numerusform>
            <numerusform>%1 fragmentos</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Reconstruido</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>Píxeles desconocidos</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>Menos de 1 megapíxel</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>1 a 4 megapíxeles</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>4 a 12 megapíxeles</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>12 a 30 megapíxeles</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>Más de 30 megapíxeles</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>Pulse «Continuar» para buscar en el resto.</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>%1 de %2 documentos y archivos comprimidos rotos completados, %3 más unidos: conviene revisarlos</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>Unir los vídeos MP4, QuickTime y AVI, las imágenes JPEG o PNG, los archivos ZIP y los documentos de oficina que están en fragmentos, como «... complete.MP4», o como «... put together.MP4» si no se pudo probar que todos los fragmentos son los correctos.</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 omitido: todo lo que solo conoce el directorio de la tarjeta la llenaría más de dos veces</numerusform>
            <numerusform>%1 omitidos: todo lo que solo conoce el directorio de la tarjeta la llenaría más de dos veces</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>Comprobando el contenido de los archivos guardados: %1 de %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>Duración desconocida</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>Menos de 10 segundos</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>De 10 segundos a 1 minuto</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>De 1 a 5 minutos</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>De 5 a 30 minutos</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>Más de 30 minutos</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>El disco está lleno</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>Su parte del disco está agotada</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>El disco solo se puede leer</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>El disco no admite ningún archivo tan largo</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>El disco comunica un error</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>No tiene derecho a hacer esto</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>El nombre es demasiado largo</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>No hay nada con este nombre</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>El dispositivo no está</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>No hay ningún soporte en el dispositivo</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>La carpeta %1 lleva a otro lugar</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>No se puede crear la carpeta %1: %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>Criterios de búsqueda</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>Todo el disco</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>Examinar todos los sectores del medio. Lo mejor en caso de duda.</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>Todo el disco</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>Rango de sectores</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>Buscar solo entre dos sectores que se indiquen.</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>Rango de sectores</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>Medio de almacenamiento</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Ninguno&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nombre del volumen</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidad</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>Primer sector</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>Sector final</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>Los sectores se cuentan desde 0; cada uno tiene 512 bytes. El sector final mismo no se examina.</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>Los deslizadores no alcanzan todos los sectores de este medio: terminan en el sector 2 147 483 647. Para empezar o terminar más allá, escriba el sector.</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>Sector inicial</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>Empezar en el sector</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>Deslizador del sector inicial</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Mínimo</translation>
    </message>
    <message>
        <source>0</source>
        <translation>0</translation>
    </message>
    <message>
        <source>Smallest Start Sector</source>
        <translation>Menor sector inicial</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>Mayor sector inicial</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>Sector final</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>Terminar en el sector</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>Deslizador del sector final</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>Menor sector final</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>Mayor sector final</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>Dónde se guardan los archivos encontrados</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Carpeta de destino</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>Aún ninguna; se puede elegir aquí o al guardar</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>E&amp;xaminar…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>Examinar para elegir la carpeta de destino</translation>
    </message>
</context>
<context>
    <name>RawScreen</name>
    <message>
        <source>By type</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>Items found by type</source>
        <translation>Elementos encontrados por tipo</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>Solo tipos e&amp;ncontrados</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>Mostrar solo los tipos que se encontraron</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>Todos los tip&amp;os</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>Mostrar de nuevo los elementos de todos los tipos</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>Elementos encontrados</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>Cuántos elementos se encontraron</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Qué elementos se muestran</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>Or&amp;denar</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Cómo se ordenan los elementos</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Ningún archivo seleccionado</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>Vista previa del vídeo</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>Datos del elemento en vista previa</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Adónde van los archivos guardados</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>Qué está marcado para guardar</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>&amp;Marcar lo visible</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Marcar para guardar todo lo que se muestra</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Marcar para guardar todo lo que se muestra; Insertar y Suprimir marcan y desmarcan los elementos seleccionados</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Inve&amp;rtir marcas</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Invertir las marcas de lo que se muestra</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>De lo que se muestra, marcar lo que no está marcado y desmarcar el resto</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Abrir &amp;carpeta</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Abrir la carpeta de archivos guardados</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Cam&amp;biar carpeta…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Cambiar la carpeta donde se guardan los archivos</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Guardar en otra carpeta a partir de ahora</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>Qué se ha guardado</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;pciones…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opciones de guardado</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Cómo se guardan los elementos: nombres y carpetas, sin los pequeños, duplicados, informe</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Guardar se&amp;leccionados…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Guardar los elementos seleccionados</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Guardar los elementos seleccionados (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>&amp;Guardar marcados…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Guardar los elementos marcados</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Guardar todos los elementos marcados, también los que no se muestran</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Guardar &amp;todo…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Guardar todos los elementos encontrados</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Guardar todos los elementos encontrados (Ctrl+Mayús+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>Tamaño de las imágenes</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Detalles en columnas</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Detalles en columnas (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>Búsqueda terminada</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>La búsqueda de fotos ha terminado</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>Las fotos encontradas se muestran como miniaturas. Seleccione las que desee y pulse «Guardar seleccionados», o quédese con todo mediante «Guardar todo». No están en su disco hasta que se guardan.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SaveFileInfoForRaw</name>
    <message>
        <source>Search ended</source>
        <translation>Búsqueda terminada</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>La búsqueda de archivos ha terminado</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>La tabla de la izquierda cuenta lo encontrado de cada tipo. Seleccione un elemento para ver su vista previa y pulse «Guardar seleccionados», o quédese con todo mediante «Guardar todo». Nada está en su disco hasta que se guarda.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SavingOptions</name>
    <message>
        <source>Options for saving</source>
        <translation>Opciones de guardado</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>&amp;Carpetas</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>Carpetas de los archivos guardados</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>Lo que la tarjeta no indica, o no tiene fecha conocida, va a la carpeta de su tipo</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>Usar los &amp;nombres que los archivos tenían en la tarjeta</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>Usar los nombres que los archivos tenían en la tarjeta</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>En la medida en que la tarjeta aún los indica</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>Omitir &amp;imágenes pequeñas, con un lado mayor inferior a</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>Omitir imágenes pequeñas</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> píxeles</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>Píxeles mínimos del lado mayor</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>Omitir &amp;archivos pequeños, de menos de</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>Omitir archivos pequeños</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>Tamaño mínimo en kilobytes</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>&amp;Omitir lo que con certeza no es un archivo de su tipo</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>Omitir lo que con certeza no es un archivo de su tipo</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>Bytes que solo empiezan como un archivo de ese tipo</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>Guardar también &amp;partes de archivos</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>Guardar también partes de archivos</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>Lo que está por entero dentro de un archivo que se comprobó completo, como la vista previa de una imagen</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>Conservar &amp;duplicados</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>Conservar duplicados</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>Guardar de nuevo el mismo contenido cada vez que se encontró</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>Escribir un informe de &amp;recuperación junto a los archivos guardados</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>Escribir un informe de recuperación junto a los archivos guardados</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>Una página para leer y una tabla para otros programas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
</context>
<context>
    <name>SavingProgress</name>
    <message>
        <source>Saving</source>
        <translation>Guardando</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>Cuántos elementos se han guardado</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>El archivo que se está guardando</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>Progreso del guardado</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>Velocidad y tiempo restante</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>Qué tarda tanto</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>&amp;Saltar este archivo</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>Saltar este archivo y continuar con el siguiente</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>Cancelar el guardado</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>El servicio de discos ya no la reconoce.</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>El servicio de discos no responde.</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>El servicio de discos lo rechazó.</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>Todos los elementos</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completos</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>De longitud desconocida</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>Con sectores ilegibles</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Aún no guardados</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>Sin los pequeños</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>Sin falsos hallazgos</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>Solo lo perdido</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Según se encontraron</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>Por estado</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Por tamaño</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>Por fecha de toma</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>Por nombre en la tarjeta</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Rotos</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>Unidos o reparados</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Por nombre</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Por cámara</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Por píxeles</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Por duración</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>Por lugar en la tarjeta</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>Imagen de la tarjeta</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1 (%2 ocupado)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>No se conoce ningún sistema de archivos</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>no se examinaría nada</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>se examina todo</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>se examina el %1</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>%1 según cuentan los fabricantes</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>Qué se leyó del rango</translation>
    </message>
    <message>
        <source>read</source>
        <translation>leído</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>algo encontrado</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>dañado</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>pendiente</translation>
    </message>
</context>
<context>
    <name>vantor::DetailsHeader</name>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nombre en la tarjeta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Cámara</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>Píxeles o duración</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>Lugar en la tarjeta</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, guardado</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>Columnas de los detalles</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>Buscar por nombre</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>Buscar elementos encontrados por nombre, también por el de la tarjeta</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>Lo encontrado, por tipo, día, cámara y tamaño</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>Pulse para mostrar solo estos; mantenga Ctrl para varios</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Todos los elementos</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Por día</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Por cámara</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Por tamaño</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Sin tipo</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>Cámara desconocida</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>Solo nombrados en la tarjeta</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>1 archivo más que solo conoce el directorio de la tarjeta</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>%1 archivo más que solo conoce el directorio de la tarjeta</numerusform>
            <numerusform>%1 archivos más que solo conoce el directorio de la tarjeta</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>«Guardar todo» también los guarda.</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>y %1 más</numerusform>
            <numerusform>y %1 más</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Por píxeles</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Por duración</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>Versión %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>No se pudo abrir el documento de ayuda.</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>Este escritorio no tiene ningún programa que muestre documentos PDF. Está aquí:</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>¡El archivo de ayuda no existe!</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>guardado</translation>
    </message>
    <message>
        <source>ticked</source>
        <translation>marcado</translation>
    </message>
</context>
<context>
    <name>vantor::ItemViewer</name>
    <message>
        <source>Viewer</source>
        <translation>Visor</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ Resultados</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>Volver a los resultados (Escape)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>Imagen entera (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>Tamaño real (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>Más pequeño (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>Más grande (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Pantalla completa</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Pantalla completa (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Datos</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>Mostrar los datos al lado (I)</translation>
    </message>
    <message>
        <source>Movie</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>‹</source>
        <translation>‹</translation>
    </message>
    <message>
        <source>Item before this one (Left)</source>
        <translation>Elemento anterior (Izquierda)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>Elemento siguiente (Derecha)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Imagen de %1</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Tick</source>
        <translation>Marcar</translation>
    </message>
    <message>
        <source>Tick for saving (Insert, Delete)</source>
        <translation>Marcar para guardar (Insertar, Suprimir)</translation>
    </message>
    <message>
        <source>Ticked</source>
        <translation>Marcado</translation>
    </message>
</context>
<context>
    <name>vantor::KeepingBox</name>
    <message>
        <source>Re&amp;member this search</source>
        <translation>&amp;Recordar esta búsqueda</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>Para continuar más tarde, también tras un corte de corriente. Sustituye a la búsqueda recordada ahora.</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>Conservar una copia &amp;de la tarjeta al buscar</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>&amp;Elegir…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>Elegir dónde se conserva la copia</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>Lo mejor para una tarjeta que falla o es lenta: se lee una sola vez, todo lo demás lee la copia.</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>Para continuar más tarde, también tras un corte de corriente.</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>La búsqueda recordada</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Contin&amp;uar</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Examinar el resto del medio; lo ya leído no se examina de nuevo</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>&amp;Ver lo encontrado</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>Listar lo que la búsqueda había encontrado, sin seguir buscando</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Olvidar</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>Eliminar lo recordado de esta búsqueda; los archivos guardados permanecen</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>Continuar la búsqueda recordada</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>Mostrar lo que encontró la búsqueda recordada</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>Olvidar la búsqueda recordada</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>Búsqueda recordada: %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>Mostrar el archivo tal como se encontró (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>Como se encontró</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>Mostrar el archivo tal como se unió (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Reparado</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>Unido</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>Hasta dónde se han completado los archivos rotos y con qué resultado</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>Progreso al completar archivos rotos</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>Dete&amp;ner</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>Dejar de completar archivos rotos; lo que se unió permanece</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>Mostrarl&amp;os</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>Mostrar los archivos que se unieron o repararon</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>C&amp;errar</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Cerrar este mensaje</translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation>Posición</translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation>Tiempo reproducido y duración</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproducir (Espacio)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausa (Espacio)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Activar sonido</translation>
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
        <translation>Reproducir o pausar (Espacio)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>Ningún vídeo</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Seleccione un elemento para ver su vista previa.</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 de %2 seleccionados</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1, sin miniaturas</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>Guardar &amp;todo…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>Guardar &amp;todo lo visible (%1)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Guardar todos los elementos encontrados</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>Guardar todos los elementos que se muestran</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 de %2 guardados</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>O&amp;pciones…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>O&amp;pciones (%1)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>Elegir dónde se conserva la copia de la tarjeta</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>Imágenes de medios (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>La copia no se puede conservar ahí.</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>La carpeta está en el medio que se va a examinar; escribir allí sobrescribiría lo que aún queda por encontrar. Elija un lugar en otro disco.</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>No hay espacio suficiente para una copia.</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>Necesita hasta %1, y hay %2 libres en %3. Elija un lugar en otro disco, o busque sin copia.</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1: hasta %2 necesarios, %3 libres</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1: hasta %2 necesarios</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>Cómo está la tarjeta</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>Conservar &amp;una copia…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>La búsqueda se detiene un momento y continúa, leyendo la tarjeta una sola vez en el archivo que elija</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>Esta tarjeta está fallando: 1 sector dañado.</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>Esta tarjeta está fallando: %1 sector dañado.</numerusform>
            <numerusform>Esta tarjeta está fallando: %1 sectores dañados.</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>Esta tarjeta es muy lenta.</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>Conserve una copia, para que cada sector se lea una sola vez.</translation>
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
        <translation>Cuando el programa termina, la lista de elementos encontrados se pierde.</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>Salir sin guardar</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
¿Realmente desea salir de «%1»?</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>%1 de los %2 elementos encontrados no se han guardado.</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>El elemento encontrado no se ha guardado.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>El elemento encontrado (%1) no se ha guardado.</numerusform>
            <numerusform>Ninguno de los %1 elementos encontrados se ha guardado.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Quedarse</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>Todos los tipos del grupo %1</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Seleccionar &amp;todo</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>Seleccionar todo lo &amp;visible</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>Ningún tipo coincide</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>Ningún tipo de archivo</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>Vacíe el campo de búsqueda para ver todos los tipos.</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>No se pudo leer el catálogo de tipos de archivo. Instale el programa de nuevo.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>Qué hacer con el elemento</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>Ver en &amp;grande</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>Ver &amp;datos</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>Guardar &amp;seleccionados…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>Seleccionar todo el dí&amp;a %1</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>Seleccionar todo el dí&amp;a</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>Seleccionar todo el &amp;tipo %1</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Contin&amp;uar</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>Continuar la búsqueda</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Examinar el resto del medio; lo ya leído no se examina de nuevo</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>La búsqueda empieza de nuevo.</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>Se empezó con otras listas de firmas que las de esta versión del programa.</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>Esta búsqueda no se recuerda.</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>Su carpeta personal está en el medio que se va a examinar; escribir allí sobrescribiría lo que aún queda por encontrar.</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>La búsqueda no puede continuar.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>Este no es el medio que se examinó. Conecte el correcto e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>No se puede abrir el medio. Vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>El medio de esta búsqueda no está.</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>Era %1. Conéctelo, o abra su imagen, e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>Este no es el medio que se examinó.</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>Contiene algo distinto de %1. Conecte el correcto e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>No se puede abrir el medio de esta búsqueda.</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>Se encontró 1 elemento antes de que el medio ya no se pudiera abrir.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>Se encontró %1 elemento antes de que el medio ya no se pudiera abrir.</numerusform>
            <numerusform>Se encontraron %1 elementos antes de que el medio ya no se pudiera abrir.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>La lista se conserva hasta que se busque de nuevo o se vuelva atrás.</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>El medio de almacenamiento no responde.</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>La búsqueda anterior aún no ha terminado. Retire el medio, vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>Una búsqueda nueva vacía la lista de elementos encontrados.</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>Buscar sin guardar</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>No se pudo abrir la imagen.</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>No se pudo abrir %1 imagen.</numerusform>
            <numerusform>No se pudieron abrir %1 imágenes.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>Elegir un vídeo</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>Esta carpeta no puede ser el destino.</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>Está en el medio de almacenamiento que se quiere recuperar. Escribir allí sobrescribiría los archivos que se buscan. Elija una carpeta en otro disco.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Elija otra carpeta.</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>Se retiró el disco que contenía %1. Vuelva a conectarlo, o cambie la carpeta.</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 se eliminó o cambió de nombre, o se retiró su disco. Restablézcala, o cambie la carpeta.</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>El destino ya no existe.</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>Aún no se ha elegido carpeta para los archivos guardados</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>Los archivos guardados van a %1, que no existe</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>Los archivos guardados van a %1 (%2 libres)</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>Los archivos guardados van a %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>Este escritorio no tiene ningún programa que muestre carpetas.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Ya no existe.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>No se pudo abrir la carpeta.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>No se puede leer el medio de almacenamiento.</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>Esta es todavía la vista previa de %1.</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Seleccione un elemento para ver su vista previa.</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>más de %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Vista previa de %1</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>Con la opción «Todo el disco», Vantor Recovery busca los datos perdidos en toda la capacidad del disco seleccionado. Para buscar en un rango de sectores o una partición concretos, seleccione el otro criterio de búsqueda. Si no, pulse el botón «Siguiente» para empezar a buscar en todo el disco.</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>La opción «Rango de sectores» permite indicar el sector inicial y el sector final del medio entre los que se buscan los datos perdidos. Arrastre los deslizadores para fijar el rango, o escriba los valores en los campos Sector inicial y Sector final.</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>Los ajustes se han olvidado.</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>Cuando se inicie de nuevo el programa, la ventana, las opciones de guardado y las carpetas serán las de un primer inicio.</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>Aún retiene el guardado que se canceló. Retire el medio, vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>La búsqueda continúa.</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Ningún archivo seleccionado</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
Seleccione un medio de almacenamiento de la lista.</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>Al volver atrás, la lista de elementos encontrados se vacía.</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>Volver sin guardar</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
Seleccione en la lista el medio de almacenamiento del que desea recuperar datos. Pulse el botón «Siguiente» para continuar... </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
Seleccione los tipos de archivo que desea recuperar. Pulse el botón «Siguiente» para continuar... </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Medio</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipos de archivo</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>No se pudo recordar la búsqueda: %1.</translation>
    </message>
    <message>
        <source>1 photo</source>
        <translation>1 foto</translation>
    </message>
    <message numerus="yes">
        <source>%1 photos</source>
        <translation>
            <numerusform>%1 foto</numerusform>
            <numerusform>%1 fotos</numerusform>
        </translation>
    </message>
    <message>
        <source>all complete</source>
        <translation>todos completos</translation>
    </message>
    <message>
        <source>Press Stop, or let the search go on.</source>
        <translation>Pulse «Detener», o deje que la búsqueda continúe.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>Ningún tipo</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>No se encontró nada de los tipos marcados.</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>Vuelva atrás y marque los tipos que buscar.</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Sectores</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de archivos</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>Disco entero</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Búsqueda</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>Exhaustiva</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descripción</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Hallados</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>No se encontraron medios de almacenamiento</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>Inserte la tarjeta de memoria o conecte su lector y pulse «Actualizar», o abra un archivo de imagen de un medio. También puede soltar aquí un archivo de imagen.</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>Sectores 0 de 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>%1 de %2 marcados, %3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>Des&amp;marcar lo visible</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>&amp;Marcar lo visible</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>Desmarcar todo lo que se muestra</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Marcar para guardar todo lo que se muestra</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>&amp;Guardar marcados (%1)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Abrir un archivo de imagen de un medio</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>Imágenes de medios (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>Completar arc&amp;hivos rotos</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>Completar archivos rotos</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>Buscar en el medio los fragmentos que faltan de fotos y vídeos, y reparar vídeos sin índice; lo encontrado se conserva al lado tal como está</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>Buscando archivos rotos: %1 de %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>Completando vídeos rotos…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>Completando vídeos rotos: %1 de %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>Completando fotos rotas…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>Completando fotos rotas: %1 de %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>Reparando vídeos sin índice…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>Reparando vídeos sin índice: %1 de %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>Los archivos rotos se dejaron como están: no se puede abrir el medio de almacenamiento. Vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>El medio de almacenamiento desapareció. Vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Detenido.</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 archivo completado</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 archivo completado</numerusform>
            <numerusform>%1 archivos completados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 archivo unido (conviene revisarlo)</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 archivo unido (conviene revisarlo)</numerusform>
            <numerusform>%1 archivos unidos (conviene revisarlos)</numerusform>
        </translation>
    </message>
    <message>
        <source>1 movie repaired</source>
        <translation>1 vídeo reparado</translation>
    </message>
    <message numerus="yes">
        <source>%1 movies repaired</source>
        <translation>
            <numerusform>%1 vídeo reparado</numerusform>
            <numerusform>%1 vídeos reparados</numerusform>
        </translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>No broken file of a kind that can be completed was found.</source>
        <translation>No se encontró ningún archivo roto de una clase que se pueda completar.</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>No se pudo completar ningún archivo roto.</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>Se están escribiendo otros archivos. Vuelva a arrastrar en un momento.</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>No hay espacio suficiente para preparar %1 para arrastrar. Guarde los archivos en su lugar.</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>No se pueden leer estos archivos del medio de almacenamiento.</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>Preparando los archivos…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>Los archivos aún se están escribiendo. Vuelva a arrastrarlos en un momento.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>La tarjeta se puede retirar.</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>No se pudo expulsar la tarjeta.</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>Des&amp;marcar para guardar</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>&amp;Marcar para guardar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Guardar &amp;como…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Opciones de búsqueda</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>Completando documentos rotos…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>Completando documentos rotos: %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>No se pudo arrastrar %1 de los %2 archivos.</numerusform>
            <numerusform>No se pudieron arrastrar %1 de los %2 archivos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>fragmento %1: sectores %2 a %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>Fragmentos en la tarjeta</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Tarjeta</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>Se necesitan unos %1 y hay %2 libres en %3.</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>Tal como se encontraron, los archivos necesitan unos %1; una vez examinados, a menudo resultan más cortos. Hay %2 libres en %3.</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>Puede que no haya espacio suficiente en el destino.</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>Lo que cabe se guarda entero; el resto se omite y permanece en la lista.</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>Guardar lo que cabe</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>Cambiar carpeta…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>No se guardó nada.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>El medio de almacenamiento ya no se puede leer. Vuelva a conectarlo e inténtelo de nuevo.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir carpeta</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>Expulsar tarjeta</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>Como en la tarjeta</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>Por tipo y fecha</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>El medio rechaza sectores de este archivo: %1 hasta ahora. Cada uno puede tardar segundos. Lo que hay detrás se lee de todos modos.</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>Guardando %1 de %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>Comprobando el contenido: %1 de %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>Ya no se lee nada del medio. «Cancelar» solo termina esta comprobación.</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Paso %1 de %2: %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>seleccionado</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>no seleccionado</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>Cargando…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>No se puede leer el medio de almacenamiento.</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>No se puede mostrar ninguna imagen de este archivo.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
</TS>
