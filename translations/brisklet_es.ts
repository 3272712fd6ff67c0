<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Ya se está descargando.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>No se puede guardar la actualización: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Acortador de vídeo</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Acortar, recortar y girar vídeos con precisión de un fotograma</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>cortar;clip;acortar;recortar;girar;rotar;película;vídeo;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Ventana nueva</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Acortar, recortar y girar vídeos</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet hace una sola cosa: una copia más corta, recortada o girada de un vídeo. Suelte un archivo en la ventana, arrastre los dos tiradores sobre la tira de imágenes y exporte.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>La primera imagen de la exportación es la que se veía al inicio del intervalo, y el sonido sigue en su sitio.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Recorta y gira en un solo paso, con un único remuestreo cuidadoso.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Conserva los colores, el alto rango dinámico, las pistas de sonido, los capítulos y las fechas.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Escribe MP4 y MOV; lee lo que escriben las cámaras, los teléfonos y los grabadores de pantalla.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Nunca toca el original y nunca deja un archivo a medio escribir.</translation>
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
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>«%1» es el vídeo que se está editando. Elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sí</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Cerrar</translation>
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
        <translation>Mayús</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espacio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Izquierda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Derecha</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Arriba</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Abajo</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Re Pág</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Av Pág</translation>
    </message>
</context>
<context>
    <name>brisklet::AppCommands</name>
    <message>
        <source>About Brisklet</source>
        <translation>Acerca de Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Buscar actualizaciones…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Ventana nueva</translation>
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
        <translation>Cerrar vídeo</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Fijar el inicio del intervalo en el cabezal</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Fijar el final del intervalo en el cabezal</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Fotograma anterior</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Fotograma siguiente</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Reproducir en bucle</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Quitar de los gestores de archivos</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Añadir a los gestores de archivos</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>No se pudieron cambiar las entradas de los gestores de archivos: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Acorta, recorta y gira vídeos con precisión de un fotograma.

Software libre bajo la Licencia Pública General de GNU, versión 3 o posterior.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Deshacer inicio del intervalo</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Rehacer inicio del intervalo</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Deshacer final del intervalo</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Rehacer final del intervalo</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Deshacer recortar</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Rehacer recortar</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Deshacer quitar recorte</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Rehacer quitar recorte</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Deshacer girar</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Rehacer girar</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Deshacer silenciar</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Rehacer silenciar</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Deshacer activar sonido</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Rehacer activar sonido</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Volver a abrir la última edición</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Mostrar la última exportación</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Ir a un tiempo…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Inicio del intervalo, luego inicio del vídeo</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Final del intervalo, luego final del vídeo</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Retroceder un segundo</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Avanzar un segundo</translation>
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
        <translation>Ay&amp;uda</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>La carpeta «%1» ya no existe.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>No hay ningún gestor de archivos que pueda mostrar la carpeta «%1».</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Se abren como máximo %1 vídeos a la vez.</translation>
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
Acorta vídeos. Cada VIDEO se abre en una ventana propia.

  --install-quick-action  pone «Acortar vídeo» en gestores de archivos y sale
  --help                  muestra esta ayuda y sale
  --version               muestra la versión y sale
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Zona para soltar</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Volver a abrir</translation>
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
        <translation>Opciones de exportación</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Restaurar valores predeterminados</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Resolución</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pausar</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Reproducir</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Activar sonido (si no, se exportará sin sonido)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenciar</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Girar a la izquierda</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Quitar recorte</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>aprox. %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Reproducir o pausar</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Silenciar o activar sonido</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Recortar o quitar el recorte</translation>
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
        <translation>%1×%2 en %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Mover el recorte</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Mover su lado derecho o inferior</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Mover su lado izquierdo o superior</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Recorte, con el ratón</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Arrastrar dentro</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Arrastrar un tirador</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Cambiar el tamaño del recorte</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc al arrastrar</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Anular el arrastre</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Recorte, accesible con Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Teclas de flecha</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Mayús con estas teclas</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Diez veces más lejos</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet ya se está ejecutando, pero no responde.</translation>
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
        <translation>El servidor ha tardado demasiado.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>«%1» no es una dirección segura.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>El servidor remite a «%1», que no es una dirección segura.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>El servidor envía más de lo debido.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>No se puede guardar la descarga: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>La conexión con «%1» no es segura: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Suelte un vídeo aquí</translation>
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
        <translation>acortado</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» no contiene ninguna pista de vídeo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>No se pudo abrir «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>No se pudo volver a abrir «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>«%1» ya no se puede mostrar: su descodificador se ha detenido de forma inesperada. La edición no se ha perdido.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Algo ha ido mal</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
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
        <translation>La tecla Abajo abre un menú de formatos y resoluciones</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Botón Exportar, accesible con Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Elegir formato y resolución</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>Película MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>Película QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Falló la exportación: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Exportación terminada</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Falló la exportación</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Se está exportando un vídeo.</translation>
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
        <translation>Exportación</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Progreso de la exportación</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>quedan aprox. %1</translation>
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
        <translation>Acortar vídeo</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Abrir los vídeos seleccionados en Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>No se pudo eliminar «%1»: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>«%1» no está en este equipo y ninguna carpeta de aquí lleva a él.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Ir a un tiempo</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Ir a:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Ir</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Esto no es un tiempo. Escriba uno como 1:23.456, +10f o #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>El vídeo termina en %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Los fotogramas de este vídeo no tienen números conocidos. Escriba un tiempo.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>El último fotograma es el #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Un tiempo, fotogramas desde aquí o un fotograma: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Un tiempo, o fotogramas desde aquí: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Escriba +%1f para avanzar esa cantidad de fotogramas, o #%1 para el fotograma de ese número.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>El vídeo empieza en %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Atajos de teclado</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Acción</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Teclas o gesto</translation>
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
        <translation>velocidad 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>velocidad 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>No se encuentra el servidor «%1».</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>El servidor «%1» no acepta la conexión.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>Se ha interrumpido la conexión con «%1».</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>El servidor «%1» redirige sin fin.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>El servidor «%1» responde con un error (estado %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>Ha fallado la conexión con «%1» (detalles: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>su certificado es de otro servidor</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>su certificado ha caducado o aún no es válido</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>su certificado no es de confianza</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>su certificado no se puede comprobar (detalles: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>No se pudo crear «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>No se pudo escribir «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>No se pudo copiar «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>No se pudo eliminar «%1»: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>No existe.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>No se pudo averiguar dónde está el programa.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Inicio del intervalo</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Cabezal</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Final del intervalo</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Un fotograma atrás</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Un fotograma adelante</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Un segundo atrás</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Un segundo adelante</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Todo lo posible hacia atrás</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Todo lo posible hacia adelante</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Mayús con estas teclas</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Diez veces más lejos</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Línea de tiempo, con el ratón</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Pulsar o arrastrar</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Mover el cabezal</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Arrastrar un tirador</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Mover el inicio o el final del intervalo</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc al arrastrar</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Anular el arrastre</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Inicio del intervalo, cabezal y final del intervalo, accesibles con Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Creando la tira de imágenes…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Arrastrar con Mayús</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Mover una décima parte de lo que se mueve el puntero</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Arrastrar con Mayús, muy por encima o por debajo</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Mover una centésima parte</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Rueda</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Ir fotograma a fotograma</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Rueda con Mayús</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Ir de diez en diez fotogramas</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Rueda sobre un tirador</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Mover paso a paso ese extremo del intervalo</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Línea de tiempo</translation>
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
        <translation>Actualizaciones</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>¿Buscar actualizaciones automáticamente?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet puede mirar una vez al día si hay una versión nueva. También puede buscarla desde el menú.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Buscando actualizaciones…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Brisklet está actualizado.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 es la versión más reciente disponible.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Instalar actualización</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Recordar más tarde</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Omitir esta versión</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Hay disponible una versión nueva de Brisklet.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 ya está disponible; usted tiene %2. ¿Quiere instalar la versión nueva?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Descargando Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>La actualización no ha funcionado.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>La lista de actualizaciones está dañada.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>No se pudieron buscar actualizaciones: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>La actualización es demasiado grande.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>No se pudo descargar la actualización: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>La actualización está incompleta. No se ha instalado.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>La actualización no es auténtica: su firma no es correcta. No se ha instalado.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>No hay ningún programa con el que instalar la actualización. Está aquí: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>¿Detener la exportación y cerrar?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Detener y cerrar</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Seguir exportando</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>¿Detener %n exportación y cerrar?</numerusform>
            <numerusform>¿Detener %n exportaciones y cerrar?</numerusform>
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
        <translation>opción desconocida %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 no admite ningún valor</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 necesita un valor</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 se ha indicado dos veces</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 necesita un número, no «%2»</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 necesita un número entero, no «%2»</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>falta algo: se esperaba %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argumento inesperado «%1»</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>hay un nombre vacío</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count necesita un número del 1 al %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS necesita un número a partir de 0, no «%1»</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop necesita X,Y,W,H, no «%1»</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop necesita fracciones de la imagen, de 0 a 1, que abarquen una superficie</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format admite %1, no «%2»</translation>
    </message>
    <message>
        <source> and </source>
        <translation> y </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>el nombre de la salida no indica el formato: añada --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> o </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 no admite «%2»</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start no debe ser negativo</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end debe ser posterior a --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge necesita un número de píxeles</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress solo admite json, no «%1»</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>no se ha indicado ninguna orden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>«%1» no es una orden</translation>
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
        <translation>probe      muestra qué es el archivo, como un objeto JSON.
filmstrip  escribe N (12) miniaturas del centro de N partes iguales en el
           directorio como 00.png, 01.png, ..., y muestra sus tiempos en JSON.
frame      escribe la imagen, ya orientada, que se ve en ese momento.
export     escribe una copia del archivo:
  --start, --end        la parte que se conserva, en segundos (todo)
  --crop                en fracciones de la imagen como se ve tras --rotate,
                        desde su esquina superior izquierda
  --rotate              cuartos de vuelta en sentido horario, en grados
  --mute                omite el sonido
  --max-short-edge      reduce a este número de píxeles en el lado más corto
  --format              %1 (según termine el nombre de la salida)
  --progress json       muestra una línea JSON por aviso en vez de una barra
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        otros ajustes del codificador, para mediciones

  --help, --version     muestra esta ayuda, o la versión, y sale

Estado de salida: 0 hecho; 1 fallo; 2 uso incorrecto; 130 interrumpido.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Falló la exportación: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>No se pudo escribir «%1»: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>No se pudo abrir «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>No se pudo escribir la respuesta: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» no contiene ninguna pista de vídeo.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>No se pudo escribir la imagen como PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>No se pudo crear la carpeta «%1»: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>No tiene duración.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>No se pudo crear una tira de imágenes de «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>No se pudo crear la imagen: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>No se pudo añadir a los gestores de archivos: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>«Acortar vídeo» se ha añadido a los gestores de archivos</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>opción desconocida «%1»</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>No es un archivo de vídeo o está dañado.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Su formato no es compatible.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Su códec de vídeo no es compatible.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Está cifrado o protegido contra copia.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>El archivo no existe.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>No tiene permiso para leer este archivo.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>El nombre del archivo es demasiado largo.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>El enlace al archivo no lleva a ningún sitio.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>No es un archivo normal.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Es una carpeta, no un archivo de vídeo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>El archivo está vacío.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>No se puede leer el archivo: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>No se puede leer el vídeo: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>«%1» se modificó después de abrirlo.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>El archivo termina antes de tiempo.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>El vídeo se truncó mientras se leía.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>El disco informó de un error al leer el vídeo.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>El archivo no contiene ninguna pista de vídeo.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>No se puede descodificar ni una sola imagen de este archivo.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>En ese punto del vídeo no hay ninguna imagen.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>No se pueden convertir imágenes con el formato de píxel «%1».</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>No se pueden convertir los colores de las imágenes.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>No se pueden convertir los colores de la imagen.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>No se pudo abrir «%1»: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>El intervalo que se va a exportar está vacío.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>El archivo de origen no contiene ninguna pista de vídeo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>No se pudo preparar la exportación de este vídeo.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>No hay ningún vídeo que exportar.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>No se puede exportar el vídeo sobre sí mismo.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>No se puede descodificar ni una sola imagen de este intervalo.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>El archivo nuevo se dañó mientras se escribía.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Un codificador necesario para la exportación no está instalado.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>El codificador %1 no acepta el ajuste «%2».</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>Otra exportación está escribiendo «%1».</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Otro programa eliminó el archivo nuevo sin terminar.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>La carpeta «%1» para el archivo nuevo no existe.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>No tiene permiso para escribir en la carpeta «%1».</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>El disco con la carpeta «%1» está protegido contra escritura.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Una carpeta tiene el nombre del archivo nuevo.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Algo que no es un archivo normal tiene el nombre del archivo nuevo.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>El nombre del archivo nuevo es demasiado largo.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>El disco informó de un error al escribir el archivo nuevo.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>No se puede escribir el archivo nuevo: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>No hay memoria suficiente.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>No hay espacio suficiente en el disco.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>El archivo sería demasiado grande para este disco.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>El disco informó de un error.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>No se puede encontrar el motor multimedia: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet no está instalado por completo. Vuelva a instalarlo.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet se ha actualizado. Vuelva a iniciarlo.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>permiso denegado</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>operación no permitida</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>no existe el archivo o la carpeta</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>no es una carpeta</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>el archivo ya existe</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>es una carpeta</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>argumento no válido</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>demasiados archivos abiertos</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>sistema de archivos de solo lectura</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>el archivo ya no está en el disco de red</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>se agotó el tiempo de conexión</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>dispositivo o recurso ocupado</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>demasiados niveles de enlaces simbólicos</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>el programa lector terminó</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>no queda espacio en el dispositivo</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>se ha superado la cuota de disco</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>error de entrada/salida</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>nombre de archivo demasiado largo</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>error genérico en una biblioteca externa</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>FFmpeg todavía no lo admite</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>error inesperado (detalles: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>La carpeta «%1» no está ahí.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Otro archivo tiene ahora su nombre.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Ya no está en la carpeta «%1».</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>No hay espacio libre suficiente: el vídeo ocupa aprox. %1 y hay %2 libres.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>El sistema está demasiado ocupado: no puede iniciar otro hilo.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>El descodificador de vídeo se ha detenido de forma inesperada.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>El codificador de vídeo se ha detenido de forma inesperada. No queda nada del archivo nuevo.</translation>
    </message>
</context>
</TS>
