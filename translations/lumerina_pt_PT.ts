<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_PT">
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save All</source>
        <translation>Guardar tudo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>Yes to &amp;All</source>
        <translation>Sim a &amp;tudo</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>N&amp;o to All</source>
        <translation>Nã&amp;o a tudo</translation>
    </message>
    <message>
        <source>Abort</source>
        <translation>Abortar</translation>
    </message>
    <message>
        <source>Retry</source>
        <translation>Repetir</translation>
    </message>
    <message>
        <source>Ignore</source>
        <translation>Ignorar</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Restore Defaults</source>
        <translation>Repor predefinições</translation>
    </message>
</context>
<context>
    <name>QDialogButtonBox</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>QGnomeTheme</name>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fechar</translation>
    </message>
    <message>
        <source>Close without Saving</source>
        <translation>Fechar sem guardar</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Abrir</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Guardar</translation>
    </message>
    <message>
        <source>&amp;Choose</source>
        <translation>&amp;Escolher</translation>
    </message>
    <message>
        <source>Look in:</source>
        <translation>Procurar em:</translation>
    </message>
    <message>
        <source>File &amp;name:</source>
        <translation>&amp;Nome do ficheiro:</translation>
    </message>
    <message>
        <source>Files of type:</source>
        <translation>Ficheiros do tipo:</translation>
    </message>
    <message>
        <source>Directory:</source>
        <translation>Pasta:</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>Go back</source>
        <translation>Recuar</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Go forward</source>
        <translation>Avançar</translation>
    </message>
    <message>
        <source>Parent Directory</source>
        <translation>Pasta acima</translation>
    </message>
    <message>
        <source>Go to the parent directory</source>
        <translation>Ir para a pasta acima</translation>
    </message>
    <message>
        <source>Create New Folder</source>
        <translation>Criar nova pasta</translation>
    </message>
    <message>
        <source>Create a New Folder</source>
        <translation>Criar uma nova pasta</translation>
    </message>
    <message>
        <source>List View</source>
        <translation>Vista de lista</translation>
    </message>
    <message>
        <source>Change to list view mode</source>
        <translation>Mudar para a vista de lista</translation>
    </message>
    <message>
        <source>Detail View</source>
        <translation>Vista de detalhes</translation>
    </message>
    <message>
        <source>Change to detail view mode</source>
        <translation>Mudar para a vista de detalhes</translation>
    </message>
    <message>
        <source>Sidebar</source>
        <translation>Barra lateral</translation>
    </message>
    <message>
        <source>List of places and bookmarks</source>
        <translation>Lista de locais e marcadores</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Ficheiros</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Ficheiro</translation>
    </message>
    <message>
        <source>%1 File</source>
        <translation>Ficheiro %1</translation>
    </message>
    <message>
        <source>File Folder</source>
        <translation>Pasta de ficheiros</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Nome alternativo</translation>
    </message>
    <message>
        <source>Shortcut</source>
        <translation>Atalho</translation>
    </message>
    <message>
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message>
        <source>Drive</source>
        <translation>Unidade</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>O meu computador</translation>
    </message>
    <message>
        <source>Recent Places</source>
        <translation>Locais recentes</translation>
    </message>
    <message>
        <source>New Folder</source>
        <translation>Nova pasta</translation>
    </message>
    <message>
        <source>&amp;New Folder</source>
        <translation>&amp;Nova pasta</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Mudar o nome</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Eliminar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Show &amp;hidden files</source>
        <translation>Mostrar ficheiros &amp;ocultos</translation>
    </message>
    <message>
        <source>Show </source>
        <translation>Mostrar </translation>
    </message>
    <message>
        <source>Directories</source>
        <translation>Pastas</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>All Files (*)</source>
        <translation>Todos os ficheiros (*)</translation>
    </message>
    <message>
        <source>Find Directory</source>
        <translation>Procurar pasta</translation>
    </message>
    <message>
        <source>Alt+Left</source>
        <translation>Alt+Esquerda</translation>
    </message>
    <message>
        <source>Alt+Right</source>
        <translation>Alt+Direita</translation>
    </message>
    <message>
        <source>Alt+Up</source>
        <translation>Alt+Cima</translation>
    </message>
    <message>
        <source>%1 already exists.
Do you want to replace it?</source>
        <translation>%1 já existe.
Quer substituí-lo?</translation>
    </message>
    <message>
        <source>'%1' is write protected.
Do you want to delete it anyway?</source>
        <translation>'%1' está protegido contra escrita.
Quer eliminá-lo mesmo assim?</translation>
    </message>
    <message>
        <source>Are you sure you want to delete '%1'?</source>
        <translation>Tem a certeza de que quer eliminar '%1'?</translation>
    </message>
    <message>
        <source>Could not delete directory.</source>
        <translation>Não foi possível eliminar a pasta.</translation>
    </message>
    <message>
        <source>%1
Directory not found.
Please verify the correct directory name was given.</source>
        <translation>%1
Pasta não encontrada.
Verifique se o nome da pasta está correcto.</translation>
    </message>
    <message>
        <source>%1
File not found.
Please verify the correct file name was given.</source>
        <translation>%1
Ficheiro não encontrado.
Verifique se o nome do ficheiro está correcto.</translation>
    </message>
</context>
<context>
    <name>QFileSystemModel</name>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Date Modified</source>
        <translation>Data de modificação</translation>
    </message>
    <message>
        <source>My Computer</source>
        <translation>O meu computador</translation>
    </message>
    <message>
        <source>Computer</source>
        <translation>Computador</translation>
    </message>
    <message>
        <source>Invalid filename</source>
        <translation>Nome de ficheiro inválido</translation>
    </message>
    <message>
        <source>&lt;b&gt;The name "%1" cannot be used.&lt;/b&gt;&lt;p&gt;Try using another name, with fewer characters or no punctuation marks.</source>
        <translation>&lt;b&gt;O nome "%1" não pode ser usado.&lt;/b&gt;&lt;p&gt;Experimente outro nome, com menos caracteres ou sem sinais de pontuação.</translation>
    </message>
</context>
<context>
    <name>QColorDialog</name>
    <message>
        <source>Select Color</source>
        <translation>Seleccionar cor</translation>
    </message>
    <message>
        <source>&amp;Basic colors</source>
        <translation>Cores &amp;básicas</translation>
    </message>
    <message>
        <source>&amp;Custom colors</source>
        <translation>&amp;Cores personalizadas</translation>
    </message>
    <message>
        <source>&amp;Add to Custom Colors</source>
        <translation>&amp;Juntar às cores personalizadas</translation>
    </message>
    <message>
        <source>&amp;Pick Screen Color</source>
        <translation>&amp;Apanhar cor do ecrã</translation>
    </message>
    <message>
        <source>Cursor at %1, %2
Press ESC to cancel</source>
        <translation>Cursor em %1, %2
Prima ESC para cancelar</translation>
    </message>
    <message>
        <source>Hu&amp;e:</source>
        <translation>&amp;Matiz:</translation>
    </message>
    <message>
        <source>&amp;Sat:</source>
        <translation>&amp;Sat:</translation>
    </message>
    <message>
        <source>&amp;Val:</source>
        <translation>&amp;Val:</translation>
    </message>
    <message>
        <source>&amp;Red:</source>
        <translation>&amp;Vermelho:</translation>
    </message>
    <message>
        <source>&amp;Green:</source>
        <translation>Ve&amp;rde:</translation>
    </message>
    <message>
        <source>Bl&amp;ue:</source>
        <translation>Az&amp;ul:</translation>
    </message>
    <message>
        <source>A&amp;lpha channel:</source>
        <translation>Canal a&amp;lfa:</translation>
    </message>
    <message>
        <source>&amp;HTML:</source>
        <translation>&amp;HTML:</translation>
    </message>
</context>
<context>
    <name>QMessageBox</name>
    <message>
        <source>Show Details...</source>
        <translation>Mostrar pormenores...</translation>
    </message>
    <message>
        <source>Hide Details...</source>
        <translation>Esconder pormenores...</translation>
    </message>
    <message>
        <source>About Qt</source>
        <translation>Acerca do Qt</translation>
    </message>
    <message>
        <source>&lt;h3&gt;About Qt&lt;/h3&gt;&lt;p&gt;This program uses Qt version %1.&lt;/p&gt;</source>
        <translation>&lt;h3&gt;Acerca do Qt&lt;/h3&gt;&lt;p&gt;Este programa usa a versão %1 do Qt.&lt;/p&gt;</translation>
    </message>
</context>
<context>
    <name>QLineEdit</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;olar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar tudo</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Desfazer</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Refazer</translation>
    </message>
    <message>
        <source>Cu&amp;t</source>
        <translation>Cor&amp;tar</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Copiar</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>C&amp;olar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar tudo</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Copiar o &amp;endereço da ligação</translation>
    </message>
</context>
<context>
    <name>QDialog</name>
    <message>
        <source>What's This?</source>
        <translation>O que é isto?</translation>
    </message>
</context>
</TS>
