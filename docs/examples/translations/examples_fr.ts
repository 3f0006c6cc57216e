<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>Boutons et textes</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Prendre une capture d’écran</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Boutons</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Pas maintenant</translation>
    </message>
    <message>
        <source>A long text takes a second line</source>
        <translation>Un texte long prend deux lignes</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Textes</translation>
    </message>
    <message>
        <source>The title of a page</source>
        <translation>Le titre d’une page</translation>
    </message>
    <message>
        <source>The heading of a card</source>
        <translation>Le titre d’une carte</translation>
    </message>
    <message>
        <source>A text that people read, which wraps where the line ends.</source>
        <translation>Un texte à lire, qui passe à la ligne en fin de ligne.</translation>
    </message>
    <message>
        <source>A text of less importance.</source>
        <translation>Un texte moins important.</translation>
    </message>
    <message>
        <source>A label, which ends in an ellipsis where there is no room for it</source>
        <translation>Un libellé, qui finit par des points de suspension s’il manque de place</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Icônes</translation>
    </message>
</context>
<context>
    <name>CablePage</name>
    <message>
        <source>Cable test</source>
        <translation>Test de câble</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Cable test, %1</source>
        <translation>Test de câble, %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Enregistré : %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
</context>
<context>
    <name>ChangesPage</name>
    <message>
        <source>Changes that wait</source>
        <translation>Modifications en attente</translation>
    </message>
    <message>
        <source>Nothing is sent before Apply</source>
        <translation>Rien n’est envoyé avant « Appliquer »</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>Tout annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Vérification</translation>
    </message>
</context>
<context>
    <name>DatesPage</name>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked; passed on as ISO 8601</source>
        <translation>Saisies selon l’usage du pays, ou choisies ; transmises en ISO 8601</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Éléments de cette page</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Échéance</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Values of this page</source>
        <translation>Valeurs de cette page</translation>
    </message>
    <message>
        <source>Next calibration</source>
        <translation>Prochain étalonnage</translation>
    </message>
    <message>
        <source>In this year</source>
        <translation>Dans cette année</translation>
    </message>
    <message>
        <source>Passed on: %1</source>
        <translation>Transmis : %1</translation>
    </message>
</context>
<context>
    <name>EntriesPage</name>
    <message>
        <source>Entries</source>
        <translation>Champs de saisie</translation>
    </message>
    <message>
        <source>ItemEntry over items of the optical service</source>
        <translation>ItemEntry pour les éléments du service optique</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Gallery</source>
        <translation>Galerie</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>light</source>
        <translation>clair</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>sombre</translation>
    </message>
    <message>
        <source>sunlight</source>
        <translation>soleil</translation>
    </message>
</context>
<context>
    <name>GroupsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>Boutons et textes</translation>
    </message>
    <message>
        <source>Buttons, icons, cards and the sizes of texts</source>
        <translation>Boutons, icônes, cartes et tailles de texte</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listes</translation>
    </message>
    <message>
        <source>Rows, sections and what stands there when a list is empty</source>
        <translation>Lignes, sections et ce que montre une liste vide</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Champs de saisie</translation>
    </message>
    <message>
        <source>The entry for every kind of item</source>
        <translation>Le champ pour chaque type d’élément</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Choix et nombres</translation>
    </message>
    <message>
        <source>Segments, steppers and sliders that keep an item&apos;s limits</source>
        <translation>Segments, incréments et curseurs dans les limites de l’élément</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Date et heure</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked</source>
        <translation>Saisies selon l’usage du pays, ou choisies</translation>
    </message>
    <message>
        <source>Status and messages</source>
        <translation>État et messages</translation>
    </message>
    <message>
        <source>Verdicts, progress, problems and services that are away</source>
        <translation>Résultats, progression, problèmes et services absents</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>The stack of pages, tabs and the line at the top</source>
        <translation>La pile de pages, les onglets et la ligne du haut</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>Modifications en attente</translation>
    </message>
    <message>
        <source>What is applied together, each change with what became of it</source>
        <translation>Ce qui est appliqué ensemble, chaque modification avec son état</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>Lists</source>
        <translation>Listes</translation>
    </message>
    <message>
        <source>Rows of 11 mm and more, which may touch</source>
        <translation>Lignes d’au moins 11 mm, qui peuvent se toucher</translation>
    </message>
    <message>
        <source>JOB-4711, 3 tests</source>
        <translation>JOB-4711, 3 tests</translation>
    </message>
    <message>
        <source>JOB-4712, 1 test</source>
        <translation>JOB-4712, 1 test</translation>
    </message>
    <message>
        <source>JOB-4713, 8 tests</source>
        <translation>JOB-4713, 8 tests</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>hier</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>A section whose contents fold away</source>
        <translation>Une section qui se replie</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>being copied</source>
        <translation>copie en cours</translation>
    </message>
    <message>
        <source>No screenshots</source>
        <translation>Aucune capture d’écran</translation>
    </message>
    <message>
        <source>Tap the camera at the top of a page to keep what it shows.</source>
        <translation>Touchez l’appareil photo en haut d’une page pour garder ce qu’elle montre.</translation>
    </message>
    <message>
        <source>Take one</source>
        <translation>Prendre</translation>
    </message>
</context>
<context>
    <name>NumbersPage</name>
    <message>
        <source>Choices and numbers</source>
        <translation>Choix et nombres</translation>
    </message>
    <message>
        <source>A gesture writes one value, within the limits of the item</source>
        <translation>Un geste écrit une valeur, dans les limites de l’élément</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>Éléments d’un service</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Éléments de cette page</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>Brightness in per cent</source>
        <translation>Luminosité en pour cent</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Tous</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>Échecs seuls</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>Choisi : %1</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page %1 of the stack</source>
        <translation>Page %1 de la pile</translation>
    </message>
    <message>
        <source>The footer stays where it is.</source>
        <translation>Le pied de page reste en place.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Vue d’ensemble</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Courbe</translation>
    </message>
    <message>
        <source>Tabs above the contents. The arrow keys go from tab to tab.</source>
        <translation>Onglets au-dessus du contenu. Les flèches vont d’un onglet à l’autre.</translation>
    </message>
    <message>
        <source>Tabs below the contents are the navigation of a program.</source>
        <translation>Les onglets sous le contenu sont la navigation d’un programme.</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
</context>
<context>
    <name>StatusPage</name>
    <message>
        <source>Status and messages</source>
        <translation>État et messages</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Temps aller-retour</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Affaiblissement</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Let the service return</source>
        <translation>Faire revenir le service</translation>
    </message>
    <message>
        <source>Let the service vanish</source>
        <translation>Faire disparaître le service</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>42 of 100 samples, 12 s left</source>
        <translation>42 échantillons sur 100, encore 12 s</translation>
    </message>
    <message>
        <source>Waiting for the far end</source>
        <translation>Attente de l’extrémité distante</translation>
    </message>
    <message>
        <source>Problems, where they are</source>
        <translation>Les problèmes, là où ils sont</translation>
    </message>
    <message>
        <source>The name may have 50 characters, it has 86.</source>
        <translation>Le nom peut avoir 50 caractères, il en a 86.</translation>
    </message>
    <message>
        <source>The drive is full. Delete files, or save to the USB drive; what was measured is kept as a draft until then.</source>
        <translation>Le disque est plein. Supprimez des fichiers, ou enregistrez sur la clé USB ; d’ici là, ce qui a été mesuré reste en brouillon.</translation>
    </message>
</context>
<context>
    <name>gallery</name>
    <message>
        <source>Site</source>
        <translation>Site</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Affaiblissement</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Répétitions</translation>
    </message>
    <message>
        <source>Server (either version)</source>
        <translation>Serveur (les deux versions)</translation>
    </message>
    <message>
        <source>Unit address</source>
        <translation>Adresse de l’appareil</translation>
    </message>
    <message>
        <source>Unit address, version 6</source>
        <translation>Adresse de l’appareil, version 6</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Port</translation>
    </message>
    <message>
        <source>Upload to</source>
        <translation>Envoyer vers</translation>
    </message>
    <message>
        <source>Report file</source>
        <translation>Fichier du rapport</translation>
    </message>
    <message>
        <source>Upload password</source>
        <translation>Mot de passe d’envoi</translation>
    </message>
    <message>
        <source>Call back</source>
        <translation>Rappeler</translation>
    </message>
    <message>
        <source>Cabinet code</source>
        <translation>Code de l’armoire</translation>
    </message>
    <message>
        <source>Test pattern (hexadecimal)</source>
        <translation>Motif de test (hexadécimal)</translation>
    </message>
    <message>
        <source>File mode (octal)</source>
        <translation>Mode du fichier (octal)</translation>
    </message>
    <message>
        <source>Alarm lines (binary)</source>
        <translation>Lignes d’alarme (binaire)</translation>
    </message>
    <message>
        <source>Test time</source>
        <translation>Durée du test</translation>
    </message>
    <message>
        <source>Buzzer</source>
        <translation>Avertisseur sonore</translation>
    </message>
    <message>
        <source>Connector</source>
        <translation>Connecteur</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Droit</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>En angle</translation>
    </message>
    <message>
        <source>Bare fiber</source>
        <translation>Fibre nue</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>Repères</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Référence</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Capteur</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>Éléments d’un service</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Éléments de cette page</translation>
    </message>
</context>
</TS>
