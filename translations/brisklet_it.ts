<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Lo scaricamento è già in corso.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Impossibile salvare l’aggiornamento: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Accorcia video</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Accorcia, ritaglia e ruota video con la precisione del fotogramma</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>tagliare;clip;accorciare;ritagliare;ruotare;film;filmato;video;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nuova finestra</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Accorcia, ritaglia e ruota video</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet fa una cosa sola: crea una copia più corta, ritagliata o ruotata di un video. Basta rilasciare un file sulla finestra, trascinare le due maniglie sulla striscia di immagini ed esportare.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>La prima immagine dell’esportazione è quella vista all’inizio dell’intervallo e l’audio resta dov’era.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Ritaglia e ruota in un solo passaggio, con un unico ricampionamento accurato.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Conserva colori, ampia gamma dinamica, tracce audio, capitoli e date.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Scrive MP4 e MOV; legge ciò che scrivono fotocamere, telefoni e registratori dello schermo.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Non tocca mai l’originale e non lascia mai un file scritto a metà.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Video (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Esporta</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Apri</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tutti i file (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>«%1» è il video in corso di modifica. Scegliere un altro nome.</translation>
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
        <translation>Annulla</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Sì</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;No</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Chiudi</translation>
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
        <translation>Maiusc</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Su</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Giù</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>↖</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Pag↑</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Pag↓</translation>
    </message>
</context>
<context>
    <name>brisklet::AppCommands</name>
    <message>
        <source>About Brisklet</source>
        <translation>Informazioni su Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controlla aggiornamenti…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nuova finestra</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Apri video…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Esporta…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Chiudi video</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Imposta l’inizio dell’intervallo alla testina</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Imposta la fine dell’intervallo alla testina</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Fotogramma precedente</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Fotogramma successivo</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Riproduci in ciclo</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Rimuovi dai gestori di file</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Aggiungi ai gestori di file</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Impossibile cambiare le voci dei gestori di file: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Accorcia, ritaglia e ruota video con la precisione del fotogramma.

Software libero con licenza GNU General Public License, versione 3 o successiva.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Annulla inizio dell’intervallo</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Ripeti inizio dell’intervallo</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Annulla fine dell’intervallo</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Ripeti fine dell’intervallo</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Annulla ritaglio</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Ripeti ritaglio</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Annulla rimozione del ritaglio</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Ripeti rimozione del ritaglio</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Annulla rotazione</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Ripeti rotazione</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Annulla silenziamento</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Ripeti silenziamento</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Annulla attivazione audio</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Ripeti attivazione audio</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Riapri l’ultima modifica</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Mostra l’ultima esportazione</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ripeti</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Vai al tempo…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Inizio dell’intervallo, poi inizio del video</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Fine dell’intervallo, poi fine del video</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Indietro di un secondo</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Avanti di un secondo</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Modifica</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Vai</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Aiuto</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>La cartella «%1» non esiste più.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Non c’è alcun gestore di file che possa mostrare la cartella «%1».</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Si aprono al massimo %1 video alla volta.</translation>
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
Accorcia video. Ogni VIDEO si apre in una finestra propria.

  --install-quick-action  aggiunge «Accorcia video» ai gestori di file ed esce
  --help                  mostra questo aiuto ed esce
  --version               mostra la versione ed esce
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Area di rilascio</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Apri di nuovo</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Esporta %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Opzioni di esportazione</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Ripristina predefiniti</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Risoluzione</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Attiva audio (altrimenti l’esportazione sarà senza audio)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silenzia</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Ruota a sinistra</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Rimuovi ritaglio</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Ritaglia</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>circa %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Riproduci o metti in pausa</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Silenzia o attiva l’audio</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Ritaglia o rimuovi il ritaglio</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Ritaglio</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 a %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Sposta il ritaglio</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Sposta il lato destro o inferiore</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Sposta il lato sinistro o superiore</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Ritaglio, con il mouse</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Trascinare all’interno</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Trascinare una maniglia</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Ridimensiona il ritaglio</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc mentre si trascina</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Annulla il trascinamento</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Ritaglio, raggiungibile con Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Tasti freccia</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Maiusc con questi tasti</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dieci volte più lontano</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet è già in esecuzione, ma non risponde.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Mostra</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Il server ha impiegato troppo tempo.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>«%1» non è un indirizzo sicuro.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Il server rimanda a «%1», che non è un indirizzo sicuro.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Il server invia più del dovuto.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Impossibile salvare il file scaricato: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>La connessione a «%1» non è sicura: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Rilasciare qui un video</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Apri video…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>accorciato</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» non contiene tracce video.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Impossibile aprire «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Impossibile riaprire «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>Non è più possibile mostrare «%1»: il suo decodificatore si è arrestato in modo imprevisto. Le modifiche non sono andate perse.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Qualcosa è andato storto</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Annulla</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Il tasto Giù apre un menù di formati e risoluzioni</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Pulsante Esporta, raggiungibile con Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Scegli formato e risoluzione</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>Filmato MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>Filmato QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Esportazione non riuscita: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Esportazione terminata</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Esportazione non riuscita</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>È in corso l’esportazione di un video.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Esportazione in corso…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Esportazione</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Avanzamento dell’esportazione</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>circa %1 rimanenti</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Originale</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Accorcia video</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Apri i video selezionati in Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>Impossibile scrivere «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Impossibile rimuovere «%1»: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>«%1» non si trova su questo computer e nessuna cartella qui vi conduce.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Vai al tempo</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Vai a:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Vai</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Questo non è un tempo. Digitarne uno come 1:23.456, +10f o #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Il video finisce a %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>I fotogrammi di questo video non hanno numeri noti. Digitare un tempo.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>L’ultimo fotogramma è il #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Un tempo, fotogrammi da qui o un fotogramma: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Un tempo, o fotogrammi da qui: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Digitare +%1f per spostarsi di altrettanti fotogrammi, o #%1 per il fotogramma con quel numero.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Il video inizia a %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Scorciatoie da tastiera</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Azione</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Tasti o gesto</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Controlli</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>velocità 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>velocità 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Impossibile trovare il server «%1».</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Il server «%1» non accetta la connessione.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>La connessione a «%1» è stata interrotta.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Il server «%1» reindirizza all’infinito.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Il server «%1» risponde con un errore (stato %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>La connessione a «%1» non è riuscita (dettagli: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>il suo certificato è di un altro server</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>il suo certificato è scaduto o non è ancora valido</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>il suo certificato non è attendibile</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>impossibile verificare il suo certificato (dettagli: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>Impossibile creare «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>Impossibile scrivere «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>Impossibile copiare «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Impossibile rimuovere «%1»: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Non esiste.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Impossibile stabilire dove si trova il programma.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Inizio dell’intervallo</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Testina</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Fine dell’intervallo</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Un fotogramma indietro</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Un fotogramma avanti</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Un secondo indietro</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Un secondo avanti</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Indietro il più possibile</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Avanti il più possibile</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Maiusc con questi tasti</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dieci volte più lontano</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Linea temporale, con il mouse</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Fare clic o trascinare</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Sposta la testina</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Trascinare una maniglia</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Sposta l’inizio o la fine dell’intervallo</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc mentre si trascina</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Annulla il trascinamento</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Inizio dell’intervallo, testina e fine dell’intervallo, raggiungibili con Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Creazione della striscia di immagini…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Trascinare con Maiusc</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Sposta di un decimo rispetto al puntatore</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Trascinare con Maiusc, molto sopra o sotto</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Sposta di un centesimo</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Rotellina</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Sposta di un fotogramma</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Rotellina con Maiusc</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Sposta di dieci fotogrammi</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Rotellina sopra una maniglia</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Sposta a passi quell’estremo dell’intervallo</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Linea temporale</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Intervallo %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Aggiornamenti</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Controllare automaticamente gli aggiornamenti?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet può controllare una volta al giorno se c’è una nuova versione. Il controllo è possibile anche dal menù.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Controllo degli aggiornamenti…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Brisklet è aggiornato.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 è la versione più recente disponibile.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Installa aggiornamento</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Ricorda più tardi</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Salta questa versione</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>È disponibile una nuova versione di Brisklet.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>È disponibile Brisklet %1; la versione installata è la %2. Installare la nuova versione?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Scaricamento di Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>L’aggiornamento non è riuscito.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>L’elenco degli aggiornamenti è danneggiato.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Impossibile controllare gli aggiornamenti: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>L’aggiornamento è troppo grande.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Impossibile scaricare l’aggiornamento: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>L’aggiornamento è incompleto. Non è stato installato.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>L’aggiornamento non è autentico: la firma è errata. Non è stato installato.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Non c’è alcun programma con cui installare l’aggiornamento. Si trova qui: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Interrompere l’esportazione e chiudere?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Interrompi e chiudi</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Continua a esportare</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Interrompere %n esportazione e chiudere?</numerusform>
            <numerusform>Interrompere %n esportazioni e chiudere?</numerusform>
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
        <translation>opzione sconosciuta %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 non accetta un valore</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 richiede un valore</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 compare due volte</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 richiede un numero, non «%2»</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 richiede un numero intero, non «%2»</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>manca qualcosa: atteso %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argomento inatteso «%1»</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>un nome è vuoto</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count richiede un numero da 1 a %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS richiede un numero da 0 in su, non «%1»</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop richiede X,Y,W,H, non «%1»</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop richiede frazioni dell’immagine, da 0 a 1, con un’area</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format accetta %1, non «%2»</translation>
    </message>
    <message>
        <source> and </source>
        <translation> e </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>il nome dell’output non indica il formato: aggiungere --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> o </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 non accetta «%2»</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start non deve essere negativo</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end deve essere successivo a --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge richiede un numero di pixel</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress accetta solo json, non «%1»</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>nessun comando indicato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>«%1» non è un comando</translation>
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
        <translation>probe      mostra che cos’è il file, come un oggetto JSON.
filmstrip  scrive N (12) miniature, dal centro di N parti uguali, nella
           cartella come 00.png, 01.png, ..., e ne mostra i tempi in JSON.
frame      scrive l’immagine, raddrizzata, che un lettore mostra in quel punto.
export     scrive una copia del file:
  --start, --end        la parte da conservare, in secondi (tutto)
  --crop                in frazioni dell’immagine come appare dopo --rotate,
                        a partire dall’angolo in alto a sinistra
  --rotate              quarti di giro in senso orario, in gradi
  --mute                omette l’audio
  --max-short-edge      riduce a questo numero di pixel sul lato più corto
  --format              %1 (secondo la fine del nome dell’output)
  --progress json       mostra una riga JSON per avviso invece di una barra
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        altre impostazioni del codificatore, per misurazioni

  --help, --version     mostra questo aiuto, o la versione, ed esce

Stato di uscita: 0 riuscito; 1 fallito; 2 uso errato; 130 interrotto.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Esportazione non riuscita: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Impossibile scrivere «%1»: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Impossibile aprire «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Impossibile scrivere la risposta: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» non contiene tracce video.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Impossibile scrivere l’immagine come PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Impossibile creare la cartella «%1»: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Non ha una durata.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Impossibile creare una striscia di immagini da «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Impossibile creare l’immagine: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Impossibile aggiungere ai gestori di file: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>«Accorcia video» aggiunto ai gestori di file</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>opzione sconosciuta «%1»</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Non è un file video oppure è danneggiato.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Il formato non è supportato.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Il codec video non è supportato.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>È cifrato o protetto dalla copia.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Non si dispone dei permessi per leggere questo file.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Il nome del file è troppo lungo.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Il collegamento al file non porta da nessuna parte.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Non è un file normale.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>È una cartella, non un file video.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Impossibile leggere il file: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Impossibile leggere il video: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>«%1» è stato modificato dopo l’apertura.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Il file finisce troppo presto.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Il video è stato troncato durante la lettura.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Il disco ha segnalato un errore durante la lettura del video.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Il file non contiene tracce video.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Nessuna immagine di questo file può essere decodificata.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>In questo punto non c’è alcuna immagine.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Impossibile convertire immagini nel formato di pixel «%1».</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Impossibile convertire i colori delle immagini.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Impossibile convertire i colori dell’immagine.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Impossibile aprire «%1»: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>L’intervallo da esportare è vuoto.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Il file sorgente non contiene tracce video.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Impossibile preparare l’esportazione di questo video.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Non c’è alcun video da esportare.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Il video non può essere esportato su sé stesso.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Nessuna immagine di questo intervallo può essere decodificata.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Il nuovo file è stato danneggiato durante la scrittura.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Un codificatore necessario all’esportazione non è installato.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>Il codificatore %1 non accetta l’impostazione «%2».</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>Un’altra esportazione sta scrivendo «%1».</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Un altro programma ha rimosso il nuovo file non ancora completo.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>La cartella «%1» per il nuovo file non esiste.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>Non si dispone dei permessi per scrivere nella cartella «%1».</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Il disco con la cartella «%1» è protetto da scrittura.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Una cartella ha il nome del nuovo file.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Qualcosa che non è un file normale ha il nome del nuovo file.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Il nome del nuovo file è troppo lungo.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Il disco ha segnalato un errore durante la scrittura del nuovo file.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Impossibile scrivere il nuovo file: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>La memoria non è sufficiente.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Lo spazio su disco non è sufficiente.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Il file sarebbe troppo grande per questo disco.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Il disco ha segnalato un errore.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Impossibile trovare il motore multimediale: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet non è installato del tutto. Installarlo di nuovo.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet è stato aggiornato. Avviarlo di nuovo.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>permesso negato</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>operazione non permessa</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>file o cartella non esistente</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>non è una cartella</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>il file esiste già</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>argomento non valido</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>troppi file aperti</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>file system in sola lettura</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>il file non è più sul disco di rete</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>tempo di connessione scaduto</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>dispositivo o risorsa occupata</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>troppi livelli di collegamenti simbolici</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>programma lettore terminato</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>spazio sul dispositivo esaurito</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>quota disco superata</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>errore di ingresso/uscita</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>nome del file troppo lungo</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>errore generico in una libreria esterna</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>non ancora implementato in FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>errore inatteso (dettagli: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>La cartella «%1» non c’è.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Un altro file ora ha il suo nome.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Non è più nella cartella «%1».</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Lo spazio libero non è sufficiente: il video occupa circa %1 e ci sono %2 liberi.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Il sistema è troppo occupato: non può avviare un altro thread.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Il decodificatore video si è arrestato in modo imprevisto.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Il codificatore video si è arrestato in modo imprevisto. Del nuovo file non rimane nulla.</translation>
    </message>
</context>
</TS>
