<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Editors</name>
    <message>
        <source>One text in each line</source>
        <translation>Ein Text je Zeile</translation>
    </message>
    <message>
        <source>w</source>
        <comment>short for width</comment>
        <translation>B</translation>
    </message>
    <message>
        <source>h</source>
        <comment>short for height</comment>
        <translation>H</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>This file is no picture</source>
        <translation>Diese Datei ist kein Bild</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
</context>
<context>
    <name>EntryText</name>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>High quality</source>
        <translation>Hohe Qualität</translation>
    </message>
    <message>
        <source>Balanced</source>
        <translation>Ausgewogen</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>Kleine Datei</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Record the pointer</source>
        <translation>Mauszeiger aufnehmen</translation>
    </message>
    <message>
        <source>Record clicks</source>
        <translation>Klicks aufnehmen</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>Opens a floating panel of the application&apos;s widgets beside itself.</source>
        <translation>Öffnet neben sich ein schwebendes Bedienfeld mit Widgets der Anwendung.</translation>
    </message>
    <message>
        <source>Typical</source>
        <translation>Typisch</translation>
    </message>
    <message>
        <source>Icon and text</source>
        <translation>Symbol und Text</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Nur Symbol</translation>
    </message>
    <message>
        <source>Long text</source>
        <translation>Langer Text</translation>
    </message>
    <message>
        <source>Quality, pointer and clicks of this recording</source>
        <translation>Qualität, Mauszeiger und Klicks dieser Aufnahme</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Angehakt</translation>
    </message>
    <message>
        <source>Opens upwards</source>
        <translation>Öffnet nach oben</translation>
    </message>
    <message>
        <source>Empty panel</source>
        <translation>Leeres Bedienfeld</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Nichts</translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation>Aufnahme %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Video</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Animiertes Bild</translation>
    </message>
    <message>
        <source>Sound only</source>
        <translation>Nur Ton</translation>
    </message>
    <message>
        <source>Drawing colour</source>
        <translation>Zeichenfarbe</translation>
    </message>
    <message>
        <source>Click sound</source>
        <translation>Klickgeräusch</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Kein Geräusch</translation>
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
        <source>Mechanical keyboard of the office next door, recorded twice</source>
        <translation>Mechanische Tastatur aus dem Büro nebenan, zweimal aufgenommen</translation>
    </message>
    <message>
        <source>A tool button with a menu of choices, of which one is current.</source>
        <translation>Eine Werkzeugschaltfläche mit einem Auswahlmenü, in dem ein Eintrag der aktuelle ist.</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Nothing to choose</source>
        <translation>Nichts zur Auswahl</translation>
    </message>
    <message>
        <source>Many items</source>
        <translation>Viele Einträge</translation>
    </message>
    <message>
        <source>Long texts</source>
        <translation>Lange Texte</translation>
    </message>
    <message>
        <source>Video for people who see it on a telephone</source>
        <translation>Video für Personen, die es auf einem Telefon ansehen</translation>
    </message>
    <message>
        <source>Video for a lecture hall with a large screen</source>
        <translation>Video für einen Hörsaal mit großer Leinwand</translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Nichts ausgewählt</translation>
    </message>
    <message>
        <source>Shows a colour, and opens a dialog that chooses another one.</source>
        <translation>Zeigt eine Farbe und öffnet einen Dialog, in dem eine andere gewählt wird.</translation>
    </message>
    <message>
        <source>Opaque</source>
        <translation>Deckend</translation>
    </message>
    <message>
        <source>Translucent, up to 60 %</source>
        <translation>Durchscheinend, bis 60&#xa0;%</translation>
    </message>
    <message>
        <source>Square placed elsewhere</source>
        <translation>Quadrat an anderer Stelle</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Auswahl</translation>
    </message>
    <message>
        <source>A combo box that elides texts too long for it instead of growing with them.</source>
        <translation>Ein Kombinationsfeld, das zu lange Texte kürzt, statt mit ihnen zu wachsen.</translation>
    </message>
    <message>
        <source>With icons</source>
        <translation>Mit Symbolen</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Bearbeitbar</translation>
    </message>
    <message>
        <source>Narrow</source>
        <translation>Schmal</translation>
    </message>
    <message>
        <source>Right-to-left</source>
        <translation>Von rechts nach links</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Anhalten</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Mikrofon</translation>
    </message>
    <message>
        <source>Kit</source>
        <translation>Bausteine</translation>
    </message>
    <message>
        <source>An editor for the style sheet of the running application; here it works on the sample above it.</source>
        <translation>Ein Editor für das Stylesheet der laufenden Anwendung; hier wirkt er auf das Beispiel darüber.</translation>
    </message>
    <message>
        <source>With a sheet</source>
        <translation>Mit Stylesheet</translation>
    </message>
    <message>
        <source>With mistakes</source>
        <translation>Mit Fehlern</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Suchen und ersetzen</translation>
    </message>
    <message>
        <source>A drawn portrait</source>
        <translation>Ein gezeichnetes Porträt</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effekte</translation>
    </message>
    <message>
        <source>Draws a soft rim inside the edges of a widget; here, of a picture.</source>
        <translation>Zeichnet einen weichen Saum innerhalb der Kanten eines Widgets; hier eines Bildes.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>Wide</source>
        <translation>Breit</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Kräftig</translation>
    </message>
    <message>
        <source>Coloured</source>
        <translation>Farbig</translation>
    </message>
    <message>
        <source>Built-in camera of the laptop in the lecture hall</source>
        <translation>Integrierte Kamera des Laptops im Hörsaal</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Keine Kamera</translation>
    </message>
    <message>
        <source>Document camera</source>
        <translation>Dokumentenkamera</translation>
    </message>
    <message>
        <source>Sound sources</source>
        <translation>Tonquellen</translation>
    </message>
    <message>
        <source>Sources: %1</source>
        <translation>Quellen: %1</translation>
    </message>
    <message>
        <source>System sound</source>
        <translation>Systemton</translation>
    </message>
    <message>
        <source>Click sounds</source>
        <translation>Klickgeräusche</translation>
    </message>
    <message>
        <source>A combo box that elides its text, opens a list as wide as its items or a widget of yours, and can leave the wheel to its panel.</source>
        <translation>Ein Kombinationsfeld, das seinen Text kürzt, eine Liste in der Breite ihrer Einträge oder ein eigenes Widget öffnet und das Mausrad seinem Bedienfeld überlassen kann.</translation>
    </message>
    <message>
        <source>Elided, wide list</source>
        <translation>Gekürzt, breite Liste</translation>
    </message>
    <message>
        <source>Narrow list</source>
        <translation>Schmale Liste</translation>
    </message>
    <message>
        <source>Cut, not elided</source>
        <translation>Abgeschnitten, nicht gekürzt</translation>
    </message>
    <message>
        <source>Display text</source>
        <translation>Anzeigetext</translation>
    </message>
    <message>
        <source>Choose a camera…</source>
        <translation>Kamera auswählen…</translation>
    </message>
    <message>
        <source>Opens a widget</source>
        <translation>Öffnet ein Widget</translation>
    </message>
    <message>
        <source>With icons, elided</source>
        <translation>Mit Symbolen, gekürzt</translation>
    </message>
    <message>
        <source>Wheel left to the panel</source>
        <translation>Mausrad dem Bedienfeld überlassen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the camera</source>
        <translation>Name der Kamera</translation>
    </message>
    <message>
        <source>A line edit that elides its text until it gets the focus, and reports an edit when the focus leaves.</source>
        <translation>Ein Eingabefeld, das seinen Text kürzt, bis es den Fokus erhält, und eine Bearbeitung meldet, wenn es ihn verliert.</translation>
    </message>
    <message>
        <source>Fits</source>
        <translation>Passt</translation>
    </message>
    <message>
        <source>Elided</source>
        <translation>Gekürzt</translation>
    </message>
    <message>
        <source>Right-to-left text</source>
        <translation>Text von rechts nach links</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Schreibgeschützt</translation>
    </message>
    <message>
        <source>Clear button</source>
        <translation>Löschschaltfläche</translation>
    </message>
    <message>
        <source>Validated</source>
        <translation>Geprüft</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Geheim</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Wheel in focus only</source>
        <translation>Mausrad nur mit Fokus</translation>
    </message>
    <message>
        <source>A slider that can leave the wheel to its panel until it has the focus.</source>
        <translation>Ein Schieberegler, der das Mausrad seinem Bedienfeld überlassen kann, bis er den Fokus hat.</translation>
    </message>
    <message>
        <source>At its end</source>
        <translation>Am Ende</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertikal</translation>
    </message>
    <message>
        <source>A slider for a floating-point value: its position times a multiplier.</source>
        <translation>Ein Schieberegler für einen Gleitkommawert: seine Position mal ein Faktor.</translation>
    </message>
    <message>
        <source>Tenths</source>
        <translation>Zehntel</translation>
    </message>
    <message>
        <source>Around zero, in quarters</source>
        <translation>Um null, in Vierteln</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Bildrate</translation>
    </message>
    <message>
        <source>A field for a whole number that can leave the wheel to its panel until it has the focus.</source>
        <translation>Ein Feld für eine ganze Zahl, das das Mausrad seinem Bedienfeld überlassen kann, bis es den Fokus hat.</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>Mit Einheit</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> fps</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Verzögerung</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>A field for a floating-point number that can keep what is typed to whole steps.</source>
        <translation>Ein Feld für eine Gleitkommazahl, das Eingaben auf ganze Schritte begrenzen kann.</translation>
    </message>
    <message>
        <source>Typed numbers in whole steps</source>
        <translation>Eingaben in ganzen Schritten</translation>
    </message>
    <message>
        <source>Button %1</source>
        <translation>Schaltfläche %1</translation>
    </message>
    <message>
        <source>Built-in camera</source>
        <translation>Integrierte Kamera</translation>
    </message>
    <message>
        <source>A small page</source>
        <translation>Eine kleine Seite</translation>
    </message>
    <message>
        <source>A page that takes
the room of its text
and no more</source>
        <translation>Eine Seite, die so viel
Platz nimmt wie ihr Text,
und nicht mehr</translation>
    </message>
    <message>
        <source>A frame whose layout can be spaced by a style sheet.</source>
        <translation>Ein Rahmen, dessen Layoutabstände ein Stylesheet festlegen kann.</translation>
    </message>
    <message>
        <source>Spaced by style sheet</source>
        <translation>Abstände durch Stylesheet</translation>
    </message>
    <message>
        <source>Spaced by properties</source>
        <translation>Abstände durch Eigenschaften</translation>
    </message>
    <message>
        <source>A camera with a name that is far too long for this place</source>
        <translation>Eine Kamera mit einem Namen, der für diesen Platz viel zu lang ist</translation>
    </message>
    <message>
        <source>A label for one text that may be too long: it is elided, and shown whole as the tool tip.</source>
        <translation>Eine Beschriftung für einen Text, der zu lang sein kann: Er wird gekürzt und vollständig als Tooltip gezeigt.</translation>
    </message>
    <message>
        <source>Not clickable</source>
        <translation>Nicht anklickbar</translation>
    </message>
    <message>
        <source>A stack of pages that takes the size of the page it shows instead of the largest one.</source>
        <translation>Ein Seitenstapel, der die Größe der gezeigten Seite annimmt statt die der größten.</translation>
    </message>
    <message>
        <source>Small page</source>
        <translation>Kleine Seite</translation>
    </message>
    <message>
        <source>Large page</source>
        <translation>Große Seite</translation>
    </message>
    <message>
        <source>Without fitting</source>
        <translation>Ohne Anpassung</translation>
    </message>
    <message>
        <source>Show the hint</source>
        <translation>Hinweis zeigen</translation>
    </message>
    <message>
        <source>Choose a source first</source>
        <translation>Wählen Sie zuerst eine Quelle</translation>
    </message>
    <message>
        <source>A camera, the screen
or the test picture</source>
        <translation>Eine Kamera, der Bildschirm
oder das Testbild</translation>
    </message>
    <message>
        <source>A camera, the screen or the test picture</source>
        <translation>Eine Kamera, der Bildschirm oder das Testbild</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>A hint in a window of its own, in the shape of an image, that goes by itself.</source>
        <translation>Ein Hinweis in einem eigenen Fenster in der Form eines Bildes, der von selbst verschwindet.</translation>
    </message>
    <message>
        <source>Title and text</source>
        <translation>Titel und Text</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Nur Text</translation>
    </message>
    <message>
        <source>The recording goes on</source>
        <translation>Die Aufnahme läuft weiter</translation>
    </message>
    <message>
        <source>Speech bubble</source>
        <translation>Sprechblase</translation>
    </message>
    <message>
        <source>Indicators</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Shows a remaining time as three numbers with captions, in the units that suit it.</source>
        <translation>Zeigt eine verbleibende Zeit als drei beschriftete Zahlen in den passenden Einheiten.</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>Neu erzeugt</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Kurz</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Stunden</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>Shows how the highlight around the mouse cursor will look.</source>
        <translation>Zeigt, wie die Hervorhebung um den Mauszeiger aussehen wird.</translation>
    </message>
    <message>
        <source>Translucent colour</source>
        <translation>Durchscheinende Farbe</translation>
    </message>
    <message>
        <source>Larger than the preview</source>
        <translation>Größer als die Vorschau</translation>
    </message>
    <message>
        <source>Thick border</source>
        <translation>Dicker Rand</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Kein Rand</translation>
    </message>
    <message>
        <source>Take a picture</source>
        <translation>Bild aufnehmen</translation>
    </message>
    <message>
        <source>Starts a recording with these settings</source>
        <translation>Beginnt eine Aufnahme mit diesen Einstellungen</translation>
    </message>
    <message>
        <source>A push button with an icon, a text and a hot key, each with a look of its own.</source>
        <translation>Eine Schaltfläche mit Symbol, Text und Tastenkürzel, jedes mit eigenem Aussehen.</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Take a picture of everything on the screen</source>
        <translation>Ein Bild von allem auf dem Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>No hot key</source>
        <translation>Kein Tastenkürzel</translation>
    </message>
    <message>
        <source>Region around 
the pointer</source>
        <translation>Bereich um 
den Zeiger</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Ganzer Bildschirm</translation>
    </message>
    <message>
        <source>Shows an action with its shortcut, and triggers it.</source>
        <translation>Zeigt eine Aktion mit ihrem Tastenkürzel und löst sie aus.</translation>
    </message>
    <message>
        <source>Preset type &quot;User&quot;</source>
        <translation>Voreinstellung vom Typ „User“</translation>
    </message>
    <message>
        <source>My lecture</source>
        <translation>Meine Vorlesung</translation>
    </message>
    <message>
        <source>Line feed, no word wrap</source>
        <translation>Zeilenvorschub, kein Zeilenumbruch</translation>
    </message>
    <message>
        <source>Line feed, word wrap by style</source>
        <translation>Zeilenvorschub, Zeilenumbruch durch Stil</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>Kein Tastenkürzel</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <source>Waves of colour</source>
        <translation>Farbwellen</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>A grid of round LEDs, each of a colour of its own.</source>
        <translation>Ein Raster runder LEDs, jede mit eigener Farbe.</translation>
    </message>
    <message>
        <source>A sign</source>
        <translation>Ein Zeichen</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Transparenter Hintergrund</translation>
    </message>
    <message>
        <source>Named colours</source>
        <translation>Benannte Farben</translation>
    </message>
    <message>
        <source>Wider than the grid</source>
        <translation>Breiter als das Raster</translation>
    </message>
    <message>
        <source>4096 LEDs</source>
        <translation>4096 LEDs</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>A button that shows a level and opens a slider above itself.</source>
        <translation>Eine Schaltfläche, die einen Pegel zeigt und über sich einen Schieberegler öffnet.</translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation>Pegel 0</translation>
    </message>
    <message>
        <source>From 1</source>
        <translation>Ab 1</translation>
    </message>
    <message>
        <source>From 25</source>
        <translation>Ab 25</translation>
    </message>
    <message>
        <source>From 50</source>
        <translation>Ab 50</translation>
    </message>
    <message>
        <source>From 75</source>
        <translation>Ab 75</translation>
    </message>
    <message>
        <source>Slider in a window apart</source>
        <translation>Schieberegler in eigenem Fenster</translation>
    </message>
    <message>
        <source>High slider</source>
        <translation>Hoher Schieberegler</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Medien</translation>
    </message>
    <message>
        <source>Shows live video frames in an area of fixed size.</source>
        <translation>Zeigt laufende Videobilder in einem Bereich fester Größe.</translation>
    </message>
    <message>
        <source>Default image</source>
        <translation>Standardbild</translation>
    </message>
    <message>
        <source>Large frame</source>
        <translation>Großes Bild</translation>
    </message>
    <message>
        <source>Upright frame</source>
        <translation>Hochformatiges Bild</translation>
    </message>
    <message>
        <source>Small frame</source>
        <translation>Kleines Bild</translation>
    </message>
    <message>
        <source>Runs the live picture of a capture device in a preview; here, of the moving test picture.</source>
        <translation>Zeigt das Livebild eines Aufnahmegeräts in einer Vorschau; hier das bewegte Testbild.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message>
        <source>A slider for a recording volume, with a meter of the input level behind its handle.</source>
        <translation>Ein Schieberegler für die Aufnahmelautstärke mit einer Anzeige des Eingangspegels hinter dem Griff.</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>Stille</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Volume lower than level</source>
        <translation>Lautstärke unter dem Pegel</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Abgerundet</translation>
    </message>
    <message>
        <source>Shows one picture over its whole area: stretched, cut, or cut to an ellipse.</source>
        <translation>Zeigt ein Bild auf seiner ganzen Fläche: gestreckt, beschnitten oder zu einer Ellipse beschnitten.</translation>
    </message>
    <message>
        <source>No mask</source>
        <translation>Keine Maske</translation>
    </message>
    <message>
        <source>Rectangle, top left</source>
        <translation>Rechteck, oben links</translation>
    </message>
    <message>
        <source>Rectangle, bottom right</source>
        <translation>Rechteck, unten rechts</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Ellipse upright</source>
        <translation>Ellipse hochkant</translation>
    </message>
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
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Weichzeichner</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Radierer</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rechteck</translation>
    </message>
    <message>
        <source>Drawing tools</source>
        <translation>Zeichenwerkzeuge</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Bedienfelder</translation>
    </message>
    <message>
        <source>A strip of tool buttons that scrolls sideways when they do not fit.</source>
        <translation>Eine Leiste mit Werkzeugschaltflächen, die seitwärts scrollt, wenn diese nicht hineinpassen.</translation>
    </message>
    <message>
        <source>All fit</source>
        <translation>Alle passen</translation>
    </message>
    <message>
        <source>Scrolls</source>
        <translation>Scrollt</translation>
    </message>
    <message>
        <source>Scrolled to the middle</source>
        <translation>Zur Mitte gescrollt</translation>
    </message>
    <message>
        <source>Few items</source>
        <translation>Wenige Einträge</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Beste</translation>
    </message>
    <message>
        <source>A slider for one of a few named values, with the names above its ticks.</source>
        <translation>Ein Schieberegler für einen von wenigen benannten Werten mit den Namen über den Teilstrichen.</translation>
    </message>
    <message>
        <source>Three values</source>
        <translation>Drei Werte</translation>
    </message>
    <message>
        <source>Five values</source>
        <translation>Fünf Werte</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Wie die Quelle</translation>
    </message>
    <message>
        <source>As small as possible</source>
        <translation>So klein wie möglich</translation>
    </message>
    <message>
        <source>Balanced for most recordings</source>
        <translation>Ausgewogen für die meisten Aufnahmen</translation>
    </message>
    <message>
        <source>Without any loss</source>
        <translation>Ohne jeden Verlust</translation>
    </message>
    <message>
        <source>Little room</source>
        <translation>Wenig Platz</translation>
    </message>
    <message>
        <source>One value</source>
        <translation>Ein Wert</translation>
    </message>
    <message>
        <source>No value</source>
        <translation>Kein Wert</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Start</source>
        <comment>thumb</comment>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>End</source>
        <comment>thumb</comment>
        <translation>Ende</translation>
    </message>
    <message>
        <source>Mark at %1</source>
        <translation>Marke bei %1</translation>
    </message>
    <message>
        <source>A slider with any number of thumbs and highlighted stretches, for trimming and timelines.</source>
        <translation>Ein Schieberegler mit beliebig vielen Griffen und hervorgehobenen Abschnitten, zum Zuschneiden und für Zeitleisten.</translation>
    </message>
    <message>
        <source>One thumb</source>
        <translation>Ein Griff</translation>
    </message>
    <message>
        <source>Trimming</source>
        <translation>Zuschneiden</translation>
    </message>
    <message>
        <source>Trimming, position limited</source>
        <translation>Zuschneiden, Position begrenzt</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Abschnitte</translation>
    </message>
    <message>
        <source>Marks, one selected</source>
        <translation>Marken, eine ausgewählt</translation>
    </message>
    <message>
        <source>Marks that snap to the position</source>
        <translation>Marken, die an der Position einrasten</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Senkrecht</translation>
    </message>
    <message>
        <source>Upright, segments</source>
        <translation>Senkrecht, Abschnitte</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Aufnahme %1</translation>
    </message>
    <message>
        <source>What is on the screen, or a part of it.</source>
        <translation>Was auf dem Bildschirm ist, oder ein Teil davon.</translation>
    </message>
    <message>
        <source>A camera, in a corner of the picture.</source>
        <translation>Eine Kamera in einer Ecke des Bildes.</translation>
    </message>
    <message>
        <source>The sound of what is said.</source>
        <translation>Der Ton dessen, was gesagt wird.</translation>
    </message>
    <message>
        <source>A page that is wider than the others</source>
        <translation>Eine Seite, die breiter ist als die anderen</translation>
    </message>
    <message>
        <source>A page
that is higher
than the others
and not wide</source>
        <translation>Eine Seite,
die höher ist
als die anderen
und nicht breit</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Registerkarten</translation>
    </message>
    <message>
        <source>A tab bar whose style sheet says where text and icon of a tab are, and how they change with the selection.</source>
        <translation>Eine Tableiste, deren Stylesheet festlegt, wo Text und Symbol eines Tabs stehen und wie die Auswahl sie ändert.</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>One disabled</source>
        <translation>Eine deaktiviert</translation>
    </message>
    <message>
        <source>Scrolled</source>
        <translation>Gescrollt</translation>
    </message>
    <message>
        <source>Closable and movable</source>
        <translation>Schließbar und verschiebbar</translation>
    </message>
    <message>
        <source>A tab widget with that tab bar.</source>
        <translation>Ein Tab-Widget mit dieser Tableiste.</translation>
    </message>
    <message>
        <source>At the side</source>
        <translation>An der Seite</translation>
    </message>
    <message>
        <source>A stack of pages that is fixed to the size of the page it shows.</source>
        <translation>Ein Seitenstapel, der fest die Größe der gezeigten Seite hat.</translation>
    </message>
    <message>
        <source>Wide page</source>
        <translation>Breite Seite</translation>
    </message>
    <message>
        <source>High page</source>
        <translation>Hohe Seite</translation>
    </message>
    <message>
        <source>A slider for a time within a span, which bounds can narrow; it tells the time under the mouse.</source>
        <translation>Ein Schieberegler für eine Zeit in einer Spanne, die Grenzen einengen können; er nennt die Zeit unter der Maus.</translation>
    </message>
    <message>
        <source>One minute of three</source>
        <translation>Eine Minute von dreien</translation>
    </message>
    <message>
        <source>Narrowed by bounds</source>
        <translation>Durch Grenzen eingeengt</translation>
    </message>
    <message>
        <source>Bounds with thumbs</source>
        <translation>Grenzen mit Griffen</translation>
    </message>
    <message>
        <source>At its bound</source>
        <translation>An der Grenze</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>A field for a time whose digits are overwritten in place, in the shortest format that is exact.</source>
        <translation>Ein Feld für eine Zeit, deren Ziffern an ihrer Stelle überschrieben werden, im kürzesten genauen Format.</translation>
    </message>
    <message>
        <source>One format</source>
        <translation>Ein Format</translation>
    </message>
    <message>
        <source>The format that fits: minutes</source>
        <translation>Das passende Format: Minuten</translation>
    </message>
    <message>
        <source>The format that fits: milliseconds</source>
        <translation>Das passende Format: Millisekunden</translation>
    </message>
    <message>
        <source>Always the longest format</source>
        <translation>Immer das längste Format</translation>
    </message>
    <message>
        <source>As wide as its text</source>
        <translation>So breit wie der Text</translation>
    </message>
    <message>
        <source>From 00:01:00 to 00:30:00</source>
        <translation>Von 00:01:00 bis 00:30:00</translation>
    </message>
    <message>
        <source>Twelve hours</source>
        <translation>Zwölf Stunden</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Rekorder</translation>
    </message>
    <message>
        <source>Drag the window by its title bar or by this text.</source>
        <translation>Ziehen Sie das Fenster an seiner Titelleiste oder an diesem Text.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>A title bar that the application draws itself, for a window without a frame.</source>
        <translation>Eine Titelleiste, die die Anwendung selbst zeichnet, für ein Fenster ohne Rahmen.</translation>
    </message>
    <message>
        <source>With tools</source>
        <translation>Mit Werkzeugen</translation>
    </message>
    <message>
        <source>Close only</source>
        <translation>Nur Schließen</translation>
    </message>
    <message>
        <source>Long title</source>
        <translation>Langer Titel</translation>
    </message>
    <message>
        <source>Recording of the weekly meeting, second part - Recorder</source>
        <translation>Aufnahme der wöchentlichen Besprechung, zweiter Teil - Rekorder</translation>
    </message>
    <message>
        <source>No icon</source>
        <translation>Kein Symbol</translation>
    </message>
    <message>
        <source>Show the dialog</source>
        <translation>Dialog zeigen</translation>
    </message>
    <message>
        <source>Copyright 2026 Example Company</source>
        <translation>Copyright 2026 Beispielfirma</translation>
    </message>
    <message>
        <source>The about dialog, whose links take their style from the style sheet.</source>
        <translation>Der Infodialog, dessen Links ihren Stil aus dem Stylesheet erhalten.</translation>
    </message>
    <message>
        <source>Link of its own</source>
        <translation>Eigener Link</translation>
    </message>
    <message>
        <source>Copyright 2026 Example Company. All rights reserved. Protected by law; made with the help of many.</source>
        <translation>Copyright 2026 Beispielfirma. Alle Rechte vorbehalten. Gesetzlich geschützt; mit der Hilfe vieler entstanden.</translation>
    </message>
    <message>
        <source>Resize the window by its edges, and double-click its title bar.</source>
        <translation>Ändern Sie die Größe des Fensters an seinen Rändern, und doppelklicken Sie auf die Titelleiste.</translation>
    </message>
    <message>
        <source>Open a window</source>
        <translation>Fenster öffnen</translation>
    </message>
    <message>
        <source>Lets a window without a frame be resized, maximised and restored like one with a frame.</source>
        <translation>Ein Fenster ohne Rahmen lässt sich damit wie eines mit Rahmen in der Größe ändern, maximieren und wiederherstellen.</translation>
    </message>
    <message>
        <source>Maximised</source>
        <translation>Maximiert</translation>
    </message>
    <message>
        <source>Fixed size</source>
        <translation>Feste Größe</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>There is no colour for %1</source>
        <translation>Es gibt keine Farbe für %1</translation>
    </message>
    <message>
        <source>Not a line of a palette: %1</source>
        <translation>Keine Zeile einer Palette: %1</translation>
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
    <name>Zelkor::Gallery::CodePane</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>Header</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Dokument</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Link kopieren</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copy all of the code</source>
        <translation>Den ganzen Code kopieren</translation>
    </message>
    <message>
        <source>Forms cannot contain it.</source>
        <translation>Formulare können es nicht enthalten.</translation>
    </message>
    <message>
        <source>Forms cannot contain it: %1.</source>
        <translation>Formulare können es nicht enthalten: %1.</translation>
    </message>
    <message>
        <source>Copy the command that opens this page and state:
%1</source>
        <translation>Den Befehl kopieren, der diese Seite und diesen Zustand öffnet:
%1</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Open a file that this page comes from</source>
        <translation>Eine Datei öffnen, aus der diese Seite stammt</translation>
    </message>
    <message>
        <source>Source of the catalogue</source>
        <translation>Quelltext des Katalogs</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ColorField</name>
    <message>
        <source>No colour</source>
        <translation>Keine Farbe</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>Choose a colour (%1)</source>
        <translation>Farbe wählen (%1)</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::GalleryWindow</name>
    <message>
        <source>VxUiWidgets Gallery</source>
        <translation>VxUiWidgets-Galerie</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::Inspector</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Eigenschaften</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rolle</translation>
    </message>
    <message>
        <source>Accessible name</source>
        <translation>Barrierefreier Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ObjectTree</name>
    <message>
        <source>Objects</source>
        <translation>Objekte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Class and object name</source>
        <translation>Klasse und Objektname</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Search the pages (%1)</source>
        <translation>Seiten durchsuchen (%1)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Anfang</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Nach Namen</translation>
    </message>
    <message>
        <source>By description</source>
        <translation>Nach Beschreibung</translation>
    </message>
    <message>
        <source>By property, signal or part</source>
        <translation>Nach Eigenschaft, Signal oder Teil</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Nichts gefunden</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PaletteEditor</name>
    <message>
        <source>Palettes (*.palette)</source>
        <translation>Paletten (*.palette)</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Palette to start from</source>
        <translation>Palette als Ausgangspunkt</translation>
    </message>
    <message>
        <source>Open a palette...</source>
        <translation>Palette öffnen...</translation>
    </message>
    <message>
        <source>Save the palette...</source>
        <translation>Palette speichern...</translation>
    </message>
    <message>
        <source>There are colours that were not saved.</source>
        <translation>Es gibt Farben, die nicht gespeichert wurden.</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PropertyPanel</name>
    <message>
        <source>In a style sheet</source>
        <translation>Im Stylesheet</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Copies the line of the style sheet</source>
        <translation>Kopiert die Zeile des Stylesheets</translation>
    </message>
    <message>
        <source>Values of the type %1 are shown only</source>
        <translation>Werte des Typs %1 werden nur gezeigt</translation>
    </message>
    <message>
        <source>Default of %1</source>
        <translation>Vorgabe von %1</translation>
    </message>
    <message>
        <source>%1: %2
Default: %3</source>
        <translation>%1: %2
Vorgabe: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Back to the default: %1</source>
        <translation>Zurück zur Vorgabe: %1</translation>
    </message>
    <message>
        <source>Choose a property</source>
        <translation>Eine Eigenschaft wählen</translation>
    </message>
    <message>
        <source>Style sheets cannot say this</source>
        <translation>Stylesheets können das nicht sagen</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ResizeFrame</name>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Arrow keys resize the widget, Backspace restores its size</source>
        <translation>Pfeiltasten ändern die Größe des Widgets, die Rücktaste stellt sie wieder her</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::SceneBar</name>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Rechts nach links</translation>
    </message>
    <message>
        <source>Lay out from right to left</source>
        <translation>Von rechts nach links anordnen</translation>
    </message>
    <message>
        <source>Scale. Another one starts the gallery anew, with this page.</source>
        <translation>Maßstab. Ein anderer startet die Galerie mit dieser Seite neu.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Enable the widgets of the page</source>
        <translation>Die Widgets der Seite aktivieren</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>Edit the style sheet (F12)</source>
        <translation>Stylesheet bearbeiten (F12)</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Properties, signals and objects of a widget</source>
        <translation>Eigenschaften, Signale und Objekte eines Widgets</translation>
    </message>
    <message>
        <source>%1 (starts anew)</source>
        <translation>%1 (startet neu)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Darstellung</translation>
    </message>
    <message>
        <source>Open a style sheet</source>
        <translation>Stylesheet öffnen</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>Stylesheets (*.qss)</translation>
    </message>
    <message>
        <source>Open a style sheet...</source>
        <translation>Stylesheet öffnen...</translation>
    </message>
    <message>
        <source>Edit the palette...</source>
        <translation>Palette bearbeiten...</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::SignalLog</name>
    <message>
        <source>Signals</source>
        <translation>Signale</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Empties the list of signals</source>
        <translation>Leert die Liste der Signale</translation>
    </message>
    <message>
        <source>The signals of the widgets are listed here</source>
        <translation>Hier werden die Signale der Widgets aufgelistet</translation>
    </message>
    <message>
        <source>The widgets of this page have no signals of their own</source>
        <translation>Die Widgets dieser Seite haben keine eigenen Signale</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::StartPage</name>
    <message>
        <source>Widgets for screen recorders</source>
        <translation>Widgets für Bildschirmrekorder</translation>
    </message>
    <message>
        <source>The recorder is an application made of these widgets: a live picture, its sound level, panels, settings and a trimmer.</source>
        <translation>Der Recorder ist eine Anwendung aus diesen Widgets: mit Livebild, Tonpegel, Bedienfeldern, Einstellungen und Schnitt.</translation>
    </message>
    <message>
        <source>Open the recorder</source>
        <translation>Recorder öffnen</translation>
    </message>
    <message>
        <source>The list at the side has a page for each widget, with all of its states and an inspector.</source>
        <translation>Die Liste an der Seite hat eine Seite für jedes Widget, mit allen seinen Zuständen und einem Inspektor.</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::StateBar</name>
    <message>
        <source>Forced states</source>
        <translation>Erzwungene Zustände</translation>
    </message>
    <message>
        <source>Force:</source>
        <translation>Erzwingen:</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>Überfahren</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Gedrückt</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Fokus</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Angehakt</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Deaktiviert</translation>
    </message>
    <message>
        <source>Show the selected widget in this state until it is switched off</source>
        <translation>Das ausgewählte Widget in diesem Zustand zeigen, bis er ausgeschaltet wird</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::WidgetPage</name>
    <message>
        <source>Return leads to the tools of this state</source>
        <translation>Die Eingabetaste führt zu den Werkzeugen dieses Zustands</translation>
    </message>
</context>
</TS>
