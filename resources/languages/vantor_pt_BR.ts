<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>BrowseInfo</name>
    <message>
        <source>Destination folder</source>
        <translation>Pasta de destino</translation>
    </message>
    <message>
        <source>Choose where found files go</source>
        <translation>Escolher para onde vão os arquivos encontrados</translation>
    </message>
    <message>
        <source>In the next window, pick a folder on another disk, never on the medium you are recovering from: whatever is written there can overwrite the very files you want back.</source>
        <translation>Na próxima janela, escolha uma pasta em outro disco, nunca na mídia que está sendo recuperada: o que for gravado nela pode sobrescrever justamente os arquivos que se quer de volta.</translation>
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
        <translation>Prévia</translation>
    </message>
    <message>
        <source>Preparing the preview</source>
        <translation>Preparando a prévia</translation>
    </message>
    <message>
        <source>The item is being read from the medium. This takes a moment for large items.</source>
        <translation>O item está sendo lido da mídia. Com itens grandes, isso leva um momento.</translation>
    </message>
</context>
<context>
    <name>EvidenceImage</name>
    <message>
        <source>Evidence images cannot be read here</source>
        <translation>Imagens forenses não podem ser lidas aqui</translation>
    </message>
    <message>
        <source>Evidence images are only read shut in, which this system does not allow</source>
        <translation>Imagens forenses só são lidas em isolamento, o que este sistema não permite</translation>
    </message>
    <message>
        <source>The part of the program that reads evidence images does not start</source>
        <translation>A parte do programa que lê imagens forenses não inicia</translation>
    </message>
    <message>
        <source>The evidence image is damaged or of a kind that cannot be read</source>
        <translation>A imagem forense está danificada ou é de um tipo que não pode ser lido</translation>
    </message>
</context>
<context>
    <name>FileTypeScreen</name>
    <message>
        <source>File types to search for</source>
        <translation>Tipos de arquivo a buscar</translation>
    </message>
    <message>
        <source>How many types are selected</source>
        <translation>Quantos tipos estão selecionados</translation>
    </message>
    <message>
        <source>&amp;Presets</source>
        <translation>Predefiniçõe&amp;s</translation>
    </message>
    <message>
        <source>Select the types that belong together</source>
        <translation>Selecionar os tipos que formam um conjunto</translation>
    </message>
    <message>
        <source>Presets of file types</source>
        <translation>Predefinições de tipos de arquivo</translation>
    </message>
    <message>
        <source>Search types…</source>
        <translation>Buscar tipos…</translation>
    </message>
    <message>
        <source>Search the file types</source>
        <translation>Buscar entre os tipos de arquivo</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message>
        <source>Select all file types</source>
        <translation>Selecionar todos os tipos de arquivo</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipos de arquivo</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Busca minuciosa</translation>
    </message>
    <message>
        <source>Types marked “Thorough” are looked for in a second pass over the medium.</source>
        <translation>Os tipos marcados como “Minuciosa” são buscados em uma segunda passagem pela mídia.</translation>
    </message>
</context>
<context>
    <name>HelpSupport</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
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
        <translation>1.  Escolha o cartão de memória e o que foi perdido: fotos, vídeos ou outros arquivos.
2.  Escolha onde buscar: no disco inteiro ou em um intervalo de setores.
3.  Para vídeos e arquivos, marque os tipos desejados.
4.  Acompanhe a busca. Selecione o que deseja de volta e salve em outro disco.

O cartão é somente lido, nunca gravado. Não o use até ter seus arquivos de volta.</translation>
    </message>
    <message>
        <source>The whole guide, with pictures:</source>
        <translation>O guia completo, com imagens:</translation>
    </message>
    <message>
        <source>Open the help document</source>
        <translation>Abrir o documento de ajuda</translation>
    </message>
    <message>
        <source>&amp;About…</source>
        <translation>&amp;Sobre…</translation>
    </message>
    <message>
        <source>About this program: version, licence, libraries</source>
        <translation>Sobre este programa: versão, licença, bibliotecas</translation>
    </message>
    <message>
        <source>&amp;Forget Settings</source>
        <translation>&amp;Esquecer configurações</translation>
    </message>
    <message>
        <source>Window size, saving options and folders of earlier runs</source>
        <translation>Tamanho da janela, opções de salvamento e pastas de execuções anteriores</translation>
    </message>
    <message>
        <source>Forget the settings of earlier runs</source>
        <translation>Esquecer as configurações de execuções anteriores</translation>
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
        <translation>Mídias de armazenamento</translation>
    </message>
    <message>
        <source>Looking for storage media</source>
        <translation>Procurando mídias de armazenamento</translation>
    </message>
    <message>
        <source>The list of memory cards and removable disks is being read.</source>
        <translation>A lista de cartões de memória e discos removíveis está sendo lida.</translation>
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
        <translation>Etapas da recuperação</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Open the help window (F1)</source>
        <translation>Abrir a janela de ajuda (F1)</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Tipo de busca: recuperar fotos</translation>
    </message>
    <message>
        <source>Search type</source>
        <translation>Tipo de busca</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nenhum&gt;</translation>
    </message>
    <message>
        <source>Identifier of the chosen medium</source>
        <translation>Identificador da mídia escolhida</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Setores</translation>
    </message>
    <message>
        <source>Number of sectors of the chosen medium</source>
        <translation>Número de setores da mídia escolhida</translation>
    </message>
    <message>
        <source>Show Found &amp;Items</source>
        <translation>Exibir itens en&amp;contrados</translation>
    </message>
    <message>
        <source>Show the items found so far</source>
        <translation>Exibir os itens encontrados até agora</translation>
    </message>
    <message>
        <source>Look through what was found and save it</source>
        <translation>Examinar o que foi encontrado e salvar</translation>
    </message>
    <message>
        <source>How the search ended</source>
        <translation>Como a busca terminou</translation>
    </message>
    <message>
        <source>How the search ended, and how to go on</source>
        <translation>Como a busca terminou e como prosseguir</translation>
    </message>
    <message>
        <source>What the search found, and how long it took</source>
        <translation>O que a busca encontrou e quanto tempo levou</translation>
    </message>
    <message>
        <source>Try Ba&amp;d Sectors Again</source>
        <translation>Reler setores defeit&amp;uosos</translation>
    </message>
    <message>
        <source>Try bad sectors again</source>
        <translation>Reler os setores defeituosos</translation>
    </message>
    <message>
        <source>Previews and saving ask the medium once more for what it could not read</source>
        <translation>A prévia e o salvamento pedem mais uma vez à mídia o que ela não conseguiu ler</translation>
    </message>
    <message>
        <source>Thorough search</source>
        <translation>Busca minuciosa</translation>
    </message>
    <message>
        <source>After the general search, look once more with a longer list of picture types.</source>
        <translation>Depois da busca geral, buscar mais uma vez com uma lista maior de tipos de imagem.</translation>
    </message>
    <message>
        <source>Current search procedure</source>
        <translation>Procedimento de busca atual</translation>
    </message>
    <message>
        <source>Clearing the thumbnails that are not ready…</source>
        <translation>Descartando as miniaturas que não estão prontas…</translation>
    </message>
    <message>
        <source>The search is being stopped</source>
        <translation>A busca está sendo parada</translation>
    </message>
    <message>
        <source>Speed, time left and items found</source>
        <translation>Velocidade, tempo restante e itens encontrados</translation>
    </message>
    <message>
        <source>Progress of the search</source>
        <translation>Progresso da busca</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>P&amp;arar</translation>
    </message>
    <message>
        <source>Stop the search</source>
        <translation>Parar a busca</translation>
    </message>
    <message>
        <source>End the search now and keep what was found</source>
        <translation>Encerrar a busca agora e manter o que foi encontrado</translation>
    </message>
    <message>
        <source>Sectors searched</source>
        <translation>Setores examinados</translation>
    </message>
    <message>
        <source>What to do on this screen</source>
        <translation>O que fazer nesta tela</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Leave the program (Ctrl+Q)</source>
        <translation>Sair do programa (Ctrl+Q)</translation>
    </message>
    <message>
        <source>‹ &amp;Back</source>
        <translation>‹ &amp;Voltar</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Voltar</translation>
    </message>
    <message>
        <source>To the screen before (Alt+Left)</source>
        <translation>Para a tela anterior (Alt+Esquerda)</translation>
    </message>
    <message>
        <source>&amp;Next ›</source>
        <translation>&amp;Próximo ›</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Próximo</translation>
    </message>
    <message>
        <source>To the next screen (Return)</source>
        <translation>Para a próxima tela (Enter)</translation>
    </message>
</context>
<context>
    <name>MediaScreen</name>
    <message>
        <source>Storage media</source>
        <translation>Mídias de armazenamento</translation>
    </message>
    <message>
        <source>Not in the list?</source>
        <translation>Não está na lista?</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Atualizar</translation>
    </message>
    <message>
        <source>Refresh the list of media</source>
        <translation>Atualizar a lista de mídias</translation>
    </message>
    <message>
        <source>Look for storage media again (F5)</source>
        <translation>Procurar mídias de armazenamento novamente (F5)</translation>
    </message>
    <message>
        <source>&amp;Open Image…</source>
        <translation>Abrir ima&amp;gem…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Abrir um arquivo de imagem de uma mídia</translation>
    </message>
    <message>
        <source>Search a copy of a medium that was saved as a file (Ctrl+O)</source>
        <translation>Examinar uma cópia de uma mídia salva como arquivo (Ctrl+O)</translation>
    </message>
    <message>
        <source>What was lost?</source>
        <translation>O que foi perdido?</translation>
    </message>
    <message>
        <source>Recovery mode</source>
        <translation>Modo de recuperação</translation>
    </message>
    <message>
        <source>Photo</source>
        <translation>Foto</translation>
    </message>
    <message>
        <source>Pictures from cameras and phones, shown as thumbnails while they are found.</source>
        <translation>Imagens de câmeras e telefones, exibidas como miniaturas à medida que são encontradas.</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vídeo</translation>
    </message>
    <message>
        <source>Films and clips of the types you choose, with a preview of each.</source>
        <translation>Filmes e clipes dos tipos escolhidos, cada um com prévia.</translation>
    </message>
    <message>
        <source>Raw File</source>
        <translation>Arquivo bruto</translation>
    </message>
    <message>
        <source>Documents, archives, sound and all other types that you choose.</source>
        <translation>Documentos, arquivos compactados, áudio e todos os outros tipos escolhidos.</translation>
    </message>
    <message>
        <source>Raw file</source>
        <translation>Arquivo bruto</translation>
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
        <translation>Quantas fotos foram encontradas</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Exibir</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Quais itens são exibidos</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>Or&amp;denar</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Como os itens são ordenados</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Zoom of the thumbnails</source>
        <translation>Zoom das miniaturas</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Para onde vão os arquivos salvos</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>O que está marcado para salvar</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>&amp;Marcar exibidos</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Marcar para salvar tudo o que é exibido</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Marcar para salvar tudo o que é exibido; Insert e Delete marcam e desmarcam os itens selecionados</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Inverter mar&amp;cas</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Inverter as marcas do que é exibido</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Do que é exibido, marcar o que não está marcado e desmarcar o resto</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>A&amp;brir pasta</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Abrir a pasta dos arquivos salvos</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Al&amp;terar pasta…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Alterar a pasta em que os arquivos são salvos</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Salvar em outra pasta a partir de agora</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>O que foi salvo</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>&amp;Opções…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opções de salvamento</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Como os itens são salvos: nomes e pastas, sem os pequenos, duplicatas, relatório</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Salvar se&amp;lecionados…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Salvar os itens selecionados</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Salvar os itens selecionados (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Salvar m&amp;arcados…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Salvar os itens marcados</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Salvar todos os itens marcados, também os que não são exibidos</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>&amp;Salvar tudo…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Salvar todos os itens encontrados</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Salvar todos os itens encontrados (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Detalhes em colunas</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Detalhes em colunas (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>
Please select atleast one extension type.</source>
        <translation>
Selecione pelo menos um tipo de arquivo.</translation>
    </message>
    <message>
        <source>The program does not speak “%1”. It speaks %2.</source>
        <translation>O programa não fala “%1”. Ele fala %2.</translation>
    </message>
    <message>
        <source>Photos of all cameras</source>
        <translation>Fotos de todas as câmeras</translation>
    </message>
    <message>
        <source>Office documents</source>
        <translation>Documentos de escritório</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefone</translation>
    </message>
    <message>
        <source>Sound recorder</source>
        <translation>Gravador de som</translation>
    </message>
    <message>
        <source>Everything</source>
        <translation>Tudo</translation>
    </message>
    <message>
        <source>“%1” is no file.</source>
        <translation>“%1” não é um arquivo.</translation>
    </message>
    <message>
        <source>The map “%1” belongs to another copy. Please choose another name.</source>
        <translation>O arquivo map “%1” pertence a outra cópia. Escolha outro nome.</translation>
    </message>
    <message>
        <source>“%1” is a copy of a medium of another size. Please choose another name.</source>
        <translation>“%1” é uma cópia de uma mídia de outro tamanho. Escolha outro nome.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2.</source>
        <translation>Não é possível gravar “%1”: %2.</translation>
    </message>
    <message>
        <source>“%1” is being written by another search.</source>
        <translation>“%1” está sendo gravado por outra busca.</translation>
    </message>
    <message>
        <source>“%1” is there already, and no map beside it says that it is a copy to go on with. Please choose another name.</source>
        <translation>“%1” já existe, e nenhum arquivo map ao lado indica que seja uma cópia a ser continuada. Escolha outro nome.</translation>
    </message>
    <message>
        <source>“%1” cannot be written: %2</source>
        <translation>Não é possível gravar “%1”: %2</translation>
    </message>
    <message>
        <source>The map “%1” cannot be used: %2</source>
        <translation>Não é possível usar o arquivo map “%1”: %2</translation>
    </message>
    <message>
        <source>it is no file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>it is not there</source>
        <translation>não existe</translation>
    </message>
    <message>
        <source>it is too large for a map</source>
        <translation>é grande demais para um arquivo map</translation>
    </message>
    <message>
        <source>The map “%1” cannot be written: %2</source>
        <translation>Não é possível gravar o arquivo map “%1”: %2</translation>
    </message>
    <message>
        <source>the line is too long</source>
        <translation>a linha é longa demais</translation>
    </message>
    <message>
        <source>there is no line that tells the position</source>
        <translation>nenhuma linha indica a posição</translation>
    </message>
    <message>
        <source>a position, one of ?*/-FG+ and a pass are expected</source>
        <translation>espera-se uma posição, um de ?*/-FG+ e uma passagem</translation>
    </message>
    <message>
        <source>a position, a size and one of ?*/-+ are expected</source>
        <translation>espera-se uma posição, um tamanho e um de ?*/-+</translation>
    </message>
    <message>
        <source>the size cannot be</source>
        <translation>o tamanho não é possível</translation>
    </message>
    <message>
        <source>it overlaps with the line before</source>
        <translation>ela se sobrepõe à linha anterior</translation>
    </message>
    <message>
        <source>there is a gap before it</source>
        <translation>há uma lacuna antes dela</translation>
    </message>
    <message>
        <source>there are too many lines</source>
        <translation>há linhas demais</translation>
    </message>
    <message>
        <source>line %1: %2</source>
        <translation>linha %1: %2</translation>
    </message>
    <message>
        <source>“%1” is no image file.</source>
        <translation>“%1” não é um arquivo de imagem.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened: %2.</source>
        <translation>Não é possível abrir “%1”: %2.</translation>
    </message>
    <message>
        <source>“%1” is empty. Please choose an image file of a storage medium.</source>
        <translation>“%1” está vazio. Escolha um arquivo de imagem de uma mídia de armazenamento.</translation>
    </message>
    <message>
        <source>“%1” cannot be opened.</source>
        <translation>Não é possível abrir “%1”.</translation>
    </message>
    <message>
        <source>“%1” is a copy of another medium.</source>
        <translation>“%1” é uma cópia de outra mídia.</translation>
    </message>
    <message>
        <source>The copy “%1” ends here: %2. What it does not hold is read from the medium.</source>
        <translation>A cópia “%1” termina aqui: %2. O que ela não contém é lido da mídia.</translation>
    </message>
    <message>
        <source>You may not read this card. Search again and allow it when you are asked for the password, or ask the administrator of this computer for the right to read storage media.</source>
        <translation>Não há permissão para ler este cartão. Busque novamente e autorize quando a senha for solicitada, ou peça ao administrador deste computador o direito de ler mídias de armazenamento.</translation>
    </message>
    <message>
        <source>You may not read this image file. Ask its owner for the right to read it, or for a copy.</source>
        <translation>Não há permissão para ler este arquivo de imagem. Peça ao proprietário o direito de lê-lo, ou uma cópia.</translation>
    </message>
    <message>
        <source>The medium is not there any more. Put it back in and try again.</source>
        <translation>A mídia não está mais presente. Recoloque-a e tente novamente.</translation>
    </message>
    <message>
        <source>Another medium is in its place now. Go back to the list of media and choose again.</source>
        <translation>Agora há outra mídia em seu lugar. Volte à lista de mídias e escolha novamente.</translation>
    </message>
    <message>
        <source>The image file was changed during the search, so what was found may be damaged. Search again when nothing writes to it any more.</source>
        <translation>O arquivo de imagem foi alterado durante a busca; o que foi encontrado pode estar danificado. Busque de novo quando nada mais gravar nele.</translation>
    </message>
    <message>
        <source>Please unpack it first and open the image file that is inside.</source>
        <translation>Descompacte-o primeiro e abra o arquivo de imagem que está dentro.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first (for example with “qemu-img convert -O raw”) and open that.</source>
        <translation>Converta-o primeiro em uma imagem bruta (por exemplo, com “qemu-img convert -O raw”) e abra essa imagem.</translation>
    </message>
    <message>
        <source>Please convert it to a raw image first and open that.</source>
        <translation>Converta-o primeiro em uma imagem bruta e abra essa imagem.</translation>
    </message>
    <message>
        <source>“%1” is packed (%2) and cannot be searched as it stands. %3</source>
        <translation>“%1” está compactado (%2) e não pode ser examinado como está. %3</translation>
    </message>
    <message>
        <source>Neither a storage medium nor an image file</source>
        <translation>Nem uma mídia de armazenamento nem um arquivo de imagem</translation>
    </message>
    <message>
        <source>The image is in more than %1 parts; please join them into one file first</source>
        <translation>A imagem está em mais de %1 partes; junte-as primeiro em um só arquivo</translation>
    </message>
    <message>
        <source>A part of the image is missing: %1</source>
        <translation>Falta uma parte da imagem: %1</translation>
    </message>
    <message>
        <source>Please enter valid Start Sector value.</source>
        <translation>Informe um valor válido para o setor inicial.</translation>
    </message>
    <message>
        <source>Please enter valid End Sector value.</source>
        <translation>Informe um valor válido para o setor final.</translation>
    </message>
    <message>
        <source>
Maximum sector range exceeded</source>
        <translation>
Intervalo máximo de setores excedido</translation>
    </message>
    <message>
        <source>
End Sector should be greater than Start Sector.</source>
        <translation>
O setor final deve ser maior que o setor inicial.</translation>
    </message>
    <message>
        <source>This card reads as erased: beside its file system&apos;s own sectors, all places looked at are empty. Some cameras and programs erase the whole card when they format it, and then nothing can be found.</source>
        <translation>Este cartão parece apagado: além dos setores próprios do sistema de arquivos, todos os pontos examinados estão vazios. Algumas câmeras e programas apagam o cartão inteiro ao formatá-lo, e então nada pode ser encontrado.</translation>
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
        <translation>Mais de 1 GB</translation>
    </message>
    <message>
        <source>Photos</source>
        <translation>Fotos</translation>
    </message>
    <message>
        <source>Camera raw</source>
        <translation>RAW de câmera</translation>
    </message>
    <message>
        <source>Movies</source>
        <translation>Vídeos</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Áudio</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Archives</source>
        <translation>Compactados</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Outros</translation>
    </message>
    <message>
        <source>no file of its type</source>
        <translation>não é um arquivo do seu tipo</translation>
    </message>
    <message>
        <source>complete</source>
        <translation>completo</translation>
    </message>
    <message>
        <source>ends where it says, content not checked</source>
        <translation>termina onde indica, conteúdo não verificado</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>cortado</translation>
    </message>
    <message>
        <source>damaged</source>
        <translation>danificado</translation>
    </message>
    <message>
        <source>of unknown length</source>
        <translation>de tamanho desconhecido</translation>
    </message>
    <message numerus="yes">
        <source>put together from %1 pieces</source>
        <translation>
            <numerusform>montado a partir de %1 pedaço</numerusform>
            <numerusform>montado a partir de %1 pedaços</numerusform>
        </translation>
    </message>
    <message>
        <source>not all of its sectors could be read</source>
        <translation>nem todos os seus setores puderam ser lidos</translation>
    </message>
    <message>
        <source>%1 × %2 pixels</source>
        <translation>%1 × %2 pixels</translation>
    </message>
    <message>
        <source>taken %1-%2-%3</source>
        <translation>capturado em %1-%2-%3</translation>
    </message>
    <message>
        <source>“%1” lies on the medium that is to be copied; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>“%1” está na mídia a ser copiada; gravar ali sobrescreveria o que ainda está por encontrar. Escolha um local em outro disco.</translation>
    </message>
    <message>
        <source>%1. The copy will end there; the search goes on from the medium.</source>
        <translation>%1. A cópia terminará ali; a busca continua a partir da mídia.</translation>
    </message>
    <message>
        <source>Files on this disk can have 4 GB at most. The copy will end there; the search goes on from the medium.</source>
        <translation>Os arquivos deste disco podem ter no máximo 4 GB. A cópia terminará ali; a busca continua a partir da mídia.</translation>
    </message>
    <message>
        <source>The disk of the copy takes only %1 a second: a whole copy takes about %2 minutes.</source>
        <translation>O disco da cópia aceita apenas %1 por segundo: uma cópia completa leva cerca de %2 minutos.</translation>
    </message>
    <message>
        <source>1 bad sector</source>
        <translation>1 setor defeituoso</translation>
    </message>
    <message numerus="yes">
        <source>%1 bad sectors</source>
        <translation>
            <numerusform>%1 setor defeituoso</numerusform>
            <numerusform>%1 setores defeituosos</numerusform>
        </translation>
    </message>
    <message>
        <source>%1% copied</source>
        <translation>%1% copiado</translation>
    </message>
    <message>
        <source>reading around them</source>
        <translation>lendo ao redor deles</translation>
    </message>
    <message>
        <source>the medium is gone</source>
        <translation>a mídia não está mais presente</translation>
    </message>
    <message>
        <source>the copy has ended</source>
        <translation>a cópia terminou</translation>
    </message>
    <message>
        <source>another medium</source>
        <translation>outra mídia</translation>
    </message>
    <message>
        <source>%1 of %2 copied</source>
        <translation>%1 de %2 copiados</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors between bad ones left out</source>
        <translation>
            <numerusform>%1 setor entre defeituosos omitido</numerusform>
            <numerusform>%1 setores entre defeituosos omitidos</numerusform>
        </translation>
    </message>
    <message>
        <source>The folder %1 is not there.</source>
        <translation>A pasta %1 não existe.</translation>
    </message>
    <message>
        <source>%1 is not a folder.</source>
        <translation>%1 não é uma pasta.</translation>
    </message>
    <message>
        <source>Nothing can be written into the folder %1: %2.</source>
        <translation>Não é possível gravar na pasta %1: %2.</translation>
    </message>
    <message>
        <source>%1 lies on a FAT file system, which takes no file of 4 GiB or more, and %2 are needed</source>
        <translation>%1 está em um sistema de arquivos FAT, que não aceita arquivos de 4 GiB ou mais, e são necessários %2</translation>
    </message>
    <message>
        <source>There is not enough room in %1: %2 are needed, %3 are free</source>
        <translation>Não há espaço suficiente em %1: são necessários %2, há %3 livres</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>The folder %1 is no longer there</source>
        <translation>A pasta %1 não existe mais</translation>
    </message>
    <message>
        <source>The folder %1 lies on the medium that is searched</source>
        <translation>A pasta %1 está na mídia que é examinada</translation>
    </message>
    <message>
        <source>The medium cannot be read any more</source>
        <translation>A mídia não pode mais ser lida</translation>
    </message>
    <message>
        <source>None of its sectors could be read</source>
        <translation>Nenhum dos seus setores pôde ser lido</translation>
    </message>
    <message>
        <source>still there</source>
        <translation>ainda presente</translation>
    </message>
    <message>
        <source>deleted</source>
        <translation>excluído</translation>
    </message>
    <message>
        <source>its folder lost</source>
        <translation>sua pasta perdida</translation>
    </message>
    <message>
        <source>changed %1</source>
        <translation>alterado em %1</translation>
    </message>
    <message>
        <source>smaller than asked for</source>
        <translation>menor que o pedido</translation>
    </message>
    <message>
        <source>part of %1</source>
        <translation>parte de %1</translation>
    </message>
    <message>
        <source>still there as a file</source>
        <translation>ainda presente como arquivo</translation>
    </message>
    <message>
        <source>length estimated</source>
        <translation>tamanho estimado</translation>
    </message>
    <message numerus="yes">
        <source>%1 sectors unreadable</source>
        <translation>
            <numerusform>%1 setor ilegível</numerusform>
            <numerusform>%1 setores ilegíveis</numerusform>
        </translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Totais</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Salvo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completos</translation>
    </message>
    <message>
        <source>Ends where it says</source>
        <translation>Terminam onde indicam</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Cortados</translation>
    </message>
    <message>
        <source>Damaged</source>
        <translation>Danificados</translation>
    </message>
    <message>
        <source>Length unknown</source>
        <translation>Tamanho desconhecido</translation>
    </message>
    <message>
        <source>Duplicates</source>
        <translation>Duplicatas</translation>
    </message>
    <message>
        <source>Left out</source>
        <translation>Omitidos</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Com falha</translation>
    </message>
    <message>
        <source>left out: %1</source>
        <translation>omitido: %1</translation>
    </message>
    <message>
        <source>failed: %1</source>
        <translation>falhou: %1</translation>
    </message>
    <message>
        <source>same bytes as an earlier file; %1</source>
        <translation>mesmos bytes de um arquivo anterior; %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 a %2</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mídia</translation>
    </message>
    <message>
        <source>Sectors of 512 bytes</source>
        <translation>Setores de 512 bytes</translation>
    </message>
    <message>
        <source>Searched for</source>
        <translation>Buscado</translation>
    </message>
    <message>
        <source>Begun</source>
        <translation>Início</translation>
    </message>
    <message>
        <source>Ended</source>
        <translation>Fim</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Busca</translation>
    </message>
    <message>
        <source>Recovery report</source>
        <translation>Relatório de recuperação</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>On the card</source>
        <translation>No cartão</translation>
    </message>
    <message>
        <source>Taken</source>
        <translation>Capturado</translation>
    </message>
    <message>
        <source>Pixels</source>
        <translation>Pixels</translation>
    </message>
    <message>
        <source>Found in sectors</source>
        <translation>Encontrado nos setores</translation>
    </message>
    <message>
        <source>videos</source>
        <translation>vídeos</translation>
    </message>
    <message>
        <source>files</source>
        <translation>arquivos</translation>
    </message>
    <message>
        <source>photos</source>
        <translation>fotos</translation>
    </message>
    <message>
        <source>The report cannot be written into %1: %2</source>
        <translation>Não é possível gravar o relatório em %1: %2</translation>
    </message>
    <message>
        <source>Skipped</source>
        <translation>Pulado</translation>
    </message>
    <message>
        <source>Of these: %1.</source>
        <translation>Destes: %1.</translation>
    </message>
    <message>
        <source>%1 could not be saved:</source>
        <translation>Não foi possível salvar %1:</translation>
    </message>
    <message numerus="yes">
        <source>   and %1 more</source>
        <translation>
            <numerusform>   e mais %1</numerusform>
            <numerusform>   e mais %1</numerusform>
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
            <numerusform>%1 itens</numerusform>
        </translation>
    </message>
    <message>
        <source>Nothing new was saved.</source>
        <translation>Nada de novo foi salvo.</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Nada foi salvo.</translation>
    </message>
    <message>
        <source>1 file was saved.</source>
        <translation>1 arquivo foi salvo.</translation>
    </message>
    <message numerus="yes">
        <source>%1 files were saved.</source>
        <translation>
            <numerusform>%1 arquivo foi salvo.</numerusform>
            <numerusform>%1 arquivos foram salvos.</numerusform>
        </translation>
    </message>
    <message>
        <source>They are in %1.</source>
        <translation>Estão em %1.</translation>
    </message>
    <message>
        <source>%1 could only be read in part; what could not be read is filled with zeros.</source>
        <translation>Lidos apenas em parte: %1; o que não pôde ser lido é preenchido com zeros.</translation>
    </message>
    <message>
        <source>Left out: %1, %2.</source>
        <translation>Omitidos: %1, %2.</translation>
    </message>
    <message>
        <source>Not written again: %1, the same contents are saved already.</source>
        <translation>Não gravados novamente: %1, o mesmo conteúdo já está salvo.</translation>
    </message>
    <message>
        <source>smaller than you asked for</source>
        <translation>menores que o pedido</translation>
    </message>
    <message>
        <source>certainly no files of their type</source>
        <translation>certamente não são arquivos do seu tipo</translation>
    </message>
    <message>
        <source>still there as files on the card</source>
        <translation>ainda presentes como arquivos no cartão</translation>
    </message>
    <message>
        <source>parts of files that are saved whole</source>
        <translation>partes de arquivos que são salvos inteiros</translation>
    </message>
    <message>
        <source>The storage medium went away meanwhile. Put it back in and save again.</source>
        <translation>A mídia de armazenamento sumiu nesse meio-tempo. Recoloque-a e salve novamente.</translation>
    </message>
    <message>
        <source>The rest was not saved because you cancelled.</source>
        <translation>O resto não foi salvo porque o salvamento foi cancelado.</translation>
    </message>
    <message>
        <source>“%1” in the destination folder tells more of each file.</source>
        <translation>“%1” na pasta de destino diz mais sobre cada arquivo.</translation>
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
            <numerusform>%1 termina onde indica (conteúdo não verificado)</numerusform>
            <numerusform>%1 terminam onde indicam (conteúdo não verificado)</numerusform>
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
            <numerusform>%1 danificado</numerusform>
            <numerusform>%1 danificados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of unknown length</source>
        <translation>
            <numerusform>%1 de tamanho desconhecido</numerusform>
            <numerusform>%1 de tamanho desconhecido</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 saved in %2</source>
        <translation>%1 salvos em %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 saved in %2 (%3): %4</source>
        <translation>
            <numerusform>%1 salvo em %2 (%3): %4</numerusform>
            <numerusform>%1 salvos em %2 (%3): %4</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 under the names that the card still tells</source>
        <translation>
            <numerusform>%1 com o nome que o cartão ainda indica</numerusform>
            <numerusform>%1 com os nomes que o cartão ainda indica</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of them have sectors that could not be read</source>
        <translation>
            <numerusform>%1 deles tem setores que não puderam ser lidos</numerusform>
            <numerusform>%1 deles têm setores que não puderam ser lidos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 not written again: the same bytes are saved already</source>
        <translation>
            <numerusform>%1 não gravado novamente: os mesmos bytes já estão salvos</numerusform>
            <numerusform>%1 não gravados novamente: os mesmos bytes já estão salvos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: smaller than asked for</source>
        <translation>
            <numerusform>%1 omitido: menor que o pedido</numerusform>
            <numerusform>%1 omitidos: menores que o pedido</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: no files of their type</source>
        <translation>
            <numerusform>%1 omitido: não é um arquivo do seu tipo</numerusform>
            <numerusform>%1 omitidos: não são arquivos do seu tipo</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: still there as files on the card</source>
        <translation>
            <numerusform>%1 omitido: ainda presente como arquivo no cartão</numerusform>
            <numerusform>%1 omitidos: ainda presentes como arquivos no cartão</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: parts of files that are saved whole</source>
        <translation>
            <numerusform>%1 omitido: parte de um arquivo que é salvo inteiro</numerusform>
            <numerusform>%1 omitidos: partes de arquivos que são salvos inteiros</numerusform>
        </translation>
    </message>
    <message>
        <source>Sectors %1 of %2   ( Completed %3% )</source>
        <translation>Setores %1 de %2   ( %3% concluído )</translation>
    </message>
    <message>
        <source>
To select another disk for recovery, click on ‘Back’ Button.</source>
        <translation>
Para selecionar outro disco para recuperação, clique no botão “Voltar”.</translation>
    </message>
    <message>
        <source>a few seconds left</source>
        <translation>restam alguns segundos</translation>
    </message>
    <message>
        <source>about %1 s left</source>
        <translation>restam cerca de %1 s</translation>
    </message>
    <message>
        <source>about %1 min left</source>
        <translation>restam cerca de %1 min</translation>
    </message>
    <message>
        <source>about %1 h left</source>
        <translation>restam cerca de %1 h</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>1 item found</source>
        <translation>1 item encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%1 items found</source>
        <translation>
            <numerusform>%1 item encontrado</numerusform>
            <numerusform>%1 itens encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor General Recovery Procedure )</source>
        <translation>( Busca em andamento segundo: procedimento geral de recuperação do Vantor )</translation>
    </message>
    <message>
        <source>( Currently performing Search based on: Vantor Thorough Scanning Alogrithm )</source>
        <translation>( Busca em andamento segundo: algoritmo de busca minuciosa do Vantor )</translation>
    </message>
    <message>
        <source>
To stop recovery, click on ‘Stop’ Button or please wait for the process to be completed.</source>
        <translation>
Para parar a recuperação, clique no botão “Parar”, ou aguarde a conclusão do processo.</translation>
    </message>
    <message>
        <source>
Error in storage media reading.</source>
        <translation>
Erro ao ler a mídia de armazenamento.</translation>
    </message>
    <message>
        <source>sector %1 of %2</source>
        <translation>setor %1 de %2</translation>
    </message>
    <message>
        <source>The thorough search</source>
        <translation>A busca minuciosa</translation>
    </message>
    <message>
        <source>The search</source>
        <translation>A busca</translation>
    </message>
    <message>
        <source>%1 was broken off at %2.</source>
        <translation>%1 foi interrompida (%2).</translation>
    </message>
    <message>
        <source>The search has completed.</source>
        <translation>A busca foi concluída.</translation>
    </message>
    <message>
        <source>The search has completed, but 1 sector could not be read.</source>
        <translation>A busca foi concluída, mas 1 setor não pôde ser lido.</translation>
    </message>
    <message numerus="yes">
        <source>The search has completed, but %1 sectors could not be read.</source>
        <translation>
            <numerusform>A busca foi concluída, mas %1 setor não pôde ser lido.</numerusform>
            <numerusform>A busca foi concluída, mas %1 setores não puderam ser lidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>%1 was stopped at %2 % (%3).</source>
        <translation>%1 foi parada em %2 % (%3).</translation>
    </message>
    <message>
        <source>The medium could not be opened again for the thorough search.</source>
        <translation>Não foi possível reabrir a mídia para a busca minuciosa.</translation>
    </message>
    <message>
        <source>The medium could not be opened.</source>
        <translation>Não foi possível abrir a mídia.</translation>
    </message>
    <message>
        <source>%1 had nothing to look for.</source>
        <translation>%1 não tinha nada a buscar.</translation>
    </message>
    <message>
        <source>The medium was taken out or stopped answering at %1.</source>
        <translation>A mídia foi retirada ou parou de responder (%1).</translation>
    </message>
    <message>
        <source>%1 ended with a read error at %2.</source>
        <translation>%1 terminou com um erro de leitura (%2).</translation>
    </message>
    <message>
        <source>The general search before it was complete.</source>
        <translation>A busca geral anterior foi completa.</translation>
    </message>
    <message>
        <source>Put the medium back in.</source>
        <translation>Recoloque a mídia.</translation>
    </message>
    <message>
        <source>It is not a search that this program has kept.</source>
        <translation>Não é uma busca guardada por este programa.</translation>
    </message>
    <message>
        <source>The file is damaged.</source>
        <translation>O arquivo está danificado.</translation>
    </message>
    <message>
        <source>“%1” is empty: it holds no whole sector.</source>
        <translation>“%1” está vazio: não contém nenhum setor inteiro.</translation>
    </message>
    <message>
        <source>Searched all the same; only what is stored unpacked can be found.</source>
        <translation>Examinado mesmo assim; só pode ser encontrado o que está armazenado sem compactação.</translation>
    </message>
    <message>
        <source>Of %1 sectors of “%2” %3 were not read, says its map.</source>
        <translation>De %1 setores de “%2”, %3 não foram lidos, segundo o seu arquivo map.</translation>
    </message>
    <message>
        <source>“%1” is neither a file nor a storage medium of this machine.</source>
        <translation>“%1” não é nem um arquivo nem uma mídia de armazenamento deste computador.</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the medium cannot be opened.</source>
        <translation>Os arquivos quebrados foram deixados como estão: não é possível abrir a mídia.</translation>
    </message>
    <message>
        <source>%1 of %2 broken movies completed, %3 more put together: please look</source>
        <translation>%1 de %2 vídeos quebrados completados, mais %3 montados: convém verificar</translation>
    </message>
    <message>
        <source>%1 of %2 broken photos completed, %3 more put together: please look</source>
        <translation>%1 de %2 fotos quebradas completadas, mais %3 montadas: convém verificar</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is completed</source>
        <translation>No modo de fotos não são buscados vídeos, portanto nenhum é completado</translation>
    </message>
    <message>
        <source>Movies are not searched for in photo mode, so none is repaired</source>
        <translation>No modo de fotos não são buscados vídeos, portanto nenhum é reparado</translation>
    </message>
    <message numerus="yes">
        <source>%1: complete, from %2 pieces</source>
        <translation>
            <numerusform>%1: completo, a partir de %2 pedaço</numerusform>
            <numerusform>%1: completo, a partir de %2 pedaços</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1: put together from %2 pieces, please look</source>
        <translation>
            <numerusform>%1: montado a partir de %2 pedaço, convém verificar</numerusform>
            <numerusform>%1: montado a partir de %2 pedaços, convém verificar</numerusform>
        </translation>
    </message>
    <message>
        <source>Copy the medium into this image file while it is searched, each sector read once; searching and saving then read the copy. FILE.map says what was read. A copy that is there already is gone on with, also one of GNU ddrescue.</source>
        <translation>Copiar a mídia para este arquivo de imagem durante a busca, lendo cada setor uma só vez; a busca e o salvamento leem depois a cópia. FILE.map indica o que foi lido. Uma cópia já existente é continuada, também uma do GNU ddrescue.</translation>
    </message>
    <message>
        <source>With --image: read also the sectors that lie between bad ones far apart, one by one; may take very long.</source>
        <translation>Com --image: ler também, um a um, os setores que ficam entre setores defeituosos distantes; pode demorar muito.</translation>
    </message>
    <message>
        <source>The map of the image MEDIUM, as GNU ddrescue writes it: what it does not call rescued counts as unreadable. Without this the map beside the image is used, if there is one (card.img.map, card.map, also .mapfile and .log).</source>
        <translation>O arquivo map da imagem MEDIUM, como o GNU ddrescue o grava: o que ele não indica como resgatado conta como ilegível. Sem isto é usado o arquivo map ao lado da imagem, se houver (card.img.map, card.map, também .mapfile e .log).</translation>
    </message>
    <message>
        <source>--map takes a file.</source>
        <translation>--map requer um arquivo.</translation>
    </message>
    <message>
        <source>--image takes a file.</source>
        <translation>--image requer um arquivo.</translation>
    </message>
    <message>
        <source>--scrape goes with --image.</source>
        <translation>--scrape acompanha --image.</translation>
    </message>
    <message>
        <source>The signature catalogues are not those that it was begun with.</source>
        <translation>Os catálogos de assinaturas não são aqueles com que ela foi iniciada.</translation>
    </message>
    <message>
        <source>The medium %1 cannot be opened.</source>
        <translation>Não é possível abrir a mídia %1.</translation>
    </message>
    <message>
        <source>%1 is not the medium that was searched.</source>
        <translation>%1 não é a mídia que foi examinada.</translation>
    </message>
    <message>
        <source>The medium cannot be opened.</source>
        <translation>Não é possível abrir a mídia.</translation>
    </message>
    <message>
        <source>The medium&apos;s directories could not be read.</source>
        <translation>Não foi possível ler os diretórios da mídia.</translation>
    </message>
    <message>
        <source>Names of files, and files that only the directories tell of, may be missing.</source>
        <translation>Podem faltar nomes de arquivos e arquivos que só os diretórios indicam.</translation>
    </message>
    <message>
        <source>There is not enough memory to go on. What was saved until now is whole.</source>
        <translation>Não há memória suficiente para continuar. O que foi salvo até agora está inteiro.</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Sectors</source>
        <translation>Setores</translation>
    </message>
    <message>
        <source>No storage medium found. Put in a card or stick, or name an image file instead.</source>
        <translation>Nenhuma mídia de armazenamento encontrada. Insira um cartão ou pen drive, ou indique um arquivo de imagem.</translation>
    </message>
    <message>
        <source>The movie %1 cannot be read.</source>
        <translation>Não é possível ler o vídeo %1.</translation>
    </message>
    <message>
        <source>%1 is no whole MP4 or QuickTime movie of a kind that can be repaired.</source>
        <translation>%1 não é um vídeo MP4 ou QuickTime inteiro de um tipo que possa ser reparado.</translation>
    </message>
    <message>
        <source>%1 of %2 movies without an index repaired</source>
        <translation>%1 de %2 vídeos sem índice reparados</translation>
    </message>
    <message>
        <source>%1: no whole movie of its camera was found</source>
        <translation>%1: nenhum vídeo inteiro da sua câmera foi encontrado</translation>
    </message>
    <message>
        <source>%1: no picture found</source>
        <translation>%1: nenhuma imagem encontrada</translation>
    </message>
    <message>
        <source>%1: %2 pictures, %3 s, and %4 s of sound, as in %5</source>
        <translation>%1: %2 imagens, %3 s, e %4 s de áudio, como em %5</translation>
    </message>
    <message>
        <source>
Exit codes: 0 completed, 2 bad usage, 3 stopped, 4 the medium could not be read to the end, 5 the medium cannot
be opened, 6 something found could not be saved.
Ctrl-C ends the search as the Stop button does: all that was found until then is kept and saved.
The medium is only ever read.
</source>
        <translation>
Códigos de saída: 0 concluído, 2 uso incorreto, 3 parado, 4 a mídia não pôde ser lida até o fim, 5 a mídia não pode
ser aberta, 6 algo encontrado não pôde ser salvo.
Ctrl-C encerra a busca como o botão Parar: tudo o que foi encontrado até então é mantido e salvo.
A mídia é somente lida.
</translation>
    </message>
    <message>
        <source>
Try --help.</source>
        <translation>
Tente --help.</translation>
    </message>
    <message>
        <source>Finds photos, videos and other files on a storage medium by the bytes that begin them.</source>
        <translation>Encontra fotos, vídeos e outros arquivos em uma mídia de armazenamento pelos bytes com que começam.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Mostrar esta ajuda.</translation>
    </message>
    <message>
        <source>Show the version.</source>
        <translation>Mostrar a versão.</translation>
    </message>
    <message>
        <source>What to look for: photo (default), video or rawfile.</source>
        <translation>O que buscar: photo (padrão), video ou rawfile.</translation>
    </message>
    <message>
        <source>Only these file types, comma-separated (video and rawfile modes): extensions, or @photos, @office, @phone, @recorder, @everything.</source>
        <translation>Somente estes tipos de arquivo, separados por vírgulas (modos video e rawfile): extensões, ou @photos, @office, @phone, @recorder, @everything.</translation>
    </message>
    <message>
        <source>Only the sectors from START up to, not including, END.</source>
        <translation>Somente os setores de START até END, sem incluir END.</translation>
    </message>
    <message>
        <source>Leave out the thorough pass of photo mode.</source>
        <translation>Omitir a passagem minuciosa do modo de fotos.</translation>
    </message>
    <message>
        <source>Ask the medium again for bad sectors in the thorough pass and for saving.</source>
        <translation>Pedir novamente à mídia os setores defeituosos na passagem minuciosa e ao salvar.</translation>
    </message>
    <message>
        <source>Keep the search in FILE, so that --resume can go on with it.</source>
        <translation>Guardar a busca em FILE, para que --resume possa continuá-la.</translation>
    </message>
    <message>
        <source>Go on with the search kept in FILE; MEDIUM may be left out.</source>
        <translation>Continuar a busca guardada em FILE; MEDIUM pode ser omitido.</translation>
    </message>
    <message>
        <source>Folder of the six signature catalogues.</source>
        <translation>Pasta dos seis catálogos de assinaturas.</translation>
    </message>
    <message>
        <source>Print one JSON object a found item, and one for the end.</source>
        <translation>Escrever um objeto JSON por item encontrado e um para o fim.</translation>
    </message>
    <message>
        <source>Print the storage media of this machine (with --list-json as JSON) and search nothing.</source>
        <translation>Listar as mídias de armazenamento deste computador (com --list-json, em JSON) e não buscar nada.</translation>
    </message>
    <message>
        <source>Print what the medium&apos;s own directories tell of its files, those that are there and those that were, as one JSON object each, and search nothing.</source>
        <translation>Escrever o que os próprios diretórios da mídia dizem dos seus arquivos, os que estão lá e os que estiveram, cada um como um objeto JSON, e não buscar nada.</translation>
    </message>
    <message>
        <source>Print what --types can choose from in this mode, and search nothing.</source>
        <translation>Listar o que --types pode escolher neste modo e não buscar nada.</translation>
    </message>
    <message>
        <source>Say nothing but what went wrong, and no progress.</source>
        <translation>Não dizer nada além do que deu errado, e nenhum progresso.</translation>
    </message>
    <message>
        <source>Speak this language (en, de, fr, es, it, pt_BR, nl, pl, ja or zh_CN) in place of the desktop&apos;s; with --list-json it is English always.</source>
        <translation>Falar este idioma (en, de, fr, es, it, pt_BR, nl, pl, ja ou zh_CN) em vez do idioma da área de trabalho; com --list-json é sempre inglês.</translation>
    </message>
    <message>
        <source>An image file, a device&apos;s identifier (sdb1) or its path (/dev/sdb1).</source>
        <translation>Um arquivo de imagem, o identificador de um dispositivo (sdb1) ou seu caminho (/dev/sdb1).</translation>
    </message>
    <message>
        <source>Unknown mode &quot;%1&quot;.</source>
        <translation>Modo desconhecido “%1”.</translation>
    </message>
    <message>
        <source>What to search for stands in the file of --resume.</source>
        <translation>O que buscar está no arquivo de --resume.</translation>
    </message>
    <message>
        <source>No file given to keep the search in.</source>
        <translation>Nenhum arquivo indicado para guardar a busca.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --types goes with video or rawfile.</source>
        <translation>O modo de fotos busca todos os seus tipos; --types acompanha video ou rawfile.</translation>
    </message>
    <message>
        <source>--range takes START:END.</source>
        <translation>--range requer START:END.</translation>
    </message>
    <message>
        <source>Photo mode searches for all its types; --list-types goes with video or rawfile.</source>
        <translation>O modo de fotos busca todos os seus tipos; --list-types acompanha video ou rawfile.</translation>
    </message>
    <message>
        <source>--list-types takes no medium.</source>
        <translation>--list-types não aceita mídia.</translation>
    </message>
    <message>
        <source>--list-media takes no medium.</source>
        <translation>--list-media não aceita mídia.</translation>
    </message>
    <message>
        <source>No medium given.</source>
        <translation>Nenhuma mídia indicada.</translation>
    </message>
    <message>
        <source>More than one medium given.</source>
        <translation>Mais de uma mídia indicada.</translation>
    </message>
    <message>
        <source>Completing broken files: %1 of %2</source>
        <translation>Completando arquivos quebrados: %1 de %2</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched; saving there would overwrite what is still to be found. Choose a folder on another disk.</source>
        <translation>%1 está na mídia a ser examinada; salvar ali sobrescreveria o que ainda está por encontrar. Escolha uma pasta em outro disco.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be written to.</source>
        <translation>Não é possível gravar na pasta %1.</translation>
    </message>
    <message>
        <source>%1 cannot be copied: its size is not known.</source>
        <translation>Não é possível copiar %1: seu tamanho é desconhecido.</translation>
    </message>
    <message>
        <source>The folder %1 holds no signature catalogue that can be read.</source>
        <translation>A pasta %1 não contém nenhum catálogo de assinaturas que possa ser lido.</translation>
    </message>
    <message>
        <source>No such file type in this mode: %1</source>
        <translation>Não há esse tipo de arquivo neste modo: %1</translation>
    </message>
    <message>
        <source>Searched all the same.</source>
        <translation>Examinado mesmo assim.</translation>
    </message>
    <message>
        <source>%1 lies on the medium that is to be searched.</source>
        <translation>%1 está na mídia a ser examinada.</translation>
    </message>
    <message>
        <source>The search cannot go on. %1</source>
        <translation>A busca não pode continuar. %1</translation>
    </message>
    <message>
        <source>The search could not be kept in %1: %2</source>
        <translation>Não foi possível guardar a busca em %1: %2</translation>
    </message>
    <message>
        <source>Save what is found as DIR/&lt;type&gt;/&lt;name&gt;, each file as long as its format says and the same bytes once; nothing is overwritten.</source>
        <translation>Salvar o que é encontrado como DIR/&lt;type&gt;/&lt;name&gt;, cada arquivo tão longo quanto seu formato indica e os mesmos bytes uma só vez; nada é sobrescrito.</translation>
    </message>
    <message>
        <source>Save the sectors of each found item as they are listed, no more and no fewer.</source>
        <translation>Salvar os setores de cada item encontrado como estão listados, nem mais nem menos.</translation>
    </message>
    <message>
        <source>Write &quot;Recovery report.html&quot; and &quot;Recovery report.csv&quot; beside the saved files.</source>
        <translation>Gravar “Recovery report.html” e “Recovery report.csv” ao lado dos arquivos salvos.</translation>
    </message>
    <message>
        <source>original (default): save under the names that the card&apos;s directory still tells, where it does; found: under the listed names.</source>
        <translation>original (padrão): salvar com os nomes que o diretório do cartão ainda indica, onde os indica; found: com os nomes listados.</translation>
    </message>
    <message>
        <source>card (default): save in the folders that the card&apos;s directory still tells, and what it does not tell in DIR/&lt;type&gt;; type: all in DIR/&lt;type&gt;; date: as DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; where a date is known.</source>
        <translation>card (padrão): salvar nas pastas que o diretório do cartão ainda indica, e o que ele não indica em DIR/&lt;type&gt;; type: tudo em DIR/&lt;type&gt;; date: como DIR/&lt;type&gt;/&lt;date&gt;/&lt;date and time&gt; &lt;name&gt; quando a data é conhecida.</translation>
    </message>
    <message>
        <source>Do not save what the card still holds as a file.</source>
        <translation>Não salvar o que o cartão ainda contém como arquivo.</translation>
    </message>
    <message>
        <source>The same as --folders date.</source>
        <translation>O mesmo que --folders date.</translation>
    </message>
    <message>
        <source>Do not save files of fewer bytes.</source>
        <translation>Não salvar arquivos com menos bytes.</translation>
    </message>
    <message>
        <source>Do not save pictures whose longer side has fewer pixels.</source>
        <translation>Não salvar imagens cujo lado maior tenha menos pixels.</translation>
    </message>
    <message>
        <source>Save the same bytes again when they are found again.</source>
        <translation>Salvar novamente os mesmos bytes quando forem encontrados novamente.</translation>
    </message>
    <message>
        <source>Do not save what is certainly no file of its type.</source>
        <translation>Não salvar o que certamente não é um arquivo do seu tipo.</translation>
    </message>
    <message>
        <source>Save parts of files too, such as a picture&apos;s preview or a member of an archive: what lies wholly inside a file that was proved complete, and is left out else.</source>
        <translation>Salvar também partes de arquivos, como a prévia de uma imagem ou um membro de um arquivo compactado: o que fica inteiramente dentro de um arquivo comprovadamente completo, e que do contrário é omitido.</translation>
    </message>
    <message>
        <source>Write a playable twin, &quot;... repaired.MP4&quot;, of each MP4, QuickTime or AVI movie whose index was never written; for MP4 and QuickTime a whole movie of the same camera has to be found as well.</source>
        <translation>Gravar um gêmeo reproduzível, “... repaired.MP4”, de cada vídeo MP4, QuickTime ou AVI cujo índice nunca foi gravado; para MP4 e QuickTime também é preciso encontrar um vídeo inteiro da mesma câmera.</translation>
    </message>
    <message>
        <source>A whole movie of the camera, in place of those that are found (with --repair-movies).</source>
        <translation>Um vídeo inteiro da câmera, em vez dos que forem encontrados (com --repair-movies).</translation>
    </message>
    <message>
        <source>--save takes a folder.</source>
        <translation>--save requer uma pasta.</translation>
    </message>
    <message>
        <source>--%1 goes with --save.</source>
        <translation>--%1 acompanha --save.</translation>
    </message>
    <message>
        <source>--as-published looks into no file, so it knows neither names nor dates nor pixels nor soundness.</source>
        <translation>--as-published não examina nenhum arquivo, portanto não conhece nomes, datas, pixels nem estado.</translation>
    </message>
    <message>
        <source>--names takes original or found.</source>
        <translation>--names requer original ou found.</translation>
    </message>
    <message>
        <source>--folders takes card, type or date.</source>
        <translation>--folders requer card, type ou date.</translation>
    </message>
    <message>
        <source>--by-date is --folders date.</source>
        <translation>--by-date é --folders date.</translation>
    </message>
    <message>
        <source>--reference goes with --repair-movies.</source>
        <translation>--reference acompanha --repair-movies.</translation>
    </message>
    <message>
        <source>--min-bytes and --min-pixels take a number.</source>
        <translation>--min-bytes e --min-pixels requerem um número.</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>mais %1 arquivo conhecido só pelo diretório do cartão</numerusform>
            <numerusform>mais %1 arquivos conhecidos só pelo diretório do cartão</numerusform>
        </translation>
    </message>
    <message>
        <source>  and others</source>
        <translation>  e outros</translation>
    </message>
    <message>
        <source>Report: %1</source>
        <translation>Relatório: %1</translation>
    </message>
    <message>
        <source>To go on from there: --resume %1</source>
        <translation>Para continuar dali: --resume %1</translation>
    </message>
    <message>
        <source>To go on from there: --range %1:%2</source>
        <translation>Para continuar dali: --range %1:%2</translation>
    </message>
    <message>
        <source>What was found cannot be written to the standard output.</source>
        <translation>O que foi encontrado não pode ser escrito na saída padrão.</translation>
    </message>
    <message>
        <source>Not all items could be read once more; those have no checksum.</source>
        <translation>Nem todos os itens puderam ser lidos mais uma vez; esses não têm soma de verificação.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Cópia: %1</translation>
    </message>
    <message>
        <source>search the entire disk</source>
        <translation>examinar o disco inteiro</translation>
    </message>
    <message>
        <source>select more file types</source>
        <translation>selecionar mais tipos de arquivo</translation>
    </message>
    <message>
        <source>switch the thorough search on</source>
        <translation>ativar a busca minuciosa</translation>
    </message>
    <message>
        <source>look for Video or Raw File types</source>
        <translation>buscar tipos de Vídeo ou Arquivo bruto</translation>
    </message>
    <message>
        <source>No photos found yet</source>
        <translation>Nenhuma foto encontrada ainda</translation>
    </message>
    <message>
        <source>They appear here as the search goes on.</source>
        <translation>Elas aparecem aqui à medida que a busca avança.</translation>
    </message>
    <message>
        <source>Nothing found yet</source>
        <translation>Nada encontrado ainda</translation>
    </message>
    <message>
        <source>Items appear here as the search goes on.</source>
        <translation>Os itens aparecem aqui à medida que a busca avança.</translation>
    </message>
    <message>
        <source>No photos were found</source>
        <translation>Nenhuma foto foi encontrada</translation>
    </message>
    <message>
        <source>Nothing was found</source>
        <translation>Nada foi encontrado</translation>
    </message>
    <message>
        <source>All of it was searched for all types. Try another medium.</source>
        <translation>Tudo foi examinado para todos os tipos. Tente outra mídia.</translation>
    </message>
    <message>
        <source>You can go back and %1.</source>
        <translation>É possível voltar e %1.</translation>
    </message>
    <message>
        <source>You can go back and %1, or %2.</source>
        <translation>É possível voltar e %1, ou %2.</translation>
    </message>
    <message>
        <source>None of the found items is like that</source>
        <translation>Nenhum dos itens encontrados é assim</translation>
    </message>
    <message>
        <source>Click “All items” on the left and clear the search field to see all that was found: %1.</source>
        <translation>Clique em “Todos os itens” à esquerda e limpe o campo de busca para ver tudo o que foi encontrado: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this kind</source>
        <translation>Nenhum dos itens encontrados é dessa espécie</translation>
    </message>
    <message>
        <source>Choose “All items” above to see all that was found: %1.</source>
        <translation>Escolha “Todos os itens” acima para ver tudo o que foi encontrado: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type</source>
        <translation>Nenhum dos itens encontrados é desse tipo</translation>
    </message>
    <message>
        <source>Press “Show All Types” to see all that was found: %1.</source>
        <translation>Pressione “Todos os tipos” para ver tudo o que foi encontrado: %1.</translation>
    </message>
    <message>
        <source>None of the found items is of this type and kind</source>
        <translation>Nenhum dos itens encontrados é desse tipo e espécie</translation>
    </message>
    <message>
        <source>Press “Show All Types” and choose “All items” above to see all that was found: %1.</source>
        <translation>Pressione “Todos os tipos” e escolha “Todos os itens” acima para ver tudo o que foi encontrado: %1.</translation>
    </message>
    <message>
        <source>Date not known</source>
        <translation>Data desconhecida</translation>
    </message>
    <message>
        <source>ddd, MMM d, yyyy</source>
        <comment>date format, as QLocale takes it</comment>
        <translation>ddd, d MMM yyyy</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Imagens</translation>
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
        <translation>1 arquivo encontrado</translation>
    </message>
    <message numerus="yes">
        <source>%1 files found</source>
        <translation>
            <numerusform>%1 arquivo encontrado</numerusform>
            <numerusform>%1 arquivos encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>“%1”, %2: %3 % read, %4.</source>
        <translation>“%1”, %2: %3 % lido, %4.</translation>
    </message>
    <message>
        <source>Choose the destination folder</source>
        <translation>Escolher a pasta de destino</translation>
    </message>
    <message>
        <source>Copyright 2026 Vantor Recovery maintainers

Free software under the GNU General Public License, version 3 or later: you may use, study, share and change it. It comes without any warranty.

Made with %1.

Running on %2.</source>
        <translation>Copyright 2026 Vantor Recovery maintainers

Software livre sob a Licença Pública Geral GNU, versão 3 ou posterior: é permitido usar, estudar, compartilhar e modificar. É fornecido sem qualquer garantia.

Feito com %1.

Executando em %2.</translation>
    </message>
    <message>
        <source>Disk				:</source>
        <translation>Disco				:</translation>
    </message>
    <message>
        <source>Volume Name	:</source>
        <translation>Nome do volume	:</translation>
    </message>
    <message>
        <source>File System		:</source>
        <translation>Sistema de arquivos		:</translation>
    </message>
    <message>
        <source>Capacity (size)	:</source>
        <translation>Capacidade (tamanho)	:</translation>
    </message>
    <message>
        <source>Start Sector		:</source>
        <translation>Setor inicial		:</translation>
    </message>
    <message>
        <source>End Sector		:</source>
        <translation>Setor final		:</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nenhum&gt;</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mais de %1</translation>
    </message>
    <message>
        <source>sector %1</source>
        <translation>setor %1</translation>
    </message>
    <message>
        <source>sectors %1 to %2</source>
        <translation>setores %1 a %2</translation>
    </message>
    <message>
        <source>from sector %1, in pieces</source>
        <translation>a partir do setor %1, em pedaços</translation>
    </message>
    <message>
        <source>some</source>
        <translation>alguns</translation>
    </message>
    <message>
        <source>none</source>
        <translation>nenhum</translation>
    </message>
    <message>
        <source>not examined yet</source>
        <translation>ainda não examinado</translation>
    </message>
    <message>
        <source>Name on the card</source>
        <translation>Nome no cartão</translation>
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
        <translation>Duração</translation>
    </message>
    <message>
        <source>Pieces</source>
        <translation>Pedaços</translation>
    </message>
    <message>
        <source>Unreadable sectors</source>
        <translation>Setores ilegíveis</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>sim</translation>
    </message>
    <message>
        <source>not yet</source>
        <translation>ainda não</translation>
    </message>
    <message>
        <source>Search Type : Recover Video</source>
        <translation>Tipo de busca: recuperar vídeos</translation>
    </message>
    <message>
        <source>Search Type : Recover Raw File</source>
        <translation>Tipo de busca: recuperar arquivos brutos</translation>
    </message>
    <message>
        <source>Search Type : Recover Photo</source>
        <translation>Tipo de busca: recuperar fotos</translation>
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
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>No pictures: this system cannot shut decoders in (it has no seccomp filters), and nothing from a medium is decoded outside.</source>
        <translation>Sem imagens: este sistema não consegue isolar decodificadores (não tem filtros seccomp), e nada de uma mídia é decodificado fora do isolamento.</translation>
    </message>
    <message>
        <source>No pictures: the program that decodes them does not start. Install the program again.</source>
        <translation>Sem imagens: o programa que as decodifica não inicia. Instale o programa novamente.</translation>
    </message>
    <message>
        <source>No picture: documents are drawn inside bubblewrap alone, which is not installed or may not run on this system.</source>
        <translation>Sem imagem: documentos são desenhados somente dentro do bubblewrap, que não está instalado ou não pode ser executado neste sistema.</translation>
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
        <translation>Exporte-o primeiro como imagem bruta (dd) ou E01 e abra essa imagem.</translation>
    </message>
    <message>
        <source>It holds single files rather than a storage medium. Please open an image of the medium.</source>
        <translation>Ele contém arquivos avulsos, e não uma mídia de armazenamento. Abra uma imagem da mídia.</translation>
    </message>
    <message numerus="yes">
        <source>Complete, put together from %1 pieces</source>
        <translation>
            <numerusform>Completo, montado a partir de %1 pedaço</numerusform>
            <numerusform>Completo, montado a partir de %1 pedaços</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Put together from %1 pieces: please look</source>
        <translation>
            <numerusform>Montado a partir de %1 pedaço: convém verificar</numerusform>
            <numerusform>Montado a partir de %1 pedaços: convém verificar</numerusform>
        </translation>
    </message>
    <message>
        <source>Repaired: %1 pictures, %2 s, and %3 s of sound, as in %4</source>
        <translation>Reparado: %1 imagens, %2 s, e %3 s de áudio, como em %4</translation>
    </message>
    <message numerus="yes">
        <source>%1 put together or repaired (please look)</source>
        <translation>
            <numerusform>%1 montado ou reparado (convém verificar)</numerusform>
            <numerusform>%1 montados ou reparados (convém verificar)</numerusform>
        </translation>
    </message>
    <message>
        <source>repaired</source>
        <translation>reparado</translation>
    </message>
    <message numerus="yes">
        <source>%1 pieces</source>
        <translation>
            <numerusform>%1 pedaço</numerusform>
            <numerusform>%1 pedaços</numerusform>
        </translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Reconstruído</translation>
    </message>
    <message>
        <source>Pixels not known</source>
        <translation>Pixels desconhecidos</translation>
    </message>
    <message>
        <source>Under 1 megapixel</source>
        <translation>Menos de 1 megapixel</translation>
    </message>
    <message>
        <source>1 to 4 megapixels</source>
        <translation>1 a 4 megapixels</translation>
    </message>
    <message>
        <source>4 to 12 megapixels</source>
        <translation>4 a 12 megapixels</translation>
    </message>
    <message>
        <source>12 to 30 megapixels</source>
        <translation>12 a 30 megapixels</translation>
    </message>
    <message>
        <source>Over 30 megapixels</source>
        <translation>Mais de 30 megapixels</translation>
    </message>
    <message>
        <source>%1 · %2</source>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmera</translation>
    </message>
    <message>
        <source>Press “Go On” to search the rest.</source>
        <translation>Pressione “Continuar” para buscar no restante.</translation>
    </message>
    <message>
        <source>%1 of %2 broken documents and archives completed, %3 more put together: please look</source>
        <translation>%1 de %2 documentos e arquivos compactados quebrados completados, mais %3 montados: convém verificar</translation>
    </message>
    <message>
        <source>Put MP4, QuickTime and AVI movies, JPEG or PNG pictures, ZIP archives and office documents together that lie in pieces, as &quot;... complete.MP4&quot;, or as &quot;... put together.MP4&quot; where it could not be proved that all pieces are the right ones.</source>
        <translation>Montar os vídeos MP4, QuickTime e AVI, as imagens JPEG ou PNG, os arquivos ZIP e os documentos de escritório que estão em pedaços, como “... complete.MP4”, ou como “... put together.MP4” quando não foi possível provar que todos os pedaços são os corretos.</translation>
    </message>
    <message numerus="yes">
        <source>%1 left out: all that only the card&apos;s directory tells of would fill the card more than twice</source>
        <translation>
            <numerusform>%1 omitido: tudo o que só o diretório do cartão conhece encheria o cartão mais de duas vezes</numerusform>
            <numerusform>%1 omitidos: tudo o que só o diretório do cartão conhece encheria o cartão mais de duas vezes</numerusform>
        </translation>
    </message>
    <message>
        <source>Checking the content of saved files: %1 of %2</source>
        <translation>Verificando o conteúdo dos arquivos salvos: %1 de %2</translation>
    </message>
    <message>
        <source>Length not known</source>
        <translation>Duração desconhecida</translation>
    </message>
    <message>
        <source>Under 10 seconds</source>
        <translation>Menos de 10 segundos</translation>
    </message>
    <message>
        <source>10 seconds to 1 minute</source>
        <translation>10 segundos a 1 minuto</translation>
    </message>
    <message>
        <source>1 to 5 minutes</source>
        <translation>1 a 5 minutos</translation>
    </message>
    <message>
        <source>5 to 30 minutes</source>
        <translation>5 a 30 minutos</translation>
    </message>
    <message>
        <source>Over 30 minutes</source>
        <translation>Mais de 30 minutos</translation>
    </message>
    <message>
        <source>The disk is full</source>
        <translation>O disco está cheio</translation>
    </message>
    <message>
        <source>Your share of the disk is used up</source>
        <translation>A sua parte do disco se esgotou</translation>
    </message>
    <message>
        <source>The disk can only be read</source>
        <translation>O disco só pode ser lido</translation>
    </message>
    <message>
        <source>The disk holds no file that is this long</source>
        <translation>O disco não aceita nenhum arquivo tão longo</translation>
    </message>
    <message>
        <source>The disk reports an error</source>
        <translation>O disco informa um erro</translation>
    </message>
    <message>
        <source>You do not have the right to do this</source>
        <translation>Você não tem o direito de fazer isso</translation>
    </message>
    <message>
        <source>The name is too long</source>
        <translation>O nome é longo demais</translation>
    </message>
    <message>
        <source>There is nothing of this name</source>
        <translation>Não há nada com esse nome</translation>
    </message>
    <message>
        <source>The device is not there</source>
        <translation>O dispositivo não está presente</translation>
    </message>
    <message>
        <source>There is no medium in the device</source>
        <translation>Não há mídia no dispositivo</translation>
    </message>
    <message>
        <source>The folder %1 leads elsewhere</source>
        <translation>A pasta %1 leva a outro lugar</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created: %2</source>
        <translation>Não é possível criar a pasta %1: %2</translation>
    </message>
</context>
<context>
    <name>RangeScreen</name>
    <message>
        <source>Searching criteria</source>
        <translation>Critérios de busca</translation>
    </message>
    <message>
        <source>Entire Disk</source>
        <translation>Disco inteiro</translation>
    </message>
    <message>
        <source>Search every sector of the medium. Best when you are not sure.</source>
        <translation>Examinar todos os setores da mídia. A melhor opção em caso de dúvida.</translation>
    </message>
    <message>
        <source>Entire disk</source>
        <translation>Disco inteiro</translation>
    </message>
    <message>
        <source>Sector Range</source>
        <translation>Intervalo de setores</translation>
    </message>
    <message>
        <source>Search only between two sectors that you give.</source>
        <translation>Buscar somente entre dois setores informados.</translation>
    </message>
    <message>
        <source>Sector range</source>
        <translation>Intervalo de setores</translation>
    </message>
    <message>
        <source>Storage medium</source>
        <translation>Mídia de armazenamento</translation>
    </message>
    <message>
        <source>&lt;None&gt;</source>
        <translation>&lt;Nenhum&gt;</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disco</translation>
    </message>
    <message>
        <source>Volume name</source>
        <translation>Nome do volume</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>Capacity</source>
        <translation>Capacidade</translation>
    </message>
    <message>
        <source>First sector</source>
        <translation>Primeiro setor</translation>
    </message>
    <message>
        <source>End sector</source>
        <translation>Setor final</translation>
    </message>
    <message>
        <source>Sectors are counted from 0; each has 512 bytes. The end sector itself is not searched.</source>
        <translation>Os setores são contados a partir de 0; cada um tem 512 bytes. O próprio setor final não é examinado.</translation>
    </message>
    <message>
        <source>The sliders do not reach all sectors of this medium: they end at sector 2,147,483,647. To begin or end further on, type the sector.</source>
        <translation>Os controles deslizantes não alcançam todos os setores desta mídia: terminam no setor 2.147.483.647. Para começar ou terminar mais adiante, digite o setor.</translation>
    </message>
    <message>
        <source>Start Sector</source>
        <translation>Setor inicial</translation>
    </message>
    <message>
        <source>Start at sector</source>
        <translation>Começar no setor</translation>
    </message>
    <message>
        <source>Start Sector slider</source>
        <translation>Controle deslizante do setor inicial</translation>
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
        <translation>Menor setor inicial</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Máximo</translation>
    </message>
    <message>
        <source>Largest Start Sector</source>
        <translation>Maior setor inicial</translation>
    </message>
    <message>
        <source>End Sector</source>
        <translation>Setor final</translation>
    </message>
    <message>
        <source>End at sector</source>
        <translation>Terminar no setor</translation>
    </message>
    <message>
        <source>End Sector slider</source>
        <translation>Controle deslizante do setor final</translation>
    </message>
    <message>
        <source>Smallest End Sector</source>
        <translation>Menor setor final</translation>
    </message>
    <message>
        <source>Largest End Sector</source>
        <translation>Maior setor final</translation>
    </message>
    <message>
        <source>Where found files are saved</source>
        <translation>Onde os arquivos encontrados são salvos</translation>
    </message>
    <message>
        <source>Destination folder</source>
        <translation>Pasta de destino</translation>
    </message>
    <message>
        <source>None yet; you can choose it here or when you save</source>
        <translation>Nenhuma ainda; pode ser escolhida aqui ou ao salvar</translation>
    </message>
    <message>
        <source>B&amp;rowse…</source>
        <translation>Pr&amp;ocurar…</translation>
    </message>
    <message>
        <source>Browse for the destination folder</source>
        <translation>Procurar a pasta de destino</translation>
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
        <translation>Itens encontrados por tipo</translation>
    </message>
    <message>
        <source>Fo&amp;und types only</source>
        <translation>Só tipos e&amp;ncontrados</translation>
    </message>
    <message>
        <source>Show only the types that were found</source>
        <translation>Exibir somente os tipos que foram encontrados</translation>
    </message>
    <message>
        <source>Show All T&amp;ypes</source>
        <translation>Todos os t&amp;ipos</translation>
    </message>
    <message>
        <source>Show the items of all types again</source>
        <translation>Exibir novamente os itens de todos os tipos</translation>
    </message>
    <message>
        <source>Found items</source>
        <translation>Itens encontrados</translation>
    </message>
    <message>
        <source>How many items were found</source>
        <translation>Quantos itens foram encontrados</translation>
    </message>
    <message>
        <source>Sho&amp;w</source>
        <translation>&amp;Exibir</translation>
    </message>
    <message>
        <source>Which items are shown</source>
        <translation>Quais itens são exibidos</translation>
    </message>
    <message>
        <source>Sor&amp;t</source>
        <translation>Or&amp;denar</translation>
    </message>
    <message>
        <source>How the items are sorted</source>
        <translation>Como os itens são ordenados</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Nenhum arquivo selecionado</translation>
    </message>
    <message>
        <source>Preview movie</source>
        <translation>Prévia do vídeo</translation>
    </message>
    <message>
        <source>Facts of the previewed item</source>
        <translation>Dados do item na prévia</translation>
    </message>
    <message>
        <source>Where saved files go</source>
        <translation>Para onde vão os arquivos salvos</translation>
    </message>
    <message>
        <source>What is ticked for saving</source>
        <translation>O que está marcado para salvar</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>&amp;Marcar exibidos</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Marcar para salvar tudo o que é exibido</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving; Insert and Delete tick and untick the selected items</source>
        <translation>Marcar para salvar tudo o que é exibido; Insert e Delete marcam e desmarcam os itens selecionados</translation>
    </message>
    <message>
        <source>&amp;Invert Ticks</source>
        <translation>Inverter mar&amp;cas</translation>
    </message>
    <message>
        <source>Invert the ticks of what is shown</source>
        <translation>Inverter as marcas do que é exibido</translation>
    </message>
    <message>
        <source>Tick what is not ticked of what is shown, and untick the rest of it</source>
        <translation>Do que é exibido, marcar o que não está marcado e desmarcar o resto</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>A&amp;brir pasta</translation>
    </message>
    <message>
        <source>Open the folder of saved files</source>
        <translation>Abrir a pasta dos arquivos salvos</translation>
    </message>
    <message>
        <source>&amp;Change Folder…</source>
        <translation>Al&amp;terar pasta…</translation>
    </message>
    <message>
        <source>Change the folder that files are saved into</source>
        <translation>Alterar a pasta em que os arquivos são salvos</translation>
    </message>
    <message>
        <source>Save into another folder from now on</source>
        <translation>Salvar em outra pasta a partir de agora</translation>
    </message>
    <message>
        <source>What is saved</source>
        <translation>O que foi salvo</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>&amp;Opções…</translation>
    </message>
    <message>
        <source>Options for saving</source>
        <translation>Opções de salvamento</translation>
    </message>
    <message>
        <source>How items are saved: names and folders, without small ones, duplicates, report</source>
        <translation>Como os itens são salvos: nomes e pastas, sem os pequenos, duplicatas, relatório</translation>
    </message>
    <message>
        <source>Save Se&amp;lected…</source>
        <translation>Salvar se&amp;lecionados…</translation>
    </message>
    <message>
        <source>Save the selected items</source>
        <translation>Salvar os itens selecionados</translation>
    </message>
    <message>
        <source>Save the selected items (Ctrl+S)</source>
        <translation>Salvar os itens selecionados (Ctrl+S)</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked…</source>
        <translation>Salvar m&amp;arcados…</translation>
    </message>
    <message>
        <source>Save the ticked items</source>
        <translation>Salvar os itens marcados</translation>
    </message>
    <message>
        <source>Save every ticked item, also those that are not shown</source>
        <translation>Salvar todos os itens marcados, também os que não são exibidos</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>&amp;Salvar tudo…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Salvar todos os itens encontrados</translation>
    </message>
    <message>
        <source>Save every found item (Ctrl+Shift+S)</source>
        <translation>Salvar todos os itens encontrados (Ctrl+Shift+S)</translation>
    </message>
    <message>
        <source>Size of the pictures</source>
        <translation>Tamanho das imagens</translation>
    </message>
    <message>
        <source>Details in columns</source>
        <translation>Detalhes em colunas</translation>
    </message>
    <message>
        <source>Details in columns (Ctrl+D)</source>
        <translation>Detalhes em colunas (Ctrl+D)</translation>
    </message>
</context>
<context>
    <name>SaveFileInfo</name>
    <message>
        <source>Search ended</source>
        <translation>Busca encerrada</translation>
    </message>
    <message>
        <source>The search for photos has ended</source>
        <translation>A busca por fotos terminou</translation>
    </message>
    <message>
        <source>The photos that were found are shown as thumbnails. Select the ones you want and press “Save Selected”, or take everything with “Save All”. They are not on your disk until you save them.</source>
        <translation>As fotos encontradas são exibidas como miniaturas. Selecione as desejadas e pressione “Salvar selecionados”, ou leve tudo com “Salvar tudo”. Elas não estão no seu disco até serem salvas.</translation>
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
        <translation>Busca encerrada</translation>
    </message>
    <message>
        <source>The search for files has ended</source>
        <translation>A busca por arquivos terminou</translation>
    </message>
    <message>
        <source>The table on the left counts what was found of each type. Select an item to preview it, then press “Save Selected”, or take everything with “Save All”. Nothing is on your disk until you save it.</source>
        <translation>A tabela à esquerda conta o que foi encontrado de cada tipo. Selecione um item para ver a prévia e pressione “Salvar selecionados”, ou leve tudo com “Salvar tudo”. Nada está no seu disco até ser salvo.</translation>
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
        <translation>Opções de salvamento</translation>
    </message>
    <message>
        <source>Fo&amp;lders</source>
        <translation>&amp;Pastas</translation>
    </message>
    <message>
        <source>Folders for the saved files</source>
        <translation>Pastas para os arquivos salvos</translation>
    </message>
    <message>
        <source>What the card does not tell, or no date is known of, goes to the folder of its type</source>
        <translation>O que o cartão não indica, ou cuja data não é conhecida, vai para a pasta do seu tipo</translation>
    </message>
    <message>
        <source>Use the &amp;names that the files had on the card</source>
        <translation>Usar os &amp;nomes que os arquivos tinham no cartão</translation>
    </message>
    <message>
        <source>Use the names that the files had on the card</source>
        <translation>Usar os nomes que os arquivos tinham no cartão</translation>
    </message>
    <message>
        <source>As far as the card still tells them</source>
        <translation>Na medida em que o cartão ainda os indica</translation>
    </message>
    <message>
        <source>Leave out small &amp;pictures, with a longer side below</source>
        <translation>Omitir &amp;imagens pequenas, com lado maior abaixo de</translation>
    </message>
    <message>
        <source>Leave out small pictures</source>
        <translation>Omitir imagens pequenas</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> pixels</translation>
    </message>
    <message>
        <source>Least pixels of the longer side</source>
        <translation>Mínimo de pixels do lado maior</translation>
    </message>
    <message>
        <source>Leave out small &amp;files, of less than</source>
        <translation>Omitir &amp;arquivos pequenos, com menos de</translation>
    </message>
    <message>
        <source>Leave out small files</source>
        <translation>Omitir arquivos pequenos</translation>
    </message>
    <message>
        <source> kB</source>
        <translation> kB</translation>
    </message>
    <message>
        <source>Least size in kilobytes</source>
        <translation>Tamanho mínimo em quilobytes</translation>
    </message>
    <message>
        <source>Leave out what is &amp;certainly no file of its type</source>
        <translation>Omitir o que &amp;certamente não é um arquivo do seu tipo</translation>
    </message>
    <message>
        <source>Leave out what is certainly no file of its type</source>
        <translation>Omitir o que certamente não é um arquivo do seu tipo</translation>
    </message>
    <message>
        <source>Bytes that only begin like a file of the type</source>
        <translation>Bytes que apenas começam como um arquivo do tipo</translation>
    </message>
    <message>
        <source>Save parts of files &amp;too</source>
        <translation>Salvar &amp;também partes de arquivos</translation>
    </message>
    <message>
        <source>Save parts of files too</source>
        <translation>Salvar também partes de arquivos</translation>
    </message>
    <message>
        <source>What lies wholly inside a file that was proved complete, such as a picture&apos;s preview</source>
        <translation>O que fica inteiramente dentro de um arquivo comprovadamente completo, como a prévia de uma imagem</translation>
    </message>
    <message>
        <source>&amp;Keep duplicates</source>
        <translation>&amp;Manter duplicatas</translation>
    </message>
    <message>
        <source>Keep duplicates</source>
        <translation>Manter duplicatas</translation>
    </message>
    <message>
        <source>Save the same contents again each time they were found</source>
        <translation>Salvar novamente o mesmo conteúdo cada vez que foi encontrado</translation>
    </message>
    <message>
        <source>Write a &amp;Recovery report beside the saved files</source>
        <translation>&amp;Gravar um relatório de recuperação ao lado dos arquivos salvos</translation>
    </message>
    <message>
        <source>Write a Recovery report beside the saved files</source>
        <translation>Gravar um relatório de recuperação ao lado dos arquivos salvos</translation>
    </message>
    <message>
        <source>A page to read, and a table for other programs</source>
        <translation>Uma página para ler e uma tabela para outros programas</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>Salvando</translation>
    </message>
    <message>
        <source>How many items are saved</source>
        <translation>Quantos itens foram salvos</translation>
    </message>
    <message>
        <source>The file that is being saved</source>
        <translation>O arquivo que está sendo salvo</translation>
    </message>
    <message>
        <source>Progress of saving</source>
        <translation>Progresso do salvamento</translation>
    </message>
    <message>
        <source>Speed and time left</source>
        <translation>Velocidade e tempo restante</translation>
    </message>
    <message>
        <source>What takes so long</source>
        <translation>O que demora tanto</translation>
    </message>
    <message>
        <source>&amp;Skip This File</source>
        <translation>P&amp;ular este arquivo</translation>
    </message>
    <message>
        <source>Skip this file and go on with the next</source>
        <translation>Pular este arquivo e continuar com o próximo</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Cancel saving</source>
        <translation>Cancelar o salvamento</translation>
    </message>
</context>
<context>
    <name>UdisksEjector</name>
    <message>
        <source>The disk service no longer knows it.</source>
        <translation>O serviço de discos não o reconhece mais.</translation>
    </message>
    <message>
        <source>The disk service does not answer.</source>
        <translation>O serviço de discos não responde.</translation>
    </message>
    <message>
        <source>The disk service refused it.</source>
        <translation>O serviço de discos recusou a operação.</translation>
    </message>
</context>
<context>
    <name>vantor::BrowserLooks</name>
    <message>
        <source>All items</source>
        <translation>Todos os itens</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completos</translation>
    </message>
    <message>
        <source>Of unknown length</source>
        <translation>De tamanho desconhecido</translation>
    </message>
    <message>
        <source>With unreadable sectors</source>
        <translation>Com setores ilegíveis</translation>
    </message>
    <message>
        <source>Not saved yet</source>
        <translation>Ainda não salvos</translation>
    </message>
    <message>
        <source>Without small ones</source>
        <translation>Sem os pequenos</translation>
    </message>
    <message>
        <source>Without false finds</source>
        <translation>Sem falsos achados</translation>
    </message>
    <message>
        <source>Only what is lost</source>
        <translation>Só o que se perdeu</translation>
    </message>
    <message>
        <source>As found</source>
        <translation>Como encontrados</translation>
    </message>
    <message>
        <source>By soundness</source>
        <translation>Por estado</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Por tamanho</translation>
    </message>
    <message>
        <source>By date taken</source>
        <translation>Por data de captura</translation>
    </message>
    <message>
        <source>By name on the card</source>
        <translation>Por nome no cartão</translation>
    </message>
    <message>
        <source>Broken</source>
        <translation>Quebrados</translation>
    </message>
    <message>
        <source>Put together or repaired</source>
        <translation>Montados ou reparados</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Por nome</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Por câmera</translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Por pixels</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Por duração</translation>
    </message>
    <message>
        <source>By place on the card</source>
        <translation>Por local no cartão</translation>
    </message>
</context>
<context>
    <name>vantor::CardPicture</name>
    <message>
        <source>Picture of the card</source>
        <translation>Imagem do cartão</translation>
    </message>
    <message>
        <source>%1 (%2 used)</source>
        <translation>%1 (%2 ocupado)</translation>
    </message>
    <message>
        <source>No file system is known</source>
        <translation>Nenhum sistema de arquivos reconhecido</translation>
    </message>
    <message>
        <source>nothing of it would be searched</source>
        <translation>nada seria examinado</translation>
    </message>
    <message>
        <source>all of it is searched</source>
        <translation>tudo é examinado</translation>
    </message>
    <message>
        <source>%1 of it is searched</source>
        <translation>%1 é examinado</translation>
    </message>
    <message>
        <source>%1 as makers count</source>
        <translation>%1 na contagem dos fabricantes</translation>
    </message>
</context>
<context>
    <name>vantor::CardStrip</name>
    <message>
        <source>What of the range was read</source>
        <translation>O que do intervalo foi lido</translation>
    </message>
    <message>
        <source>read</source>
        <translation>lido</translation>
    </message>
    <message>
        <source>something found</source>
        <translation>algo encontrado</translation>
    </message>
    <message>
        <source>bad</source>
        <translation>defeituoso</translation>
    </message>
    <message>
        <source>to come</source>
        <translation>por ler</translation>
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
        <translation>Nome no cartão</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Câmera</translation>
    </message>
    <message>
        <source>Pixels or length</source>
        <translation>Pixels ou duração</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Estado</translation>
    </message>
    <message>
        <source>Place on the card</source>
        <translation>Local no cartão</translation>
    </message>
    <message>
        <source>%1, saved</source>
        <translation>%1, salvo</translation>
    </message>
    <message>
        <source>Columns of the details</source>
        <translation>Colunas dos detalhes</translation>
    </message>
</context>
<context>
    <name>vantor::FoundPane</name>
    <message>
        <source>Search by name</source>
        <translation>Buscar por nome</translation>
    </message>
    <message>
        <source>Search found items by name, also that on the card</source>
        <translation>Buscar itens encontrados por nome, também pelo nome no cartão</translation>
    </message>
    <message>
        <source>What was found, by type, day, camera and size</source>
        <translation>O que foi encontrado, por tipo, dia, câmera e tamanho</translation>
    </message>
    <message>
        <source>Click to show only these; hold Ctrl for several</source>
        <translation>Clique para exibir somente estes; segure Ctrl para vários</translation>
    </message>
    <message>
        <source>All items</source>
        <translation>Todos os itens</translation>
    </message>
    <message>
        <source>By day</source>
        <translation>Por dia</translation>
    </message>
    <message>
        <source>By camera</source>
        <translation>Por câmera</translation>
    </message>
    <message>
        <source>By size</source>
        <translation>Por tamanho</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Sem tipo</translation>
    </message>
    <message>
        <source>Camera not known</source>
        <translation>Câmera desconhecida</translation>
    </message>
    <message>
        <source>Only named on the card</source>
        <translation>Só nomeados no cartão</translation>
    </message>
    <message>
        <source>1 more file that only the card&apos;s directory tells of</source>
        <translation>mais 1 arquivo conhecido só pelo diretório do cartão</translation>
    </message>
    <message numerus="yes">
        <source>%1 more files that only the card&apos;s directory tells of</source>
        <translation>
            <numerusform>mais %1 arquivo conhecido só pelo diretório do cartão</numerusform>
            <numerusform>mais %1 arquivos conhecidos só pelo diretório do cartão</numerusform>
        </translation>
    </message>
    <message>
        <source>Save All saves them too.</source>
        <translation>“Salvar tudo” também os salva.</translation>
    </message>
    <message numerus="yes">
        <source>and %1 more</source>
        <translation>
            <numerusform>e mais %1</numerusform>
            <numerusform>e mais %1</numerusform>
        </translation>
    </message>
    <message>
        <source>By pixels</source>
        <translation>Por pixels</translation>
    </message>
    <message>
        <source>By length</source>
        <translation>Por duração</translation>
    </message>
</context>
<context>
    <name>vantor::Help_Support</name>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>The help document could not be opened.</source>
        <translation>Não foi possível abrir o documento de ajuda.</translation>
    </message>
    <message>
        <source>This desktop has no program that shows PDF documents. It lies here:</source>
        <translation>Esta área de trabalho não tem um programa que mostre documentos PDF. Ele está aqui:</translation>
    </message>
    <message>
        <source>Help file does not exist!</source>
        <translation>O arquivo de ajuda não existe!</translation>
    </message>
</context>
<context>
    <name>vantor::ImageBrowserModel</name>
    <message>
        <source>saved</source>
        <translation>salvo</translation>
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
        <translation>Visualizador</translation>
    </message>
    <message>
        <source>‹ Results</source>
        <translation>‹ Resultados</translation>
    </message>
    <message>
        <source>Back to the results (Escape)</source>
        <translation>Voltar aos resultados (Esc)</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Whole picture (0)</source>
        <translation>Imagem inteira (0)</translation>
    </message>
    <message>
        <source>1:1</source>
        <translation>1:1</translation>
    </message>
    <message>
        <source>Actual size (1)</source>
        <translation>Tamanho real (1)</translation>
    </message>
    <message>
        <source>−</source>
        <translation>−</translation>
    </message>
    <message>
        <source>Smaller (−)</source>
        <translation>Menor (−)</translation>
    </message>
    <message>
        <source>+</source>
        <translation>+</translation>
    </message>
    <message>
        <source>Larger (+)</source>
        <translation>Maior (+)</translation>
    </message>
    <message>
        <source>Full Screen</source>
        <translation>Tela cheia</translation>
    </message>
    <message>
        <source>Full screen (F11)</source>
        <translation>Tela cheia (F11)</translation>
    </message>
    <message>
        <source>Facts</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Show the facts beside it (I)</source>
        <translation>Exibir os dados ao lado (I)</translation>
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
        <translation>Item anterior (Esquerda)</translation>
    </message>
    <message>
        <source>›</source>
        <translation>›</translation>
    </message>
    <message>
        <source>Next item (Right)</source>
        <translation>Próximo item (Direita)</translation>
    </message>
    <message>
        <source>Picture of %1</source>
        <translation>Imagem de %1</translation>
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
        <translation>Marcar para salvar (Insert, Delete)</translation>
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
        <translation>Lem&amp;brar esta busca</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut. It takes the place of the search that is remembered now.</source>
        <translation>Para continuar depois, também após uma queda de energia. Ela toma o lugar da busca lembrada agora.</translation>
    </message>
    <message>
        <source>Keep a &amp;copy of the card while searching</source>
        <translation>&amp;Manter uma cópia do cartão durante a busca</translation>
    </message>
    <message>
        <source>Choo&amp;se…</source>
        <translation>&amp;Escolher…</translation>
    </message>
    <message>
        <source>Choose where the copy is kept</source>
        <translation>Escolher onde a cópia é mantida</translation>
    </message>
    <message>
        <source>Best for a card that fails or is slow: it is read once, all else reads the copy.</source>
        <translation>Ideal para um cartão com falhas ou lento: ele é lido uma só vez, todo o resto lê a cópia.</translation>
    </message>
    <message>
        <source>To go on later, also after a power cut.</source>
        <translation>Para continuar depois, também após uma queda de energia.</translation>
    </message>
</context>
<context>
    <name>vantor::KeptSearchBar</name>
    <message>
        <source>The remembered search</source>
        <translation>A busca lembrada</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Continuar</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Examinar o resto da mídia; o que já foi lido não é examinado novamente</translation>
    </message>
    <message>
        <source>Show &amp;What Was Found</source>
        <translation>E&amp;xibir o que foi encontrado</translation>
    </message>
    <message>
        <source>List what the search had found, without searching on</source>
        <translation>Listar o que a busca havia encontrado, sem continuar a buscar</translation>
    </message>
    <message>
        <source>&amp;Forget</source>
        <translation>&amp;Esquecer</translation>
    </message>
    <message>
        <source>Delete what is remembered of this search; files that were saved stay</source>
        <translation>Excluir o que é lembrado desta busca; os arquivos salvos permanecem</translation>
    </message>
    <message>
        <source>Go on with the remembered search</source>
        <translation>Continuar a busca lembrada</translation>
    </message>
    <message>
        <source>Show what the remembered search found</source>
        <translation>Exibir o que a busca lembrada encontrou</translation>
    </message>
    <message>
        <source>Forget the remembered search</source>
        <translation>Esquecer a busca lembrada</translation>
    </message>
    <message>
        <source>Remembered search: %1</source>
        <translation>Busca lembrada: %1</translation>
    </message>
</context>
<context>
    <name>vantor::MendPane</name>
    <message>
        <source>Show the file as it was found (B)</source>
        <translation>Exibir o arquivo como foi encontrado (B)</translation>
    </message>
    <message>
        <source>As Found</source>
        <translation>Como encontrado</translation>
    </message>
    <message>
        <source>Show the file as it was put together (B)</source>
        <translation>Exibir o arquivo como foi montado (B)</translation>
    </message>
    <message>
        <source>Repaired</source>
        <translation>Reparado</translation>
    </message>
    <message>
        <source>Put Together</source>
        <translation>Montado</translation>
    </message>
</context>
<context>
    <name>vantor::MendingBar</name>
    <message>
        <source>How far the completing of broken files is, and what came of it</source>
        <translation>Até onde os arquivos quebrados foram completados, e o que resultou disso</translation>
    </message>
    <message>
        <source>Progress of completing broken files</source>
        <translation>Progresso ao completar arquivos quebrados</translation>
    </message>
    <message>
        <source>St&amp;op</source>
        <translation>&amp;Parar</translation>
    </message>
    <message>
        <source>Stop completing broken files; what was put together stays</source>
        <translation>Parar de completar arquivos quebrados; o que foi montado permanece</translation>
    </message>
    <message>
        <source>Show Th&amp;em</source>
        <translation>E&amp;xibi-los</translation>
    </message>
    <message>
        <source>Show the files that were put together or repaired</source>
        <translation>Exibir os arquivos que foram montados ou reparados</translation>
    </message>
    <message>
        <source>Clo&amp;se</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Close this message</source>
        <translation>Fechar esta mensagem</translation>
    </message>
</context>
<context>
    <name>vantor::MovieControls</name>
    <message>
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Time played and length</source>
        <translation>Tempo reproduzido e duração</translation>
    </message>
    <message>
        <source>Play (Space)</source>
        <translation>Reproduzir (Espaço)</translation>
    </message>
    <message>
        <source>Sound off</source>
        <translation>Desligar o som</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Pause (Space)</source>
        <translation>Pausar (Espaço)</translation>
    </message>
    <message>
        <source>Sound on</source>
        <translation>Ligar o som</translation>
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
        <translation>Reproduzir ou pausar (Espaço)</translation>
    </message>
    <message>
        <source>No movie</source>
        <translation>Nenhum vídeo</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Selecione um item para ver sua prévia.</translation>
    </message>
</context>
<context>
    <name>vantor::MyTableController</name>
    <message>
        <source>%1 of %2 selected</source>
        <translation>%1 de %2 selecionados</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1, without thumbnails</source>
        <translation>%1, sem miniaturas</translation>
    </message>
    <message>
        <source>Save &amp;All…</source>
        <translation>&amp;Salvar tudo…</translation>
    </message>
    <message>
        <source>Save &amp;All Shown (%1)…</source>
        <translation>&amp;Salvar todos os exibidos (%1)…</translation>
    </message>
    <message>
        <source>Save all found items</source>
        <translation>Salvar todos os itens encontrados</translation>
    </message>
    <message>
        <source>Save all items that are shown</source>
        <translation>Salvar todos os itens exibidos</translation>
    </message>
    <message>
        <source>%1 of %2 saved</source>
        <translation>%1 de %2 salvos</translation>
    </message>
    <message>
        <source>O&amp;ptions…</source>
        <translation>&amp;Opções…</translation>
    </message>
    <message>
        <source>O&amp;ptions (%1)…</source>
        <translation>&amp;Opções (%1)…</translation>
    </message>
    <message>
        <source>Choose where the copy of the card is kept</source>
        <translation>Escolher onde a cópia do cartão é mantida</translation>
    </message>
    <message>
        <source>Images of media (*.img)</source>
        <translation>Imagens de mídias (*.img)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>The copy cannot be kept there.</source>
        <translation>A cópia não pode ser mantida ali.</translation>
    </message>
    <message>
        <source>The folder lies on the medium that is to be searched; writing there would overwrite what is still to be found. Choose a place on another disk.</source>
        <translation>A pasta está na mídia a ser examinada; gravar ali sobrescreveria o que ainda está por encontrar. Escolha um local em outro disco.</translation>
    </message>
    <message>
        <source>There is not enough room for a copy.</source>
        <translation>Não há espaço suficiente para uma cópia.</translation>
    </message>
    <message>
        <source>It needs up to %1, and %2 are free in %3. Choose a place on another disk, or search without a copy.</source>
        <translation>Ela precisa de até %1, e %2 estão livres em %3. Escolha um local em outro disco, ou busque sem cópia.</translation>
    </message>
    <message>
        <source>%1: up to %2 needed, %3 free</source>
        <translation>%1: até %2 necessários, %3 livres</translation>
    </message>
    <message>
        <source>%1: up to %2 needed</source>
        <translation>%1: até %2 necessários</translation>
    </message>
    <message>
        <source>How the card fares</source>
        <translation>Como está o cartão</translation>
    </message>
    <message>
        <source>Keep a C&amp;opy…</source>
        <translation>Manter &amp;uma cópia…</translation>
    </message>
    <message>
        <source>The search is stopped for a moment and goes on, reading the card once into the file that you choose</source>
        <translation>A busca é parada por um momento e continua, lendo o cartão uma só vez para o arquivo escolhido</translation>
    </message>
    <message>
        <source>This card is failing: 1 bad sector.</source>
        <translation>Este cartão está falhando: 1 setor defeituoso.</translation>
    </message>
    <message numerus="yes">
        <source>This card is failing: %1 bad sectors.</source>
        <translation>
            <numerusform>Este cartão está falhando: %1 setor defeituoso.</numerusform>
            <numerusform>Este cartão está falhando: %1 setores defeituosos.</numerusform>
        </translation>
    </message>
    <message>
        <source>This card is very slow.</source>
        <translation>Este cartão é muito lento.</translation>
    </message>
    <message>
        <source>Keep a copy, so that every sector is read only once.</source>
        <translation>Mantenha uma cópia, para que cada setor seja lido uma só vez.</translation>
    </message>
    <message>
        <source>Copy: %1</source>
        <translation>Cópia: %1</translation>
    </message>
    <message>
        <source>Copy: %1. %2</source>
        <translation>Cópia: %1. %2</translation>
    </message>
    <message>
        <source>When the program ends, the list of found items is gone.</source>
        <translation>Quando o programa termina, a lista de itens encontrados se perde.</translation>
    </message>
    <message>
        <source>Exit Without Saving</source>
        <translation>Sair sem salvar</translation>
    </message>
    <message>
        <source>
Do you really want to exit from &apos;%1&apos;?</source>
        <translation>
Deseja realmente sair de “%1”?</translation>
    </message>
    <message>
        <source>%1 of the %2 found items have not been saved.</source>
        <translation>%1 dos %2 itens encontrados não foram salvos.</translation>
    </message>
    <message>
        <source>The item that was found has not been saved.</source>
        <translation>O item encontrado não foi salvo.</translation>
    </message>
    <message numerus="yes">
        <source>None of the %1 found items has been saved.</source>
        <translation>
            <numerusform>O item encontrado (%1) não foi salvo.</numerusform>
            <numerusform>Nenhum dos %1 itens encontrados foi salvo.</numerusform>
        </translation>
    </message>
    <message>
        <source>Stay</source>
        <translation>Ficar</translation>
    </message>
    <message>
        <source>All types of the group %1</source>
        <translation>Todos os tipos do grupo %1</translation>
    </message>
    <message>
        <source>Select &amp;all</source>
        <translation>Selecionar &amp;tudo</translation>
    </message>
    <message>
        <source>Select &amp;all shown</source>
        <translation>Selecionar &amp;todos os exibidos</translation>
    </message>
    <message>
        <source>No type matches</source>
        <translation>Nenhum tipo corresponde</translation>
    </message>
    <message>
        <source>No file types</source>
        <translation>Nenhum tipo de arquivo</translation>
    </message>
    <message>
        <source>Clear the search field to see all types.</source>
        <translation>Limpe o campo de busca para ver todos os tipos.</translation>
    </message>
    <message>
        <source>The catalogue of file types could not be read. Install the program again.</source>
        <translation>Não foi possível ler o catálogo de tipos de arquivo. Instale o programa novamente.</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>What to do with the item</source>
        <translation>O que fazer com o item</translation>
    </message>
    <message>
        <source>Show &amp;Large</source>
        <translation>Exibir &amp;grande</translation>
    </message>
    <message>
        <source>Show &amp;Facts</source>
        <translation>Exibir &amp;dados</translation>
    </message>
    <message>
        <source>&amp;Save Selected…</source>
        <translation>&amp;Salvar selecionados…</translation>
    </message>
    <message>
        <source>Select All of &amp;Day %1</source>
        <translation>Selecionar t&amp;odo o dia %1</translation>
    </message>
    <message>
        <source>Select All of the &amp;Day</source>
        <translation>Selecionar t&amp;odo o dia</translation>
    </message>
    <message>
        <source>Select All T&amp;ype %1</source>
        <translation>Selecionar todo o &amp;tipo %1</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>Prosse&amp;guir</translation>
    </message>
    <message>
        <source>Go on with the search</source>
        <translation>Continuar a busca</translation>
    </message>
    <message>
        <source>Search the rest of the medium; what was read is not searched again</source>
        <translation>Examinar o resto da mídia; o que já foi lido não é examinado novamente</translation>
    </message>
    <message>
        <source>The search begins anew.</source>
        <translation>A busca recomeça do início.</translation>
    </message>
    <message>
        <source>It was begun with other lists of signatures than this version of the program has.</source>
        <translation>Ela foi iniciada com outras listas de assinaturas que não as desta versão do programa.</translation>
    </message>
    <message>
        <source>This search is not remembered.</source>
        <translation>Esta busca não é lembrada.</translation>
    </message>
    <message>
        <source>Your home folder lies on the medium that is to be searched; writing there would overwrite what is still to be found.</source>
        <translation>Sua pasta pessoal está na mídia a ser examinada; gravar ali sobrescreveria o que ainda está por encontrar.</translation>
    </message>
    <message>
        <source>The search cannot go on.</source>
        <translation>A busca não pode continuar.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched. Put the right one in and try again.</source>
        <translation>Esta não é a mídia que foi examinada. Insira a correta e tente novamente.</translation>
    </message>
    <message>
        <source>The medium cannot be opened. Put it back in and try again.</source>
        <translation>Não é possível abrir a mídia. Recoloque-a e tente novamente.</translation>
    </message>
    <message>
        <source>The medium of this search is not there.</source>
        <translation>A mídia desta busca não está presente.</translation>
    </message>
    <message>
        <source>It was %1. Put it in, or open its image, and try again.</source>
        <translation>Era %1. Insira-a, ou abra sua imagem, e tente novamente.</translation>
    </message>
    <message>
        <source>This is not the medium that was searched.</source>
        <translation>Esta não é a mídia que foi examinada.</translation>
    </message>
    <message>
        <source>It holds something else than %1 did. Put the right one in and try again.</source>
        <translation>Ela contém algo diferente de %1. Insira a correta e tente novamente.</translation>
    </message>
    <message>
        <source>The medium of this search cannot be opened.</source>
        <translation>Não é possível abrir a mídia desta busca.</translation>
    </message>
    <message>
        <source>1 item was found before the medium could no longer be opened.</source>
        <translation>1 item foi encontrado antes que a mídia não pudesse mais ser aberta.</translation>
    </message>
    <message numerus="yes">
        <source>%1 items were found before the medium could no longer be opened.</source>
        <translation>
            <numerusform>%1 item foi encontrado antes que a mídia não pudesse mais ser aberta.</numerusform>
            <numerusform>%1 itens foram encontrados antes que a mídia não pudesse mais ser aberta.</numerusform>
        </translation>
    </message>
    <message>
        <source>The list is kept until you search again or go back.</source>
        <translation>A lista é mantida até uma nova busca ou até voltar.</translation>
    </message>
    <message>
        <source>The storage medium does not answer.</source>
        <translation>A mídia de armazenamento não responde.</translation>
    </message>
    <message>
        <source>The search before has not ended yet. Take the medium out and put it back in, then try again.</source>
        <translation>A busca anterior ainda não terminou. Retire a mídia e recoloque-a, depois tente novamente.</translation>
    </message>
    <message>
        <source>A new search empties the list of found items.</source>
        <translation>Uma nova busca esvazia a lista de itens encontrados.</translation>
    </message>
    <message>
        <source>Search Without Saving</source>
        <translation>Buscar sem salvar</translation>
    </message>
    <message>
        <source>The image could not be opened.</source>
        <translation>Não foi possível abrir a imagem.</translation>
    </message>
    <message numerus="yes">
        <source>%1 images could not be opened.</source>
        <translation>
            <numerusform>Não foi possível abrir %1 imagem.</numerusform>
            <numerusform>Não foi possível abrir %1 imagens.</numerusform>
        </translation>
    </message>
    <message>
        <source>Choose a movie</source>
        <translation>Escolher um vídeo</translation>
    </message>
    <message>
        <source>This folder cannot be the destination.</source>
        <translation>Esta pasta não pode ser o destino.</translation>
    </message>
    <message>
        <source>It lies on the storage medium you are recovering from. Writing there would overwrite the files you want back. Choose a folder on another disk.</source>
        <translation>Ela está na mídia de armazenamento que está sendo recuperada. Gravar ali sobrescreveria os arquivos que se quer de volta. Escolha uma pasta em outro disco.</translation>
    </message>
    <message>
        <source>Choose another folder.</source>
        <translation>Escolha outra pasta.</translation>
    </message>
    <message>
        <source>The disk that held %1 was taken out. Put it back in, or change the folder.</source>
        <translation>O disco que continha %1 foi retirado. Recoloque-o, ou altere a pasta.</translation>
    </message>
    <message>
        <source>%1 was deleted or renamed, or its disk was taken out. Bring it back, or change the folder.</source>
        <translation>%1 foi excluída ou renomeada, ou seu disco foi retirado. Restaure-a, ou altere a pasta.</translation>
    </message>
    <message>
        <source>The destination is no longer there.</source>
        <translation>O destino não existe mais.</translation>
    </message>
    <message>
        <source>No folder for saved files is chosen yet</source>
        <translation>Nenhuma pasta para arquivos salvos foi escolhida ainda</translation>
    </message>
    <message>
        <source>Saved files go to %1, which is not there</source>
        <translation>Os arquivos salvos vão para %1, que não existe</translation>
    </message>
    <message>
        <source>Saved files go to %1 (%2 free)</source>
        <translation>Os arquivos salvos vão para %1 (%2 livres)</translation>
    </message>
    <message>
        <source>Saved files go to %1</source>
        <translation>Os arquivos salvos vão para %1</translation>
    </message>
    <message>
        <source>This desktop has no program that shows folders.</source>
        <translation>Esta área de trabalho não tem um programa que mostre pastas.</translation>
    </message>
    <message>
        <source>It is not there any more.</source>
        <translation>Ela não existe mais.</translation>
    </message>
    <message>
        <source>The folder could not be opened.</source>
        <translation>Não foi possível abrir a pasta.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Não é possível ler a mídia de armazenamento.</translation>
    </message>
    <message>
        <source>This is still the preview of %1.</source>
        <translation>Esta ainda é a prévia de %1.</translation>
    </message>
    <message>
        <source>Select an item to preview it.</source>
        <translation>Selecione um item para ver sua prévia.</translation>
    </message>
    <message>
        <source>more than %1</source>
        <translation>mais de %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>Preview of %1</source>
        <translation>Prévia de %1</translation>
    </message>
    <message>
        <source>If ‘Entire Disk’ option is selected, Vantor Recovery searches lost data in the entire storage of selected disk. If you want to perform within a specific sector range or in specific partition, please select other searching criteria. Else press ‘Next’ button to start searching data in Entire disk.</source>
        <translation>Com a opção “Disco inteiro”, o Vantor Recovery busca dados perdidos em todo o armazenamento do disco selecionado. Para buscar em um intervalo de setores ou em uma partição específica, selecione o outro critério de busca. Caso contrário, pressione o botão “Próximo” para começar a buscar no disco inteiro.</translation>
    </message>
    <message>
        <source>‘Sector Range’ option provides facility to specify the range of start and end sector of storage media within which you want to perform searching for lost data. Please drag knob of Slider to enter sector range or you can also enter these values in Start Sector and End Sector fields manually.</source>
        <translation>A opção “Intervalo de setores” permite indicar o setor inicial e o setor final da mídia de armazenamento entre os quais buscar os dados perdidos. Arraste os controles deslizantes para definir o intervalo, ou digite os valores nos campos Setor inicial e Setor final.</translation>
    </message>
    <message>
        <source>The settings are forgotten.</source>
        <translation>As configurações foram esquecidas.</translation>
    </message>
    <message>
        <source>Window, saving options and folders are those of a first start when the program is started again.</source>
        <translation>Quando o programa for iniciado novamente, a janela, as opções de salvamento e as pastas serão as de um primeiro início.</translation>
    </message>
    <message>
        <source>It still holds up the saving that you cancelled. Take the medium out and put it back in, then try again.</source>
        <translation>Ela ainda retém o salvamento que foi cancelado. Retire a mídia e recoloque-a, depois tente novamente.</translation>
    </message>
    <message>
        <source>It goes on.</source>
        <translation>A busca continua.</translation>
    </message>
    <message>
        <source>No file is selected to preview</source>
        <translation>Nenhum arquivo selecionado</translation>
    </message>
    <message>
        <source>
Please select a storage media from list.</source>
        <translation>
Selecione uma mídia de armazenamento na lista.</translation>
    </message>
    <message>
        <source>When you go back, the list of found items is emptied.</source>
        <translation>Ao voltar, a lista de itens encontrados é esvaziada.</translation>
    </message>
    <message>
        <source>Go Back Without Saving</source>
        <translation>Voltar sem salvar</translation>
    </message>
    <message>
        <source>
Select the storage media from List from which you want to recover Data. Press ‘Next’ button to continue... </source>
        <translation>
Selecione na lista a mídia de armazenamento da qual deseja recuperar dados. Pressione o botão “Próximo” para continuar... </translation>
    </message>
    <message>
        <source>
Please select the required extension type for recovery process. Press ‘Next’ button to continue... </source>
        <translation>
Selecione os tipos de arquivo a recuperar. Pressione o botão “Próximo” para continuar... </translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mídia</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>File types</source>
        <translation>Tipos de arquivo</translation>
    </message>
    <message>
        <source>Recover</source>
        <translation>Recuperar</translation>
    </message>
    <message>
        <source>The search could not be remembered: %1.</source>
        <translation>Não foi possível lembrar a busca: %1.</translation>
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
        <translation>Pressione “Parar”, ou deixe a busca continuar.</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message>
        <source>No types</source>
        <translation>Nenhum tipo</translation>
    </message>
    <message>
        <source>Nothing of the types that you ticked was found.</source>
        <translation>Nada dos tipos marcados foi encontrado.</translation>
    </message>
    <message>
        <source>Go back and tick the types to search for.</source>
        <translation>Volte e marque os tipos a buscar.</translation>
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
        <translation>Setores</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>File system</source>
        <translation>Sistema de arquivos</translation>
    </message>
    <message>
        <source>Whole disk</source>
        <translation>Disco inteiro</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Busca</translation>
    </message>
    <message>
        <source>Thorough</source>
        <translation>Minuciosa</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Descrição</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Achados</translation>
    </message>
    <message>
        <source>No storage media found</source>
        <translation>Nenhuma mídia de armazenamento encontrada</translation>
    </message>
    <message>
        <source>Insert the memory card or connect its reader and press Refresh, or open an image file of a medium. You can also drop an image file here.</source>
        <translation>Insira o cartão de memória ou conecte o leitor e pressione “Atualizar”, ou abra um arquivo de imagem de uma mídia. Também é possível soltar um arquivo de imagem aqui.</translation>
    </message>
    <message>
        <source>Sectors 0 of 0</source>
        <translation>Setores 0 de 0</translation>
    </message>
    <message>
        <source>%1 of %2 ticked, %3</source>
        <translation>%1 de %2 marcados, %3</translation>
    </message>
    <message>
        <source>Untic&amp;k Shown</source>
        <translation>Des&amp;marcar exibidos</translation>
    </message>
    <message>
        <source>Tic&amp;k Shown</source>
        <translation>&amp;Marcar exibidos</translation>
    </message>
    <message>
        <source>Untick all that is shown</source>
        <translation>Desmarcar tudo o que é exibido</translation>
    </message>
    <message>
        <source>Tick all that is shown for saving</source>
        <translation>Marcar para salvar tudo o que é exibido</translation>
    </message>
    <message>
        <source>Sa&amp;ve Ticked (%1)…</source>
        <translation>Salvar m&amp;arcados (%1)…</translation>
    </message>
    <message>
        <source>Open an image file of a medium</source>
        <translation>Abrir um arquivo de imagem de uma mídia</translation>
    </message>
    <message>
        <source>Images of media (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;All files (*)</source>
        <translation>Imagens de mídias (*.img *.dd *.raw *.bin *.iso *.image *.ima *.E01 *.e01);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Co&amp;mplete Broken Files</source>
        <translation>Completar ar&amp;quivos quebrados</translation>
    </message>
    <message>
        <source>Complete broken files</source>
        <translation>Completar arquivos quebrados</translation>
    </message>
    <message>
        <source>Look on the medium for the missing pieces of photos and movies, and repair movies without an index; what was found stays as it is beside it</source>
        <translation>Buscar na mídia os pedaços que faltam de fotos e vídeos, e reparar vídeos sem índice; o que foi encontrado permanece ao lado como está</translation>
    </message>
    <message>
        <source>Looking for broken files: %1 of %2</source>
        <translation>Procurando arquivos quebrados: %1 de %2</translation>
    </message>
    <message>
        <source>Completing broken movies…</source>
        <translation>Completando vídeos quebrados…</translation>
    </message>
    <message>
        <source>Completing broken movies: %1 of %2</source>
        <translation>Completando vídeos quebrados: %1 de %2</translation>
    </message>
    <message>
        <source>Completing broken photos…</source>
        <translation>Completando fotos quebradas…</translation>
    </message>
    <message>
        <source>Completing broken photos: %1 of %2</source>
        <translation>Completando fotos quebradas: %1 de %2</translation>
    </message>
    <message>
        <source>Repairing movies without an index…</source>
        <translation>Reparando vídeos sem índice…</translation>
    </message>
    <message>
        <source>Repairing movies without an index: %1 of %2</source>
        <translation>Reparando vídeos sem índice: %1 de %2</translation>
    </message>
    <message>
        <source>Broken files were left as they are: the storage medium cannot be opened. Put it back in and try again.</source>
        <translation>Os arquivos quebrados foram deixados como estão: não é possível abrir a mídia de armazenamento. Recoloque-a e tente novamente.</translation>
    </message>
    <message>
        <source>The storage medium went away. Put it back in and try again.</source>
        <translation>A mídia de armazenamento sumiu. Recoloque-a e tente novamente.</translation>
    </message>
    <message>
        <source>Stopped.</source>
        <translation>Parado.</translation>
    </message>
    <message>
        <source>1 file completed</source>
        <translation>1 arquivo completado</translation>
    </message>
    <message numerus="yes">
        <source>%1 files completed</source>
        <translation>
            <numerusform>%1 arquivo completado</numerusform>
            <numerusform>%1 arquivos completados</numerusform>
        </translation>
    </message>
    <message>
        <source>1 file put together (please look)</source>
        <translation>1 arquivo montado (convém verificar)</translation>
    </message>
    <message numerus="yes">
        <source>%1 files put together (please look)</source>
        <translation>
            <numerusform>%1 arquivo montado (convém verificar)</numerusform>
            <numerusform>%1 arquivos montados (convém verificar)</numerusform>
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
        <translation>Não foi encontrado nenhum arquivo quebrado de um tipo que possa ser completado.</translation>
    </message>
    <message>
        <source>No broken file could be completed.</source>
        <translation>Nenhum arquivo quebrado pôde ser completado.</translation>
    </message>
    <message>
        <source>Other files are being written. Drag again in a moment.</source>
        <translation>Outros arquivos estão sendo gravados. Arraste novamente daqui a pouco.</translation>
    </message>
    <message>
        <source>There is not enough room to get %1 ready for dragging. Save the files instead.</source>
        <translation>Não há espaço suficiente para preparar %1 para arrastar. Em vez disso, salve os arquivos.</translation>
    </message>
    <message>
        <source>These files cannot be read from the storage medium.</source>
        <translation>Não é possível ler estes arquivos da mídia de armazenamento.</translation>
    </message>
    <message>
        <source>Getting the files ready…</source>
        <translation>Preparando os arquivos…</translation>
    </message>
    <message>
        <source>The files are still being written. Drag them again in a moment.</source>
        <translation>Os arquivos ainda estão sendo gravados. Arraste-os novamente daqui a pouco.</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>The card can be taken out.</source>
        <translation>O cartão pode ser retirado.</translation>
    </message>
    <message>
        <source>The card could not be ejected.</source>
        <translation>Não foi possível ejetar o cartão.</translation>
    </message>
    <message>
        <source>&amp;Untick for Saving</source>
        <translation>Des&amp;marcar para salvar</translation>
    </message>
    <message>
        <source>&amp;Tick for Saving</source>
        <translation>&amp;Marcar para salvar</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Salvar &amp;como…</translation>
    </message>
    <message>
        <source>Search options</source>
        <translation>Opções de busca</translation>
    </message>
    <message>
        <source>Completing broken documents…</source>
        <translation>Completando documentos quebrados…</translation>
    </message>
    <message>
        <source>Completing broken documents: %1 of %2</source>
        <translation>Completando documentos quebrados: %1 de %2</translation>
    </message>
    <message numerus="yes">
        <source>%1 of the %2 files could not be dragged.</source>
        <translation>
            <numerusform>Não foi possível arrastar %1 dos %2 arquivos.</numerusform>
            <numerusform>Não foi possível arrastar %1 dos %2 arquivos.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantor::PieceStrip</name>
    <message>
        <source>piece %1: sectors %2 to %3</source>
        <translation>pedaço %1: setores %2 a %3</translation>
    </message>
    <message>
        <source>Pieces on the card</source>
        <translation>Pedaços no cartão</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Card</source>
        <translation>Cartão</translation>
    </message>
</context>
<context>
    <name>vantor::SavingDesk</name>
    <message>
        <source>Some %1 are needed and %2 are free in %3.</source>
        <translation>São necessários cerca de %1 e há %2 livres em %3.</translation>
    </message>
    <message>
        <source>As they were found, the files need some %1; once they are examined, they often turn out shorter. %2 are free in %3.</source>
        <translation>Como foram encontrados, os arquivos precisam de cerca de %1; depois de examinados, muitas vezes se mostram menores. Há %2 livres em %3.</translation>
    </message>
    <message>
        <source>There may not be enough room in the destination.</source>
        <translation>Talvez não haja espaço suficiente no destino.</translation>
    </message>
    <message>
        <source>What fits is saved whole; the rest is left out and stays in the list.</source>
        <translation>O que couber é salvo inteiro; o resto é omitido e fica na lista.</translation>
    </message>
    <message>
        <source>Save What Fits</source>
        <translation>Salvar o que couber</translation>
    </message>
    <message>
        <source>Change Folder…</source>
        <translation>Alterar pasta…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Nothing was saved.</source>
        <translation>Nada foi salvo.</translation>
    </message>
    <message>
        <source>The storage medium cannot be read any more. Put it back in and try again.</source>
        <translation>A mídia de armazenamento não pode mais ser lida. Recoloque-a e tente novamente.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message>
        <source>Eject Card</source>
        <translation>Ejetar cartão</translation>
    </message>
</context>
<context>
    <name>vantor::SavingOptions</name>
    <message>
        <source>As on the card</source>
        <translation>Como no cartão</translation>
    </message>
    <message>
        <source>By type</source>
        <translation>Por tipo</translation>
    </message>
    <message>
        <source>By type and date</source>
        <translation>Por tipo e data</translation>
    </message>
</context>
<context>
    <name>vantor::SavingSheet</name>
    <message>
        <source>The medium refuses sectors of this file: %1 so far. Each may take seconds. What lies behind them is read all the same.</source>
        <translation>A mídia recusa setores deste arquivo: %1 até agora. Cada um pode levar segundos. O que vem depois deles é lido mesmo assim.</translation>
    </message>
    <message>
        <source>Saving %1 of %2</source>
        <translation>Salvando %1 de %2</translation>
    </message>
    <message>
        <source>Cancelling…</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Checking the content of %1 of %2</source>
        <translation>Verificando o conteúdo: %1 de %2</translation>
    </message>
    <message>
        <source>Nothing more is read from the medium. Cancel ends this check only.</source>
        <translation>Nada mais é lido da mídia. “Cancelar” encerra apenas esta verificação.</translation>
    </message>
</context>
<context>
    <name>vantor::StepTrail</name>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>Etapa %1 de %2: %3</translation>
    </message>
</context>
<context>
    <name>vantor::TableAdapter</name>
    <message>
        <source>selected</source>
        <translation>selecionado</translation>
    </message>
    <message>
        <source>not selected</source>
        <translation>não selecionado</translation>
    </message>
</context>
<context>
    <name>vantor::ViewerDesk</name>
    <message>
        <source>Loading…</source>
        <translation>Carregando…</translation>
    </message>
    <message>
        <source>The storage medium cannot be read.</source>
        <translation>Não é possível ler a mídia de armazenamento.</translation>
    </message>
    <message>
        <source>No picture of this file can be shown.</source>
        <translation>Nenhuma imagem deste arquivo pode ser exibida.</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
</context>
</TS>
