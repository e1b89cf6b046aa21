<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>FirstHint</name>
    <message>
        <source>Start here</source>
        <translation>Hier beginnen</translation>
    </message>
    <message>
        <source>Choose what is shown: a camera, the screen or the test picture.</source>
        <translation>Wählen Sie, was gezeigt wird: eine Kamera, der Bildschirm oder das Testbild.</translation>
    </message>
</context>
<context>
    <name>Zelkor::Examples::Appearance</name>
    <message>
        <source>System</source>
        <translation>System</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>High contrast</source>
        <translation>Hoher Kontrast</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::AudioPanel</name>
    <message>
        <source>Test signal</source>
        <translation>Testsignal</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>System sound</source>
        <translation>Systemton</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::CaptureBar</name>
    <message>
        <source>Full screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Region</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Around pointer</source>
        <translation>Um den Zeiger</translation>
    </message>
    <message>
        <source>Sound only</source>
        <translation>Nur Ton</translation>
    </message>
    <message>
        <source>No click sound</source>
        <translation>Kein Klickgeräusch</translation>
    </message>
    <message>
        <source>Soft click</source>
        <translation>Leiser Klick</translation>
    </message>
    <message>
        <source>Mechanical keyboard</source>
        <translation>Mechanische Tastatur</translation>
    </message>
    <message>
        <source>Typewriter</source>
        <translation>Schreibmaschine</translation>
    </message>
    <message>
        <source>Recording mode: %1</source>
        <translation>Aufnahmemodus: %1</translation>
    </message>
    <message>
        <source>Chooses what is recorded</source>
        <translation>Wählt, was aufgenommen wird</translation>
    </message>
    <message>
        <source>Chooses the colour of drawings</source>
        <translation>Wählt die Farbe von Zeichnungen</translation>
    </message>
    <message>
        <source>Drawing colour</source>
        <translation>Zeichenfarbe</translation>
    </message>
    <message>
        <source>Chooses what is heard when you click</source>
        <translation>Wählt, was beim Klicken zu hören ist</translation>
    </message>
    <message>
        <source>Click sound</source>
        <translation>Klickgeräusch</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderModel</name>
    <message>
        <source>Test picture</source>
        <translation>Testbild</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::RecorderView</name>
    <message>
        <source>Record</source>
        <translation>Aufnehmen</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Starts to record after a countdown</source>
        <translation>Beginnt die Aufnahme nach einem Countdown</translation>
    </message>
    <message>
        <source>Ends the recording</source>
        <translation>Beendet die Aufnahme</translation>
    </message>
    <message>
        <source>Waiting for the picture</source>
        <translation>Warten auf das Bild</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>%1 · %2 · %3 fps</source>
        <translation>%1 · %2 · %3 fps</translation>
    </message>
    <message>
        <source>Recording %1 · %2</source>
        <translation>Aufnahme %1 · %2</translation>
    </message>
    <message>
        <source>Stopped · %1</source>
        <translation>Angehalten · %1</translation>
    </message>
    <message>
        <source>No picture · %1</source>
        <translation>Kein Bild · %1</translation>
    </message>
    <message>
        <source>The camera could not be opened. Check that it is connected and that no other program uses it, then start again.</source>
        <translation>Die Kamera konnte nicht geöffnet werden. Prüfen Sie, ob sie angeschlossen ist und von keinem anderen Programm verwendet wird, und starten Sie erneut.</translation>
    </message>
    <message>
        <source>The source could not be opened. Choose another one, or start again.</source>
        <translation>Die Quelle konnte nicht geöffnet werden. Wählen Sie eine andere, oder starten Sie erneut.</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Chooses what is shown</source>
        <translation>Wählt, was gezeigt wird</translation>
    </message>
    <message>
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message>
        <source>Sets how loud microphone and system are</source>
        <translation>Stellt die Lautstärke von Mikrofon und System ein</translation>
    </message>
    <message>
        <source>Settings of the device</source>
        <translation>Einstellungen des Geräts</translation>
    </message>
    <message>
        <source>Live picture</source>
        <translation>Livebild</translation>
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
        <translation>Zeigt die Widgets von VxUiWidgets im Einsatz. Es wird nichts aufgenommen.</translation>
    </message>
    <message>
        <source>Vx Recorder</source>
        <translation>Vx Recorder</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>Edit the style sheet (F12)</source>
        <translation>Stylesheet bearbeiten (F12)</translation>
    </message>
    <message>
        <source>Trim a recording</source>
        <translation>Aufnahme zuschneiden</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::SettingsDialog</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Subjects</source>
        <translation>Themen</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Pointer</source>
        <translation>Mauszeiger</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>As given</source>
        <translation>Wie vorgegeben</translation>
    </message>
    <message>
        <source>Countdown</source>
        <translation>Countdown</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keiner</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Small</source>
        <translation>Niedrig</translation>
    </message>
    <message>
        <source>Medium</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>High</source>
        <translation>Hoch</translation>
    </message>
    <message>
        <source>Lossless</source>
        <translation>Verlustfrei</translation>
    </message>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>The pointer&apos;s highlight</source>
        <translation>Hervorhebung des Mauszeigers</translation>
    </message>
    <message>
        <source>About %1 MB per minute</source>
        <translation>Etwa %1 MB je Minute</translation>
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
        <translation>%1 (nicht angeschlossen)</translation>
    </message>
    <message>
        <source>%1 frames per second</source>
        <translation>%1 Bilder pro Sekunde</translation>
    </message>
    <message>
        <source>Device</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::ToolStrip</name>
    <message>
        <source>Pointer</source>
        <translation>Zeiger</translation>
    </message>
    <message>
        <source>Pen</source>
        <translation>Stift</translation>
    </message>
    <message>
        <source>Marker</source>
        <translation>Textmarker</translation>
    </message>
    <message>
        <source>Line</source>
        <translation>Linie</translation>
    </message>
    <message>
        <source>Arrow</source>
        <translation>Pfeil</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Numbered step</source>
        <translation>Nummerierter Schritt</translation>
    </message>
    <message>
        <source>Spotlight</source>
        <translation>Spotlight</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichner</translation>
    </message>
    <message>
        <source>Magnifier</source>
        <translation>Lupe</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
</context>
<context>
    <name>Zelkor::Recorder::TrimPage</name>
    <message>
        <source>Result: %1</source>
        <translation>Ergebnis: %1</translation>
    </message>
    <message>
        <source>Trim a recording</source>
        <translation>Aufnahme zuschneiden</translation>
    </message>
    <message>
        <source>Drag the brackets or type the times. A cut begins where the position is and ends where it is the next time. Everything can be undone; Escape takes back a drag.</source>
        <translation>Ziehen Sie die Klammern oder geben Sie die Zeiten ein. Ein Schnitt beginnt an der Position und endet dort, wo sie beim nächsten Mal ist. Alles lässt sich rückgängig machen; Esc nimmt ein Ziehen zurück.</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Cut to here</source>
        <translation>Bis hierher schneiden</translation>
    </message>
    <message>
        <source>Cut from here</source>
        <translation>Ab hier schneiden</translation>
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
        <source>Trimmer</source>
        <translation>Zuschneiden</translation>
    </message>
</context>
</TS>
