<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Ela já está sendo baixada.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Não foi possível salvar a atualização: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Aparador de vídeo</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Apare, recorte e gire vídeos com precisão de um quadro</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>cortar;clipe;aparar;encurtar;recortar;girar;filme;vídeo;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nova janela</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Apare, recorte e gire vídeos</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>O Brisklet faz uma coisa só: uma cópia mais curta, recortada ou girada de um vídeo. Solte um arquivo na janela, arraste as duas alças sobre a tira de imagens e exporte.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>A primeira imagem da exportação é a que você viu no início do intervalo, e o som continua no lugar certo.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Recorta e gira em uma só etapa, com uma única reamostragem cuidadosa.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Mantém as cores, o alto alcance dinâmico, as faixas de áudio, os capítulos e as datas.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Grava MP4 e MOV; lê o que câmeras, celulares e gravadores de tela gravam.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Nunca toca no original e nunca deixa um arquivo gravado pela metade.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Vídeos (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>“%1” é o vídeo que está sendo editado. Escolha outro nome.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sim</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Não</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Fechar</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>The names of keys, as they are on keyboards.</extracomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Acima</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abaixo</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDown</translation>
    </message>
</context>
<context>
    <name>brisklet::AppCommands</name>
    <message>
        <source>About Brisklet</source>
        <translation>Sobre o Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Verificar atualizações…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nova janela</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Abrir vídeo…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Exportar…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Fechar vídeo</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Definir início do intervalo no cursor de reprodução</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Definir fim do intervalo no cursor de reprodução</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Quadro anterior</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Próximo quadro</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Repetir reprodução</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Clipe</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Remover dos gerenciadores de arquivos</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Adicionar aos gerenciadores de arquivos</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Não foi possível mudar as entradas dos gerenciadores de arquivos: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Apara, recorta e gira vídeos com precisão de um quadro.

Software livre sob a Licença Pública Geral GNU, versão 3 ou posterior.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Desfazer início do intervalo</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Refazer início do intervalo</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Desfazer fim do intervalo</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Refazer fim do intervalo</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Desfazer recortar</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Refazer recortar</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Desfazer remover recorte</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Refazer remover recorte</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Desfazer girar</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Refazer girar</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Desfazer silenciar</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Refazer silenciar</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Desfazer ativar som</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Refazer ativar som</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Reabrir a última edição</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Mostrar a última exportação</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Ir para o tempo…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Início do intervalo, depois início do vídeo</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Fim do intervalo, depois fim do vídeo</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Voltar um segundo</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Avançar um segundo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Editar</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Ir</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aj&amp;uda</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>A pasta “%1” não existe mais.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Não há gerenciador de arquivos para mostrar a pasta “%1”.</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>No máximo %1 vídeos são abertos de uma vez.</translation>
    </message>
</context>
<context>
    <name>brisklet::CommandLine</name>
    <message>
        <source>Usage: brisklet [VIDEO...]
Trims videos. Each VIDEO opens in a window of its own.

  --install-quick-action  add &quot;Trim Video&quot; to the menus of file managers and exit
  --help                  print this and exit
  --version               print the version and exit
</source>
        <extracomment>What --help prints. The options stay as they are; lines have at most 79 letters.</extracomment>
        <translation>Uso: brisklet [VIDEO...]
Apara vídeos. Cada VIDEO é aberto em uma janela própria.

  --install-quick-action  põe “Aparar vídeo” em gerenciadores de arquivos e sai
  --help                  mostra esta ajuda e sai
  --version               mostra a versão e sai
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Área para soltar</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Abrir novamente</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Exportar %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Opções de exportação</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Restaurar padrões</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Resolução</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Ativar som (senão, o áudio será removido ao exportar)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar para a esquerda</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Remover recorte</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>cerca de %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproduzir ou pausar</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Silenciar ou ativar o som</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Recortar ou remover o recorte</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Recorte</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 em %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Mover o recorte</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Mover o lado direito ou inferior</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Mover o lado esquerdo ou superior</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Recorte, com o mouse</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Arrastar dentro dele</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Arrastar uma alça</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Redimensionar o recorte</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc ao arrastar</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Desfazer o arrasto</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Recorte, acessado com Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Teclas de seta</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift com estas teclas</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dez vezes mais longe</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>O Brisklet já está em execução, mas não responde.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Mostrar</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>O servidor demorou demais.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>“%1” não é um endereço seguro.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>O servidor leva a “%1”, que não é um endereço seguro.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>O servidor envia mais do que deveria.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Não foi possível salvar o arquivo baixado: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>A conexão com “%1” não é segura: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Solte um vídeo aqui</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Abrir vídeo…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>aparado</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1” não contém nenhuma faixa de vídeo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Não foi possível abrir “%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Não foi possível reabrir “%1”: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>Não é mais possível exibir “%1”: o decodificador parou inesperadamente. A edição não foi perdida.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Algo deu errado</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>A tecla Seta para baixo abre um menu de formatos e resoluções</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Botão Exportar, acessado com Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Escolher formato e resolução</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>Filme MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>Filme QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Falha na exportação: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Exportação concluída</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Falha na exportação</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Um vídeo está sendo exportado.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Exportando…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Exportação</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Progresso da exportação</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>cerca de %1 restantes</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Original</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Aparar vídeo</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Abrir os vídeos selecionados no Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>Não foi possível gravar “%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Não foi possível remover “%1”: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>“%1” não está neste computador, e nenhuma pasta daqui leva até ele.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Ir para o tempo</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Ir para:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Ir</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Isto não é um tempo. Digite algo como 1:23.456, +10f ou #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>O vídeo termina em %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Os quadros deste vídeo não têm números conhecidos. Digite um tempo.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>O último quadro é o #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Um tempo, quadros a partir daqui ou um quadro: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Um tempo ou quadros a partir daqui: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Digite +%1f para avançar essa quantidade de quadros ou #%1 para o quadro com esse número.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>O vídeo começa em %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atalhos de teclado</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Ação</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Teclas ou gesto</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controles</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>velocidade 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>velocidade 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Não foi possível encontrar o servidor “%1”.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>O servidor “%1” não aceita a conexão.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>A conexão com “%1” foi interrompida.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>O servidor “%1” redireciona sem fim.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>O servidor “%1” responde com um erro (status %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>A conexão com “%1” falhou (detalhes: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>o certificado é de outro servidor</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>o certificado expirou ou ainda não é válido</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>o certificado não é confiável</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>não foi possível verificar o certificado (detalhes: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>Não foi possível criar “%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>Não foi possível gravar “%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>Não foi possível copiar “%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Não foi possível remover “%1”: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Não existe.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Não foi possível descobrir onde está o programa.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Início do intervalo</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Cursor de reprodução</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Fim do intervalo</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Um quadro para trás</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Um quadro para a frente</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Um segundo para trás</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Um segundo para a frente</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Para trás até onde for possível</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Para a frente até onde for possível</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift com estas teclas</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dez vezes mais longe</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Linha do tempo, com o mouse</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Clicar ou arrastar</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Mover o cursor de reprodução</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Arrastar uma alça</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Mover o início ou o fim do intervalo</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc ao arrastar</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Desfazer o arrasto</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Início do intervalo, cursor de reprodução e fim do intervalo, acessados com Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Criando a tira de imagens…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Arrastar com Shift</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Mover um décimo do que o ponteiro se move</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Arrastar com Shift, bem acima ou abaixo</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Mover um centésimo</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Roda</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Avançar ou voltar um quadro</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Roda com Shift</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Avançar ou voltar dez quadros</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Roda sobre uma alça</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Mover passo a passo esse extremo do intervalo</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Linha do tempo</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Intervalo %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Atualizações</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Verificar atualizações automaticamente?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>O Brisklet pode verificar uma vez por dia se há uma nova versão. Você também pode verificar pelo menu.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Verificando atualizações…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>O Brisklet está atualizado.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>O Brisklet %1 é a versão mais recente disponível.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Atualização</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Instalar atualização</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Lembrar mais tarde</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorar esta versão</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Há uma nova versão do Brisklet disponível.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>O Brisklet %1 chegou; você tem o %2. Quer instalar a nova versão?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Baixando o Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>A atualização não funcionou.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>A lista de atualizações está danificada.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Não foi possível verificar atualizações: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>A atualização é grande demais.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Não foi possível baixar a atualização: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>A atualização está incompleta. Ela não foi instalada.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>A atualização não é autêntica: a assinatura está errada. Ela não foi instalada.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Não há programa para instalar a atualização. Ela está aqui: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Interromper a exportação e fechar?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Interromper e fechar</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Continuar exportando</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Interromper %n exportação e fechar?</numerusform>
            <numerusform>Interromper %n exportações e fechar?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>brisklet::approximateDuration</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>opção desconhecida %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 não aceita valor</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 precisa de um valor</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 aparece duas vezes</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 precisa de um número, não “%2”</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 precisa de um número inteiro, não “%2”</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>falta algo: esperava-se %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argumento inesperado “%1”</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>um nome está vazio</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count precisa de um número de 1 a %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS precisa de um número a partir de 0, não “%1”</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop precisa de X,Y,W,H, não “%1”</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop precisa de frações da imagem, de 0 a 1, que formem uma área</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format aceita %1, não “%2”</translation>
    </message>
    <message>
        <source> and </source>
        <translation> e </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>o nome da saída não indica o formato: acrescente --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> ou </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 não aceita “%2”</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start não pode ser negativo</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end deve vir depois de --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge precisa de um número de pixels</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress só aceita json, não “%1”</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>nenhum comando foi indicado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>“%1” não é um comando</translation>
    </message>
    <message>
        <source>Usage: brisklet-cli probe SOURCE
       brisklet-cli filmstrip SOURCE DIRECTORY [--count N]
       brisklet-cli frame SOURCE SECONDS OUTPUT.png
       brisklet-cli export SOURCE OUTPUT [--start S] [--end S] [--crop X,Y,W,H]
                    [--rotate DEGREES] [--mute] [--max-short-edge N]
                    [--format %1] [--progress json]
</source>
        <extracomment>Commands and options stay as they are; %1 is “mp4|mov”. Lines have at most 79 letters.</extracomment>
        <translation>Uso: brisklet-cli probe SOURCE
     brisklet-cli filmstrip SOURCE DIRECTORY [--count N]
     brisklet-cli frame SOURCE SECONDS OUTPUT.png
     brisklet-cli export SOURCE OUTPUT [--start S] [--end S] [--crop X,Y,W,H]
                  [--rotate DEGREES] [--mute] [--max-short-edge N]
                  [--format %1] [--progress json]
</translation>
    </message>
    <message>
        <source>probe      prints what the file is, as one JSON object.
filmstrip  writes N (12) small stills from the middles of N equal slices to the
           directory as 00.png, 01.png, ..., and prints their times as JSON.
frame      writes the upright picture that a player shows at that time.
export     writes a copy of the file:
  --start, --end        the part to keep, in seconds (all of it)
  --crop                in fractions of the picture as displayed after --rotate,
                        from its top left corner
  --rotate              clockwise quarter turns, in degrees
  --mute                leaves the sound out
  --max-short-edge      scales down to this many pixels on the shorter side
  --format              %1 (what the output’s name ends in)
  --progress json       prints one JSON line per report instead of a bar
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        other encoder settings than the program’s, for measurements

  --help, --version     print this, or the version, and exit

Exit status: 0 done; 1 failed; 2 wrong usage; 130 interrupted.
</source>
        <extracomment>Commands and options stay as they are; %1 is “mp4 or mov”. Lines have at most 79 letters.</extracomment>
        <translation>probe      mostra o que é o arquivo, como um objeto JSON.
filmstrip  grava N (12) miniaturas do meio de N partes iguais na pasta
           como 00.png, 01.png, ..., e mostra os tempos delas em JSON.
frame      grava a imagem, já orientada, que um reprodutor mostra nesse tempo.
export     grava uma cópia do arquivo:
  --start, --end        a parte a manter, em segundos (tudo)
  --crop                em frações da imagem como é exibida após --rotate,
                        a partir do canto superior esquerdo
  --rotate              quartos de volta no sentido horário, em graus
  --mute                deixa o som de fora
  --max-short-edge      reduz para este número de pixels no lado mais curto
  --format              %1 (conforme o final do nome da saída)
  --progress json       mostra uma linha JSON por aviso em vez de uma barra
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        outras configurações do codificador, para medições

  --help, --version     mostra esta ajuda, ou a versão, e sai

Status de saída: 0 concluído; 1 falha; 2 uso incorreto; 130 interrompido.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falha na exportação: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Não foi possível gravar “%1”: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Não foi possível abrir “%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Não foi possível gravar a resposta: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1” não contém nenhuma faixa de vídeo.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Não foi possível gravar a imagem como PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Não foi possível criar a pasta “%1”: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Não tem duração.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Não foi possível criar uma tira de imagens de “%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Não foi possível criar a imagem: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Falha ao adicionar aos gerenciadores de arquivos: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>“Aparar vídeo” adicionado aos gerenciadores de arquivos</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>opção desconhecida “%1”</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Não é um arquivo de vídeo ou está danificado.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Não há suporte para o formato.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Não há suporte para o codec de vídeo.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Está criptografado ou protegido contra cópia.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Você não tem permissão para ler este arquivo.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>O nome do arquivo é longo demais.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>O link para o arquivo não leva a lugar nenhum.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Não é um arquivo comum.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>É uma pasta, não um arquivo de vídeo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Não foi possível ler o arquivo: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Não foi possível ler o vídeo: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>“%1” foi alterado depois de ser aberto.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>O arquivo termina cedo demais.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>O vídeo foi truncado durante a leitura.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>O disco informou um erro durante a leitura do vídeo.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>O arquivo não contém nenhuma faixa de vídeo.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Nenhuma imagem deste arquivo pode ser decodificada.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>Não há imagem neste momento do vídeo.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Não é possível converter imagens no formato de pixel “%1”.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Não é possível converter as cores das imagens.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Não é possível converter as cores da imagem.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Não foi possível abrir “%1”: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>O intervalo a exportar está vazio.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>O arquivo de origem não contém nenhuma faixa de vídeo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Não foi possível preparar a exportação deste vídeo.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Não há vídeo para exportar.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>O vídeo não pode ser exportado sobre ele mesmo.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Nenhuma imagem deste intervalo pode ser decodificada.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>O novo arquivo foi danificado durante a gravação.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Um codificador necessário para a exportação não está instalado.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>O codificador %1 não aceita a configuração “%2”.</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>“%1” está sendo gravado por outra exportação.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Outro programa removeu o novo arquivo inacabado.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>A pasta “%1” do novo arquivo não existe.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>Você não tem permissão para gravar na pasta “%1”.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>O disco com a pasta “%1” está protegido contra gravação.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Uma pasta tem o nome do novo arquivo.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Algo que não é um arquivo comum tem o nome do novo arquivo.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>O nome do novo arquivo é longo demais.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>O disco informou um erro durante a gravação do novo arquivo.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Não foi possível gravar o novo arquivo: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Não há memória suficiente.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Não há espaço suficiente no disco.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>O arquivo seria grande demais para este disco.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>O disco informou um erro.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Não foi possível encontrar o mecanismo de mídia: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>O Brisklet não está instalado por completo. Instale-o novamente.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>O Brisklet foi atualizado. Inicie-o novamente.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>permissão negada</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>operação não permitida</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>arquivo ou pasta inexistente</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>não é uma pasta</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>o arquivo já existe</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>argumento inválido</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>muitos arquivos abertos</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>sistema de arquivos somente leitura</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>o arquivo não está mais no disco de rede</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>tempo de conexão esgotado</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>dispositivo ou recurso ocupado</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>muitos níveis de links simbólicos</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>o programa leitor terminou</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>não há espaço no dispositivo</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>cota de disco excedida</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erro de entrada/saída</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>nome de arquivo longo demais</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>erro genérico em uma biblioteca externa</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>ainda não implementado no FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>erro inesperado (detalhes: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>A pasta “%1” não está lá.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Outro arquivo tem o nome dele agora.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Não está mais na pasta “%1”.</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Não há espaço livre suficiente: o vídeo ocupa cerca de %1, e há %2 livres.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>O sistema está ocupado demais: não pode iniciar outra thread.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>O decodificador de vídeo parou inesperadamente.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>O codificador de vídeo parou inesperadamente. Nada do novo arquivo foi deixado para trás.</translation>
    </message>
</context>
</TS>
