<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Editors</name>
    <message>
        <source>One text in each line</source>
        <translation>Un texte par ligne</translation>
    </message>
    <message>
        <source>w</source>
        <comment>short for width</comment>
        <translation>l</translation>
    </message>
    <message>
        <source>h</source>
        <comment>short for height</comment>
        <translation>h</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Choisir un fichier</translation>
    </message>
    <message>
        <source>This file is no picture</source>
        <translation>Ce fichier n’est pas une image</translation>
    </message>
    <message>
        <source>Picture</source>
        <translation>Image</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Aucune image</translation>
    </message>
</context>
<context>
    <name>EntryText</name>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>High quality</source>
        <translation>Haute qualité</translation>
    </message>
    <message>
        <source>Balanced</source>
        <translation>Équilibré</translation>
    </message>
    <message>
        <source>Small file</source>
        <translation>Petit fichier</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Record the pointer</source>
        <translation>Enregistrer le pointeur</translation>
    </message>
    <message>
        <source>Record clicks</source>
        <translation>Enregistrer les clics</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>Opens a floating panel of the application&apos;s widgets beside itself.</source>
        <translation>Ouvre à côté de lui un panneau flottant avec des widgets de l’application.</translation>
    </message>
    <message>
        <source>Typical</source>
        <translation>Typique</translation>
    </message>
    <message>
        <source>Icon and text</source>
        <translation>Icône et texte</translation>
    </message>
    <message>
        <source>Icon only</source>
        <translation>Icône seule</translation>
    </message>
    <message>
        <source>Long text</source>
        <translation>Texte long</translation>
    </message>
    <message>
        <source>Quality, pointer and clicks of this recording</source>
        <translation>Qualité, pointeur et clics de cet enregistrement</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Opens upwards</source>
        <translation>S’ouvre vers le haut</translation>
    </message>
    <message>
        <source>Empty panel</source>
        <translation>Panneau vide</translation>
    </message>
    <message>
        <source>Nothing</source>
        <translation>Rien</translation>
    </message>
    <message>
        <source>Take %1</source>
        <translation>Prise %1</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Video</source>
        <translation>Vidéo</translation>
    </message>
    <message>
        <source>Animated picture</source>
        <translation>Image animée</translation>
    </message>
    <message>
        <source>Sound only</source>
        <translation>Son seul</translation>
    </message>
    <message>
        <source>Drawing colour</source>
        <translation>Couleur de dessin</translation>
    </message>
    <message>
        <source>Click sound</source>
        <translation>Son du clic</translation>
    </message>
    <message>
        <source>No sound</source>
        <translation>Aucun son</translation>
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
        <source>Mechanical keyboard of the office next door, recorded twice</source>
        <translation>Clavier mécanique du bureau d’à côté, enregistré deux fois</translation>
    </message>
    <message>
        <source>A tool button with a menu of choices, of which one is current.</source>
        <translation>Un bouton d’outil avec un menu de choix, dont l’un est actif.</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>Nothing to choose</source>
        <translation>Rien à choisir</translation>
    </message>
    <message>
        <source>Many items</source>
        <translation>Nombreux éléments</translation>
    </message>
    <message>
        <source>Long texts</source>
        <translation>Textes longs</translation>
    </message>
    <message>
        <source>Video for people who see it on a telephone</source>
        <translation>Vidéo pour les personnes qui la regardent sur un téléphone</translation>
    </message>
    <message>
        <source>Video for a lecture hall with a large screen</source>
        <translation>Vidéo pour un amphithéâtre avec grand écran</translation>
    </message>
    <message>
        <source>Nothing checked</source>
        <translation>Rien de coché</translation>
    </message>
    <message>
        <source>Shows a colour, and opens a dialog that chooses another one.</source>
        <translation>Affiche une couleur et ouvre une boîte de dialogue pour en choisir une autre.</translation>
    </message>
    <message>
        <source>Opaque</source>
        <translation>Opaque</translation>
    </message>
    <message>
        <source>Translucent, up to 60 %</source>
        <translation>Translucide, jusqu’à 60&#xa0;%</translation>
    </message>
    <message>
        <source>Square placed elsewhere</source>
        <translation>Carré placé ailleurs</translation>
    </message>
    <message>
        <source>Choices</source>
        <translation>Choix</translation>
    </message>
    <message>
        <source>A combo box that elides texts too long for it instead of growing with them.</source>
        <translation>Une liste déroulante qui abrège les textes trop longs au lieu de s’élargir.</translation>
    </message>
    <message>
        <source>With icons</source>
        <translation>Avec icônes</translation>
    </message>
    <message>
        <source>Editable</source>
        <translation>Modifiable</translation>
    </message>
    <message>
        <source>Narrow</source>
        <translation>Étroit</translation>
    </message>
    <message>
        <source>Right-to-left</source>
        <translation>De droite à gauche</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Microphone</source>
        <translation>Microphone</translation>
    </message>
    <message>
        <source>Kit</source>
        <translation>Kit</translation>
    </message>
    <message>
        <source>An editor for the style sheet of the running application; here it works on the sample above it.</source>
        <translation>Un éditeur pour la feuille de style de l’application en cours&#xa0;; ici, il agit sur l’exemple au-dessus.</translation>
    </message>
    <message>
        <source>With a sheet</source>
        <translation>Avec une feuille de style</translation>
    </message>
    <message>
        <source>With mistakes</source>
        <translation>Avec des erreurs</translation>
    </message>
    <message>
        <source>Find and replace</source>
        <translation>Rechercher et remplacer</translation>
    </message>
    <message>
        <source>A drawn portrait</source>
        <translation>Un portrait dessiné</translation>
    </message>
    <message>
        <source>Effects</source>
        <translation>Effets</translation>
    </message>
    <message>
        <source>Draws a soft rim inside the edges of a widget; here, of a picture.</source>
        <translation>Dessine un liseré doux à l’intérieur des bords d’un widget&#xa0;; ici, d’une image.</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Sans effet</translation>
    </message>
    <message>
        <source>Wide</source>
        <translation>Large</translation>
    </message>
    <message>
        <source>Strong</source>
        <translation>Fort</translation>
    </message>
    <message>
        <source>Coloured</source>
        <translation>Coloré</translation>
    </message>
    <message>
        <source>Built-in camera of the laptop in the lecture hall</source>
        <translation>Caméra intégrée de l’ordinateur portable de l’amphithéâtre</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Caméra</translation>
    </message>
    <message>
        <source>No camera</source>
        <translation>Aucune caméra</translation>
    </message>
    <message>
        <source>Document camera</source>
        <translation>Caméra de documents</translation>
    </message>
    <message>
        <source>Sound sources</source>
        <translation>Sources sonores</translation>
    </message>
    <message>
        <source>Sources: %1</source>
        <translation>Sources&#xa0;: %1</translation>
    </message>
    <message>
        <source>System sound</source>
        <translation>Son du système</translation>
    </message>
    <message>
        <source>Click sounds</source>
        <translation>Sons des clics</translation>
    </message>
    <message>
        <source>A combo box that elides its text, opens a list as wide as its items or a widget of yours, and can leave the wheel to its panel.</source>
        <translation>Une liste déroulante qui abrège son texte, ouvre une liste aussi large que ses éléments ou un widget de votre choix, et peut laisser la molette à son panneau.</translation>
    </message>
    <message>
        <source>Elided, wide list</source>
        <translation>Abrégé, liste large</translation>
    </message>
    <message>
        <source>Narrow list</source>
        <translation>Liste étroite</translation>
    </message>
    <message>
        <source>Cut, not elided</source>
        <translation>Coupé, non abrégé</translation>
    </message>
    <message>
        <source>Display text</source>
        <translation>Texte affiché</translation>
    </message>
    <message>
        <source>Choose a camera…</source>
        <translation>Choisir une caméra…</translation>
    </message>
    <message>
        <source>Opens a widget</source>
        <translation>Ouvre un widget</translation>
    </message>
    <message>
        <source>With icons, elided</source>
        <translation>Avec icônes, abrégé</translation>
    </message>
    <message>
        <source>Wheel left to the panel</source>
        <translation>Molette laissée au panneau</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the camera</source>
        <translation>Nom de la caméra</translation>
    </message>
    <message>
        <source>A line edit that elides its text until it gets the focus, and reports an edit when the focus leaves.</source>
        <translation>Un champ de saisie qui abrège son texte jusqu’à ce qu’il ait le focus, et signale une modification lorsqu’il le perd.</translation>
    </message>
    <message>
        <source>Fits</source>
        <translation>Tient dans la place</translation>
    </message>
    <message>
        <source>Elided</source>
        <translation>Abrégé</translation>
    </message>
    <message>
        <source>Right-to-left text</source>
        <translation>Texte de droite à gauche</translation>
    </message>
    <message>
        <source>Read-only</source>
        <translation>Lecture seule</translation>
    </message>
    <message>
        <source>Clear button</source>
        <translation>Bouton d’effacement</translation>
    </message>
    <message>
        <source>Validated</source>
        <translation>Validé</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Secret</source>
        <translation>Secret</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
    <message>
        <source>Wheel in focus only</source>
        <translation>Molette avec le focus seulement</translation>
    </message>
    <message>
        <source>A slider that can leave the wheel to its panel until it has the focus.</source>
        <translation>Un curseur qui peut laisser la molette à son panneau jusqu’à ce qu’il ait le focus.</translation>
    </message>
    <message>
        <source>At its end</source>
        <translation>En bout de course</translation>
    </message>
    <message>
        <source>Vertical</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>A slider for a floating-point value: its position times a multiplier.</source>
        <translation>Un curseur pour une valeur à virgule flottante&#xa0;: sa position multipliée par un facteur.</translation>
    </message>
    <message>
        <source>Tenths</source>
        <translation>Dixièmes</translation>
    </message>
    <message>
        <source>Around zero, in quarters</source>
        <translation>Autour de zéro, par quarts</translation>
    </message>
    <message>
        <source>Frame rate</source>
        <translation>Fréquence d’images</translation>
    </message>
    <message>
        <source>A field for a whole number that can leave the wheel to its panel until it has the focus.</source>
        <translation>Un champ pour un nombre entier, qui peut laisser la molette à son panneau jusqu’à ce qu’il ait le focus.</translation>
    </message>
    <message>
        <source>With a unit</source>
        <translation>Avec une unité</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> i/s</translation>
    </message>
    <message>
        <source>Delay</source>
        <translation>Délai</translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>A field for a floating-point number that can keep what is typed to whole steps.</source>
        <translation>Un champ pour un nombre à virgule flottante, qui peut ramener la saisie à des pas entiers.</translation>
    </message>
    <message>
        <source>Typed numbers in whole steps</source>
        <translation>Saisie par pas entiers</translation>
    </message>
    <message>
        <source>Button %1</source>
        <translation>Bouton %1</translation>
    </message>
    <message>
        <source>Built-in camera</source>
        <translation>Caméra intégrée</translation>
    </message>
    <message>
        <source>A small page</source>
        <translation>Une petite page</translation>
    </message>
    <message>
        <source>A page that takes
the room of its text
and no more</source>
        <translation>Une page qui prend
la place de son texte
et pas plus</translation>
    </message>
    <message>
        <source>A frame whose layout can be spaced by a style sheet.</source>
        <translation>Un cadre dont une feuille de style peut régler les espacements.</translation>
    </message>
    <message>
        <source>Spaced by style sheet</source>
        <translation>Espacé par feuille de style</translation>
    </message>
    <message>
        <source>Spaced by properties</source>
        <translation>Espacé par propriétés</translation>
    </message>
    <message>
        <source>A camera with a name that is far too long for this place</source>
        <translation>Une caméra dont le nom est bien trop long pour cet emplacement</translation>
    </message>
    <message>
        <source>A label for one text that may be too long: it is elided, and shown whole as the tool tip.</source>
        <translation>Une étiquette pour un texte qui peut être trop long&#xa0;: il est abrégé, et affiché en entier dans l’info-bulle.</translation>
    </message>
    <message>
        <source>Not clickable</source>
        <translation>Non cliquable</translation>
    </message>
    <message>
        <source>A stack of pages that takes the size of the page it shows instead of the largest one.</source>
        <translation>Une pile de pages qui prend la taille de la page affichée au lieu de celle de la plus grande.</translation>
    </message>
    <message>
        <source>Small page</source>
        <translation>Petite page</translation>
    </message>
    <message>
        <source>Large page</source>
        <translation>Grande page</translation>
    </message>
    <message>
        <source>Without fitting</source>
        <translation>Sans ajustement</translation>
    </message>
    <message>
        <source>Show the hint</source>
        <translation>Afficher l’indication</translation>
    </message>
    <message>
        <source>Choose a source first</source>
        <translation>Choisissez d’abord une source</translation>
    </message>
    <message>
        <source>A camera, the screen
or the test picture</source>
        <translation>Une caméra, l’écran
ou la mire</translation>
    </message>
    <message>
        <source>A camera, the screen or the test picture</source>
        <translation>Une caméra, l’écran ou la mire</translation>
    </message>
    <message>
        <source>Windows</source>
        <translation>Fenêtres</translation>
    </message>
    <message>
        <source>A hint in a window of its own, in the shape of an image, that goes by itself.</source>
        <translation>Une indication dans sa propre fenêtre, de la forme d’une image, qui disparaît d’elle-même.</translation>
    </message>
    <message>
        <source>Title and text</source>
        <translation>Titre et texte</translation>
    </message>
    <message>
        <source>Text only</source>
        <translation>Texte seul</translation>
    </message>
    <message>
        <source>The recording goes on</source>
        <translation>L’enregistrement continue</translation>
    </message>
    <message>
        <source>Speech bubble</source>
        <translation>Bulle</translation>
    </message>
    <message>
        <source>Indicators</source>
        <translation>Indicateurs</translation>
    </message>
    <message>
        <source>Shows a remaining time as three numbers with captions, in the units that suit it.</source>
        <translation>Affiche un temps restant sous la forme de trois nombres légendés, dans les unités adaptées.</translation>
    </message>
    <message>
        <source>Fresh</source>
        <translation>État initial</translation>
    </message>
    <message>
        <source>Short</source>
        <translation>Court</translation>
    </message>
    <message>
        <source>Hours</source>
        <translation>Heures</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Jours</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Années</translation>
    </message>
    <message>
        <source>Shows how the highlight around the mouse cursor will look.</source>
        <translation>Montre l’aspect de la mise en évidence autour du curseur de la souris.</translation>
    </message>
    <message>
        <source>Translucent colour</source>
        <translation>Couleur translucide</translation>
    </message>
    <message>
        <source>Larger than the preview</source>
        <translation>Plus grand que l’aperçu</translation>
    </message>
    <message>
        <source>Thick border</source>
        <translation>Bordure épaisse</translation>
    </message>
    <message>
        <source>No border</source>
        <translation>Sans bordure</translation>
    </message>
    <message>
        <source>Take a picture</source>
        <translation>Capturer une image</translation>
    </message>
    <message>
        <source>Starts a recording with these settings</source>
        <translation>Démarre un enregistrement avec ces paramètres</translation>
    </message>
    <message>
        <source>A push button with an icon, a text and a hot key, each with a look of its own.</source>
        <translation>Un bouton avec une icône, un texte et un raccourci, chacun avec sa propre apparence.</translation>
    </message>
    <message>
        <source>Horizontal</source>
        <translation>Horizontal</translation>
    </message>
    <message>
        <source>Take a picture of everything on the screen</source>
        <translation>Capturer une image de tout ce qui est à l’écran</translation>
    </message>
    <message>
        <source>No hot key</source>
        <translation>Sans raccourci</translation>
    </message>
    <message>
        <source>Region around 
the pointer</source>
        <translation>Zone autour 
du pointeur</translation>
    </message>
    <message>
        <source>Full screen</source>
        <translation>Plein écran</translation>
    </message>
    <message>
        <source>Shows an action with its shortcut, and triggers it.</source>
        <translation>Affiche une action avec son raccourci et la déclenche.</translation>
    </message>
    <message>
        <source>Preset type &quot;User&quot;</source>
        <translation>Préréglage de type «&#xa0;User&#xa0;»</translation>
    </message>
    <message>
        <source>My lecture</source>
        <translation>Mon cours</translation>
    </message>
    <message>
        <source>Line feed, no word wrap</source>
        <translation>Saut de ligne, sans retour automatique</translation>
    </message>
    <message>
        <source>Line feed, word wrap by style</source>
        <translation>Saut de ligne, retour automatique par le style</translation>
    </message>
    <message>
        <source>No shortcut</source>
        <translation>Sans raccourci</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Fenêtre</translation>
    </message>
    <message>
        <source>Recording</source>
        <translation>Enregistrement</translation>
    </message>
    <message>
        <source>Waves of colour</source>
        <translation>Vagues de couleurs</translation>
    </message>
    <message>
        <source>Colours</source>
        <translation>Couleurs</translation>
    </message>
    <message>
        <source>A grid of round LEDs, each of a colour of its own.</source>
        <translation>Une grille de LED rondes, chacune de sa propre couleur.</translation>
    </message>
    <message>
        <source>A sign</source>
        <translation>Un signe</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Transparent background</source>
        <translation>Arrière-plan transparent</translation>
    </message>
    <message>
        <source>Named colours</source>
        <translation>Couleurs nommées</translation>
    </message>
    <message>
        <source>Wider than the grid</source>
        <translation>Plus large que la grille</translation>
    </message>
    <message>
        <source>4096 LEDs</source>
        <translation>4096 LED</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>A button that shows a level and opens a slider above itself.</source>
        <translation>Un bouton qui affiche un niveau et ouvre un curseur au-dessus de lui.</translation>
    </message>
    <message>
        <source>Level 0</source>
        <translation>Niveau 0</translation>
    </message>
    <message>
        <source>From 1</source>
        <translation>À partir de 1</translation>
    </message>
    <message>
        <source>From 25</source>
        <translation>À partir de 25</translation>
    </message>
    <message>
        <source>From 50</source>
        <translation>À partir de 50</translation>
    </message>
    <message>
        <source>From 75</source>
        <translation>À partir de 75</translation>
    </message>
    <message>
        <source>Slider in a window apart</source>
        <translation>Curseur dans une fenêtre à part</translation>
    </message>
    <message>
        <source>High slider</source>
        <translation>Curseur haut</translation>
    </message>
    <message>
        <source>No picture</source>
        <translation>Pas d’image</translation>
    </message>
    <message>
        <source>Media</source>
        <translation>Médias</translation>
    </message>
    <message>
        <source>Shows live video frames in an area of fixed size.</source>
        <translation>Affiche des images vidéo en direct dans une zone de taille fixe.</translation>
    </message>
    <message>
        <source>Default image</source>
        <translation>Image par défaut</translation>
    </message>
    <message>
        <source>Large frame</source>
        <translation>Grande image</translation>
    </message>
    <message>
        <source>Upright frame</source>
        <translation>Image verticale</translation>
    </message>
    <message>
        <source>Small frame</source>
        <translation>Petite image</translation>
    </message>
    <message>
        <source>Runs the live picture of a capture device in a preview; here, of the moving test picture.</source>
        <translation>Affiche en direct l’image d’un périphérique de capture dans un aperçu&#xa0;; ici, celle de la mire animée.</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Live</source>
        <translation>En direct</translation>
    </message>
    <message>
        <source>A slider for a recording volume, with a meter of the input level behind its handle.</source>
        <translation>Un curseur pour le volume d’enregistrement, avec un indicateur du niveau d’entrée derrière sa poignée.</translation>
    </message>
    <message>
        <source>Silence</source>
        <translation>Silence</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Moyen</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Plein</translation>
    </message>
    <message>
        <source>Volume lower than level</source>
        <translation>Volume inférieur au niveau</translation>
    </message>
    <message>
        <source>Rounded</source>
        <translation>Arrondi</translation>
    </message>
    <message>
        <source>Shows one picture over its whole area: stretched, cut, or cut to an ellipse.</source>
        <translation>Affiche une image sur toute sa surface&#xa0;: étirée, rognée ou rognée en ellipse.</translation>
    </message>
    <message>
        <source>No mask</source>
        <translation>Sans masque</translation>
    </message>
    <message>
        <source>Rectangle, top left</source>
        <translation>Rectangle, en haut à gauche</translation>
    </message>
    <message>
        <source>Rectangle, bottom right</source>
        <translation>Rectangle, en bas à droite</translation>
    </message>
    <message>
        <source>Ellipse</source>
        <translation>Ellipse</translation>
    </message>
    <message>
        <source>Ellipse upright</source>
        <translation>Ellipse verticale</translation>
    </message>
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
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Blur</source>
        <translation>Flou</translation>
    </message>
    <message>
        <source>Eraser</source>
        <translation>Gomme</translation>
    </message>
    <message>
        <source>Rectangle</source>
        <translation>Rectangle</translation>
    </message>
    <message>
        <source>Drawing tools</source>
        <translation>Outils de dessin</translation>
    </message>
    <message>
        <source>Panels</source>
        <translation>Panneaux</translation>
    </message>
    <message>
        <source>A strip of tool buttons that scrolls sideways when they do not fit.</source>
        <translation>Une barre de boutons d’outils qui défile latéralement lorsqu’ils ne tiennent pas tous.</translation>
    </message>
    <message>
        <source>All fit</source>
        <translation>Tous visibles</translation>
    </message>
    <message>
        <source>Scrolls</source>
        <translation>Défile</translation>
    </message>
    <message>
        <source>Scrolled to the middle</source>
        <translation>Défilé jusqu’au milieu</translation>
    </message>
    <message>
        <source>Few items</source>
        <translation>Peu d’éléments</translation>
    </message>
    <message>
        <source>Best</source>
        <translation>Optimal</translation>
    </message>
    <message>
        <source>A slider for one of a few named values, with the names above its ticks.</source>
        <translation>Un curseur pour choisir parmi quelques valeurs nommées, avec les noms au-dessus des graduations.</translation>
    </message>
    <message>
        <source>Three values</source>
        <translation>Trois valeurs</translation>
    </message>
    <message>
        <source>Five values</source>
        <translation>Cinq valeurs</translation>
    </message>
    <message>
        <source>As the source</source>
        <translation>Comme la source</translation>
    </message>
    <message>
        <source>As small as possible</source>
        <translation>Aussi petit que possible</translation>
    </message>
    <message>
        <source>Balanced for most recordings</source>
        <translation>Équilibré pour la plupart des enregistrements</translation>
    </message>
    <message>
        <source>Without any loss</source>
        <translation>Sans aucune perte</translation>
    </message>
    <message>
        <source>Little room</source>
        <translation>Peu de place</translation>
    </message>
    <message>
        <source>One value</source>
        <translation>Une valeur</translation>
    </message>
    <message>
        <source>No value</source>
        <translation>Aucune valeur</translation>
    </message>
    <message>
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Start</source>
        <comment>thumb</comment>
        <translation>Début</translation>
    </message>
    <message>
        <source>End</source>
        <comment>thumb</comment>
        <translation>Fin</translation>
    </message>
    <message>
        <source>Mark at %1</source>
        <translation>Repère à %1</translation>
    </message>
    <message>
        <source>A slider with any number of thumbs and highlighted stretches, for trimming and timelines.</source>
        <translation>Un curseur avec autant de poignées et de segments mis en évidence que voulu, pour le découpage et les chronologies.</translation>
    </message>
    <message>
        <source>One thumb</source>
        <translation>Une poignée</translation>
    </message>
    <message>
        <source>Trimming</source>
        <translation>Découpage</translation>
    </message>
    <message>
        <source>Trimming, position limited</source>
        <translation>Découpage, position limitée</translation>
    </message>
    <message>
        <source>Segments</source>
        <translation>Segments</translation>
    </message>
    <message>
        <source>Marks, one selected</source>
        <translation>Repères, dont un sélectionné</translation>
    </message>
    <message>
        <source>Marks that snap to the position</source>
        <translation>Repères aimantés à la position</translation>
    </message>
    <message>
        <source>Upright</source>
        <translation>Vertical</translation>
    </message>
    <message>
        <source>Upright, segments</source>
        <translation>Vertical, segments</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Recording %1</source>
        <translation>Enregistrement %1</translation>
    </message>
    <message>
        <source>What is on the screen, or a part of it.</source>
        <translation>Ce qui est à l’écran, ou une partie.</translation>
    </message>
    <message>
        <source>A camera, in a corner of the picture.</source>
        <translation>Une caméra, dans un coin de l’image.</translation>
    </message>
    <message>
        <source>The sound of what is said.</source>
        <translation>Le son de ce qui est dit.</translation>
    </message>
    <message>
        <source>A page that is wider than the others</source>
        <translation>Une page plus large que les autres</translation>
    </message>
    <message>
        <source>A page
that is higher
than the others
and not wide</source>
        <translation>Une page
plus haute
que les autres
et peu large</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>A tab bar whose style sheet says where text and icon of a tab are, and how they change with the selection.</source>
        <translation>Une barre d’onglets dont la feuille de style indique où se trouvent le texte et l’icône d’un onglet, et comment la sélection les modifie.</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Icônes</translation>
    </message>
    <message>
        <source>One disabled</source>
        <translation>Un onglet désactivé</translation>
    </message>
    <message>
        <source>Scrolled</source>
        <translation>Défilé</translation>
    </message>
    <message>
        <source>Closable and movable</source>
        <translation>Fermables et déplaçables</translation>
    </message>
    <message>
        <source>A tab widget with that tab bar.</source>
        <translation>Un widget à onglets avec cette barre d’onglets.</translation>
    </message>
    <message>
        <source>At the side</source>
        <translation>Sur le côté</translation>
    </message>
    <message>
        <source>A stack of pages that is fixed to the size of the page it shows.</source>
        <translation>Une pile de pages fixée à la taille de la page affichée.</translation>
    </message>
    <message>
        <source>Wide page</source>
        <translation>Page large</translation>
    </message>
    <message>
        <source>High page</source>
        <translation>Page haute</translation>
    </message>
    <message>
        <source>A slider for a time within a span, which bounds can narrow; it tells the time under the mouse.</source>
        <translation>Un curseur pour un temps dans un intervalle que des bornes peuvent réduire&#xa0;; il indique le temps sous la souris.</translation>
    </message>
    <message>
        <source>One minute of three</source>
        <translation>Une minute sur trois</translation>
    </message>
    <message>
        <source>Narrowed by bounds</source>
        <translation>Réduit par des bornes</translation>
    </message>
    <message>
        <source>Bounds with thumbs</source>
        <translation>Bornes avec poignées</translation>
    </message>
    <message>
        <source>At its bound</source>
        <translation>À la borne</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Temps</translation>
    </message>
    <message>
        <source>A field for a time whose digits are overwritten in place, in the shortest format that is exact.</source>
        <translation>Un champ pour un temps dont les chiffres sont remplacés sur place, au format exact le plus court.</translation>
    </message>
    <message>
        <source>One format</source>
        <translation>Un seul format</translation>
    </message>
    <message>
        <source>The format that fits: minutes</source>
        <translation>Le format adapté&#xa0;: minutes</translation>
    </message>
    <message>
        <source>The format that fits: milliseconds</source>
        <translation>Le format adapté&#xa0;: millisecondes</translation>
    </message>
    <message>
        <source>Always the longest format</source>
        <translation>Toujours le format le plus long</translation>
    </message>
    <message>
        <source>As wide as its text</source>
        <translation>Aussi large que son texte</translation>
    </message>
    <message>
        <source>From 00:01:00 to 00:30:00</source>
        <translation>De 00:01:00 à 00:30:00</translation>
    </message>
    <message>
        <source>Twelve hours</source>
        <translation>Douze heures</translation>
    </message>
    <message>
        <source>Recorder</source>
        <translation>Enregistreur</translation>
    </message>
    <message>
        <source>Drag the window by its title bar or by this text.</source>
        <translation>Faites glisser la fenêtre par sa barre de titre ou par ce texte.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Paramètres</translation>
    </message>
    <message>
        <source>A title bar that the application draws itself, for a window without a frame.</source>
        <translation>Une barre de titre dessinée par l’application elle-même, pour une fenêtre sans cadre.</translation>
    </message>
    <message>
        <source>With tools</source>
        <translation>Avec outils</translation>
    </message>
    <message>
        <source>Close only</source>
        <translation>Fermeture seule</translation>
    </message>
    <message>
        <source>Long title</source>
        <translation>Titre long</translation>
    </message>
    <message>
        <source>Recording of the weekly meeting, second part - Recorder</source>
        <translation>Enregistrement de la réunion hebdomadaire, deuxième partie - Enregistreur</translation>
    </message>
    <message>
        <source>No icon</source>
        <translation>Sans icône</translation>
    </message>
    <message>
        <source>Show the dialog</source>
        <translation>Afficher la boîte de dialogue</translation>
    </message>
    <message>
        <source>Copyright 2026 Example Company</source>
        <translation>Copyright 2026 Société Exemple</translation>
    </message>
    <message>
        <source>The about dialog, whose links take their style from the style sheet.</source>
        <translation>La boîte de dialogue «&#xa0;À propos&#xa0;», dont les liens tirent leur style de la feuille de style.</translation>
    </message>
    <message>
        <source>Link of its own</source>
        <translation>Lien propre</translation>
    </message>
    <message>
        <source>Copyright 2026 Example Company. All rights reserved. Protected by law; made with the help of many.</source>
        <translation>Copyright 2026 Société Exemple. Tous droits réservés. Protégé par la loi&#xa0;; réalisé avec l’aide de nombreuses personnes.</translation>
    </message>
    <message>
        <source>Resize the window by its edges, and double-click its title bar.</source>
        <translation>Redimensionnez la fenêtre par ses bords et double-cliquez sur sa barre de titre.</translation>
    </message>
    <message>
        <source>Open a window</source>
        <translation>Ouvrir une fenêtre</translation>
    </message>
    <message>
        <source>Lets a window without a frame be resized, maximised and restored like one with a frame.</source>
        <translation>Permet de redimensionner, d’agrandir et de restaurer une fenêtre sans cadre comme une fenêtre avec cadre.</translation>
    </message>
    <message>
        <source>Maximised</source>
        <translation>Agrandie</translation>
    </message>
    <message>
        <source>Fixed size</source>
        <translation>Taille fixe</translation>
    </message>
</context>
<context>
    <name>Palette</name>
    <message>
        <source>There is no colour for %1</source>
        <translation>Il n&apos;y a pas de couleur pour %1</translation>
    </message>
    <message>
        <source>Not a line of a palette: %1</source>
        <translation>Pas une ligne de palette : %1</translation>
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
    <name>Zelkor::Gallery::CodePane</name>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Header</source>
        <translation>En-tête</translation>
    </message>
    <message>
        <source>Document</source>
        <translation>Document</translation>
    </message>
    <message>
        <source>Copy link</source>
        <translation>Copier le lien</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy all of the code</source>
        <translation>Copier tout le code</translation>
    </message>
    <message>
        <source>Forms cannot contain it.</source>
        <translation>Les formulaires ne peuvent pas le contenir.</translation>
    </message>
    <message>
        <source>Forms cannot contain it: %1.</source>
        <translation>Les formulaires ne peuvent pas le contenir : %1.</translation>
    </message>
    <message>
        <source>Copy the command that opens this page and state:
%1</source>
        <translation>Copier la commande qui ouvre cette page et cet état :
%1</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Copié</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open a file that this page comes from</source>
        <translation>Ouvrir un fichier dont provient cette page</translation>
    </message>
    <message>
        <source>Source of the catalogue</source>
        <translation>Source du catalogue</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ColorField</name>
    <message>
        <source>No colour</source>
        <translation>Aucune couleur</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Choisir une couleur</translation>
    </message>
    <message>
        <source>Choose a colour (%1)</source>
        <translation>Choisir une couleur (%1)</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::GalleryWindow</name>
    <message>
        <source>VxUiWidgets Gallery</source>
        <translation>Galerie VxUiWidgets</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::Inspector</name>
    <message>
        <source>Inspector</source>
        <translation>Inspecteur</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Role</source>
        <translation>Rôle</translation>
    </message>
    <message>
        <source>Accessible name</source>
        <translation>Nom accessible</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ObjectTree</name>
    <message>
        <source>Objects</source>
        <translation>Objets</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Class and object name</source>
        <translation>Classe et nom de l&apos;objet</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PageList</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Search the pages (%1)</source>
        <translation>Rechercher dans les pages (%1)</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>By name</source>
        <translation>Par nom</translation>
    </message>
    <message>
        <source>By description</source>
        <translation>Par description</translation>
    </message>
    <message>
        <source>By property, signal or part</source>
        <translation>Par propriété, signal ou élément</translation>
    </message>
    <message>
        <source>Nothing found</source>
        <translation>Aucun résultat</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PaletteEditor</name>
    <message>
        <source>Palettes (*.palette)</source>
        <translation>Palettes (*.palette)</translation>
    </message>
    <message>
        <source>Palette</source>
        <translation>Palette</translation>
    </message>
    <message>
        <source>Palette to start from</source>
        <translation>Palette de départ</translation>
    </message>
    <message>
        <source>Open a palette...</source>
        <translation>Ouvrir une palette...</translation>
    </message>
    <message>
        <source>Save the palette...</source>
        <translation>Enregistrer la palette...</translation>
    </message>
    <message>
        <source>There are colours that were not saved.</source>
        <translation>Des couleurs n’ont pas été enregistrées.</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::PropertyPanel</name>
    <message>
        <source>In a style sheet</source>
        <translation>Dans une feuille de style</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copies the line of the style sheet</source>
        <translation>Copie la ligne de la feuille de style</translation>
    </message>
    <message>
        <source>Values of the type %1 are shown only</source>
        <translation>Les valeurs du type %1 sont seulement affichées</translation>
    </message>
    <message>
        <source>Default of %1</source>
        <translation>Valeur par défaut de %1</translation>
    </message>
    <message>
        <source>%1: %2
Default: %3</source>
        <translation>%1&#xa0;: %2
Par défaut&#xa0;: %3</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Back to the default: %1</source>
        <translation>Revenir à la valeur par défaut&#xa0;: %1</translation>
    </message>
    <message>
        <source>Choose a property</source>
        <translation>Choisissez une propriété</translation>
    </message>
    <message>
        <source>Style sheets cannot say this</source>
        <translation>Une feuille de style ne peut pas le dire</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::ResizeFrame</name>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Arrow keys resize the widget, Backspace restores its size</source>
        <translation>Les flèches redimensionnent le widget, Retour arrière rétablit sa taille</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::SceneBar</name>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>Right to left</source>
        <translation>Droite à gauche</translation>
    </message>
    <message>
        <source>Lay out from right to left</source>
        <translation>Disposer de droite à gauche</translation>
    </message>
    <message>
        <source>Scale. Another one starts the gallery anew, with this page.</source>
        <translation>Échelle. En changer relance la galerie sur cette page.</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Enable the widgets of the page</source>
        <translation>Activer les widgets de la page</translation>
    </message>
    <message>
        <source>Style sheet</source>
        <translation>Feuille de style</translation>
    </message>
    <message>
        <source>Edit the style sheet (F12)</source>
        <translation>Modifier la feuille de style (F12)</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspecteur</translation>
    </message>
    <message>
        <source>Properties, signals and objects of a widget</source>
        <translation>Propriétés, signaux et objets d’un widget</translation>
    </message>
    <message>
        <source>%1 (starts anew)</source>
        <translation>%1 (relance)</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
    <message>
        <source>Open a style sheet</source>
        <translation>Ouvrir une feuille de style</translation>
    </message>
    <message>
        <source>Style sheets (*.qss)</source>
        <translation>Feuilles de style (*.qss)</translation>
    </message>
    <message>
        <source>Open a style sheet...</source>
        <translation>Ouvrir une feuille de style...</translation>
    </message>
    <message>
        <source>Edit the palette...</source>
        <translation>Modifier la palette...</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::SignalLog</name>
    <message>
        <source>Signals</source>
        <translation>Signaux</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Empties the list of signals</source>
        <translation>Vide la liste des signaux</translation>
    </message>
    <message>
        <source>The signals of the widgets are listed here</source>
        <translation>Les signaux des widgets s’affichent ici</translation>
    </message>
    <message>
        <source>The widgets of this page have no signals of their own</source>
        <translation>Les widgets de cette page n’ont pas de signaux propres</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::StartPage</name>
    <message>
        <source>Widgets for screen recorders</source>
        <translation>Widgets pour enregistreurs d’écran</translation>
    </message>
    <message>
        <source>The recorder is an application made of these widgets: a live picture, its sound level, panels, settings and a trimmer.</source>
        <translation>L’enregistreur est une application faite de ces widgets : image en direct, niveau sonore, panneaux, réglages et montage.</translation>
    </message>
    <message>
        <source>Open the recorder</source>
        <translation>Ouvrir l’enregistreur</translation>
    </message>
    <message>
        <source>The list at the side has a page for each widget, with all of its states and an inspector.</source>
        <translation>La liste sur le côté propose une page par widget, avec tous ses états et un inspecteur.</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::StateBar</name>
    <message>
        <source>Forced states</source>
        <translation>États forcés</translation>
    </message>
    <message>
        <source>Force:</source>
        <translation>Forcer :</translation>
    </message>
    <message>
        <source>Hover</source>
        <translation>Survol</translation>
    </message>
    <message>
        <source>Pressed</source>
        <translation>Enfoncé</translation>
    </message>
    <message>
        <source>Focus</source>
        <translation>Focus</translation>
    </message>
    <message>
        <source>Checked</source>
        <translation>Coché</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>Désactivé</translation>
    </message>
    <message>
        <source>Show the selected widget in this state until it is switched off</source>
        <translation>Montre le widget sélectionné dans cet état jusqu&apos;à sa désactivation</translation>
    </message>
</context>
<context>
    <name>Zelkor::Gallery::WidgetPage</name>
    <message>
        <source>Return leads to the tools of this state</source>
        <translation>Entrée mène aux outils de cet état</translation>
    </message>
</context>
</TS>
