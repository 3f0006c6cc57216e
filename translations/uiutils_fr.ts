<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR" sourcelanguage="en">
<context>
    <name>ActionForm</name>
    <message>
        <source>Argument</source>
        <translation>Argument</translation>
    </message>
    <message>
        <source>Carry out</source>
        <translation>Exécuter</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. Name another folder.</source>
        <translation>Le nom du dossier %1, donné par --root ou UIUTILS_ROOT, n’est pas écrit dans l’encodage des noms de fichiers. Indiquez un autre dossier.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Afficher cette aide.</translation>
    </message>
    <message>
        <source>Try --help for the options.</source>
        <translation>Essayez --help pour voir les options.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>dossier</translation>
    </message>
    <message>
        <source>Publish the services described in &lt;folder&gt;; may be given more than once (default: %1).</source>
        <translation>Publier les services décrits dans &lt;folder&gt;&#xa0;; peut être indiqué plusieurs fois (par défaut&#xa0;: %1).</translation>
    </message>
    <message>
        <source>--%1 needs a name.</source>
        <translation>--%1 exige un nom.</translation>
    </message>
    <message>
        <source>Show what a screen of that size and density shows, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, such as 800x480@133 (default: %1).</source>
        <translation>Afficher ce qu’affiche un écran de cette taille et de cette densité, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, par exemple 800x480@133 (par défaut&#xa0;: %1).</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>écran</translation>
    </message>
    <message>
        <source>--screen needs a size of %1 to %2 pixels and a density of %3 to %4 dots per inch, such as 1024x600@170.</source>
        <translation>--screen exige une taille de %1 à %2 pixels et une densité de %3 à %4 points par pouce, par exemple 1024x600@170.</translation>
    </message>
    <message>
        <source>--from needs a number of seconds.</source>
        <translation>--from exige un nombre de secondes.</translation>
    </message>
    <message>
        <source>--speed needs a number from 0.001 to 1000000.</source>
        <translation>--speed exige un nombre de 0.001 à 1000000.</translation>
    </message>
</context>
<context>
    <name>ControlsStyle</name>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Non conforme</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>Measures TCP over this machine&apos;s loopback interface and saves a report of it, the way a test application of the instrument does.
With a display a window opens. Without one, or with --tour, the program runs by itself.

Exit status: 0 done, 1 failed, 2 wrong command line.</source>
        <translation>Mesure TCP sur l’interface de bouclage de cette machine et en enregistre un rapport, comme le fait une application de test de l’appareil.
Avec un écran, une fenêtre s’ouvre. Sans écran, ou avec --tour, le programme se déroule seul.

Code de sortie&#xa0;: 0 terminé, 1 échec, 2 ligne de commande incorrecte.</translation>
    </message>
    <message>
        <source>Keep everything that is written below &lt;folder&gt; (default: %1).</source>
        <translation>Garder tout ce qui est écrit sous &lt;folder&gt; (par défaut&#xa0;: %1).</translation>
    </message>
    <message>
        <source>Take &lt;number&gt; samples of each quantity, %1 to %2 (default: as the settings say).</source>
        <translation>Prendre &lt;number&gt; échantillons de chaque grandeur, de %1 à %2 (par défaut&#xa0;: selon les réglages).</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Measure, save a report, take a picture of each page and quit.</source>
        <translation>Mesurer, enregistrer un rapport, prendre une image de chaque page et quitter.</translation>
    </message>
    <message>
        <source>Wait until another application changes the user&apos;s name, the services end and return; take a picture of each and quit. Needs KIV_PLATFORM=bus.</source>
        <translation>Attendre qu’une autre application change le nom de l’utilisateur, que les services s’arrêtent et reviennent&#xa0;; prendre une image de chaque étape et quitter. Exige KIV_PLATFORM=bus.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Argument inattendu «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>--samples needs a number from %1 to %2.</source>
        <translation>--samples exige un nombre de %1 à %2.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created, because %2 is a file. Name another folder with --root.</source>
        <translation>Impossible de créer le dossier %1, car %2 est un fichier. Indiquez un autre dossier avec --root.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created in %2. Check that you may write there, or name another folder with --root.</source>
        <translation>Impossible de créer le dossier %1 dans %2. Vérifiez que vous pouvez y écrire, ou indiquez un autre dossier avec --root.</translation>
    </message>
    <message>
        <source>Everything is written below %1</source>
        <translation>Tout est écrit sous %1</translation>
    </message>
    <message>
        <source>The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>La page principale n’a pas pu être chargée, pour la raison donnée plus haut. Vérifiez que les modules QML QtQuick, QtQuick.Controls, QtQuick.Layouts et QtQuick.Window sont installés.</translation>
    </message>
    <message>
        <source>Pictures:</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>Rapports&#xa0;:</translation>
    </message>
    <message>
        <source>Screenshots:</source>
        <translation>Captures d’écran&#xa0;:</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossible d’écrire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Texts were typed on the on-screen keyboard.</source>
        <translation>Les textes ont été saisis au clavier à l’écran.</translation>
    </message>
</context>
<context>
    <name>DeskDrawer</name>
    <message>
        <source>Desk</source>
        <translation>Atelier</translation>
    </message>
    <message>
        <source>What happens to an instrument in the field, at the press of a button.</source>
        <translation>Ce qui arrive à un appareil sur le terrain, d’une pression.</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>Clé USB</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Débrancher</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>Brancher</translation>
    </message>
    <message>
        <source>Pull unnoticed</source>
        <translation>Retirer sans prévenir</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Disque</translation>
    </message>
    <message>
        <source>Make space</source>
        <translation>Libérer l’espace</translation>
    </message>
    <message>
        <source>Fill the disk</source>
        <translation>Remplir le disque</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Drain the battery</source>
        <translation>Vider la batterie</translation>
    </message>
    <message>
        <source>Charge the battery</source>
        <translation>Charger la batterie</translation>
    </message>
    <message>
        <source>Cut the link</source>
        <translation>Couper la liaison</translation>
    </message>
    <message>
        <source>Restore the link</source>
        <translation>Rétablir la liaison</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>They live in another process.</source>
        <translation>Ils vivent dans un autre processus.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lent</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>Disparaître</translation>
    </message>
    <message>
        <source>Inspector (F12)</source>
        <translation>Inspecteur (F12)</translation>
    </message>
</context>
<context>
    <name>DigitsEntry</name>
    <message>
        <source>Only digits can be used here</source>
        <translation>Seuls des chiffres sont admis ici</translation>
    </message>
</context>
<context>
    <name>DurableFile</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>The path holds a NUL character</source>
        <translation>Le chemin contient un caractère NUL</translation>
    </message>
    <message>
        <source>Cannot create a file in the folder of %1: %2</source>
        <translation>Impossible de créer un fichier dans le dossier de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>Impossible de remplacer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Cannot make sure that %1 survives a power cut: %2</source>
        <translation>Impossible de garantir que %1 survive à une coupure de courant&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>DurationEntry</name>
    <message>
        <source>Hours, minutes and seconds, such as 1:30:00</source>
        <translation>Heures, minutes et secondes, par exemple 1:30:00</translation>
    </message>
    <message>
        <source>This is too long</source>
        <translation>C’est trop long</translation>
    </message>
</context>
<context>
    <name>Entry</name>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Pas prêt</translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation>Champ requis</translation>
    </message>
</context>
<context>
    <name>FieldEntry</name>
    <message>
        <source>chars</source>
        <translation>car.</translation>
    </message>
    <message>
        <source>This must be filled in</source>
        <translation>Ce champ doit être rempli</translation>
    </message>
    <message>
        <source>This does not have the required form</source>
        <translation>Ce n’est pas la forme requise</translation>
    </message>
    <message>
        <source>Changed meanwhile to %1</source>
        <translation>Changé entre-temps en %1</translation>
    </message>
    <message>
        <source>another value</source>
        <translation>une autre valeur</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>Masquer %1</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>Number pad for %1</source>
        <translation>Pavé numérique pour %1</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Pas prêt</translation>
    </message>
</context>
<context>
    <name>FileDetailsPage</name>
    <message>
        <source>Deleted</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Copy to USB</source>
        <translation>Copier sur USB</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1, compressé</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>The list of reports that stay here cannot be used.</source>
        <translation>La liste des rapports qui restent ici est inutilisable.</translation>
    </message>
    <message>
        <source>The cloud may take it.</source>
        <translation>Le cloud peut le prendre.</translation>
    </message>
    <message>
        <source>It stays on the unit.</source>
        <translation>Il reste sur l’appareil.</translation>
    </message>
    <message>
        <source>Keep here</source>
        <translation>Garder ici</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Fiche</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Heure</translation>
    </message>
</context>
<context>
    <name>FileSystemUsage</name>
    <message>
        <source>Not Enough Space</source>
        <translation>Espace insuffisant</translation>
    </message>
</context>
<context>
    <name>FileUtils</name>
    <message>
        <source>Directory</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>I/O Error</source>
        <translation>Erreur d’E/S</translation>
    </message>
    <message>
        <source>Drive %1 is full</source>
        <translation>Le support %1 est plein</translation>
    </message>
    <message>
        <source>Read Error</source>
        <translation>Erreur de lecture</translation>
    </message>
    <message>
        <source>There was an error reading %1</source>
        <translation>Une erreur s’est produite à la lecture de %1</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>Erreur d’écriture</translation>
    </message>
    <message>
        <source>There was an error writing to %1</source>
        <translation>Une erreur s’est produite à l’écriture de %1</translation>
    </message>
    <message>
        <source>Not enough disk space for %1 - would need %2</source>
        <translation>Espace disque insuffisant pour %1 – %2 nécessaires</translation>
    </message>
    <message>
        <source>Not Enough Space</source>
        <translation>Espace insuffisant</translation>
    </message>
    <message>
        <source>Do you want to overwrite all files/directories?</source>
        <translation>Voulez-vous remplacer tous les fichiers/dossiers&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to overwrite %1 %2?</source>
        <translation>Voulez-vous remplacer %1 %2&#xa0;?</translation>
    </message>
    <message>
        <source>File Exists</source>
        <translation>Le fichier existe</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Do you want to delete these %1 files?</source>
        <translation>Voulez-vous supprimer ces %1 fichiers&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 %2?</source>
        <translation>Voulez-vous supprimer %1 %2&#xa0;?</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>Supprimer&#xa0;: %1</translation>
    </message>
    <message>
        <source>Report Exists</source>
        <translation>Le rapport existe</translation>
    </message>
    <message>
        <source>Do you want to overwrite report %1?</source>
        <translation>Voulez-vous remplacer le rapport %1&#xa0;?</translation>
    </message>
    <message>
        <source>Do you want to overwrite screenshot %1?</source>
        <translation>Voulez-vous remplacer la capture d’écran %1&#xa0;?</translation>
    </message>
    <message>
        <source>Internal:</source>
        <translation>Interne:</translation>
    </message>
    <message>
        <source>USB:</source>
        <translation>USB:</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Garder</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>control characters</source>
        <translation>de caractères de contrôle</translation>
    </message>
    <message>
        <source>The name may have %1 characters, it has %2</source>
        <translation>Le nom peut avoir %1 caractères, il en a %2</translation>
    </message>
    <message>
        <source>The name must not contain %1</source>
        <translation>Le nom ne doit pas contenir %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file name</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas un nom de fichier</translation>
    </message>
    <message>
        <source>The name is empty</source>
        <translation>Le nom est vide</translation>
    </message>
    <message>
        <source>The name must not begin with a space</source>
        <translation>Le nom ne doit pas commencer par une espace</translation>
    </message>
    <message>
        <source>The name must not end with a space</source>
        <translation>Le nom ne doit pas finir par une espace</translation>
    </message>
    <message>
        <source>The name must not end with a point</source>
        <translation>Le nom ne doit pas finir par un point</translation>
    </message>
    <message>
        <source>Computers do not allow the name &quot;%1&quot;</source>
        <translation>Les ordinateurs n’admettent pas le nom «&#xa0;%1&#xa0;»</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>%n capture</numerusform>
            <numerusform>%n captures</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reports</source>
        <translation>
            <numerusform>%n rapport</numerusform>
            <numerusform>%n rapports</numerusform>
        </translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Name or format</source>
        <translation>Nom ou format</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Récents</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1, compressé</translation>
    </message>
    <message>
        <source>No report is found</source>
        <translation>Aucun rapport trouvé</translation>
    </message>
    <message>
        <source>There is no USB drive</source>
        <translation>Aucune clé USB</translation>
    </message>
    <message>
        <source>Nothing is saved yet</source>
        <translation>Rien n’est encore enregistré</translation>
    </message>
    <message>
        <source>There are no screenshots</source>
        <translation>Aucune capture d’écran</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Images</translation>
    </message>
    <message>
        <source>%1, %2 % of the drive in use</source>
        <translation>%1, %2 % du disque occupés</translation>
    </message>
</context>
<context>
    <name>FontTexts</name>
    <message>
        <source>The font is broken</source>
        <translation>La police est endommagée</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Choose a job.</source>
        <translation>Choisissez une tâche.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Voir</translation>
    </message>
    <message>
        <source>Measure. The set-up is ready.</source>
        <translation>Mesurez. La configuration est prête.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Mesurer</translation>
    </message>
    <message>
        <source>Save the report of this run.</source>
        <translation>Enregistrez le rapport de cette mesure.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>The report is saved. Take the next job.</source>
        <translation>Le rapport est enregistré. Passez à la tâche suivante.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Aucune tâche</translation>
    </message>
    <message>
        <source>No job is open. Results are saved without one.</source>
        <translation>Aucune tâche n’est ouverte. Les résultats sont enregistrés sans tâche.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personnes</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Non enregistré</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Ensuite</translation>
    </message>
    <message>
        <source>Results of %1 were not saved.</source>
        <translation>Les résultats de %1 n’ont pas été enregistrés.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>Pas encore appliqué</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Appliqué</translation>
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
        <source>%1 samples</source>
        <translation>%1 échantillons</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Aucun pour l’instant</translation>
    </message>
    <message>
        <source>Nothing to save</source>
        <translation>Rien à enregistrer</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Enregistré</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>All that is saved</source>
        <translation>Tout ce qui est enregistré</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Of the unit</source>
        <translation>De l’appareil</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>KIV_PLATFORM is &quot;%1&quot;. Set it to &quot;embedded&quot; or &quot;bus&quot;, or leave it out.</source>
        <translation>KIV_PLATFORM vaut «&#xa0;%1&#xa0;». Indiquez «&#xa0;embedded&#xa0;» ou «&#xa0;bus&#xa0;», ou supprimez-le.</translation>
    </message>
    <message>
        <source>No service could be loaded from %1. Name a folder with service files, with --services where the program has that option, or with KIV_SERVICES.</source>
        <translation>Aucun service n’a pu être chargé depuis %1. Indiquez un dossier de fichiers de service avec --services, si le programme a cette option, ou avec KIV_SERVICES.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossible de lire %1&#xa0;: %2.</translation>
    </message>
    <message>
        <source>Reports have no icons: the folder %1 cannot be created. Check that you may write there.</source>
        <translation>Les rapports n’ont pas d’icônes&#xa0;: impossible de créer le dossier %1. Vérifiez que vous pouvez y écrire.</translation>
    </message>
    <message>
        <source>Reports have no icons: those of the library are not installed.</source>
        <translation>Les rapports n’ont pas d’icônes&#xa0;: celles de la bibliothèque ne sont pas installées.</translation>
    </message>
    <message>
        <source>An image of reports is missing. %1</source>
        <translation>Une image des rapports manque. %1</translation>
    </message>
    <message>
        <source>There is no service %1.</source>
        <translation>Il n’y a pas de service %1.</translation>
    </message>
    <message>
        <source>There is no service on the bus yet. Start kivd; its services are shown when they come.</source>
        <translation>Il n’y a pas encore de service sur le bus. Démarrez kivd&#xa0;; ses services s’affichent dès leur arrivée.</translation>
    </message>
    <message>
        <source>Saved reports cannot be shown: the link %1 to the viewer of PDF files cannot be created. Check that you may write there.</source>
        <translation>Les rapports enregistrés ne peuvent pas être affichés&#xa0;: impossible de créer le lien %1 vers la visionneuse PDF. Vérifiez que vous pouvez y écrire.</translation>
    </message>
    <message>
        <source>KIV_SIMULATION is &quot;%1&quot;. Set it to &quot;on&quot; or &quot;off&quot;, or leave it out.</source>
        <translation>KIV_SIMULATION vaut «&#xa0;%1&#xa0;». Indiquez «&#xa0;on&#xa0;» ou «&#xa0;off&#xa0;», ou supprimez-le.</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Passing</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Failing</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>The service has come</source>
        <translation>Le service est arrivé</translation>
    </message>
    <message>
        <source>The service has gone</source>
        <translation>Le service est parti</translation>
    </message>
    <message>
        <source>The item has come</source>
        <translation>L’élément est arrivé</translation>
    </message>
    <message>
        <source>The item has gone</source>
        <translation>L’élément est parti</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Pas prêt</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>Applicable</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>Non applicable</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>Disponibilité</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>Applicability</source>
        <translation>Applicabilité</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Rejected by hand</source>
        <translation>Refusé à la main</translation>
    </message>
    <message>
        <source>The service does not live here.</source>
        <translation>Le service ne tourne pas ici.</translation>
    </message>
    <message>
        <source>The item cannot have this value.</source>
        <translation>L’élément ne peut pas avoir cette valeur.</translation>
    </message>
    <message>
        <source>The item cannot have these limits.</source>
        <translation>L’élément ne peut pas avoir ces limites.</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspecteur</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Indisponible</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n members</source>
        <translation>
            <numerusform>%n champ</numerusform>
            <numerusform>%n champs</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 changes in %3 s</source>
        <translation>%1&#xa0;: %2 changements en %3&#xa0;s</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Inspector</source>
        <translation>Inspecteur</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Services</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
</context>
<context>
    <name>Instrument</name>
    <message>
        <source>Home</source>
        <translation>Accueil</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Configuration</translation>
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
    <name>InstrumentBar</name>
    <message>
        <source>Job</source>
        <translation>Tâche</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Aucune tâche</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>Clé USB</translation>
    </message>
    <message>
        <source>No USB drive</source>
        <translation>Aucune clé USB</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Liaison</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Coupée</translation>
    </message>
    <message>
        <source>%1 G</source>
        <translation>%1 G</translation>
    </message>
    <message>
        <source>%1 M</source>
        <translation>%1 M</translation>
    </message>
    <message>
        <source>Battery, charging</source>
        <translation>Batterie, en charge</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
</context>
<context>
    <name>ItemDetails</name>
    <message>
        <source>No item chosen</source>
        <translation>Aucun élément choisi</translation>
    </message>
    <message>
        <source>Choose one in the list.</source>
        <translation>Choisissez-en un dans la liste.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Réglage</translation>
    </message>
</context>
<context>
    <name>ItemFace</name>
    <message>
        <source>The entry was rejected.</source>
        <translation>La saisie a été refusée.</translation>
    </message>
</context>
<context>
    <name>ItemHands</name>
    <message>
        <source>By hand</source>
        <translation>À la main</translation>
    </message>
    <message>
        <source>What a service reports can be set by hand where the service lives in this process. This one lives in another.</source>
        <translation>Ce qu’un service signale peut être réglé à la main si le service tourne dans ce processus. Celui-ci tourne dans un autre.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualité</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucune</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prêt</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>Applicable</translation>
    </message>
    <message>
        <source>The service decides by an expression.</source>
        <translation>Le service décide par une expression.</translation>
    </message>
    <message>
        <source>Value that the service reports</source>
        <translation>Valeur signalée par le service</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>Le plus court</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Le plus long</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
</context>
<context>
    <name>ItemHistory</name>
    <message>
        <source>No values yet</source>
        <translation>Pas encore de valeurs</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>Historique de %1</translation>
    </message>
</context>
<context>
    <name>ItemStepper</name>
    <message>
        <source>Less: %1</source>
        <translation>Moins&#xa0;: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>Plus&#xa0;: %1</translation>
    </message>
</context>
<context>
    <name>ItemsPage</name>
    <message>
        <source>Search items</source>
        <translation>Chercher des éléments</translation>
    </message>
    <message>
        <source>Favourites only</source>
        <translation>Favoris seulement</translation>
    </message>
    <message>
        <source>%1 of %2 items</source>
        <translation>%1 éléments sur %2</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Éléments</translation>
    </message>
    <message>
        <source>Remove %1 from the favourites</source>
        <translation>Retirer %1 des favoris</translation>
    </message>
    <message>
        <source>Add %1 to the favourites</source>
        <translation>Ajouter %1 aux favoris</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>Aucun élément</translation>
    </message>
    <message>
        <source>The items are shown when their services come.</source>
        <translation>Les éléments sont montrés dès que leurs services arrivent.</translation>
    </message>
    <message>
        <source>No item matches the search.</source>
        <translation>Aucun élément ne correspond à la recherche.</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Planned</source>
        <translation>Prévue</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminée</translation>
    </message>
    <message>
        <source>Apply or revert the set-up first: it would be applied with the job.</source>
        <translation>Appliquez ou annulez d’abord la configuration&#xa0;: elle serait appliquée avec la tâche.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Tâches</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n tâche</numerusform>
            <numerusform>%n tâches</numerusform>
        </translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personnes</translation>
    </message>
    <message>
        <source>Job, customer or circuit</source>
        <translation>Tâche, client ou circuit</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvertes</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Toutes</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>No job is found</source>
        <translation>Aucune tâche trouvée</translation>
    </message>
    <message>
        <source>There are no jobs</source>
        <translation>Il n’y a pas de tâches</translation>
    </message>
    <message>
        <source>Other words, or all jobs, may find one.</source>
        <translation>D’autres mots, ou toutes les tâches, en trouveront peut-être une.</translation>
    </message>
    <message>
        <source>The services of jobs and of the unit are not published.</source>
        <translation>Les services des tâches et de l’appareil ne sont pas publiés.</translation>
    </message>
</context>
<context>
    <name>KitPage</name>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
</context>
<context>
    <name>KivAggregateData</name>
    <message>
        <source>%1 has no member %2.</source>
        <translation>%1 n’a pas de membre %2.</translation>
    </message>
</context>
<context>
    <name>KivData</name>
    <message>
        <source>%1 max chars</source>
        <translation>%1 car. max.</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 car.</translation>
    </message>
    <message>
        <source>%1 - %2 chars</source>
        <translation>%1 – %2 car.</translation>
    </message>
    <message>
        <source>%1 max digits</source>
        <translation>%1 chiffres max.</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 chiffres</translation>
    </message>
    <message>
        <source>%1 - %2 digits</source>
        <translation>%1 – %2 chiffres</translation>
    </message>
    <message>
        <source>%1 only</source>
        <translation>%1 seulement</translation>
    </message>
    <message>
        <source>Please enter IP address</source>
        <translation>Saisissez l’adresse IP</translation>
    </message>
    <message>
        <source>Please enter IPv6 address</source>
        <translation>Saisissez l’adresse IPv6</translation>
    </message>
    <message>
        <source>Please enter URL</source>
        <translation>Saisissez l’URL</translation>
    </message>
    <message>
        <source>Please enter DNS name</source>
        <translation>Saisissez le nom DNS</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>No native speaker has checked this translation.</source>
        <translation>Cette traduction n’a été relue par aucun locuteur natif.</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in that language.</extracomment>
        <translation>Français</translation>
    </message>
</context>
<context>
    <name>ListEntry</name>
    <message>
        <source>New element of %1</source>
        <translation>Nouvel élément de %1</translation>
    </message>
    <message>
        <source>Element %1 of %2</source>
        <translation>Élément %1 de %2</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Pas prêt</translation>
    </message>
    <message>
        <source>chars</source>
        <translation>car.</translation>
    </message>
    <message>
        <source>Remove element %1 of %2</source>
        <translation>Retirer l’élément %1 de %2</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Ajouter à %1</translation>
    </message>
</context>
<context>
    <name>LivePlot</name>
    <message>
        <source>%1: no data</source>
        <translation>%1&#xa0;: aucune donnée</translation>
    </message>
    <message>
        <source>%1: %2 to %3, from %4 to %5</source>
        <translation>%1&#xa0;: %2 à %3, de %4 à %5</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Non conforme</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>At the cursor: %1.</source>
        <translation>Au curseur&#xa0;: %1.</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Go on</source>
        <translation>Continuer</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Vider</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Modifications</translation>
    </message>
    <message>
        <source>No changes yet</source>
        <translation>Pas encore de modifications</translation>
    </message>
    <message>
        <source>What services report is shown as it comes.</source>
        <translation>Ce que les services signalent est montré aussitôt.</translation>
    </message>
    <message>
        <source>Changes: %L1</source>
        <translation>Modifications : %L1</translation>
    </message>
    <message>
        <source>fallen out: %L1</source>
        <translation>perdues : %L1</translation>
    </message>
    <message>
        <source>missed while paused: %L1</source>
        <translation>manquées en pause : %L1</translation>
    </message>
    <message>
        <source>Save as recording</source>
        <translation>Enregistrer la session</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>TCP loopback test</source>
        <translation>Test de bouclage TCP</translation>
    </message>
    <message>
        <source>The file is damaged. What could be read of it is shown; something may be missing.</source>
        <translation>Le fichier est endommagé. Ce qui a pu être lu est affiché&#xa0;; il peut manquer quelque chose.</translation>
    </message>
    <message>
        <source>Opening the file …</source>
        <translation>Ouverture du fichier …</translation>
    </message>
</context>
<context>
    <name>MomentEntry</name>
    <message>
        <source>Not before %1</source>
        <translation>Pas avant %1</translation>
    </message>
    <message>
        <source>Not after %1</source>
        <translation>Pas après %1</translation>
    </message>
    <message>
        <source>This is not a date, such as %1</source>
        <translation>Ce n’est pas une date comme %1</translation>
    </message>
    <message>
        <source>This is not a time, such as %1</source>
        <translation>Ce n’est pas une heure comme %1</translation>
    </message>
    <message>
        <source>This is not a date and time, such as %1</source>
        <translation>Ce n’est pas une date avec heure comme %1</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Choisir&#xa0;: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>par ex. %1</translation>
    </message>
</context>
<context>
    <name>MomentPicker</name>
    <message>
        <source>Year</source>
        <translation>Année</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Mois</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Heure</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Choisir</translation>
    </message>
</context>
<context>
    <name>NotificationDialog</name>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>NotificationMark</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Question</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Avis</translation>
    </message>
</context>
<context>
    <name>NotificationTray</name>
    <message>
        <source>Notifications (%1)</source>
        <translation>Notifications (%1)</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Tout effacer</translation>
    </message>
    <message>
        <source>Dismiss %1</source>
        <translation>Effacer %1</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>Aucune notification</translation>
    </message>
</context>
<context>
    <name>NotificationsPage</name>
    <message>
        <source>Notifications</source>
        <translation>Notifications</translation>
    </message>
</context>
<context>
    <name>NumberEntry</name>
    <message>
        <source>Use &quot;%1&quot; as the decimal separator</source>
        <translation>Utilisez «&#xa0;%1&#xa0;» comme séparateur décimal</translation>
    </message>
    <message>
        <source>This is not a number</source>
        <translation>Ce n’est pas un nombre</translation>
    </message>
    <message>
        <source>A whole number is required</source>
        <translation>Un nombre entier est requis</translation>
    </message>
    <message>
        <source>Decimals: at most %1</source>
        <translation>Décimales&#xa0;: %1 au plus</translation>
    </message>
</context>
<context>
    <name>NumberPad</name>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Changer le signe</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>e, exponent of ten</source>
        <translation>e, exposant de dix</translation>
    </message>
</context>
<context>
    <name>Overlays</name>
    <message>
        <source>Desk</source>
        <translation>Atelier</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 n’est pas installé</translation>
    </message>
</context>
<context>
    <name>PDFFile</name>
    <message>
        <source>Unknown error</source>
        <translation>Erreur inconnue</translation>
    </message>
    <message>
        <source>The path contains a NUL character</source>
        <translation>Le chemin contient un caractère NUL</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>It has more than 64 MiB</source>
        <translation>Il dépasse 64 Mio</translation>
    </message>
    <message>
        <source>Reading the file takes too long</source>
        <translation>La lecture du fichier prend trop de temps</translation>
    </message>
    <message>
        <source>The file cannot be tried first: %1</source>
        <translation>Le fichier ne peut pas être essayé au préalable&#xa0;: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Le fichier est vide</translation>
    </message>
    <message>
        <source>The file is not safe to read</source>
        <translation>Le fichier ne peut pas être lu sans risque</translation>
    </message>
    <message>
        <source>%1 gives no answer</source>
        <translation>%1 ne répond pas</translation>
    </message>
    <message>
        <source>The file is encrypted, and writing it would damage it</source>
        <translation>Le fichier est chiffré, l’écriture l’endommagerait</translation>
    </message>
    <message>
        <source>The file does not begin like a PDF file</source>
        <translation>Le fichier ne commence pas comme un fichier PDF</translation>
    </message>
    <message>
        <source>The PDF file has no end</source>
        <translation>Le fichier PDF n’a pas de fin</translation>
    </message>
    <message>
        <source>The PDF file has no table of its objects</source>
        <translation>Le fichier PDF n’a pas de table de ses objets</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>Paths</name>
    <message>
        <source>UIUTILS_ROOT names a folder that is not written in the encoding of file names (%1). None of the instrument&apos;s files are read or written. Name another folder.</source>
        <translation>UIUTILS_ROOT désigne un dossier qui n’est pas écrit dans l’encodage des noms de fichiers (%1). Aucun fichier de l’appareil n’est lu ni écrit. Indiquez un autre dossier.</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>The screen could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>L’écran n’a pas pu être chargé, pour la raison donnée plus haut. Vérifiez que les modules QML QtQuick, QtQuick.Controls, QtQuick.Layouts et QtQuick.Window sont installés.</translation>
    </message>
    <message>
        <source>There is no display to show %1 on. Set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM to what draws on this screen, such as eglfs or linuxfb.</source>
        <translation>Il n’y a pas d’écran pour afficher %1. Définissez DISPLAY ou WAYLAND_DISPLAY, ou QT_QPA_PLATFORM selon ce qui dessine sur cet écran, comme eglfs ou linuxfb.</translation>
    </message>
    <message>
        <source>Shows a PDF file, also one that is compressed (.pdf.gz), on a touch screen or in a window.

Exit status: 0 done, 1 the file could not be shown, 2 wrong command line.</source>
        <translation>Affiche un fichier PDF, même compressé (.pdf.gz), sur un écran tactile ou dans une fenêtre.

Code de sortie&#xa0;: 0 terminé, 1 le fichier n’a pas pu être affiché, 2 ligne de commande incorrecte.</translation>
    </message>
    <message>
        <source>The PDF file to show.</source>
        <translation>Le fichier PDF à afficher.</translation>
    </message>
    <message>
        <source>The screen has &lt;number&gt; dots per inch, 1 to %1 (default: %2). At 100 % a page has its natural size there.</source>
        <translation>L’écran a &lt;number&gt; points par pouce, de 1 à %1 (par défaut&#xa0;: %2). À 100&#xa0;% une page y a sa taille naturelle.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>nombre</translation>
    </message>
    <message>
        <source>Fill the screen, without a frame. Under a window system that arranges windows itself, the window is one among others.</source>
        <translation>Remplir l’écran, sans cadre. Sous un système qui dispose lui-même les fenêtres, c’est une fenêtre parmi d’autres.</translation>
    </message>
    <message>
        <source>Call the window &lt;title&gt; (default: the file&apos;s name).</source>
        <translation>Nommer la fenêtre &lt;title&gt; (par défaut&#xa0;: le nom du fichier).</translation>
    </message>
    <message>
        <source>title</source>
        <translation>titre</translation>
    </message>
    <message>
        <source>Use the input plug-in &lt;name:device&gt;; may be given more than once. Has no effect if a window system provides the input or the device does not exist.</source>
        <translation>Utiliser le module de saisie &lt;name:device&gt;&#xa0;; peut être indiqué plusieurs fois. Sans effet si un système de fenêtres fournit la saisie ou si le périphérique n’existe pas.</translation>
    </message>
    <message>
        <source>name:device</source>
        <translation>name:device</translation>
    </message>
    <message>
        <source>Name one PDF file to show.</source>
        <translation>Indiquez un fichier PDF à afficher.</translation>
    </message>
    <message>
        <source>--dpy needs a number from 1 to %1.</source>
        <translation>--dpy exige un nombre de 1 à %1.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Ce fichier n’existe pas.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Ce n’est pas un fichier.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Le fichier ne peut pas être lu.</translation>
    </message>
    <message>
        <source>The file holds more than %1 MiB, which is more than this unit can show.</source>
        <translation>Le fichier dépasse %1&#xa0;Mio, plus que cet appareil ne peut afficher.</translation>
    </message>
    <message>
        <source>This is not a PDF file.</source>
        <translation>Ce n’est pas un fichier PDF.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>Le fichier est endommagé ou incomplet.</translation>
    </message>
    <message>
        <source>The file is encrypted and can only be opened with a password.</source>
        <translation>Le fichier est chiffré et ne s’ouvre qu’avec un mot de passe.</translation>
    </message>
    <message>
        <source>The file has no pages.</source>
        <translation>Le fichier n’a pas de pages.</translation>
    </message>
    <message>
        <source>The file has more than %1 pages, which is more than this unit can show.</source>
        <translation>Le fichier a plus de %1 pages, plus que cet appareil ne peut afficher.</translation>
    </message>
    <message>
        <source>It may have been deleted or moved, or be on a USB drive that was removed. Choose another file, or save the report again.</source>
        <translation>Il a peut-être été supprimé ou déplacé, ou la clé USB a été retirée. Choisissez un autre fichier, ou enregistrez de nouveau le rapport.</translation>
    </message>
    <message>
        <source>Check that the drive is in place and that you may read the file.</source>
        <translation>Vérifiez que le support est en place et que vous pouvez lire le fichier.</translation>
    </message>
    <message>
        <source>Copy it to a computer and open it there.</source>
        <translation>Copiez-le sur un ordinateur et ouvrez-le là.</translation>
    </message>
    <message>
        <source>Choose a file that was saved as PDF.</source>
        <translation>Choisissez un fichier enregistré en PDF.</translation>
    </message>
    <message>
        <source>Save the report again, or copy the file again from where it came.</source>
        <translation>Enregistrez de nouveau le rapport, ou recopiez le fichier depuis sa source.</translation>
    </message>
    <message>
        <source>Open it on a computer, or ask whoever made it for a file without a password.</source>
        <translation>Ouvrez-le sur un ordinateur, ou demandez à son auteur un fichier sans mot de passe.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;.</source>
        <translation>Il n’y a pas de langue « %1 ».</translation>
    </message>
    <message>
        <source>Speak the language of that code, such as &quot;de&quot; (default: that of the environment).</source>
        <translation>Parler la langue de ce code, par exemple « de » (par défaut : celle de l’environnement).</translation>
    </message>
    <message>
        <source>code</source>
        <translation>code</translation>
    </message>
</context>
<context>
    <name>PendingChangeRow</name>
    <message>
        <source>Changed meanwhile</source>
        <translation>Modifié entre-temps</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Maintenant : %1</translation>
    </message>
    <message>
        <source>You have set: %1</source>
        <translation>Vous avez réglé : %1</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Ignorer</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Set again</source>
        <translation>Régler à nouveau</translation>
    </message>
</context>
<context>
    <name>PendingChangesView</name>
    <message>
        <source>Nothing waits</source>
        <translation>Rien n’est en attente</translation>
    </message>
    <message>
        <source>Settings that you change are listed here until they are applied.</source>
        <translation>Les réglages que vous modifiez figurent ici jusqu’à leur application.</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>Modifications en attente</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>People</source>
        <translation>Personnes</translation>
    </message>
    <message>
        <source>Technician</source>
        <translation>Technicien</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Client</translation>
    </message>
    <message>
        <source>Known customers</source>
        <translation>Clients connus</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>non défini</translation>
    </message>
    <message>
        <source>Name, address or circuit</source>
        <translation>Nom, adresse ou circuit</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n tâche</numerusform>
            <numerusform>%n tâches</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>PlotImage</name>
    <message>
        <source>at least %1 %2</source>
        <translation>au moins %1 %2</translation>
    </message>
    <message>
        <source>at most %1 %2</source>
        <translation>au plus %1 %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Aucune donnée</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1&#xa0;j</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1&#xa0;h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1&#xa0;min</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1&#xa0;s</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>beyond a limit</source>
        <translation>au-delà d’une limite</translation>
    </message>
    <message>
        <source>beyond a warning level</source>
        <translation>au-delà d’un seuil d’avertissement</translation>
    </message>
</context>
<context>
    <name>PlovJsonDocument</name>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1&#xa0;: pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1&#xa0;: ouverture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: larger than the %2 MiB that a document may have</source>
        <translation>%1&#xa0;: dépasse les %2&#xa0;Mio permis à un document</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1&#xa0;: lecture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: holds more than the %2 objects and lists that a document may have</source>
        <translation>%1&#xa0;: contient plus que les %2 objets et listes permis à un document</translation>
    </message>
    <message>
        <source>%1:1:1: the root of the document is not an object</source>
        <translation>%1:1:1: la racine du document n’est pas un objet</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <source>The pages are being made</source>
        <translation>Préparation des pages</translation>
    </message>
    <message>
        <source>There are no pages</source>
        <translation>Il n’y a pas de pages</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>PreviewPages</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
</context>
<context>
    <name>QuantityCard</name>
    <message>
        <source>%1, median: %2</source>
        <translation>%1, médiane&#xa0;: %2</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Échantillon</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>Aucun échantillon</translation>
    </message>
    <message>
        <source>%1 to %2, jitter %3</source>
        <translation>%1 à %2, gigue %3</translation>
    </message>
</context>
<context>
    <name>RadixEntry</name>
    <message>
        <source>Only the digits %1 can be used here</source>
        <translation>Seuls les chiffres %1 sont admis ici</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 n’est pas un fichier.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>Impossible de lire %1 : %2.</translation>
    </message>
    <message>
        <source>%1 has no service that can be replayed.</source>
        <translation>%1 ne contient aucun service qui puisse être rejoué.</translation>
    </message>
    <message>
        <source>broken lines: %1</source>
        <translation>lignes défectueuses : %1</translation>
    </message>
    <message>
        <source>lines whose time goes backwards: %1</source>
        <translation>lignes dont le temps recule : %1</translation>
    </message>
    <message>
        <source>lines about items or services that are not there: %1</source>
        <translation>lignes sur des éléments ou services absents : %1</translation>
    </message>
    <message>
        <source>lines that do not fit their item: %1</source>
        <translation>lignes qui ne conviennent pas à leur élément : %1</translation>
    </message>
    <message>
        <source>lines beyond the limits: %1</source>
        <translation>lignes au-delà des limites : %1</translation>
    </message>
    <message>
        <source>it ends in the middle</source>
        <translation>il s’arrête au milieu</translation>
    </message>
    <message>
        <source>The recording is not sound and was played as far as it can be: %1.</source>
        <translation>L’enregistrement n’est pas intact et a été rejoué autant que possible : %1.</translation>
    </message>
    <message>
        <source>%1 exists. Name another file, or remove that one.</source>
        <translation>%1 existe déjà. Indiquez un autre fichier ou supprimez celui-ci.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>Impossible d’écrire %1 : %2.</translation>
    </message>
    <message>
        <source>%1 is written too slowly. The recording ends here.</source>
        <translation>L’écriture de %1 est trop lente. L’enregistrement s’arrête ici.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The recording ends here.</source>
        <translation>Impossible d’écrire %1 : %2. L’enregistrement s’arrête ici.</translation>
    </message>
    <message>
        <source>%1 is not a recording of services.</source>
        <translation>%1 n’est pas un enregistrement de services.</translation>
    </message>
    <message>
        <source>%1 was recorded by a newer program, which writes another form. Use that one.</source>
        <translation>%1 a été enregistré par un programme plus récent, qui écrit une autre forme. Utilisez celui-là.</translation>
    </message>
    <message>
        <source>This is a recording: nothing can be started or stopped in it.</source>
        <translation>Ceci est un enregistrement : rien ne peut y être démarré ni arrêté.</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>ID: </source>
        <translation>ID&#xa0;: </translation>
    </message>
    <message>
        <source>Tech: </source>
        <translation>Tech.&#xa0;: </translation>
    </message>
    <message>
        <source>BAN: </source>
        <translation>BAN&#xa0;: </translation>
    </message>
    <message>
        <source>The schema %1 cannot be used: %2</source>
        <translation>Le schéma %1 est inutilisable&#xa0;: %2</translation>
    </message>
    <message>
        <source>The report does not match the job schema: %1</source>
        <translation>Le rapport ne correspond pas au schéma de la tâche&#xa0;: %1</translation>
    </message>
    <message>
        <source>There is no active job</source>
        <translation>Aucune tâche n’est active</translation>
    </message>
    <message>
        <source>The job has rejected the report: %1</source>
        <translation>La tâche a refusé le rapport&#xa0;: %1</translation>
    </message>
    <message>
        <source>The list of reports that are not synced was not changed.</source>
        <translation>La liste des rapports non synchronisés n’a pas été modifiée.</translation>
    </message>
    <message>
        <source>The data of the job is not complete: it has no ID</source>
        <translation>Les données de la tâche sont incomplètes&#xa0;: elle n’a pas d’ID</translation>
    </message>
    <message>
        <source>Job Manager</source>
        <translation>Gestionnaire de tâches</translation>
    </message>
    <message>
        <source>View Report</source>
        <translation>Afficher le rapport</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>HTML</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTE</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>TOUS</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Sync with Meridex</source>
        <translation>Synchroniser avec Meridex</translation>
    </message>
    <message>
        <source>Report Copied</source>
        <translation>Rapport copié</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>Impossible d’écrire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>the USB drive is not there</source>
        <translation>la clé USB n’est pas là</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>Impossible de lire %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>it has more than 1 MiB</source>
        <translation>elle dépasse 1 Mio</translation>
    </message>
    <message>
        <source>it would have more than 1 MiB</source>
        <translation>elle dépasserait 1 Mio</translation>
    </message>
    <message>
        <source>Cannot lock %1: %2</source>
        <translation>Impossible de verrouiller %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1 contains a line feed</source>
        <translation>%1 contient un saut de ligne</translation>
    </message>
    <message>
        <source>Cannot compress %1: %2</source>
        <translation>Impossible de compresser %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>gzip is missing or has failed</source>
        <translation>gzip manque ou a échoué</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisation</translation>
    </message>
    <message>
        <source>%1 is still on the list of reports that are not synced.</source>
        <translation>%1 figure toujours sur la liste des rapports non synchronisés.</translation>
    </message>
    <message>
        <source>The cloud may take %1, although it is not to be synced.</source>
        <translation>Le cloud peut prendre %1, bien qu’il ne doive pas être synchronisé.</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>Rapport enregistré</translation>
    </message>
    <message>
        <source>Report %1 saved
Folder: %2</source>
        <translation>Rapport %1 enregistré
Dossier&#xa0;: %2</translation>
    </message>
    <message>
        <source>No format is chosen to save the report in.</source>
        <translation>Aucun format n’est choisi pour enregistrer le rapport.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot; to save the report in.</source>
        <translation>Il n’y a pas de format «&#xa0;%1&#xa0;» pour enregistrer le rapport.</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>Erreur d’écriture</translation>
    </message>
    <message>
        <source>There is not enough space to save the report.</source>
        <translation>L’espace est insuffisant pour enregistrer le rapport.</translation>
    </message>
    <message>
        <source>The results are too large to be kept before they are saved</source>
        <translation>Les résultats sont trop volumineux pour être conservés avant l’enregistrement</translation>
    </message>
    <message>
        <source>There is not enough space to keep the results until they are saved</source>
        <translation>L’espace est insuffisant pour conserver les résultats jusqu’à l’enregistrement</translation>
    </message>
    <message>
        <source>The results cannot be kept until they are saved: the disk does not take them</source>
        <translation>Les résultats ne peuvent pas être conservés jusqu’à l’enregistrement&#xa0;: le disque ne les accepte pas</translation>
    </message>
    <message>
        <source>%1 files would be overwritten:</source>
        <translation>%1 fichiers seraient remplacés&#xa0;:</translation>
    </message>
    <message>
        <source>The name does not have the required form</source>
        <translation>Le nom n’a pas la forme requise</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>de caractère NUL</translation>
    </message>
</context>
<context>
    <name>ReportBuilder</name>
    <message>
        <source>Loopback TCP</source>
        <translation>TCP en bouclage</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>%1, median</source>
        <translation>%1, médiane</translation>
    </message>
    <message>
        <source>%1, minimum</source>
        <translation>%1, minimum</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>%1, maximum</translation>
    </message>
    <message>
        <source>%1, jitter</source>
        <translation>%1, gigue</translation>
    </message>
    <message>
        <source>%1, limit</source>
        <translation>%1, limite</translation>
    </message>
    <message>
        <source>%1 of each sample</source>
        <translation>%1 par échantillon</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Échantillons</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>Échantillon %1</translation>
    </message>
</context>
<context>
    <name>ReportPDF</name>
    <message>
        <source>there is not enough memory for its pages</source>
        <translation>la mémoire est insuffisante pour ses pages</translation>
    </message>
    <message>
        <source>Unit ID: %1</source>
        <translation>ID de l’appareil&#xa0;: %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1&#xa0;: %2</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Dessin</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Cannot print %1: %2</source>
        <translation>Impossible d’imprimer %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>another file is being printed</source>
        <translation>un autre fichier est en cours d’impression</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>le programme n’a pas de polices, car ce n’est pas une QGuiApplication</translation>
    </message>
    <message>
        <source>Solvant Report</source>
        <translation>Rapport Solvant</translation>
    </message>
    <message>
        <source>%1 - Continued</source>
        <translation>%1 – suite</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>Logo</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Preview</source>
        <translation>Aperçu</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Enregistré dans %1</translation>
    </message>
    <message>
        <source>Will be saved in %1</source>
        <translation>Sera enregistré dans %1</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>There is no USB drive: files stay on the unit.</source>
        <translation>Aucune clé USB&#xa0;: les fichiers restent sur l’appareil.</translation>
    </message>
    <message>
        <source>On the report</source>
        <translation>Dans le rapport</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Aucune tâche</translation>
    </message>
</context>
<context>
    <name>ReportTemplate</name>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>Median %1, limit %2</source>
        <translation>Médiane %1, %2</translation>
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
        <source>Sample %1</source>
        <translation>Échantillon %1</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>Aucun échantillon</translation>
    </message>
    <message>
        <source>Nothing failed</source>
        <translation>Aucun échec</translation>
    </message>
    <message>
        <source>All samples meet the limit.</source>
        <translation>Tous les échantillons respectent la limite.</translation>
    </message>
    <message>
        <source>Go to Run</source>
        <translation>Aller à la mesure</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Petits</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Grands</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>All of it is applied together, or nothing.</source>
        <translation>Tout est appliqué ensemble, ou rien.</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>Tout annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>Run</source>
        <translation>Mesure</translation>
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
        <source>%1, server at %2</source>
        <translation>%1, serveur&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>SaveProgress</name>
    <message>
        <source>Cancelling the save</source>
        <translation>Annulation de l’enregistrement</translation>
    </message>
    <message>
        <source>Saving the report</source>
        <translation>Enregistrement du rapport</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>SchemaValidator</name>
    <message>
        <source>line %1: %2</source>
        <translation>ligne %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>%1 is not a file in the folder of the schema</source>
        <translation>%1 n’est pas un fichier du dossier du schéma</translation>
    </message>
    <message>
        <source>document type declarations are not accepted</source>
        <translation>les déclarations de type de document ne sont pas acceptées</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>lecture de %1 impossible</translation>
    </message>
    <message>
        <source>%1 is not an XML schema</source>
        <translation>%1 n’est pas un schéma XML</translation>
    </message>
    <message>
        <source>there is no schema to check against</source>
        <translation>il n’y a pas de schéma de référence</translation>
    </message>
    <message>
        <source>the text cannot be read as XML</source>
        <translation>le texte ne peut pas être lu comme XML</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Effacer la recherche</translation>
    </message>
</context>
<context>
    <name>Section</name>
    <message>
        <source>Expanded</source>
        <translation>Développé</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Réduit</translation>
    </message>
</context>
<context>
    <name>ServiceBanner</name>
    <message>
        <source>&quot;%1&quot; does not answer. What is shown may be old; the page goes on by itself when the service is back.</source>
        <translation>«&#xa0;%1&#xa0;» ne répond pas. Ce qui est affiché peut être ancien&#xa0;; la page reprend d’elle-même au retour du service.</translation>
    </message>
</context>
<context>
    <name>ServiceBus</name>
    <message>
        <source>The service %1 is run by another user and is not used.</source>
        <translation>Le service %1 est exécuté par un autre utilisateur et n’est pas utilisé.</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>Le service %1 est injoignable. Réessayez lorsqu’il fonctionne.</translation>
    </message>
    <message>
        <source>There is no object %1.</source>
        <translation>Il n’y a pas d’objet %1.</translation>
    </message>
    <message>
        <source>The name of the service %1 is too long for a bus.</source>
        <translation>Le nom du service %1 est trop long pour un bus.</translation>
    </message>
    <message>
        <source>A service %1 is published already.</source>
        <translation>Un service %1 est déjà publié.</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>la connexion a été fermée</translation>
    </message>
    <message>
        <source>it does not take the connection</source>
        <translation>il n’accepte pas la connexion</translation>
    </message>
    <message>
        <source>The system bus cannot be reached: %1.</source>
        <translation>Le bus système est injoignable&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1.</source>
        <translation>Le bus de session est injoignable&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The service %1 does not say which version of the interface it has: %2</source>
        <translation>Le service %1 n’indique pas la version de son interface&#xa0;: %2</translation>
    </message>
    <message>
        <source>The service %1 has version %2 of the interface, and this program knows version %3. Use programs of one release.</source>
        <translation>Le service %1 a la version %2 de l’interface, ce programme connaît la version %3. Utilisez des programmes de la même livraison.</translation>
    </message>
    <message>
        <source>The service %1 takes no more clients: %2</source>
        <translation>Le service %1 n’accepte plus de clients&#xa0;: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: %2</source>
        <translation>Les éléments du service %1 ne peuvent pas être lus&#xa0;: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: they are not what the interface says.</source>
        <translation>Les éléments du service %1 ne peuvent pas être lus&#xa0;: ils ne sont pas conformes à l’interface.</translation>
    </message>
    <message>
        <source>%1 cannot be set: the value is too large, or a text of it holds a NUL.</source>
        <translation>%1 ne peut pas être réglé&#xa0;: la valeur est trop grande, ou un de ses textes contient NUL.</translation>
    </message>
    <message>
        <source>%1 was not sent: its argument is too large, or holds a NUL.</source>
        <translation>%1 n’a pas été envoyé&#xa0;: son argument est trop grand ou contient NUL.</translation>
    </message>
    <message>
        <source>The service %1 has not answered an earlier request yet. Try again when it does.</source>
        <translation>Le service %1 n’a pas encore répondu à une demande précédente. Réessayez ensuite.</translation>
    </message>
    <message>
        <source>The service %1 ended before it answered. Try again when it runs.</source>
        <translation>Le service %1 s’est arrêté avant de répondre. Réessayez lorsqu’il fonctionne.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>Le service %1 n’a pas répondu en %2&#xa0;ms. Il peut encore exécuter la demande.</translation>
    </message>
    <message>
        <source>There are no properties of %1.</source>
        <translation>%1 n’a pas de propriétés.</translation>
    </message>
    <message>
        <source>There is no property %1.</source>
        <translation>Il n’y a pas de propriété %1.</translation>
    </message>
    <message>
        <source>The properties of a service are read-only.</source>
        <translation>Les propriétés d’un service sont en lecture seule.</translation>
    </message>
    <message>
        <source>There is no method %1.%2.</source>
        <translation>Il n’y a pas de méthode %1.%2.</translation>
    </message>
    <message>
        <source>%1 takes arguments of the signature &quot;%2&quot;, not &quot;%3&quot;.</source>
        <translation>%1 prend des arguments de signature «&#xa0;%2&#xa0;», et non «&#xa0;%3&#xa0;».</translation>
    </message>
    <message>
        <source>The items of the service are too large for a message.</source>
        <translation>Les éléments du service sont trop grands pour un message.</translation>
    </message>
    <message>
        <source>The service has as many clients as it can serve.</source>
        <translation>Le service a autant de clients qu’il peut en servir.</translation>
    </message>
    <message>
        <source>The value cannot be read.</source>
        <translation>La valeur ne peut pas être lue.</translation>
    </message>
    <message>
        <source>The service has too much to do. Try again later.</source>
        <translation>Le service est surchargé. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>The service %1 was withdrawn before it could answer.</source>
        <translation>Le service %1 a été retiré avant de pouvoir répondre.</translation>
    </message>
    <message>
        <source>The service %1 answered something that the interface does not know.</source>
        <translation>Le service %1 a répondu quelque chose que l’interface ne connaît pas.</translation>
    </message>
</context>
<context>
    <name>ServiceCard</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n élément</numerusform>
            <numerusform>%n éléments</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Inaccessible</translation>
    </message>
    <message>
        <source>answers slowly</source>
        <translation>répond lentement</translation>
    </message>
    <message>
        <source>rejects every change</source>
        <translation>refuse toute modification</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Rapide</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Lent</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Accepter</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Refuser</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Revenir</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>Disparaître</translation>
    </message>
    <message>
        <source>The service lives in another process. It can be watched and edited, not disturbed.</source>
        <translation>Le service tourne dans un autre processus. On peut l’observer et le modifier, pas le perturber.</translation>
    </message>
    <message>
        <source>A transaction runs</source>
        <translation>Une transaction est en cours</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>Non envoyé</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Maintenant : %1</translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation>Rien n’est encore modifié.</translation>
    </message>
    <message>
        <source>Pending changes</source>
        <translation>Modifications en attente</translation>
    </message>
</context>
<context>
    <name>ServiceFile</name>
    <message>
        <source>the id %1 stands twice</source>
        <translation>l’id %1 figure deux fois</translation>
    </message>
    <message>
        <source>the id %1 lacks its category or the colon at its end, or has more than %2 characters</source>
        <translation>l’id %1 n’a pas de catégorie ou pas de deux-points final, ou dépasse %2 caractères</translation>
    </message>
    <message>
        <source>the type %1 of %2 is unknown</source>
        <translation>le type %1 de %2 est inconnu</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an array</source>
        <translation>le type %1 et l’id %2 se contredisent&#xa0;: tableau ou non</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an action</source>
        <translation>le type %1 et l’id %2 se contredisent&#xa0;: action ou non</translation>
    </message>
    <message>
        <source>an aggregate or table without members</source>
        <translation>un agrégat ou un tableau sans membres</translation>
    </message>
    <message>
        <source>the type %1 has no members</source>
        <translation>le type %1 n’a pas de membres</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is empty or appears twice</source>
        <translation>le nom «&#xa0;%1&#xa0;» est vide ou figure deux fois</translation>
    </message>
    <message>
        <source>a member cannot have the type %1</source>
        <translation>un membre ne peut pas avoir le type %1</translation>
    </message>
    <message>
        <source>the type %1 has no choices</source>
        <translation>le type %1 n’a pas de choix</translation>
    </message>
    <message>
        <source>only an action can have &quot;does&quot;, not the type %1</source>
        <translation>seule une action peut avoir «&#xa0;does&#xa0;», pas le type %1</translation>
    </message>
    <message>
        <source>a negative delay</source>
        <translation>un délai négatif</translation>
    </message>
    <message>
        <source>only a text that is a result can be clearable</source>
        <translation>seul un texte qui est un résultat peut être effaçable</translation>
    </message>
    <message>
        <source>a precision outside 0 to %1</source>
        <translation>une précision hors de 0 à %1</translation>
    </message>
    <message>
        <source>/does/set: there is no item %1</source>
        <translation>/does/set&#xa0;: il n’y a pas d’élément %1</translation>
    </message>
    <message>
        <source>/does/set: the value of %1: %2</source>
        <translation>/does/set&#xa0;: la valeur de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>a mount point begins with a slash</source>
        <translation>un point de montage commence par une barre oblique</translation>
    </message>
    <message>
        <source>/service: a name has 1 to %1 characters</source>
        <translation>/service&#xa0;: un nom a de 1 à %1 caractères</translation>
    </message>
    <message>
        <source>the id %1 appears twice</source>
        <translation>l’id %1 figure deux fois</translation>
    </message>
    <message>
        <source>the value %1 appears twice or is negative</source>
        <translation>la valeur %1 figure deux fois ou est négative</translation>
    </message>
    <message>
        <source>a value of this type has no limits</source>
        <translation>une valeur de ce type n’a pas de limites</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>pas un nombre</translation>
    </message>
    <message>
        <source>the minimum is above the maximum</source>
        <translation>le minimum est supérieur au maximum</translation>
    </message>
    <message>
        <source>%1: not a folder of service files, or not readable</source>
        <translation>%1&#xa0;: pas un dossier de fichiers de service, ou illisible</translation>
    </message>
    <message>
        <source>the program</source>
        <translation>le programme</translation>
    </message>
    <message>
        <source>/service: &quot;%1&quot; is published already by %2</source>
        <translation>/service&#xa0;: «&#xa0;%1&#xa0;» est déjà publié par %2</translation>
    </message>
    <message>
        <source>the service %1 has an item %2 already</source>
        <translation>le service %1 a déjà un élément %2</translation>
    </message>
    <message>
        <source>not of the type %1</source>
        <translation>pas du type %1</translation>
    </message>
    <message>
        <source>a service file may not say this here; uiutils-check tells what it may</source>
        <translation>un fichier de service ne peut pas dire cela ici&#xa0;; uiutils-check dit ce qu’il peut dire</translation>
    </message>
</context>
<context>
    <name>ServiceItem</name>
    <message>
        <source>Account ID</source>
        <translation>ID de compte</translation>
    </message>
    <message>
        <source>Active Work Order</source>
        <translation>Ordre de travail actif</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Attach Report</source>
        <translation>Joindre le rapport</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Backscatter</source>
        <translation>Rétrodiffusion</translation>
    </message>
    <message>
        <source>Base Unit</source>
        <translation>Appareil de base</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Câble</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Étalonner</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Étalonnage</translation>
    </message>
    <message>
        <source>Circuit ID</source>
        <translation>ID de circuit</translation>
    </message>
    <message>
        <source>Collector</source>
        <translation>Collecteur</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Composants</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Customer Fields in Reports</source>
        <translation>Champs client des rapports</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>Nom du client</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Durée</translation>
    </message>
    <message>
        <source>Ethernet Module</source>
        <translation>Module Ethernet</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Événements</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Interne</translation>
    </message>
    <message>
        <source>Internal and USB</source>
        <translation>Interne et USB</translation>
    </message>
    <message>
        <source>Job Active</source>
        <translation>Tâche active</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>BAN de la tâche</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID de la tâche</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>Technicien de la tâche</translation>
    </message>
    <message>
        <source>Keep Report Name</source>
        <translation>Conserver le nom du rapport</translation>
    </message>
    <message>
        <source>Laser Power</source>
        <translation>Puissance laser</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>Link Loss</source>
        <translation>Perte de liaison</translation>
    </message>
    <message>
        <source>Manifest</source>
        <translation>Manifeste</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuel</translation>
    </message>
    <message>
        <source>Maximum Round-Trip Time</source>
        <translation>Temps aller-retour maximal</translation>
    </message>
    <message>
        <source>Message Size</source>
        <translation>Taille des messages</translation>
    </message>
    <message>
        <source>Minimum Throughput</source>
        <translation>Débit minimal</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Mode</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Décalage</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <source>Proposed Report Name</source>
        <translation>Nom de rapport proposé</translation>
    </message>
    <message>
        <source>Pulse Width</source>
        <translation>Largeur d’impulsion</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Portée</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Temps réel</translation>
    </message>
    <message>
        <source>Reports Not Synced</source>
        <translation>Rapports non synchronisés</translation>
    </message>
    <message>
        <source>Return Loss</source>
        <translation>Perte de retour</translation>
    </message>
    <message>
        <source>Round-Trip Samples</source>
        <translation>Échantillons aller-retour</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Temps aller-retour</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Échantillon</translation>
    </message>
    <message>
        <source>Save Location</source>
        <translation>Emplacement</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Session</translation>
    </message>
    <message>
        <source>Splitter Stages</source>
        <translation>Étages de coupleurs</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Démarrer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Store Traces</source>
        <translation>Enregistrer les traces</translation>
    </message>
    <message>
        <source>Tech ID</source>
        <translation>ID du technicien</translation>
    </message>
    <message>
        <source>Technician Fields in Reports</source>
        <translation>Champs technicien des rapports</translation>
    </message>
    <message>
        <source>Test Label</source>
        <translation>Libellé du test</translation>
    </message>
    <message>
        <source>Test Type</source>
        <translation>Type de test</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Débit</translation>
    </message>
    <message>
        <source>Throughput Samples</source>
        <translation>Échantillons de débit</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>USB Attached</source>
        <translation>USB branché</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versions</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>Longueur d’onde</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Flux de travail</translation>
    </message>
    <message>
        <source>Worst Event</source>
        <translation>Pire événement</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>En charge</translation>
    </message>
    <message>
        <source>Close Job</source>
        <translation>Fermer la tâche</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Clients</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Tâches</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Liaison</translation>
    </message>
    <message>
        <source>Link Speed</source>
        <translation>Vitesse de liaison</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>Ouvrir la tâche</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Son</translation>
    </message>
    <message>
        <source>Sunlight</source>
        <translation>Plein soleil</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Received Power</source>
        <translation>Puissance reçue</translation>
    </message>
    <message>
        <source>B</source>
        <translation>o</translation>
    </message>
    <message>
        <source>Mbit/s</source>
        <translation>Mbit/s</translation>
    </message>
    <message>
        <source>The calibration can only be set at the factory.</source>
        <translation>L’étalonnage ne peut être réglé qu’en usine.</translation>
    </message>
    <message>
        <source>The calibration needs a reference fiber. Connect one and try again.</source>
        <translation>L’étalonnage demande une fibre de référence. Raccordez-en une et réessayez.</translation>
    </message>
    <message>
        <source>There is no light on the fiber. Check the connector, and start again.</source>
        <translation>Il n’y a pas de lumière dans la fibre. Vérifiez le connecteur et recommencez.</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>dB</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>dBm</translation>
    </message>
    <message>
        <source>km</source>
        <translation>km</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>ms</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>nm</translation>
    </message>
    <message>
        <source>ns</source>
        <translation>ns</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>Nothing was set. %1</source>
        <translation>Rien n’a été réglé. %1</translation>
    </message>
    <message>
        <source>not an object</source>
        <translation>pas un objet</translation>
    </message>
    <message>
        <source>The settings for the service %1 are not a JSON object of values by name: %2.</source>
        <translation>Les réglages du service %1 ne sont pas un objet JSON de valeurs par nom&#xa0;: %2.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;.</source>
        <translation>Il n’y a pas de réglage «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>%1 is named twice.</source>
        <translation>%1 est nommé deux fois.</translation>
    </message>
    <message>
        <source>Settings applied: %1.</source>
        <translation>Réglages appliqués&#xa0;: %1.</translation>
    </message>
    <message>
        <source>The configuration of %1 was not saved: it needs a name, as in &quot;My settings,1&quot;.</source>
        <translation>La configuration de %1 n’a pas été enregistrée&#xa0;: il lui faut un nom, comme dans «&#xa0;My settings,1&#xa0;».</translation>
    </message>
    <message>
        <source>The configuration &quot;%1&quot; was not saved: there is no folder to store it in.</source>
        <translation>La configuration «&#xa0;%1&#xa0;» n’a pas été enregistrée&#xa0;: il n’y a pas de dossier pour elle.</translation>
    </message>
    <message>
        <source>The configuration was saved as &quot;%1&quot;.</source>
        <translation>La configuration a été enregistrée sous «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>Le service %1 est injoignable. Réessayez lorsqu’il fonctionne.</translation>
    </message>
    <message>
        <source>%1 cannot be set to %2: %3. Allowed: %4.</source>
        <translation>%1 ne peut pas être réglé à %2&#xa0;: %3. Valeurs permises&#xa0;: %4.</translation>
    </message>
    <message>
        <source>%1 cannot be set now: it is not ready. Try again later.</source>
        <translation>%1 ne peut pas être réglé maintenant&#xa0;: pas prêt. Réessayez plus tard.</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>pas disponible maintenant</translation>
    </message>
    <message>
        <source>The service %1 has no item %2 any more.</source>
        <translation>Le service %1 n’a plus d’élément %2.</translation>
    </message>
    <message>
        <source>The action failed.</source>
        <translation>L’action a échoué.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it is not a setting.</source>
        <translation>%1 ne peut pas être réglé&#xa0;: ce n’est pas un réglage.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it can only be emptied.</source>
        <translation>%1 ne peut pas être réglé&#xa0;: il peut seulement être vidé.</translation>
    </message>
    <message>
        <source>The service %1 has no item %2.</source>
        <translation>Le service %1 n’a pas d’élément %2.</translation>
    </message>
    <message>
        <source>%1 cannot be carried out: the service %2 has no handler for it.</source>
        <translation>%1 ne peut pas être exécuté&#xa0;: le service %2 n’a rien pour le traiter.</translation>
    </message>
    <message>
        <source>The service %1 has no action %2.</source>
        <translation>Le service %1 n’a pas d’action %2.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>Le service %1 n’a pas répondu en %2&#xa0;ms. Il peut encore exécuter la demande.</translation>
    </message>
</context>
<context>
    <name>ServiceState</name>
    <message>
        <source>It could not be renamed, so changed settings will be lost when the program ends.</source>
        <translation>Il n’a pas pu être renommé&#xa0;; les réglages modifiés seront donc perdus à la fin du programme.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings are those of the service file.</source>
        <translation>Il a été renommé en %1, et les réglages sont ceux du fichier de service.</translation>
    </message>
    <message>
        <source>%1: /values: the object with the values by item id is missing.</source>
        <translation>%1&#xa0;: /values&#xa0;: l’objet des valeurs par id d’élément manque.</translation>
    </message>
    <message>
        <source>The settings of %1 could not be stored in %2: %3.</source>
        <translation>Les réglages de %1 n’ont pas pu être enregistrés dans %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>le dossier ne peut pas être créé</translation>
    </message>
    <message>
        <source>the service %1 has no such setting</source>
        <translation>le service %1 n’a pas ce réglage</translation>
    </message>
    <message>
        <source>%1: %2: %3. The value stays in the file.</source>
        <translation>%1&#xa0;: %2&#xa0;: %3. La valeur reste dans le fichier.</translation>
    </message>
    <message>
        <source>this is not a setting</source>
        <translation>ce n’est pas un réglage</translation>
    </message>
    <message>
        <source>%1 is %2, allowed: %3</source>
        <translation>%1&#xa0;: %2, valeurs permises&#xa0;: %3</translation>
    </message>
</context>
<context>
    <name>ServiceValue</name>
    <message>
        <source>%1 or more</source>
        <translation>%1 ou plus</translation>
    </message>
    <message>
        <source>%1 or less</source>
        <translation>%1 ou moins</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>un texte</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 caractères</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>tout nombre</translation>
    </message>
    <message>
        <source>the members %1</source>
        <translation>les membres %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>rien</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>une liste</translation>
    </message>
    <message>
        <source>an aggregate</source>
        <translation>un agrégat</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>vrai ou faux</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>pas un nombre</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>pas un nombre fini</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>pas un nombre entier</translation>
    </message>
    <message>
        <source>out of range</source>
        <translation>hors limites</translation>
    </message>
    <message>
        <source>neither true nor false</source>
        <translation>ni vrai ni faux</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>pas un texte</translation>
    </message>
    <message>
        <source>not a value that an item of this type can have</source>
        <translation>pas une valeur possible pour un élément de ce type</translation>
    </message>
    <message>
        <source>not a list</source>
        <translation>pas une liste</translation>
    </message>
    <message>
        <source>not an aggregate</source>
        <translation>pas un agrégat</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; is missing</source>
        <translation>le membre «&#xa0;%1&#xa0;» manque</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>membre «&#xa0;%1&#xa0;»&#xa0;: %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>il n’y a pas de membre «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>not a list of aggregates</source>
        <translation>pas une liste d’agrégats</translation>
    </message>
    <message>
        <source>element %1: %2</source>
        <translation>élément %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>trop court</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>trop long</translation>
    </message>
    <message>
        <source>not of the expected form</source>
        <translation>pas de la forme attendue</translation>
    </message>
    <message>
        <source>not one of the choices</source>
        <translation>pas un des choix</translation>
    </message>
</context>
<context>
    <name>ServicesPage</name>
    <message>
        <source>No services yet</source>
        <translation>Pas encore de services</translation>
    </message>
    <message>
        <source>They are shown when they come.</source>
        <translation>Ils sont montrés dès qu’ils arrivent.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>B</source>
        <translation>o</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>ko</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>Mo</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Capture d’écran</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Écran</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Plus</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>Gallery of the kit</source>
        <translation>Galerie des composants</translation>
    </message>
    <message>
        <source>Everything that pages are made of</source>
        <translation>Tout ce dont les pages sont faites</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Appareil</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>Configuration</translation>
    </message>
    <message>
        <source>Everything is applied.</source>
        <translation>Tout est appliqué.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes are not applied yet.</source>
        <translation>
            <numerusform>%n modification n’est pas encore appliquée.</numerusform>
            <numerusform>%n modifications ne sont pas encore appliquées.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Vérifier</translation>
    </message>
    <message>
        <source>There is no set-up</source>
        <translation>Il n’y a pas de configuration</translation>
    </message>
    <message>
        <source>The service loopback is not published.</source>
        <translation>Le service loopback n’est pas publié.</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Limites</translation>
    </message>
    <message>
        <source>What passes, and what fails.</source>
        <translation>Ce qui est conforme et ce qui ne l’est pas.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Mesure</translation>
    </message>
    <message numerus="yes">
        <source>%n settings were changed meanwhile.</source>
        <translation>
            <numerusform>%n réglage a été modifié entre-temps.</numerusform>
            <numerusform>%n réglages ont été modifiés entre-temps.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Page %1</source>
        <translation>Page %1</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn. The file may be damaged.</source>
        <translation>La page %1 ne peut pas être affichée. Le fichier est peut-être endommagé.</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>%1 is running already. Stop it, or wait until it is done.</source>
        <translation>%1 est déjà en cours. Arrêtez-la, ou attendez la fin.</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>la valeur de %1&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1&#xa0;: pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1&#xa0;: ouverture impossible&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: larger than %2 MiB</source>
        <translation>%1&#xa0;: plus de %2&#xa0;Mio</translation>
    </message>
    <message>
        <source>%1: the first line names no column &quot;%2&quot;</source>
        <translation>%1&#xa0;: la première ligne ne nomme aucune colonne «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>%1: no line has a value of the item&apos;s type in the column</source>
        <translation>%1&#xa0;: aucune ligne n’a dans la colonne une valeur du type de l’élément</translation>
    </message>
    <message>
        <source>only a result can move: settings are set by clients</source>
        <translation>seul un résultat peut varier&#xa0;: les réglages sont faits par les clients</translation>
    </message>
    <message>
        <source>an item of the type %1 cannot move as &quot;%2&quot;</source>
        <translation>un élément du type %1 ne peut pas varier en «&#xa0;%2&#xa0;»</translation>
    </message>
    <message>
        <source>has no meaning for &quot;%1&quot;</source>
        <translation>n’a pas de sens pour «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>must be greater than &quot;from&quot;</source>
        <translation>doit être supérieur à «&#xa0;from&#xa0;»</translation>
    </message>
    <message>
        <source>only numbers have &quot;noise&quot;, &quot;from&quot; and &quot;to&quot;</source>
        <translation>seuls les nombres ont «&#xa0;noise&#xa0;», «&#xa0;from&#xa0;» et «&#xa0;to&#xa0;»</translation>
    </message>
    <message>
        <source>%1. The item %2 stands still.</source>
        <translation>%1. L’élément %2 ne varie pas.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 lines have no value for %4 and are left out.</source>
        <translation>%1&#xa0;: %2 lignes sur %3 n’ont pas de valeur pour %4 et sont omises.</translation>
    </message>
    <message>
        <source>only numbers and Booleans can be judged by their value</source>
        <translation>seuls les nombres et les booléens peuvent être jugés d’après leur valeur</translation>
    </message>
    <message>
        <source>&quot;to&quot; is less than &quot;from&quot;</source>
        <translation>«&#xa0;to&#xa0;» est inférieur à «&#xa0;from&#xa0;»</translation>
    </message>
    <message>
        <source>there is no item %1 that is a number</source>
        <translation>il n’y a pas d’élément %1 qui soit un nombre</translation>
    </message>
    <message>
        <source>there is no item %1 that has a value</source>
        <translation>il n’y a pas d’élément %1 qui ait une valeur</translation>
    </message>
    <message>
        <source>a value of %1 is drawn from the numbers between &quot;from&quot; and &quot;to&quot;</source>
        <translation>une valeur de %1 est tirée parmi les nombres de «&#xa0;from&#xa0;» à «&#xa0;to&#xa0;»</translation>
    </message>
    <message>
        <source>must be greater than &quot;for&quot;</source>
        <translation>doit être supérieur à «&#xa0;for&#xa0;»</translation>
    </message>
    <message>
        <source>no id begins with &quot;%1&quot;</source>
        <translation>aucun identifiant ne commence par «&#xa0;%1&#xa0;»</translation>
    </message>
    <message>
        <source>there is no action %1 that &quot;runs&quot;</source>
        <translation>il n’y a pas d’action %1 avec «&#xa0;runs&#xa0;»</translation>
    </message>
    <message>
        <source>nothing happens: say what, such as &quot;vanish&quot;: true</source>
        <translation>il ne se passe rien&#xa0;: indiquez quoi, par exemple &quot;vanish&quot;: true</translation>
    </message>
    <message>
        <source>%1 The item %2 stands still.</source>
        <translation>%1 L’élément %2 reste immobile.</translation>
    </message>
    <message>
        <source>%1: lines that cannot be read are left out: %2</source>
        <translation>%1&#xa0;: lignes illisibles, omises&#xa0;: %2</translation>
    </message>
    <message>
        <source>%1: the recording has no value of %2.</source>
        <translation>%1&#xa0;: l’enregistrement n’a aucune valeur de %2.</translation>
    </message>
</context>
<context>
    <name>SwitchEntry</name>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>TemplateToHtmlWriter</name>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Non conforme</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>ID de la tâche</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>BAN de la tâche</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>Technicien de la tâche</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Limite inférieure</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Limite supérieure</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Timestamp</source>
        <translation>Horodatage</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Résultat global</translation>
    </message>
    <message>
        <source>Assembly</source>
        <translation>Module</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Matériel</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Section</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Entrée</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Unité</translation>
    </message>
    <message>
        <source>%1 unit</source>
        <translation>Unité de %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Statut</translation>
    </message>
    <message>
        <source>%1 status</source>
        <translation>Statut de %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <source>Legend of the plot</source>
        <translation>Légende du graphique</translation>
    </message>
    <message>
        <source>Test Information</source>
        <translation>Informations sur le test</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Solvant System Information</source>
        <translation>Informations système Solvant</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>Tableau %1</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1&#xa0;: %2 à %3</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 de plus</translation>
    </message>
    <message>
        <source>There are no curves.</source>
        <translation>Il n’y a pas de courbes.</translation>
    </message>
    <message>
        <source>Job Manager Information</source>
        <translation>Informations sur la tâche</translation>
    </message>
    <message>
        <source>Customer Information</source>
        <translation>Informations sur le client</translation>
    </message>
    <message>
        <source>Technician Information</source>
        <translation>Informations sur le technicien</translation>
    </message>
    <message>
        <source>Software Revisions</source>
        <translation>Versions des logiciels</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Configuration Values</source>
        <translation>Valeurs de configuration</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>Non terminé</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Points</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 à %2</translation>
    </message>
    <message>
        <source>The curves are drawn in the HTML and PDF reports.</source>
        <translation>Les courbes sont tracées dans les rapports HTML et PDF.</translation>
    </message>
</context>
<context>
    <name>TextEntry</name>
    <message>
        <source>&quot;%1&quot; cannot be used here</source>
        <translation>«&#xa0;%1&#xa0;» n’est pas admis ici</translation>
    </message>
</context>
<context>
    <name>TouchTab</name>
    <message>
        <source>Needs attention</source>
        <translation>À vérifier</translation>
    </message>
</context>
<context>
    <name>TouchTabs</name>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
</context>
<context>
    <name>TurnLine</name>
    <message>
        <source>%1 before</source>
        <translation>%1&#xa0;: moins</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1&#xa0;: plus</translation>
    </message>
</context>
<context>
    <name>UiData</name>
    <message>
        <source>False</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Oui</translation>
    </message>
</context>
<context>
    <name>ViewerBar</name>
    <message>
        <source>Previous page</source>
        <translation>Page précédente</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Page %1 sur %2</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Page suivante</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Plus petit</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1&#xa0;%</translation>
    </message>
    <message>
        <source>Zoom %1</source>
        <translation>Zoom %1</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Plus grand</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Largeur</translation>
    </message>
    <message>
        <source>Fit the width</source>
        <translation>Ajuster à la largeur</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Page</translation>
    </message>
    <message>
        <source>Fit the page</source>
        <translation>Ajuster à la page</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>Four numbers separated by points, such as 192.0.2.1</source>
        <translation>Quatre nombres séparés par des points, par exemple 192.0.2.1</translation>
    </message>
    <message>
        <source>Each part is a number from 0 to 255</source>
        <translation>Chaque partie est un nombre de 0 à 255</translation>
    </message>
    <message>
        <source>No part can begin with 0</source>
        <translation>Aucune partie ne peut commencer par 0</translation>
    </message>
    <message>
        <source>Up to eight groups separated by colons, such as 2001:db8::1</source>
        <translation>Jusqu’à huit groupes séparés par des deux-points, par exemple 2001:db8::1</translation>
    </message>
    <message>
        <source>&quot;::&quot; can appear only once</source>
        <translation>«&#xa0;::&#xa0;» ne peut figurer qu’une fois</translation>
    </message>
    <message>
        <source>Each group is one to four hexadecimal digits</source>
        <translation>Chaque groupe a un à quatre chiffres hexadécimaux</translation>
    </message>
    <message>
        <source>Six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E</source>
        <translation>Six paires de chiffres hexadécimaux, par exemple 00:1A:2B:3C:4D:5E</translation>
    </message>
    <message>
        <source>A URL cannot contain blanks</source>
        <translation>Une URL ne contient pas d’espaces</translation>
    </message>
    <message>
        <source>Scheme and host, such as https://host/path</source>
        <translation>Schéma et hôte, par exemple https://host/path</translation>
    </message>
    <message>
        <source>At most %1 characters; this text has %2</source>
        <translation>%1 caractères au plus&#xa0;; ce texte en a %2</translation>
    </message>
    <message>
        <source>Digits, + at the beginning, blanks and ( ) / - * #</source>
        <translation>Chiffres, + au début, espaces et ( ) / - * #</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Au moins %1</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Au plus %1</translation>
    </message>
    <message>
        <source>At least %1 characters; this text has %2</source>
        <translation>%1 caractères au moins&#xa0;; ce texte en a %2</translation>
    </message>
</context>
<context>
    <name>uiutils::PendingChanges</name>
    <message>
        <source>The service %1 cannot be reached. The change waits until it returns.</source>
        <translation>Le service %1 est injoignable. La modification attend son retour.</translation>
    </message>
    <message>
        <source>The entry was rejected.</source>
        <translation>La saisie a été refusée.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Désactivé</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportDraft</name>
    <message>
        <source>Another page or program keeps results of this kind</source>
        <translation>Une autre page ou un autre programme conserve des résultats de ce type</translation>
    </message>
    <message>
        <source>There is no folder to keep the results in until they are saved</source>
        <translation>Il n’y a pas de dossier où conserver les résultats jusqu’à l’enregistrement</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportPaper</name>
    <message>
        <source>the printer takes no further page</source>
        <translation>l’imprimante n’accepte plus de page</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>le programme n’a pas de polices, car ce n’est pas une QGuiApplication</translation>
    </message>
    <message>
        <source>the report has no page %1, only %2</source>
        <translation>le rapport n’a pas de page %1, seulement %2</translation>
    </message>
    <message>
        <source>the printer cannot be used</source>
        <translation>l’imprimante est inutilisable</translation>
    </message>
    <message>
        <source>another report is being printed</source>
        <translation>un autre rapport est en cours d’impression</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Follower</name>
    <message>
        <source>Following the user&apos;s name, &quot;%1&quot;.</source>
        <translation>Suivi du nom de l’utilisateur, «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>There is no setting %1 to follow. Start kivd with the service that has it.</source>
        <translation>Il n’y a pas de réglage %1 à suivre. Démarrez kivd avec le service qui l’a.</translation>
    </message>
    <message>
        <source>Another application has changed it to &quot;%1&quot;.</source>
        <translation>Une autre application l’a changé en «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The services have ended; it stays &quot;%1&quot;.</source>
        <translation>Les services se sont arrêtés&#xa0;; il reste «&#xa0;%1&#xa0;».</translation>
    </message>
    <message>
        <source>The services have returned, and nothing is lost.</source>
        <translation>Les services sont revenus, et rien n’est perdu.</translation>
    </message>
    <message>
        <source>The services have returned with &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Les services sont revenus avec «&#xa0;%1&#xa0;» au lieu de «&#xa0;%2&#xa0;».</translation>
    </message>
    <message>
        <source>The window gives no picture.</source>
        <translation>La fenêtre ne donne pas d’image.</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 n’a pas été écrit&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackMeasurement</name>
    <message>
        <source>Ready to measure</source>
        <translation>Prêt à mesurer</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>Connexion au serveur</translation>
    </message>
    <message>
        <source>Measuring round-trip time</source>
        <translation>Mesure du temps aller-retour</translation>
    </message>
    <message>
        <source>Measuring throughput</source>
        <translation>Mesure du débit</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulé</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Measured with a TCP client and a TCP server of this program over the loopback interface of this unit. Round-trip time: %1 samples, each the time from sending a message of %2 bytes until all of its echo had arrived. Throughput: %6 samples, each the time for sending %3 MiB until the server had acknowledged the last byte; 1 Mbit/s is 1,000,000 bits a second. Between samples there is a pause of %4 ms, and one exchange of each kind before the first sample is not counted. Jitter is the mean difference between neighbouring samples. A value passes when it meets its limit with a margin of at least %5 %, is marginal when it meets it with less, and fails when it does not meet it; the overall status is that of the worse median.</source>
        <translation>Mesuré avec un client TCP et un serveur TCP de ce programme sur l’interface de bouclage de cet appareil. Temps aller-retour&#xa0;: %1 échantillons, chacun étant le temps entre l’envoi d’un message de %2 octets et l’arrivée complète de son écho. Débit&#xa0;: %6 échantillons, chacun étant le temps d’envoi de %3&#xa0;Mio jusqu’à l’acquittement du dernier octet par le serveur&#xa0;; 1 Mbit/s vaut 1 000 000 bits par seconde. Une pause de %4&#xa0;ms sépare les échantillons, et un échange de chaque sorte avant le premier ne compte pas. La gigue est l’écart moyen entre échantillons voisins. Une valeur est conforme si elle respecte sa limite avec une marge d’au moins %5&#xa0;%, limite si la marge est moindre, et non conforme sinon&#xa0;; le résultat global est celui de la moins bonne médiane.</translation>
    </message>
    <message>
        <source>A run takes %1 to %2 samples of each and messages of %3 B or more; other values are changed to the nearest permitted one.</source>
        <translation>Une mesure prend de %1 à %2 échantillons de chaque grandeur et des messages d’au moins %3&#xa0;o&#xa0;; les autres valeurs sont ramenées à la plus proche valeur permise.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackProbe</name>
    <message>
        <source>No server could be opened on the loopback address (%1). Check that the loopback interface is up, then start again.</source>
        <translation>Aucun serveur n’a pu être ouvert sur l’adresse de bouclage (%1). Vérifiez que l’interface de bouclage est active, puis recommencez.</translation>
    </message>
    <message>
        <source>The server at %1 sent an answer that does not match the request while %2. Another program may be listening there; start again.</source>
        <translation>Le serveur %1 a envoyé une réponse qui ne correspond pas à la demande (%2). Un autre programme y écoute peut-être&#xa0;; recommencez.</translation>
    </message>
    <message>
        <source>The connection to the server at %1 broke while %2 (%3). Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>La connexion au serveur %1 s’est rompue (%2&#xa0;; %3). Vérifiez que l’interface de bouclage est active et qu’aucun pare-feu ne la bloque, puis recommencez.</translation>
    </message>
    <message>
        <source>The server at %1 was silent for %2 s while %3. Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>Le serveur %1 est resté muet %2&#xa0;s (%3). Vérifiez que l’interface de bouclage est active et qu’aucun pare-feu ne la bloque, puis recommencez.</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>connexion</translation>
    </message>
    <message>
        <source>measuring round-trip time, sample %1 of %2</source>
        <translation>temps aller-retour, échantillon %1 sur %2</translation>
    </message>
    <message>
        <source>measuring throughput, sample %1 of %2</source>
        <translation>débit, échantillon %1 sur %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackReport</name>
    <message>
        <source>Title on the report</source>
        <translation>Titre du rapport</translation>
    </message>
    <message>
        <source>TCP loopback test</source>
        <translation>Test de bouclage TCP</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>Compressé</translation>
    </message>
    <message>
        <source>Finish a measurement on the Measure page first.</source>
        <translation>Terminez d’abord une mesure.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::SampleModel</name>
    <message>
        <source>at most %1</source>
        <translation>au plus %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>au moins %1</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Conforme</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Limite</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Non conforme</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Temps aller-retour</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Débit</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::ScreenCamera</name>
    <message>
        <source>Screenshot Saved</source>
        <translation>Capture d’écran enregistrée</translation>
    </message>
    <message>
        <source>No picture of the window could be taken.</source>
        <translation>Aucune image de la fenêtre n’a pu être prise.</translation>
    </message>
    <message>
        <source>The window was not drawn for %1 s.</source>
        <translation>La fenêtre n’a pas été dessinée pendant %1&#xa0;s.</translation>
    </message>
    <message>
        <source>The picture of the window is empty.</source>
        <translation>L’image de la fenêtre est vide.</translation>
    </message>
    <message>
        <source>There is not enough space for the picture.</source>
        <translation>L’espace est insuffisant pour l’image.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Tour</name>
    <message>
        <source>The picture of the window for %1 is empty. Run the demo without a display, with DISPLAY and WAYLAND_DISPLAY unset.</source>
        <translation>L’image de la fenêtre pour %1 est vide. Lancez la démo sans écran, sans DISPLAY ni WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>Check the free space and that you may write there, or name another folder with --root.</source>
        <translation>Vérifiez l’espace libre et que vous pouvez y écrire, ou indiquez un autre dossier avec --root.</translation>
    </message>
    <message>
        <source>The tour waited for %1 s in vain: %2. Keep the window in sight, and leave it alone.</source>
        <translation>La visite a attendu %1&#xa0;s en vain&#xa0;: %2. Gardez la fenêtre visible et n’y touchez pas.</translation>
    </message>
    <message>
        <source>the job is open</source>
        <translation>la tâche est ouverte</translation>
    </message>
    <message>
        <source>half of the run</source>
        <translation>la moitié de la mesure</translation>
    </message>
    <message>
        <source>the end of the run</source>
        <translation>la fin de la mesure</translation>
    </message>
    <message>
        <source>the format of all files</source>
        <translation>le format de tous les fichiers</translation>
    </message>
    <message>
        <source>the report is saved</source>
        <translation>le rapport est enregistré</translation>
    </message>
    <message>
        <source>a question before files are overwritten</source>
        <translation>une question avant de remplacer des fichiers</translation>
    </message>
    <message>
        <source>the answer</source>
        <translation>la réponse</translation>
    </message>
    <message>
        <source>the screenshot</source>
        <translation>la capture d’écran</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can be pressed</source>
        <translation>«&#xa0;%1&#xa0;» peut être pressé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is typed</source>
        <translation>«&#xa0;%1&#xa0;» est saisi</translation>
    </message>
    <message>
        <source>a picture of the window can be taken</source>
        <translation>une image de la fenêtre peut être prise</translation>
    </message>
    <message>
        <source>the picture %1</source>
        <translation>l’image %1</translation>
    </message>
    <message>
        <source>the pages of the preview</source>
        <translation>les pages de l’aperçu</translation>
    </message>
    <message>
        <source>the drawer of the desk</source>
        <translation>le tiroir de l’atelier</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::UsbStick</name>
    <message>
        <source>The files in %1 cannot be moved to %2: %3.</source>
        <translation>Les fichiers de %1 ne peuvent pas être déplacés vers %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>No service of this instrument knows of USB drives.</source>
        <translation>Aucun service de cet appareil ne connaît les clés USB.</translation>
    </message>
    <message>
        <source>USB Drive</source>
        <translation>Clé USB</translation>
    </message>
</context>
</TS>
