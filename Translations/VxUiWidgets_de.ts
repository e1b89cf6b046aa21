<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>CountdownIndicatorWidget</name>
    <message>
        <source>yr</source>
        <comment>short years (max 3 letters)</comment>
        <translation>Jhr</translation>
    </message>
    <message>
        <source>mon</source>
        <comment>short months (max 3 letters)</comment>
        <translation>Mon</translation>
    </message>
    <message>
        <source>day</source>
        <comment>short days (max 3 letters)</comment>
        <translation>Tag</translation>
    </message>
    <message>
        <source>hr</source>
        <comment>short hours (max 3 letters)</comment>
        <translation>Std</translation>
    </message>
    <message>
        <source>min</source>
        <comment>short minutes (max 3 letters)</comment>
        <translation>Min</translation>
    </message>
    <message>
        <source>sec</source>
        <comment>short seconds (max 3 letters)</comment>
        <translation>Sek</translation>
    </message>
</context>
<context>
    <name>CursorHighlightPreviewWidget</name>
    <message>
        <source>Preview of the cursor highlight</source>
        <translation>Vorschau der Zeigerhervorhebung</translation>
    </message>
</context>
<context>
    <name>QLedMatrix</name>
    <message>
        <source>LED matrix</source>
        <translation>LED-Matrix</translation>
    </message>
</context>
<context>
    <name>StyleSheetChecker</name>
    <message>
        <source>The comment has no end.</source>
        <translation>Der Kommentar hat kein Ende.</translation>
    </message>
    <message>
        <source>The string has no end.</source>
        <translation>Die Zeichenkette hat kein Ende.</translation>
    </message>
    <message>
        <source>The brace is not closed.</source>
        <translation>Die geschweifte Klammer ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>The parenthesis is not closed.</source>
        <translation>Die runde Klammer ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>The bracket is not closed.</source>
        <translation>Die eckige Klammer ist nicht geschlossen.</translation>
    </message>
    <message>
        <source>The brace closes nothing.</source>
        <translation>Die geschweifte Klammer schließt nichts.</translation>
    </message>
    <message>
        <source>A selector is missing.</source>
        <translation>Ein Selektor fehlt.</translation>
    </message>
    <message>
        <source>Declarations in braces are missing.</source>
        <translation>Deklarationen in geschweiften Klammern fehlen.</translation>
    </message>
    <message>
        <source>This cannot stand in a selector.</source>
        <translation>Das darf nicht in einem Selektor stehen.</translation>
    </message>
    <message>
        <source>The name of a property is missing.</source>
        <translation>Der Name einer Eigenschaft fehlt.</translation>
    </message>
    <message>
        <source>A colon is missing.</source>
        <translation>Ein Doppelpunkt fehlt.</translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation>Ein Wert fehlt.</translation>
    </message>
    <message>
        <source>A semicolon is missing.</source>
        <translation>Ein Semikolon fehlt.</translation>
    </message>
    <message>
        <source>This cannot stand in a value.</source>
        <translation>Das darf nicht in einem Wert stehen.</translation>
    </message>
    <message>
        <source>This is no colour.</source>
        <translation>Das ist keine Farbe.</translation>
    </message>
    <message>
        <source>Qt does not accept this.</source>
        <translation>Das nimmt Qt nicht an.</translation>
    </message>
</context>
<context>
    <name>StyleSheetFile</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 is too large for a style sheet.</source>
        <translation>%1 ist zu groß für ein Stylesheet.</translation>
    </message>
    <message>
        <source>%1 is not a text in UTF-8.</source>
        <translation>%1 ist kein Text in UTF-8.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 ist keine gewöhnliche Datei.</translation>
    </message>
</context>
<context>
    <name>ZRuntimeStylesheetEditor</name>
    <message>
        <source>Line %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>The widget is gone. Choose another one.</source>
        <translation>Das Widget gibt es nicht mehr. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>Click on a widget of the application, or press Escape.</source>
        <translation>Klicken Sie auf ein Widget der Anwendung, oder drücken Sie Esc.</translation>
    </message>
    <message>
        <source>Style sheet editor</source>
        <translation>Stylesheet-Editor</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(und %n weiterer)</numerusform>
            <numerusform>(und %n weitere)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no mistakes.</source>
        <translation>Es gibt keine Fehler.</translation>
    </message>
    <message>
        <source>Not applied: the widget is gone. Choose another one.</source>
        <translation>Nicht angewendet: Das Widget gibt es nicht mehr. Wählen Sie ein anderes.</translation>
    </message>
    <message>
        <source>Not applied. %1</source>
        <translation>Nicht angewendet. %1</translation>
    </message>
    <message>
        <source>Applied to %1.</source>
        <translation>Auf %1 angewendet.</translation>
    </message>
    <message>
        <source>Applied to the application.</source>
        <translation>Auf die Anwendung angewendet.</translation>
    </message>
    <message>
        <source>Nothing was applied that could be reverted.</source>
        <translation>Es wurde nichts angewendet, das zurückgenommen werden könnte.</translation>
    </message>
    <message>
        <source>Reverted.</source>
        <translation>Zurückgenommen.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Gespeichert.</translation>
    </message>
    <message>
        <source>Save the style sheet</source>
        <translation>Stylesheet speichern</translation>
    </message>
    <message>
        <source>Open a style sheet</source>
        <translation>Stylesheet öffnen</translation>
    </message>
    <message>
        <source>Style sheets (*.qss);;All files (*)</source>
        <translation>Stylesheets (*.qss);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Speichern &amp;unter...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Find and replace</source>
        <translation>&amp;Suchen und ersetzen</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>Next &amp;mistake</source>
        <translation>Nächster &amp;Fehler</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Vervollständigen</translation>
    </message>
    <message>
        <source>Style s&amp;heet</source>
        <translation>Style&amp;sheet</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>Zurück&amp;nehmen</translation>
    </message>
    <message>
        <source>Read &amp;from the target</source>
        <translation>Vom Ziel &amp;lesen</translation>
    </message>
    <message>
        <source>&amp;Pick a widget</source>
        <translation>&amp;Widget auswählen</translation>
    </message>
    <message>
        <source>&amp;Target:</source>
        <translation>&amp;Ziel:</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Ziel</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Auswählen</translation>
    </message>
    <message>
        <source>Choose a widget with the mouse</source>
        <translation>Ein Widget mit der Maus auswählen</translation>
    </message>
    <message>
        <source>Apply while t&amp;yping</source>
        <translation>Beim &amp;Tippen anwenden</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Stylesheet</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>Rück&amp;gängig</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Wieder&amp;herstellen</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>&amp;Kopieren</translation>
    </message>
</context>
<context>
    <name>ZSliderButton</name>
    <message>
        <source>Level</source>
        <translation>Pegel</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::CustomTitleBar</name>
    <message>
        <source>Minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::SaveChangesBar</name>
    <message>
        <source>There are changes that were not saved.</source>
        <translation>Es gibt Änderungen, die nicht gespeichert wurden.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>S&amp;peichern</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Verwerfen</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abb&amp;rechen</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::SearchBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Ersetzen durch</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Vorherige Fundstelle</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Nächste Fundstelle</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>&amp;Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>&amp;Whole words</source>
        <translation>Ganze &amp;Wörter</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Es wurde nichts gefunden.</translation>
    </message>
    <message>
        <source>Found from the end on.</source>
        <translation>Vom Ende aus gefunden.</translation>
    </message>
    <message>
        <source>Found from the beginning on.</source>
        <translation>Vom Anfang aus gefunden.</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced.</source>
        <translation>
            <numerusform>%n Stelle ersetzt.</numerusform>
            <numerusform>%n Stellen ersetzt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>&amp;Ersetzen</translation>
    </message>
    <message>
        <source>Replace a&amp;ll</source>
        <translation>Al&amp;le ersetzen</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::StyleSheetTargetComboBox</name>
    <message>
        <source>Application</source>
        <translation>Anwendung</translation>
    </message>
    <message>
        <source>Choose a widget</source>
        <translation>Widget auswählen</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::TitleBarController</name>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Maximieren</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Minimieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::ScrollablePanelWithItem</name>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::VideoPreviewWidget</name>
    <message>
        <source>Video preview</source>
        <translation>Videovorschau</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::VolumeSlider</name>
    <message>
        <source> %</source>
        <translation>&#xa0;%</translation>
    </message>
</context>
</TS>
