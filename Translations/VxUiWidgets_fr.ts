<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>CountdownIndicatorWidget</name>
    <message>
        <source>yr</source>
        <comment>short years (max 3 letters)</comment>
        <translation>an</translation>
    </message>
    <message>
        <source>mon</source>
        <comment>short months (max 3 letters)</comment>
        <translation>mo</translation>
    </message>
    <message>
        <source>day</source>
        <comment>short days (max 3 letters)</comment>
        <translation>j</translation>
    </message>
    <message>
        <source>hr</source>
        <comment>short hours (max 3 letters)</comment>
        <translation>h</translation>
    </message>
    <message>
        <source>min</source>
        <comment>short minutes (max 3 letters)</comment>
        <translation>min</translation>
    </message>
    <message>
        <source>sec</source>
        <comment>short seconds (max 3 letters)</comment>
        <translation>s</translation>
    </message>
</context>
<context>
    <name>CursorHighlightPreviewWidget</name>
    <message>
        <source>Preview of the cursor highlight</source>
        <translation>Aperçu de la mise en évidence du curseur</translation>
    </message>
</context>
<context>
    <name>QLedMatrix</name>
    <message>
        <source>LED matrix</source>
        <translation>Matrice de LED</translation>
    </message>
</context>
<context>
    <name>StyleSheetChecker</name>
    <message>
        <source>The comment has no end.</source>
        <translation>Le commentaire n’a pas de fin.</translation>
    </message>
    <message>
        <source>The string has no end.</source>
        <translation>La chaîne n’a pas de fin.</translation>
    </message>
    <message>
        <source>The brace is not closed.</source>
        <translation>L’accolade n’est pas fermée.</translation>
    </message>
    <message>
        <source>The parenthesis is not closed.</source>
        <translation>La parenthèse n’est pas fermée.</translation>
    </message>
    <message>
        <source>The bracket is not closed.</source>
        <translation>Le crochet n’est pas fermé.</translation>
    </message>
    <message>
        <source>The brace closes nothing.</source>
        <translation>L’accolade ne ferme rien.</translation>
    </message>
    <message>
        <source>A selector is missing.</source>
        <translation>Il manque un sélecteur.</translation>
    </message>
    <message>
        <source>Declarations in braces are missing.</source>
        <translation>Il manque des déclarations entre accolades.</translation>
    </message>
    <message>
        <source>This cannot stand in a selector.</source>
        <translation>Ceci ne peut pas figurer dans un sélecteur.</translation>
    </message>
    <message>
        <source>The name of a property is missing.</source>
        <translation>Il manque le nom d’une propriété.</translation>
    </message>
    <message>
        <source>A colon is missing.</source>
        <translation>Il manque un deux-points.</translation>
    </message>
    <message>
        <source>A value is missing.</source>
        <translation>Il manque une valeur.</translation>
    </message>
    <message>
        <source>A semicolon is missing.</source>
        <translation>Il manque un point-virgule.</translation>
    </message>
    <message>
        <source>This cannot stand in a value.</source>
        <translation>Ceci ne peut pas figurer dans une valeur.</translation>
    </message>
    <message>
        <source>This is no colour.</source>
        <translation>Ce n’est pas une couleur.</translation>
    </message>
    <message>
        <source>Qt does not accept this.</source>
        <translation>Qt n’accepte pas ceci.</translation>
    </message>
</context>
<context>
    <name>StyleSheetFile</name>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossible de lire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is too large for a style sheet.</source>
        <translation>%1 est trop volumineux pour une feuille de style.</translation>
    </message>
    <message>
        <source>%1 is not a text in UTF-8.</source>
        <translation>%1 n’est pas un texte en UTF-8.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.</source>
        <translation>%1 n’est pas un fichier ordinaire.</translation>
    </message>
</context>
<context>
    <name>ZRuntimeStylesheetEditor</name>
    <message>
        <source>Line %1, column %2</source>
        <translation>Ligne %1, colonne %2</translation>
    </message>
    <message>
        <source>The widget is gone. Choose another one.</source>
        <translation>Le widget n’existe plus. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Click on a widget of the application, or press Escape.</source>
        <translation>Cliquez sur un widget de l’application ou appuyez sur Échap.</translation>
    </message>
    <message>
        <source>Style sheet editor</source>
        <translation>Éditeur de feuilles de style</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(et %n autre)</numerusform>
            <numerusform>(et %n autres)</numerusform>
        </translation>
    </message>
    <message>
        <source>There are no mistakes.</source>
        <translation>Il n’y a aucune erreur.</translation>
    </message>
    <message>
        <source>Not applied: the widget is gone. Choose another one.</source>
        <translation>Non appliqué&#xa0;: le widget n’existe plus. Choisissez-en un autre.</translation>
    </message>
    <message>
        <source>Not applied. %1</source>
        <translation>Non appliqué. %1</translation>
    </message>
    <message>
        <source>Applied to %1.</source>
        <translation>Appliqué à %1.</translation>
    </message>
    <message>
        <source>Applied to the application.</source>
        <translation>Appliqué à l’application.</translation>
    </message>
    <message>
        <source>Nothing was applied that could be reverted.</source>
        <translation>Rien n’a été appliqué qui puisse être rétabli.</translation>
    </message>
    <message>
        <source>Reverted.</source>
        <translation>Rétabli.</translation>
    </message>
    <message>
        <source>Saved.</source>
        <translation>Enregistré.</translation>
    </message>
    <message>
        <source>Save the style sheet</source>
        <translation>Enregistrer la feuille de style</translation>
    </message>
    <message>
        <source>Open a style sheet</source>
        <translation>Ouvrir une feuille de style</translation>
    </message>
    <message>
        <source>Style sheets (*.qss);;All files (*)</source>
        <translation>Feuilles de style (*.qss);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;as...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Find and replace</source>
        <translation>&amp;Rechercher et remplacer</translation>
    </message>
    <message>
        <source>Find &amp;next</source>
        <translation>Rechercher le &amp;suivant</translation>
    </message>
    <message>
        <source>Find &amp;previous</source>
        <translation>Rechercher le &amp;précédent</translation>
    </message>
    <message>
        <source>Next &amp;mistake</source>
        <translation>&amp;Erreur suivante</translation>
    </message>
    <message>
        <source>&amp;Complete</source>
        <translation>&amp;Compléter</translation>
    </message>
    <message>
        <source>Style s&amp;heet</source>
        <translation>Feuille de &amp;style</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Appliquer</translation>
    </message>
    <message>
        <source>&amp;Revert</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>Read &amp;from the target</source>
        <translation>&amp;Lire depuis la cible</translation>
    </message>
    <message>
        <source>&amp;Pick a widget</source>
        <translation>&amp;Choisir un widget</translation>
    </message>
    <message>
        <source>&amp;Target:</source>
        <translation>&amp;Cible&#xa0;:</translation>
    </message>
    <message>
        <source>Target</source>
        <translation>Cible</translation>
    </message>
    <message>
        <source>Pick</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Choose a widget with the mouse</source>
        <translation>Choisir un widget avec la souris</translation>
    </message>
    <message>
        <source>Apply while t&amp;yping</source>
        <translation>Appliquer pendant la sa&amp;isie</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>C&amp;opy</source>
        <translation>C&amp;opier</translation>
    </message>
</context>
<context>
    <name>ZSliderButton</name>
    <message>
        <source>Level</source>
        <translation>Niveau</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::CustomTitleBar</name>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::SaveChangesBar</name>
    <message>
        <source>There are changes that were not saved.</source>
        <translation>Des modifications n’ont pas été enregistrées.</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Enre&amp;gistrer</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>A&amp;bandonner</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Ann&amp;uler</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::SearchBar</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Replace with</source>
        <translation>Remplacer par</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>&amp;Match case</source>
        <translation>Respecter &amp;la casse</translation>
    </message>
    <message>
        <source>&amp;Whole words</source>
        <translation>Mots &amp;entiers</translation>
    </message>
    <message>
        <source>Nothing was found.</source>
        <translation>Rien n’a été trouvé.</translation>
    </message>
    <message>
        <source>Found from the end on.</source>
        <translation>Trouvé en reprenant à la fin.</translation>
    </message>
    <message>
        <source>Found from the beginning on.</source>
        <translation>Trouvé en reprenant au début.</translation>
    </message>
    <message numerus="yes">
        <source>%n replaced.</source>
        <translation>
            <numerusform>%n occurrence remplacée.</numerusform>
            <numerusform>%n occurrences remplacées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>Rem&amp;placer</translation>
    </message>
    <message>
        <source>Replace a&amp;ll</source>
        <translation>&amp;Tout remplacer</translation>
    </message>
    <message>
        <source>Cl&amp;ose</source>
        <translation>Fer&amp;mer</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::StyleSheetTargetComboBox</name>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Choose a widget</source>
        <translation>Choisir un widget</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::Kit::TitleBarController</name>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Maximise</source>
        <translation>Agrandir</translation>
    </message>
    <message>
        <source>Minimise</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::ScrollablePanelWithItem</name>
    <message>
        <source>Previous</source>
        <translation>Précédent</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suivant</translation>
    </message>
</context>
<context>
    <name>Zelkor::Vx::UI::VideoPreviewWidget</name>
    <message>
        <source>Video preview</source>
        <translation>Aperçu vidéo</translation>
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
