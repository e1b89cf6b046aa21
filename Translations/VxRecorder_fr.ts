<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>FirstHint</name>
    <message>
        <source>Start here</source>
        <translation>Commencez ici</translation>
    </message>
    <message>
        <source>Choose what is shown: a camera, the screen or the test picture.</source>
        <translation>Choisissez ce qui est affiché&#xa0;: une caméra, l’écran ou la mire.</translation>
    </message>
</context>
<context>
    <name>Zelkor::Examples::Appearance</name>
    <message>
        <source>System</source>
        <translation>Système</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Contraste élevé</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::AudioPanel</name>
    <message>
        <source>Test signal</source>
        <translation>Signal de test</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>System sound</source>
        <translation>Son du système</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::CaptureBar</name>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Zone</translation>
    </message>
    <message>
        <source>Around pointer</source>
        <translation>Autour du pointeur</translation>
    </message>
    <message>
        <source>Sound only</source>
        <translation>Son seul</translation>
    </message>
    <message>
        <source>No click sound</source>
        <translation>Aucun son de clic</translation>
    </message>
    <message>
        <source>Soft click</source>
        <translation>Clic discret</translation>
    </message>
    <message>
        <source>Mechanical keyboard</source>
        <translation>Clavier mécanique</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Machine à écrire</translation>
    </message>
    <message>
        <source>Recording mode: %1</source>
        <translation>Mode d’enregistrement&#xa0;: %1</translation>
    </message>
    <message>
        <source>Chooses what is recorded</source>
        <translation>Choisit ce qui est enregistré</translation>
    </message>
    <message>
        <source>Chooses the colour of drawings</source>
        <translation>Choisit la couleur des dessins</translation>
    </message>
    <message>
        <source>Drawing colour</source>
        <translation>Couleur de dessin</translation>
    </message>
    <message>
        <source>Chooses what is heard when you click</source>
        <translation>Choisit le son émis lors d’un clic</translation>
    </message>
    <message>
        <source>Click sound</source>
        <translation>Son du clic</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderModel</name>
    <message>
        <source>Test picture</source>
        <translation>Mire</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderView</name>
    <message>
        <source>Record</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Terminer</translation>
    </message>
    <message>
        <source>Starts to record after a countdown</source>
        <translation>Démarre l’enregistrement après un compte à rebours</translation>
    </message>
    <message>
        <source>Ends the recording</source>
        <translation>Termine l’enregistrement</translation>
    </message>
    <message>
        <source>Waiting for the picture</source>
        <translation>En attente de l’image</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Pas d’image</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>%1 · %2 · %3 fps</source>
        <translation>%1 · %2 · %3 i/s</translation>
    </message>
    <message>
        <source>Recording %1 · %2</source>
        <translation>Enregistrement %1 · %2</translation>
    </message>
    <message>
        <source>Stopped · %1</source>
        <translation>Arrêté · %1</translation>
    </message>
    <message>
        <source>No picture · %1</source>
        <translation>Pas d’image · %1</translation>
    </message>
    <message>
        <source>The camera could not be opened. Check that it is connected and that no other program uses it, then start again.</source>
        <translation>Impossible d’ouvrir la caméra. Vérifiez qu’elle est connectée et qu’aucun autre programme ne l’utilise, puis redémarrez.</translation>
    </message>
    <message>
        <source>The source could not be opened. Choose another one, or start again.</source>
        <translation>Impossible d’ouvrir la source. Choisissez-en une autre ou redémarrez.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Source</translation>
    </message>
    <message>
        <source>Chooses what is shown</source>
        <translation>Choisit ce qui est affiché</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Sets how loud microphone and system are</source>
        <translation>Règle le volume du microphone et du système</translation>
    </message>
    <message>
        <source>Settings of the device</source>
        <translation>Paramètres du périphérique</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Image en direct</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderWindow</name>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>Shows the widgets of VxUiWidgets at work. Nothing is recorded.</source>
        <translation>Montre les widgets de VxUiWidgets à l’œuvre. Rien n’est enregistré.</translation>
    </message>
    <message>
        <source>Vx Recorder</source>
        <translation>Vx Recorder</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Edit the style sheet (F12)</source>
        <translation>Modifier la feuille de style (F12)</translation>
    </message>
    <message>
        <source>Trim a recording</source>
        <translation>Découper un enregistrement</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translation>Rubriques</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>As given</source>
        <translation>Selon le fichier indiqué</translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation>Compte à rebours</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Faible</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Moyenne</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Élevée</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Sans perte</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Couleur</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>The pointer&apos;s highlight</source>
        <translation>Mise en évidence du pointeur</translation>
    </message>
    <message>
        <source>About %1 MB per minute</source>
        <translation>Environ %1 Mo par minute</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::SourcePanel</name>
    <message>
        <source>%1 (not connected)</source>
        <translation>%1 (non connecté)</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <translation>%1 images par seconde</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Périphérique</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fréquence d’images</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::ToolStrip</name>
    <message>
        <source>Pointer</source>
        <translation>Pointeur</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stylo</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Surligneur</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Ligne</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Flèche</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Numbered step</source>
        <translation>Étape numérotée</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Projecteur</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Loupe</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::TrimPage</name>
    <message>
        <source>Result: %1</source>
        <translation>Résultat&#xa0;: %1</translation>
    </message>
    <message>
        <source>Trim a recording</source>
        <translation>Découper un enregistrement</translation>
    </message>
    <message>
        <source>Drag the brackets or type the times. A cut begins where the position is and ends where it is the next time. Everything can be undone; Escape takes back a drag.</source>
        <translation>Faites glisser les crochets ou saisissez les temps. Une coupe commence à la position et se termine là où elle se trouve la fois suivante. Tout peut être annulé&#xa0;; Échap annule un glissement.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Cut to here</source>
        <translation>Couper jusqu’ici</translation>
    </message>
    <message>
        <source>Cut from here</source>
        <translation>Couper à partir d’ici</translation>
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
        <source>Trimmer</source>
        <translation>Découpe</translation>
    </message>
</context>
</TS>
