<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Elle est déjà en cours de téléchargement.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Impossible d’enregistrer la mise à jour&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Raccourcisseur de vidéos</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Raccourcir, recadrer et faire pivoter des vidéos, à l’image près</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>couper;découper;raccourcir;recadrer;rogner;pivoter;tourner;film;clip;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Raccourcir, recadrer et faire pivoter des vidéos</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet fait une seule chose&#xa0;: une copie plus courte, recadrée ou pivotée d’une vidéo. Déposez un fichier sur sa fenêtre, faites glisser les deux poignées sur la pellicule, exportez.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>La première image du fichier exporté est celle que vous avez vue au début de l’extrait, et le son reste à sa place.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Recadre et fait pivoter en une seule étape, avec un unique rééchantillonnage soigné.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Conserve les couleurs, la plage dynamique étendue, les pistes audio, les chapitres et les dates.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Écrit du MP4 et du MOV&#x202f;; lit ce que produisent les caméras, les téléphones et les enregistreurs d’écran.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Ne touche jamais à l’original et ne laisse jamais de fichier à moitié écrit.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Vidéos (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>«&#x202f;%1&#x202f;» est la vidéo en cours de modification. Choisissez un autre nom.</translation>
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
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Oui</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Non</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Fermer</translation>
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
        <translation>Maj</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Échap</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Espace</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>Page préc</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Page suiv</translation>
    </message>
</context>
<context>
    <name>brisklet::AppCommands</name>
    <message>
        <source>About Brisklet</source>
        <translation>À propos de Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Rechercher des mises à jour…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nouvelle fenêtre</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Ouvrir une vidéo…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Exporter…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Fermer la vidéo</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Placer le début de l’extrait à la tête de lecture</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Placer la fin de l’extrait à la tête de lecture</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Lire en boucle</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Retirer des gestionnaires de fichiers</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Ajouter aux gestionnaires de fichiers</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Impossible de modifier les entrées des gestionnaires de fichiers&#xa0;: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Raccourcit, recadre et fait pivoter des vidéos, à l’image près.

Logiciel libre sous licence publique générale GNU (GPL), version 3 ou ultérieure.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Annuler&#xa0;: début de l’extrait</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Rétablir&#xa0;: début de l’extrait</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Annuler&#xa0;: fin de l’extrait</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Rétablir&#xa0;: fin de l’extrait</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Annuler&#xa0;: recadrer</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Rétablir&#xa0;: recadrer</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Annuler&#xa0;: retirer le recadrage</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Rétablir&#xa0;: retirer le recadrage</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Annuler&#xa0;: pivoter</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Rétablir&#xa0;: pivoter</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Annuler&#xa0;: couper le son</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Rétablir&#xa0;: couper le son</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Annuler&#xa0;: réactiver le son</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Rétablir&#xa0;: réactiver le son</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Rouvrir le dernier montage</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Afficher la dernière exportation</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Aller au temps…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Début de l’extrait, puis de la vidéo</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Fin de l’extrait, puis de la vidéo</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Reculer d’une seconde</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Avancer d’une seconde</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Aller</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» n’existe plus.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Aucun gestionnaire de fichiers ne peut afficher le dossier «&#x202f;%1&#x202f;».</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>%1 vidéos au plus sont ouvertes à la fois.</translation>
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
        <translation>Utilisation&#xa0;: brisklet [VIDEO...]
Raccourcit des vidéos. Chaque VIDEO s’ouvre dans sa propre fenêtre.

  --install-quick-action  ajoute l’action aux gestionnaires de fichiers, quitte
  --help                  affiche cette aide et quitte
  --version               affiche la version et quitte
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Zone de dépôt</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Éditeur</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Rouvrir</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Exporter en %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Options d’exportation</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Rétablir les valeurs par défaut</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Résolution</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Réactiver le son (sinon, il sera absent de l’exportation)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Couper le son</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Pivoter à gauche</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Retirer le recadrage</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Recadrer</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>environ %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Lecture ou pause</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Couper ou réactiver le son</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Recadrer ou retirer le recadrage</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Recadrage</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 à %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Déplacer le recadrage</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Déplacer son côté droit ou inférieur</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Déplacer son côté gauche ou supérieur</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Recadrage, à la souris</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Faire glisser à l’intérieur</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Faire glisser une poignée</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Redimensionner le recadrage</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Échap pendant un glissement</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Annuler le glissement</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Recadrage, accessible avec Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Touches fléchées</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Maj avec ces touches</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dix fois plus loin</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet est déjà lancé mais ne répond pas.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Le serveur a mis trop de temps.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une adresse sécurisée.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Le serveur renvoie vers «&#x202f;%1&#x202f;», qui n’est pas une adresse sécurisée.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Le serveur envoie plus qu’il ne devrait.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Impossible d’enregistrer le téléchargement&#xa0;: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>La connexion à «&#x202f;%1&#x202f;» n’est pas sécurisée&#xa0;: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Déposez une vidéo ici</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Ouvrir une vidéo…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>extrait</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«&#x202f;%1&#x202f;» ne contient aucune piste vidéo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Impossible d’ouvrir «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Impossible de rouvrir «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>«&#x202f;%1&#x202f;» ne peut plus être affiché&#xa0;: son décodeur s’est arrêté de manière inattendue. Le montage n’est pas perdu.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Un problème est survenu</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>La touche Bas ouvre un menu de formats et de résolutions</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Bouton d’exportation, accessible avec Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Choisir le format et la résolution</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>Film MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>Film QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Échec de l’exportation&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Exportation terminée</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Échec de l’exportation</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Une vidéo est en cours d’exportation.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Exportation…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Progression de l’exportation</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>encore environ %1</translation>
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
        <translation>Raccourcir la vidéo</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Ouvrir les vidéos sélectionnées dans Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Impossible de supprimer «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas sur cet ordinateur et aucun dossier d’ici n’y mène.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Aller au temps</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Aller à&#xa0;:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Aller</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Ce n’est pas un temps. Saisissez-en un, par exemple 1:23.456, +10f ou #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>La vidéo se termine à %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Les numéros des images de cette vidéo ne sont pas connus. Saisissez un temps.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>La dernière image est la #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Un temps, un nombre d’images à partir d’ici ou une image&#xa0;: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Un temps ou un nombre d’images à partir d’ici&#xa0;: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Saisissez +%1f pour avancer d’autant d’images, ou #%1 pour l’image de ce numéro.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>La vidéo commence à %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Raccourcis clavier</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Action</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Touches ou geste</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Commandes</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>vitesse 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>vitesse 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Le serveur «&#x202f;%1&#x202f;» est introuvable.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Le serveur «&#x202f;%1&#x202f;» n’accepte pas la connexion.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>La connexion à «&#x202f;%1&#x202f;» a été interrompue.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Le serveur «&#x202f;%1&#x202f;» redirige sans fin.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Le serveur «&#x202f;%1&#x202f;» répond par une erreur (état %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>La connexion à «&#x202f;%1&#x202f;» a échoué (détails&#xa0;: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>son certificat est celui d’un autre serveur</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>son certificat a expiré ou n’est pas encore valide</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>son certificat n’est pas digne de confiance</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>son certificat ne peut pas être vérifié (détails&#xa0;: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>Impossible de créer «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>Impossible de copier «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Impossible de supprimer «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>L’élément n’existe pas.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>L’emplacement du programme n’a pas pu être déterminé.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Début de l’extrait</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Tête de lecture</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Fin de l’extrait</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Reculer d’une image</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Avancer d’une image</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Reculer d’une seconde</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Avancer d’une seconde</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Reculer autant que possible</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Avancer autant que possible</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Maj avec ces touches</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dix fois plus loin</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Ligne de temps, à la souris</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Cliquer ou faire glisser</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Déplacer la tête de lecture</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Faire glisser une poignée</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Déplacer le début ou la fin de l’extrait</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Échap pendant un glissement</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Annuler le glissement</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Début de l’extrait, tête de lecture et fin de l’extrait, accessibles avec Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Création de la pellicule…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Faire glisser avec Maj</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Déplacer d’un dixième du trajet du pointeur</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Faire glisser avec Maj, loin au-dessus ou au-dessous</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Déplacer d’un centième du trajet</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Molette</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Se déplacer d’une image</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Molette avec Maj</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Se déplacer de dix images</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Molette sur une poignée</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Déplacer pas à pas cette limite de l’extrait</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Ligne de temps</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Extrait %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Mises à jour</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Rechercher automatiquement les mises à jour&#x202f;?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet peut vérifier une fois par jour s’il existe une nouvelle version. Vous pouvez aussi le faire depuis son menu.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Recherche de mises à jour…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Brisklet est à jour.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 est la version la plus récente disponible.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mise à jour</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Installer la mise à jour</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Me le rappeler plus tard</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Ignorer cette version</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Une nouvelle version de Brisklet est disponible.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 est disponible&#x202f;; vous avez la version %2. Voulez-vous installer la nouvelle version&#x202f;?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Téléchargement de Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>La mise à jour a échoué.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>La liste des mises à jour est endommagée.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Impossible de rechercher des mises à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>La mise à jour est trop volumineuse.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Impossible de télécharger la mise à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>La mise à jour est incomplète. Elle n’a pas été installée.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>La mise à jour n’est pas authentique&#xa0;: sa signature est incorrecte. Elle n’a pas été installée.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Aucun programme ne permet d’installer la mise à jour. Elle se trouve ici&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Arrêter l’exportation et fermer&#x202f;?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Arrêter et fermer</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Continuer l’exportation</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Arrêter %n exportation et fermer&#x202f;?</numerusform>
            <numerusform>Arrêter %n exportations et fermer&#x202f;?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>brisklet::approximateDuration</name>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>option inconnue %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 ne prend pas de valeur</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 demande une valeur</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 est indiqué deux fois</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 demande un nombre, pas «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 demande un nombre entier, pas «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>il manque quelque chose&#xa0;: %1 attendu</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>argument inattendu «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>un nom est vide</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count demande un nombre de 1 à %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS demande un nombre à partir de 0, pas «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop demande X,Y,W,H, pas «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop demande des fractions de l’image, de 0 à 1, avec une surface non nulle</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format connaît %1, pas «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source> and </source>
        <translation> et </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>le nom de sortie n’indique pas le format&#xa0;: ajoutez --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> ou </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 ne connaît pas «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start ne doit pas être négatif</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end doit venir après --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge demande un nombre de pixels</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress ne connaît que json, pas «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>aucune commande n’est indiquée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une commande</translation>
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
        <translation>Utilisation&#xa0;: brisklet-cli probe SOURCE
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
        <translation>probe      affiche ce qu’est le fichier, en un seul objet JSON.
filmstrip  écrit N (12) vignettes du milieu de N tranches égales, en
           00.png, 01.png, ... dans le dossier, et affiche leurs temps en JSON.
frame      écrit l’image redressée qu’un lecteur affiche à cet instant.
export     écrit une copie du fichier&#xa0;:
  --start, --end        la partie à conserver, en secondes (tout)
  --crop                en fractions de l’image affichée après --rotate,
                        depuis son coin supérieur gauche
  --rotate              quarts de tour dans le sens horaire, en degrés
  --mute                sans le son
  --max-short-edge      réduit à ce nombre de pixels sur le petit côté
  --format              %1 (selon la fin du nom de sortie)
  --progress json       affiche une ligne JSON par message au lieu d’une barre
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        autres réglages de l’encodeur, pour des mesures

  --help, --version     affiche ceci, ou la version, et quitte

Code de sortie&#xa0;: 0 réussi&#x202f;; 1 échec&#x202f;; 2 mauvais usage&#x202f;; 130 interrompu.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Échec de l’exportation&#xa0;: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Impossible d’écrire «&#x202f;%1&#x202f;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Impossible d’ouvrir «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Impossible d’écrire la réponse&#xa0;: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«&#x202f;%1&#x202f;» ne contient aucune piste vidéo.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Impossible d’écrire l’image en PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Impossible de créer le dossier «&#x202f;%1&#x202f;»&#xa0;: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Sa durée est nulle.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Impossible de créer une pellicule de «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Impossible de créer l’image&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Impossible d’installer les entrées de menu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>«&#x202f;Raccourcir la vidéo&#x202f;» ajouté aux gestionnaires de fichiers</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>option inconnue «&#x202f;%1&#x202f;»</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Ce n’est pas un fichier vidéo, ou il est endommagé.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Son format n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Son codec vidéo n’est pas pris en charge.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Le fichier est chiffré ou protégé contre la copie.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Le fichier n’existe pas.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Vous n’avez pas le droit de lire ce fichier.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Le nom du fichier est trop long.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Le lien vers le fichier ne mène nulle part.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>C’est un dossier, pas un fichier vidéo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Le fichier est vide.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Impossible de lire le fichier&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Impossible de lire la vidéo&#xa0;: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>«&#x202f;%1&#x202f;» a été modifié après son ouverture.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Le fichier se termine trop tôt.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>La vidéo a été tronquée pendant sa lecture.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Le disque a signalé une erreur pendant la lecture de la vidéo.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Le fichier ne contient aucune piste vidéo.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Aucune image de ce fichier ne peut être décodée.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>Il n’y a pas d’image à cet instant.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Les images au format de pixel «&#x202f;%1&#x202f;» ne peuvent pas être converties.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Les couleurs des images ne peuvent pas être converties.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Les couleurs de l’image ne peuvent pas être converties.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Impossible d’ouvrir «&#x202f;%1&#x202f;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>L’extrait à exporter est vide.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Le fichier source ne contient aucune piste vidéo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Impossible de préparer l’exportation de cette vidéo.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Il n’y a pas de vidéo à exporter.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>La vidéo ne peut pas être exportée sur elle-même.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Aucune image de cet extrait ne peut être décodée.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Le nouveau fichier a été endommagé pendant son écriture.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Un encodeur nécessaire à l’exportation n’est pas installé.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>L’encodeur %1 n’accepte pas le réglage «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>«&#x202f;%1&#x202f;» est en cours d’écriture par une autre exportation.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Le nouveau fichier inachevé a été supprimé par un autre programme.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Le dossier «&#x202f;%1&#x202f;» du nouveau fichier n’existe pas.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>Vous n’avez pas le droit d’écrire dans le dossier «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Le disque contenant le dossier «&#x202f;%1&#x202f;» est protégé en écriture.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Un dossier porte le nom du nouveau fichier.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Le nom du nouveau fichier est déjà celui d’un élément qui n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Le nom du nouveau fichier est trop long.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Le disque a signalé une erreur pendant l’écriture du nouveau fichier.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Impossible d’écrire le nouveau fichier&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Il n’y a pas assez de mémoire.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Il n’y a pas assez d’espace sur le disque.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Le fichier serait trop volumineux pour ce disque.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Le disque a signalé une erreur.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Le moteur multimédia est introuvable&#xa0;: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet n’est pas complètement installé. Réinstallez-le.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet a été mis à jour. Relancez-le.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>permission refusée</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>opération non permise</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>fichier ou dossier introuvable</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>n’est pas un dossier</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>le fichier existe déjà</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>est un dossier</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>argument non valable</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>trop de fichiers ouverts</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>système de fichiers en lecture seule</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>le fichier n’est plus sur le réseau</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>délai de connexion dépassé</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>périphérique ou ressource occupés</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>trop de liens symboliques imbriqués</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>le destinataire s’est arrêté</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>plus d’espace disponible sur le disque</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>quota de disque dépassé</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>erreur d’entrée/sortie</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>nom de fichier trop long</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>erreur dans une bibliothèque externe</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>pas encore pris en charge par FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>erreur inattendue (détails&#xa0;: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Le dossier «&#x202f;%1&#x202f;» n’existe pas.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Un autre fichier porte maintenant son nom.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Elle n’est plus dans le dossier «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>L’espace libre est insuffisant&#xa0;: la vidéo occupe environ %1, et %2 sont libres.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Le système est trop occupé&#xa0;: impossible de démarrer un nouveau fil d’exécution.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Le décodeur vidéo s’est arrêté de manière inattendue.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>L’encodeur vidéo s’est arrêté de manière inattendue. Il ne reste rien du nouveau fichier.</translation>
    </message>
</context>
</TS>
