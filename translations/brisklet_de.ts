<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Sie wird bereits heruntergeladen.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Die Aktualisierung kann nicht gespeichert werden: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Videokürzer</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Videos kürzen, zuschneiden und drehen, auf das Einzelbild genau</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>schneiden;kürzen;zuschneiden;beschneiden;drehen;Film;Clip;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Videos kürzen, zuschneiden und drehen</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet tut eines: Es macht eine kürzere, zugeschnittene oder gedrehte Kopie eines Videos. Eine Datei auf dem Fenster ablegen, die beiden Griffe über dem Filmstreifen ziehen, exportieren.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>Das erste Bild des Exports ist das, das Sie am Anfang des Bereichs gesehen haben, und der Ton bleibt, wo er war.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Schneidet zu und dreht in einem Schritt, mit einer einzigen sorgfältigen Neuabtastung.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Behält Farben, hohen Dynamikumfang, Tonspuren, Kapitel und Zeitangaben.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Schreibt MP4 und MOV; liest, was Kameras, Telefone und Bildschirmrekorder schreiben.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Rührt das Original nie an und lässt nie eine halb geschriebene Datei zurück.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Videos (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>„%1“ ist das Video, das gerade bearbeitet wird. Wählen Sie einen anderen Namen.</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>The names of keys, as they are on keyboards.</extracomment>
        <translation>Strg</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Leertaste</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Herunter</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Pos1</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Bild aufwärts</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Bild abwärts</translation>
    </message>
</context>
<context>
    <name>brisklet::AppCommands</name>
    <message>
        <source>About Brisklet</source>
        <translation>Über Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Aktualisierungen suchen …</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Neues Fenster</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Video öffnen …</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Exportieren …</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Video schließen</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Schnittanfang auf Abspielposition setzen</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Schnittende auf Abspielposition setzen</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Vorheriges Einzelbild</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Nächstes Einzelbild</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Wiedergabe wiederholen</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Aus Dateiverwaltung entfernen</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>In Dateiverwaltung aufnehmen</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Die Einträge in der Dateiverwaltung konnten nicht geändert werden: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Kürzt Videos, schneidet sie zu und dreht sie, auf das Einzelbild genau.

Freie Software unter der GNU General Public License, Version 3 oder neuer.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Rückgängig: Schnittanfang</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Wiederholen: Schnittanfang</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Rückgängig: Schnittende</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Wiederholen: Schnittende</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Rückgängig: Zuschneiden</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Wiederholen: Zuschneiden</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Rückgängig: Zuschnitt aufheben</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Wiederholen: Zuschnitt aufheben</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Rückgängig: Drehen</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Wiederholen: Drehen</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Rückgängig: Ton aus</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Wiederholen: Ton aus</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Rückgängig: Ton ein</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Wiederholen: Ton ein</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Letzte Bearbeitung wieder öffnen</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Letzten Export anzeigen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Wiederholen</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Gehe zu Zeitpunkt …</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Bereichsanfang, dann Videoanfang</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Bereichsende, dann Videoende</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Eine Sekunde zurück</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Eine Sekunde weiter</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>B&amp;earbeiten</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Den Ordner „%1“ gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Es gibt keine Dateiverwaltung, die den Ordner „%1“ anzeigen könnte.</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Es werden höchstens %1 Videos auf einmal geöffnet.</translation>
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
        <translation>Aufruf: brisklet [VIDEO...]
Kürzt Videos. Jedes VIDEO öffnet sich in einem eigenen Fenster.

  --install-quick-action  „Video kürzen“ in Dateiverwaltungen anlegen und enden
  --help                  diese Hilfe ausgeben und enden
  --version               die Version ausgeben und enden
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Ablagefläche</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Wieder öffnen</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>%1 exportieren …</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Exporteinstellungen</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Auf Vorgaben zurücksetzen</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Auflösung</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Wiedergabe</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Ton einschalten (der Export enthält sonst keinen Ton)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ton ausschalten</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Nach links drehen</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Zuschnitt aufheben</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>etwa %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Wiedergabe oder Pause</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Ton aus- oder einschalten</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Zuschneiden oder Zuschnitt aufheben</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Bildausschnitt</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 bei %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Bildausschnitt verschieben</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Rechte oder untere Seite verschieben</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Linke oder obere Seite verschieben</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Bildausschnitt, mit der Maus</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Innerhalb ziehen</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Einen Griff ziehen</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Größe des Bildausschnitts ändern</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc beim Ziehen</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Ziehen zurücknehmen</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Bildausschnitt, über die Tab-Taste</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Umschalt mit diesen Tasten</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Zehnmal so weit</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet läuft bereits, antwortet aber nicht.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Der Server hat zu lange gebraucht.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>„%1“ ist keine sichere Adresse.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Der Server verweist auf „%1“; das ist keine sichere Adresse.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Der Server sendet mehr als erwartet.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Der Download kann nicht gespeichert werden: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>Die Verbindung zu „%1“ ist nicht sicher: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Video hier ablegen</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Video öffnen …</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>gekürzt</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>„%1“ enthält keine Videospur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>„%1“ konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>„%1“ konnte nicht wieder geöffnet werden: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>„%1“ kann nicht mehr gezeigt werden: Der Decoder wurde unerwartet beendet. Die Bearbeitung ist nicht verloren.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Etwas ist schiefgelaufen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Die Taste „Pfeil nach unten“ öffnet ein Menü mit Formaten und Auflösungen</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Exportschaltfläche, über die Tab-Taste</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Format und Auflösung wählen</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>MPEG-4-Film</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>QuickTime-Film</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Export abgeschlossen</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Export fehlgeschlagen</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Ein Video wird exportiert.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Wird exportiert …</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Exportfortschritt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>noch etwa %1</translation>
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
        <translation>Video kürzen</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Die ausgewählten Videos in Brisklet öffnen</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>„%1“ konnte nicht entfernt werden: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>„%1“ liegt nicht auf diesem Rechner, und kein Ordner hier führt dorthin.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Gehe zu Zeitpunkt</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Gehe zu:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Gehe zu</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Das ist kein Zeitpunkt. Geben Sie einen ein, etwa 1:23.456, +10f oder #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Das Video endet bei %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Die Nummern der Einzelbilder dieses Videos sind nicht bekannt. Geben Sie einen Zeitpunkt ein.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Das letzte Einzelbild ist #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Ein Zeitpunkt, Einzelbilder von hier aus oder ein Einzelbild: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Ein Zeitpunkt oder Einzelbilder von hier aus: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Geben Sie +%1f ein, um so viele Einzelbilder weiterzugehen, oder #%1 für das Einzelbild mit dieser Nummer.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Das Video beginnt bei %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Tasten oder Geste</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Bedienelemente</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>Tempo 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>Tempo 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Der Server „%1“ ist nicht zu finden.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Der Server „%1“ nimmt keine Verbindung an.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>Die Verbindung zu „%1“ wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Der Server „%1“ leitet endlos weiter.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Der Server „%1“ antwortet mit einem Fehler (Status %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>Die Verbindung zu „%1“ ist gescheitert (Details: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>das Zertifikat gehört zu einem anderen Server</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>das Zertifikat ist abgelaufen oder noch nicht gültig</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>dem Zertifikat wird nicht vertraut</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>das Zertifikat lässt sich nicht prüfen (Details: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>„%1“ konnte nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>„%1“ konnte nicht kopiert werden: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>„%1“ konnte nicht entfernt werden: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Es ist nicht vorhanden.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Der Ort des Programms konnte nicht ermittelt werden.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Schnittanfang</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Abspielposition</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Schnittende</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Ein Einzelbild zurück</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Ein Einzelbild weiter</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Eine Sekunde zurück</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Eine Sekunde weiter</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>So weit zurück wie möglich</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>So weit nach vorn wie möglich</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Umschalt mit diesen Tasten</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Zehnmal so weit</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Zeitleiste, mit der Maus</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Klicken oder ziehen</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Abspielposition verschieben</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Einen Griff ziehen</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Schnittanfang oder Schnittende verschieben</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc beim Ziehen</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Ziehen zurücknehmen</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Schnittanfang, Abspielposition und Schnittende, über die Tab-Taste</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Filmstreifen wird erstellt …</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Mit Umschalt ziehen</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Um ein Zehntel des Zeigerwegs verschieben</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Mit Umschalt ziehen, weit darüber oder darunter</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Um ein Hundertstel verschieben</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Mausrad</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Um ein Einzelbild springen</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Mausrad mit Umschalt</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Um zehn Einzelbilder springen</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Mausrad über einem Griff</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Dieses Ende des Bereichs schrittweise verschieben</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Zeitleiste</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Bereich %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Aktualisierungen</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatisch nach Aktualisierungen suchen?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet kann einmal täglich nachsehen, ob es eine neue Version gibt. Sie können auch über das Menü danach suchen.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Nach Aktualisierungen wird gesucht …</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Brisklet ist auf dem neuesten Stand.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 ist die neueste verfügbare Version.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Aktualisierung installieren</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Später erinnern</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Diese Version überspringen</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Eine neue Version von Brisklet ist verfügbar.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 ist da; Sie haben %2. Möchten Sie die neue Version installieren?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Brisklet %1 wird heruntergeladen …</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Die Aktualisierung ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>Die Liste der Aktualisierungen ist beschädigt.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Die Suche nach Aktualisierungen ist fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>Die Aktualisierung ist zu groß.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Die Aktualisierung konnte nicht heruntergeladen werden: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>Die Aktualisierung ist unvollständig. Sie wurde nicht installiert.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>Die Aktualisierung ist nicht echt: Die Signatur ist falsch. Sie wurde nicht installiert.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Es gibt kein Programm, das die Aktualisierung installieren kann. Sie liegt hier: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Export abbrechen und schließen?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Abbrechen und schließen</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Weiter exportieren</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>%n Export abbrechen und schließen?</numerusform>
            <numerusform>%n Exporte abbrechen und schließen?</numerusform>
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
        <translation>unbekannte Option %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nimmt keinen Wert an</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 braucht einen Wert</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 ist doppelt angegeben</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 braucht eine Zahl, nicht „%2“</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 braucht eine ganze Zahl, nicht „%2“</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>etwas fehlt: erwartet wird %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>unerwartetes Argument „%1“</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>ein Name ist leer</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count braucht eine Zahl von 1 bis %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS braucht eine Zahl ab 0, nicht „%1“</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop braucht X,Y,W,H, nicht „%1“</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop braucht Bruchteile des Bildes von 0 bis 1, die eine Fläche ergeben</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format kennt %1, nicht „%2“</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>der Name der Ausgabe verrät das Format nicht: --format %1 angeben</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> oder </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 kennt kein „%2“</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start darf nicht negativ sein</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end muss nach --start liegen</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge braucht eine Anzahl von Pixeln</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress kennt nur json, nicht „%1“</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>kein Befehl angegeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>„%1“ ist kein Befehl</translation>
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
        <translation>Aufruf: brisklet-cli probe SOURCE
        brisklet-cli filmstrip SOURCE DIRECTORY [--count N]
        brisklet-cli frame SOURCE SECONDS OUTPUT.png
        brisklet-cli export SOURCE OUTPUT [--start S] [--end S]
                     [--crop X,Y,W,H] [--rotate DEGREES] [--mute]
                     [--max-short-edge N] [--format %1] [--progress json]
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
        <translation>probe      gibt als ein JSON-Objekt aus, was die Datei ist.
filmstrip  schreibt N (12) kleine Standbilder, je aus der Mitte gleicher Teile,
           als 00.png, 01.png, ... ins Verzeichnis; gibt Zeiten als JSON aus.
frame      schreibt das aufrechte Bild, das ein Player zu dieser Zeit zeigt.
export     schreibt eine Kopie der Datei:
  --start, --end        der Teil, der bleibt, in Sekunden (alles)
  --crop                in Bruchteilen des Bildes, wie es nach --rotate ist,
                        von seiner linken oberen Ecke aus
  --rotate              Vierteldrehungen im Uhrzeigersinn, in Grad
  --mute                lässt den Ton weg
  --max-short-edge      verkleinert auf so viele Pixel an der kürzeren Seite
  --format              %1 (worauf der Name der Ausgabe endet)
  --progress json       gibt je Meldung eine JSON-Zeile aus statt eines Balkens
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        abweichende Encoder-Einstellungen, für Messungen

  --help, --version     gibt diese Hilfe oder die Version aus und endet

Exit-Status: 0 fertig; 1 fehlgeschlagen; 2 falscher Aufruf; 130 unterbrochen.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Export fehlgeschlagen: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>„%1“ konnte nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>„%1“ konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Die Antwort konnte nicht geschrieben werden: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>„%1“ enthält keine Videospur.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Das Bild konnte nicht als PNG geschrieben werden.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Der Ordner „%1“ konnte nicht angelegt werden: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Es hat keine Dauer.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Aus „%1“ konnte kein Filmstreifen gemacht werden: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Das Bild konnte nicht gemacht werden: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Die Menüeinträge konnten nicht angelegt werden: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>„Video kürzen“ ist in die Menüs der Dateiverwaltungen aufgenommen</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>unbekannte Option „%1“</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Es ist keine Videodatei, oder sie ist beschädigt.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Das Format wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Der Video-Codec wird nicht unterstützt.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Die Datei ist verschlüsselt oder kopiergeschützt.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Die Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Sie dürfen diese Datei nicht lesen.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Der Dateiname ist zu lang.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Die Verknüpfung zur Datei führt ins Leere.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Es ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Es ist ein Ordner, keine Videodatei.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Die Datei kann nicht gelesen werden: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Das Video kann nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>„%1“ wurde nach dem Öffnen geändert.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Die Datei endet zu früh.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Das Video wurde abgeschnitten, während es gelesen wurde.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Der Datenträger hat beim Lesen des Videos einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Die Datei enthält keine Videospur.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Kein einziges Bild dieser Datei lässt sich dekodieren.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>Zu dieser Zeit gibt es kein Bild.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Bilder im Pixelformat „%1“ können nicht umgewandelt werden.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Die Farben der Bilder können nicht umgewandelt werden.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Die Farben des Bildes können nicht umgewandelt werden.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>„%1“ konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Der Bereich zum Exportieren ist leer.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Die Quelldatei enthält keine Videospur.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Der Export dieses Videos konnte nicht vorbereitet werden.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Es gibt kein Video zum Exportieren.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Das Video kann nicht über sich selbst exportiert werden.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Kein einziges Bild dieses Bereichs lässt sich dekodieren.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Die neue Datei wurde beim Schreiben beschädigt.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Ein Encoder, den der Export braucht, ist nicht installiert.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>Der Encoder %1 nimmt die Einstellung „%2“ nicht an.</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>„%1“ wird gerade von einem anderen Export geschrieben.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Ein anderes Programm hat die unfertige neue Datei entfernt.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Der Ordner „%1“ für die neue Datei ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>Sie dürfen nicht in den Ordner „%1“ schreiben.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Der Datenträger mit dem Ordner „%1“ ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Ein Ordner hat den Namen der neuen Datei.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Etwas, das keine gewöhnliche Datei ist, hat den Namen der neuen Datei.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Der Name der neuen Datei ist zu lang.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Der Datenträger hat beim Schreiben der neuen Datei einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Die neue Datei kann nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Der Arbeitsspeicher reicht nicht aus.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Auf dem Datenträger ist nicht genug Platz.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Die Datei wäre für diesen Datenträger zu groß.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Der Datenträger hat einen Fehler gemeldet.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Die Medien-Engine kann nicht gefunden werden: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet ist nicht vollständig installiert. Installieren Sie es erneut.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet wurde aktualisiert. Starten Sie es neu.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>keine Berechtigung</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Vorgang nicht erlaubt</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Datei oder Ordner nicht gefunden</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>kein Ordner</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Datei ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>ist ein Ordner</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>ungültige Angabe</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>zu viele offene Dateien</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Datenträger ist schreibgeschützt</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>Datei nicht mehr im Netzlaufwerk</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Zeitüberschreitung der Verbindung</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Gerät ist belegt</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>zu viele Verknüpfungen ineinander</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>Empfängerprogramm beendet</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>kein Platz mehr auf dem Datenträger</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Speicherkontingent überschritten</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Lese- oder Schreibfehler des Datenträgers</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dateiname zu lang</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>Fehler in einer Programmbibliothek</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>wird von FFmpeg noch nicht unterstützt</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>unerwarteter Fehler (Details: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Der Ordner „%1“ ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Eine andere Datei trägt jetzt seinen Namen.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Es liegt nicht mehr im Ordner „%1“.</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Es ist nicht genug Platz frei: Das Video braucht etwa %1, frei sind %2.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Das System ist überlastet: Es kann keinen weiteren Thread starten.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Der Video-Decoder wurde unerwartet beendet.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Der Video-Encoder wurde unerwartet beendet. Von der neuen Datei bleibt nichts zurück.</translation>
    </message>
</context>
</TS>
