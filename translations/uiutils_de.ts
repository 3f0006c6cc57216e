<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ActionForm</name>
    <message>
        <source>Argument</source>
        <translation>Argument</translation>
    </message>
    <message>
        <source>Carry out</source>
        <translation>Ausführen</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. Name another folder.</source>
        <translation>Der Name des Ordners %1, den --root oder UIUTILS_ROOT angibt, ist nicht in der Kodierung der Dateinamen geschrieben. Geben Sie einen anderen Ordner an.</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>Diese Hilfe anzeigen.</translation>
    </message>
    <message>
        <source>Try --help for the options.</source>
        <translation>Die Optionen zeigt --help.</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Publish the services described in &lt;folder&gt;; may be given more than once (default: %1).</source>
        <translation>Die in &lt;folder&gt; beschriebenen Dienste veröffentlichen; darf mehrmals angegeben werden (Vorgabe: %1).</translation>
    </message>
    <message>
        <source>--%1 needs a name.</source>
        <translation>--%1 braucht einen Namen.</translation>
    </message>
    <message>
        <source>Show what a screen of that size and density shows, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, such as 800x480@133 (default: %1).</source>
        <translation>Zeigen, was ein Bildschirm dieser Größe und Auflösung zeigt, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, zum Beispiel 800x480@133 (Vorgabe: %1).</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>Bildschirm</translation>
    </message>
    <message>
        <source>--screen needs a size of %1 to %2 pixels and a density of %3 to %4 dots per inch, such as 1024x600@170.</source>
        <translation>--screen braucht eine Größe von %1 bis %2 Pixeln und eine Auflösung von %3 bis %4 Punkten je Zoll, zum Beispiel 1024x600@170.</translation>
    </message>
    <message>
        <source>--from needs a number of seconds.</source>
        <translation>--from braucht eine Anzahl von Sekunden.</translation>
    </message>
    <message>
        <source>--speed needs a number from 0.001 to 1000000.</source>
        <translation>--speed braucht eine Zahl von 0.001 bis 1000000.</translation>
    </message>
</context>
<context>
    <name>ControlsStyle</name>
    <message>
        <source>Pass</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Nicht bestanden</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>Measures TCP over this machine&apos;s loopback interface and saves a report of it, the way a test application of the instrument does.
With a display a window opens. Without one, or with --tour, the program runs by itself.

Exit status: 0 done, 1 failed, 2 wrong command line.</source>
        <translation>Misst TCP über die Loopback-Schnittstelle dieses Rechners und speichert einen Bericht davon, wie eine Prüfanwendung des Geräts.
Mit einer Anzeige öffnet sich ein Fenster. Ohne Anzeige oder mit --tour läuft das Programm von selbst.

Exit-Status: 0 fertig, 1 fehlgeschlagen, 2 falsche Befehlszeile.</translation>
    </message>
    <message>
        <source>Keep everything that is written below &lt;folder&gt; (default: %1).</source>
        <translation>Alles Geschriebene unter &lt;folder&gt; ablegen (Vorgabe: %1).</translation>
    </message>
    <message>
        <source>Take &lt;number&gt; samples of each quantity, %1 to %2 (default: as the settings say).</source>
        <translation>&lt;number&gt; Messwerte je Größe aufnehmen, %1 bis %2 (Vorgabe: wie eingestellt).</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Measure, save a report, take a picture of each page and quit.</source>
        <translation>Messen, einen Bericht speichern, jede Seite aufnehmen und beenden.</translation>
    </message>
    <message>
        <source>Wait until another application changes the user&apos;s name, the services end and return; take a picture of each and quit. Needs KIV_PLATFORM=bus.</source>
        <translation>Warten, bis eine andere Anwendung den Namen des Benutzers ändert und die Dienste enden und wiederkehren; von jedem ein Bild aufnehmen und beenden. Braucht KIV_PLATFORM=bus.</translation>
    </message>
    <message>
        <source>Unexpected argument &quot;%1&quot;.</source>
        <translation>Unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>--samples needs a number from %1 to %2.</source>
        <translation>--samples braucht eine Zahl von %1 bis %2.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created, because %2 is a file. Name another folder with --root.</source>
        <translation>Der Ordner %1 kann nicht angelegt werden, weil %2 eine Datei ist. Geben Sie mit --root einen anderen Ordner an.</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created in %2. Check that you may write there, or name another folder with --root.</source>
        <translation>Der Ordner %1 kann in %2 nicht angelegt werden. Prüfen Sie, ob Sie dort schreiben dürfen, oder geben Sie mit --root einen anderen Ordner an.</translation>
    </message>
    <message>
        <source>Everything is written below %1</source>
        <translation>Alles wird unter %1 geschrieben</translation>
    </message>
    <message>
        <source>The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>Die Hauptseite konnte aus dem oben genannten Grund nicht geladen werden. Prüfen Sie, ob die QML-Module QtQuick, QtQuick.Controls, QtQuick.Layouts und QtQuick.Window installiert sind.</translation>
    </message>
    <message>
        <source>Pictures:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>Berichte:</translation>
    </message>
    <message>
        <source>Screenshots:</source>
        <translation>Bildschirmfotos:</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>Texts were typed on the on-screen keyboard.</source>
        <translation>Texte wurden auf der Bildschirmtastatur eingegeben.</translation>
    </message>
</context>
<context>
    <name>DeskDrawer</name>
    <message>
        <source>Desk</source>
        <translation>Werkbank</translation>
    </message>
    <message>
        <source>What happens to an instrument in the field, at the press of a button.</source>
        <translation>Was einem Gerät im Feld geschieht, auf Knopfdruck.</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>USB-Stick</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>Abziehen</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>Anstecken</translation>
    </message>
    <message>
        <source>Pull unnoticed</source>
        <translation>Unbemerkt abziehen</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>Datenträger</translation>
    </message>
    <message>
        <source>Make space</source>
        <translation>Platz schaffen</translation>
    </message>
    <message>
        <source>Fill the disk</source>
        <translation>Datenträger füllen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Drain the battery</source>
        <translation>Akku entladen</translation>
    </message>
    <message>
        <source>Charge the battery</source>
        <translation>Akku laden</translation>
    </message>
    <message>
        <source>Cut the link</source>
        <translation>Verbindung trennen</translation>
    </message>
    <message>
        <source>Restore the link</source>
        <translation>Verbindung herstellen</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>They live in another process.</source>
        <translation>Sie laufen in einem anderen Prozess.</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Wiederkommen</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>Verschwinden</translation>
    </message>
    <message>
        <source>Inspector (F12)</source>
        <translation>Inspektor (F12)</translation>
    </message>
</context>
<context>
    <name>DigitsEntry</name>
    <message>
        <source>Only digits can be used here</source>
        <translation>Nur Ziffern sind hier möglich</translation>
    </message>
</context>
<context>
    <name>DurableFile</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>The path holds a NUL character</source>
        <translation>Der Pfad enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>Cannot create a file in the folder of %1: %2</source>
        <translation>Im Ordner von %1 kann keine Datei angelegt werden: %2</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>%1 kann nicht ersetzt werden: %2</translation>
    </message>
    <message>
        <source>Cannot make sure that %1 survives a power cut: %2</source>
        <translation>Es ist nicht sicher, dass %1 einen Stromausfall übersteht: %2</translation>
    </message>
</context>
<context>
    <name>DurationEntry</name>
    <message>
        <source>Hours, minutes and seconds, such as 1:30:00</source>
        <translation>Stunden, Minuten und Sekunden, zum Beispiel 1:30:00</translation>
    </message>
    <message>
        <source>This is too long</source>
        <translation>Das ist zu lang</translation>
    </message>
</context>
<context>
    <name>Entry</name>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Nicht bereit</translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation>Eingabe fehlt</translation>
    </message>
</context>
<context>
    <name>FieldEntry</name>
    <message>
        <source>chars</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>This must be filled in</source>
        <translation>Hier fehlt eine Eingabe</translation>
    </message>
    <message>
        <source>This does not have the required form</source>
        <translation>Das hat nicht die erwartete Form</translation>
    </message>
    <message>
        <source>Changed meanwhile to %1</source>
        <translation>Inzwischen geändert in %1</translation>
    </message>
    <message>
        <source>another value</source>
        <translation>einen anderen Wert</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>%1 verbergen</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 zeigen</translation>
    </message>
    <message>
        <source>Number pad for %1</source>
        <translation>Ziffernblock für %1</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Nicht bereit</translation>
    </message>
</context>
<context>
    <name>FileDetailsPage</name>
    <message>
        <source>Deleted</source>
        <translation>Gelöscht</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Copy to USB</source>
        <translation>Auf USB kopieren</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1, komprimiert</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>The list of reports that stay here cannot be used.</source>
        <translation>Die Liste der Berichte, die hier bleiben, ist unbrauchbar.</translation>
    </message>
    <message>
        <source>The cloud may take it.</source>
        <translation>Die Cloud darf ihn übernehmen.</translation>
    </message>
    <message>
        <source>It stays on the unit.</source>
        <translation>Er bleibt auf dem Gerät.</translation>
    </message>
    <message>
        <source>Keep here</source>
        <translation>Hier behalten</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>Datensatz</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>FileSystemUsage</name>
    <message>
        <source>Not Enough Space</source>
        <translation>Zu wenig Speicherplatz</translation>
    </message>
</context>
<context>
    <name>FileUtils</name>
    <message>
        <source>Directory</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>I/O Error</source>
        <translation>E/A-Fehler</translation>
    </message>
    <message>
        <source>Drive %1 is full</source>
        <translation>Das Laufwerk %1 ist voll</translation>
    </message>
    <message>
        <source>Read Error</source>
        <translation>Lesefehler</translation>
    </message>
    <message>
        <source>There was an error reading %1</source>
        <translation>Beim Lesen von %1 ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>Schreibfehler</translation>
    </message>
    <message>
        <source>There was an error writing to %1</source>
        <translation>Beim Schreiben von %1 ist ein Fehler aufgetreten</translation>
    </message>
    <message>
        <source>Not enough disk space for %1 - would need %2</source>
        <translation>Nicht genug Speicherplatz für %1 – benötigt werden %2</translation>
    </message>
    <message>
        <source>Not Enough Space</source>
        <translation>Zu wenig Speicherplatz</translation>
    </message>
    <message>
        <source>Do you want to overwrite all files/directories?</source>
        <translation>Alle Dateien/Ordner überschreiben?</translation>
    </message>
    <message>
        <source>Do you want to overwrite %1 %2?</source>
        <translation>%1 %2 überschreiben?</translation>
    </message>
    <message>
        <source>File Exists</source>
        <translation>Datei existiert</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Do you want to delete these %1 files?</source>
        <translation>Diese %1 Dateien löschen?</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 %2?</source>
        <translation>%1 %2 löschen?</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>Report Exists</source>
        <translation>Bericht existiert</translation>
    </message>
    <message>
        <source>Do you want to overwrite report %1?</source>
        <translation>Bericht %1 überschreiben?</translation>
    </message>
    <message>
        <source>Do you want to overwrite screenshot %1?</source>
        <translation>Bildschirmfoto %1 überschreiben?</translation>
    </message>
    <message>
        <source>Internal:</source>
        <translation>Intern:</translation>
    </message>
    <message>
        <source>USB:</source>
        <translation>USB:</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>control characters</source>
        <translation>Steuerzeichen</translation>
    </message>
    <message>
        <source>The name may have %1 characters, it has %2</source>
        <translation>Der Name darf %1 Zeichen haben, er hat %2</translation>
    </message>
    <message>
        <source>The name must not contain %1</source>
        <translation>Der Name darf kein %1 enthalten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a file name</source>
        <translation>„%1“ ist kein Dateiname</translation>
    </message>
    <message>
        <source>The name is empty</source>
        <translation>Der Name ist leer</translation>
    </message>
    <message>
        <source>The name must not begin with a space</source>
        <translation>Der Name darf nicht mit einem Leerzeichen beginnen</translation>
    </message>
    <message>
        <source>The name must not end with a space</source>
        <translation>Der Name darf nicht mit einem Leerzeichen enden</translation>
    </message>
    <message>
        <source>The name must not end with a point</source>
        <translation>Der Name darf nicht mit einem Punkt enden</translation>
    </message>
    <message>
        <source>Computers do not allow the name &quot;%1&quot;</source>
        <translation>Computer lassen den Namen „%1“ nicht zu</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>%n Bildschirmfoto</numerusform>
            <numerusform>%n Bildschirmfotos</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reports</source>
        <translation>
            <numerusform>%n Bericht</numerusform>
            <numerusform>%n Berichte</numerusform>
        </translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>Name or format</source>
        <translation>Name oder Format</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>Neueste</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>%1, komprimiert</translation>
    </message>
    <message>
        <source>No report is found</source>
        <translation>Kein Bericht gefunden</translation>
    </message>
    <message>
        <source>There is no USB drive</source>
        <translation>Kein USB-Stick vorhanden</translation>
    </message>
    <message>
        <source>Nothing is saved yet</source>
        <translation>Noch nichts gespeichert</translation>
    </message>
    <message>
        <source>There are no screenshots</source>
        <translation>Keine Bildschirmfotos vorhanden</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <source>%1, %2 % of the drive in use</source>
        <translation>%1, Laufwerk zu %2 % belegt</translation>
    </message>
</context>
<context>
    <name>FontTexts</name>
    <message>
        <source>The font is broken</source>
        <translation>Die Schriftart ist beschädigt</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Choose a job.</source>
        <translation>Wählen Sie einen Auftrag.</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>Ansehen</translation>
    </message>
    <message>
        <source>Measure. The set-up is ready.</source>
        <translation>Messen Sie. Die Einstellungen sind bereit.</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>Messen</translation>
    </message>
    <message>
        <source>Save the report of this run.</source>
        <translation>Speichern Sie den Bericht dieser Messung.</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>The report is saved. Take the next job.</source>
        <translation>Der Bericht ist gespeichert. Nehmen Sie den nächsten Auftrag.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Aufträge</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Kein Auftrag</translation>
    </message>
    <message>
        <source>No job is open. Results are saved without one.</source>
        <translation>Kein Auftrag ist offen. Ergebnisse werden ohne Auftrag gespeichert.</translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>Nicht gespeichert</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Als Nächstes</translation>
    </message>
    <message>
        <source>Results of %1 were not saved.</source>
        <translation>Die Ergebnisse von %1 wurden nicht gespeichert.</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>Noch nicht übernommen</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>Übernommen</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>%1 samples</source>
        <translation>%1 Messwerte</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>Noch keine</translation>
    </message>
    <message>
        <source>Nothing to save</source>
        <translation>Nichts zu speichern</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>All that is saved</source>
        <translation>Alles Gespeicherte</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Of the unit</source>
        <translation>Des Geräts</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>KIV_PLATFORM is &quot;%1&quot;. Set it to &quot;embedded&quot; or &quot;bus&quot;, or leave it out.</source>
        <translation>KIV_PLATFORM ist „%1“. Setzen Sie es auf „embedded“ oder „bus“, oder lassen Sie es weg.</translation>
    </message>
    <message>
        <source>No service could be loaded from %1. Name a folder with service files, with --services where the program has that option, or with KIV_SERVICES.</source>
        <translation>Aus %1 konnte kein Dienst geladen werden. Geben Sie einen Ordner mit Dienstdateien an: mit --services, wo das Programm diese Option hat, oder mit KIV_SERVICES.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>Reports have no icons: the folder %1 cannot be created. Check that you may write there.</source>
        <translation>Berichte haben keine Symbole: Der Ordner %1 kann nicht angelegt werden. Prüfen Sie, ob Sie dort schreiben dürfen.</translation>
    </message>
    <message>
        <source>Reports have no icons: those of the library are not installed.</source>
        <translation>Berichte haben keine Symbole: Die der Bibliothek sind nicht installiert.</translation>
    </message>
    <message>
        <source>An image of reports is missing. %1</source>
        <translation>Ein Bild der Berichte fehlt. %1</translation>
    </message>
    <message>
        <source>There is no service %1.</source>
        <translation>Es gibt keinen Dienst %1.</translation>
    </message>
    <message>
        <source>There is no service on the bus yet. Start kivd; its services are shown when they come.</source>
        <translation>Auf dem Bus ist noch kein Dienst. Starten Sie kivd; seine Dienste erscheinen, sobald sie kommen.</translation>
    </message>
    <message>
        <source>Saved reports cannot be shown: the link %1 to the viewer of PDF files cannot be created. Check that you may write there.</source>
        <translation>Gespeicherte Berichte können nicht angezeigt werden: Die Verknüpfung %1 zum PDF-Betrachter kann nicht angelegt werden. Prüfen Sie, ob Sie dort schreiben dürfen.</translation>
    </message>
    <message>
        <source>KIV_SIMULATION is &quot;%1&quot;. Set it to &quot;on&quot; or &quot;off&quot;, or leave it out.</source>
        <translation>KIV_SIMULATION ist „%1“. Setzen Sie es auf „on“ oder „off“, oder lassen Sie es weg.</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Passing</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Failing</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>The service has come</source>
        <translation>Der Dienst ist da</translation>
    </message>
    <message>
        <source>The service has gone</source>
        <translation>Der Dienst ist weg</translation>
    </message>
    <message>
        <source>The item has come</source>
        <translation>Das Element ist da</translation>
    </message>
    <message>
        <source>The item has gone</source>
        <translation>Das Element ist weg</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Nicht bereit</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>Anwendbar</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>Nicht anwendbar</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>Bereitschaft</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>Applicability</source>
        <translation>Anwendbarkeit</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Rejected by hand</source>
        <translation>Von Hand abgelehnt</translation>
    </message>
    <message>
        <source>The service does not live here.</source>
        <translation>Der Dienst läuft nicht hier.</translation>
    </message>
    <message>
        <source>The item cannot have this value.</source>
        <translation>Das Element kann diesen Wert nicht haben.</translation>
    </message>
    <message>
        <source>The item cannot have these limits.</source>
        <translation>Das Element kann diese Grenzen nicht haben.</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n Element</numerusform>
            <numerusform>%n Elemente</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n members</source>
        <translation>
            <numerusform>%n Feld</numerusform>
            <numerusform>%n Felder</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 changes in %3 s</source>
        <translation>%1: %2 Änderungen in %3&#xa0;s</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Inspector</source>
        <translation>Inspektor</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>Dienste</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
</context>
<context>
    <name>Instrument</name>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>InstrumentBar</name>
    <message>
        <source>Job</source>
        <translation>Auftrag</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Kein Auftrag</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>USB-Stick</translation>
    </message>
    <message>
        <source>No USB drive</source>
        <translation>Kein USB-Stick</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Getrennt</translation>
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
        <translation>Akku, wird geladen</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>ItemDetails</name>
    <message>
        <source>No item chosen</source>
        <translation>Kein Element gewählt</translation>
    </message>
    <message>
        <source>Choose one in the list.</source>
        <translation>Wählen Sie eines in der Liste.</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
</context>
<context>
    <name>ItemFace</name>
    <message>
        <source>The entry was rejected.</source>
        <translation>Die Eingabe wurde abgelehnt.</translation>
    </message>
</context>
<context>
    <name>ItemHands</name>
    <message>
        <source>By hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>What a service reports can be set by hand where the service lives in this process. This one lives in another.</source>
        <translation>Was ein Dienst meldet, kann von Hand gesetzt werden, wenn der Dienst in diesem Prozess läuft. Dieser läuft in einem anderen.</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>Qualität</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>Anwendbar</translation>
    </message>
    <message>
        <source>The service decides by an expression.</source>
        <translation>Der Dienst entscheidet durch einen Ausdruck.</translation>
    </message>
    <message>
        <source>Value that the service reports</source>
        <translation>Wert, den der Dienst meldet</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>Kürzester</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>Längster</translation>
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
        <translation>Noch keine Werte</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>Verlauf von %1</translation>
    </message>
</context>
<context>
    <name>ItemStepper</name>
    <message>
        <source>Less: %1</source>
        <translation>Weniger: %1</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>Mehr: %1</translation>
    </message>
</context>
<context>
    <name>ItemsPage</name>
    <message>
        <source>Search items</source>
        <translation>Elemente suchen</translation>
    </message>
    <message>
        <source>Favourites only</source>
        <translation>Nur Favoriten</translation>
    </message>
    <message>
        <source>%1 of %2 items</source>
        <translation>%1 von %2 Elementen</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Elemente</translation>
    </message>
    <message>
        <source>Remove %1 from the favourites</source>
        <translation>%1 aus den Favoriten entfernen</translation>
    </message>
    <message>
        <source>Add %1 to the favourites</source>
        <translation>%1 zu den Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>Keine Elemente</translation>
    </message>
    <message>
        <source>The items are shown when their services come.</source>
        <translation>Die Elemente werden gezeigt, sobald ihre Dienste da sind.</translation>
    </message>
    <message>
        <source>No item matches the search.</source>
        <translation>Kein Element passt zur Suche.</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Planned</source>
        <translation>Geplant</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>In Arbeit</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Apply or revert the set-up first: it would be applied with the job.</source>
        <translation>Übernehmen oder verwerfen Sie erst die Einstellungen: Sie würden mit dem Auftrag übernommen.</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Aufträge</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n Auftrag</numerusform>
            <numerusform>%n Aufträge</numerusform>
        </translation>
    </message>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Job, customer or circuit</source>
        <translation>Auftrag, Kunde oder Leitung</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offene</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
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
        <translation>Kein Auftrag gefunden</translation>
    </message>
    <message>
        <source>There are no jobs</source>
        <translation>Es gibt keine Aufträge</translation>
    </message>
    <message>
        <source>Other words, or all jobs, may find one.</source>
        <translation>Andere Wörter oder alle Aufträge führen vielleicht zu einem.</translation>
    </message>
    <message>
        <source>The services of jobs and of the unit are not published.</source>
        <translation>Die Dienste für Aufträge und Gerät sind nicht veröffentlicht.</translation>
    </message>
</context>
<context>
    <name>KitPage</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>KivAggregateData</name>
    <message>
        <source>%1 has no member %2.</source>
        <translation>%1 hat kein Element %2.</translation>
    </message>
</context>
<context>
    <name>KivData</name>
    <message>
        <source>%1 max chars</source>
        <translation>höchst. %1 Zeichen</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>%1 - %2 chars</source>
        <translation>%1–%2 Zeichen</translation>
    </message>
    <message>
        <source>%1 max digits</source>
        <translation>höchst. %1 Ziffern</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>%1 Ziffern</translation>
    </message>
    <message>
        <source>%1 - %2 digits</source>
        <translation>%1–%2 Ziffern</translation>
    </message>
    <message>
        <source>%1 only</source>
        <translation>nur %1</translation>
    </message>
    <message>
        <source>Please enter IP address</source>
        <translation>Bitte IP-Adresse eingeben</translation>
    </message>
    <message>
        <source>Please enter IPv6 address</source>
        <translation>Bitte IPv6-Adresse eingeben</translation>
    </message>
    <message>
        <source>Please enter URL</source>
        <translation>Bitte URL eingeben</translation>
    </message>
    <message>
        <source>Please enter DNS name</source>
        <translation>Bitte DNS-Namen eingeben</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>No native speaker has checked this translation.</source>
        <translation>Diese Übersetzung hat noch kein Muttersprachler geprüft.</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in that language.</extracomment>
        <translation>Deutsch</translation>
    </message>
</context>
<context>
    <name>ListEntry</name>
    <message>
        <source>New element of %1</source>
        <translation>Neuer Eintrag für %1</translation>
    </message>
    <message>
        <source>Element %1 of %2</source>
        <translation>Eintrag %1 von %2</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Nicht bereit</translation>
    </message>
    <message>
        <source>chars</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <source>Remove element %1 of %2</source>
        <translation>Eintrag %1 von %2 entfernen</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>Zu %1 hinzufügen</translation>
    </message>
</context>
<context>
    <name>LivePlot</name>
    <message>
        <source>%1: no data</source>
        <translation>%1: keine Daten</translation>
    </message>
    <message>
        <source>%1: %2 to %3, from %4 to %5</source>
        <translation>%1: %2 bis %3, von %4 bis %5</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Grenzwertig</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>At the cursor: %1.</source>
        <translation>Am Cursor: %1.</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Go on</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>No changes yet</source>
        <translation>Noch keine Änderungen</translation>
    </message>
    <message>
        <source>What services report is shown as it comes.</source>
        <translation>Was Dienste melden, wird sofort gezeigt.</translation>
    </message>
    <message>
        <source>Changes: %L1</source>
        <translation>Änderungen: %L1</translation>
    </message>
    <message>
        <source>fallen out: %L1</source>
        <translation>herausgefallen: %L1</translation>
    </message>
    <message>
        <source>missed while paused: %L1</source>
        <translation>in der Pause verpasst: %L1</translation>
    </message>
    <message>
        <source>Save as recording</source>
        <translation>Als Aufzeichnung speichern</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>TCP loopback test</source>
        <translation>TCP-Loopback-Prüfung</translation>
    </message>
    <message>
        <source>The file is damaged. What could be read of it is shown; something may be missing.</source>
        <translation>Die Datei ist beschädigt. Gezeigt wird, was lesbar war; etwas kann fehlen.</translation>
    </message>
    <message>
        <source>Opening the file …</source>
        <translation>Datei wird geöffnet …</translation>
    </message>
</context>
<context>
    <name>MomentEntry</name>
    <message>
        <source>Not before %1</source>
        <translation>Nicht vor %1</translation>
    </message>
    <message>
        <source>Not after %1</source>
        <translation>Nicht nach %1</translation>
    </message>
    <message>
        <source>This is not a date, such as %1</source>
        <translation>Das ist kein Datum wie %1</translation>
    </message>
    <message>
        <source>This is not a time, such as %1</source>
        <translation>Das ist keine Uhrzeit wie %1</translation>
    </message>
    <message>
        <source>This is not a date and time, such as %1</source>
        <translation>Das ist kein Datum mit Uhrzeit wie %1</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Wählen: %1</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>z. B. %1</translation>
    </message>
</context>
<context>
    <name>MomentPicker</name>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>Stunde</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>Minute</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>Wählen</translation>
    </message>
</context>
<context>
    <name>NotificationDialog</name>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
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
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>Frage</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>Hinweis</translation>
    </message>
</context>
<context>
    <name>NotificationTray</name>
    <message>
        <source>Notifications (%1)</source>
        <translation>Meldungen (%1)</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>Meldungen</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>Alle entfernen</translation>
    </message>
    <message>
        <source>Dismiss %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>Keine Meldungen</translation>
    </message>
</context>
<context>
    <name>NotificationsPage</name>
    <message>
        <source>Notifications</source>
        <translation>Meldungen</translation>
    </message>
</context>
<context>
    <name>NumberEntry</name>
    <message>
        <source>Use &quot;%1&quot; as the decimal separator</source>
        <translation>Das Dezimaltrennzeichen ist „%1“</translation>
    </message>
    <message>
        <source>This is not a number</source>
        <translation>Das ist keine Zahl</translation>
    </message>
    <message>
        <source>A whole number is required</source>
        <translation>Eine ganze Zahl ist nötig</translation>
    </message>
    <message>
        <source>Decimals: at most %1</source>
        <translation>Nachkommastellen: höchstens %1</translation>
    </message>
</context>
<context>
    <name>NumberPad</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>Vorzeichen wechseln</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>e, exponent of ten</source>
        <translation>e, Zehnerexponent</translation>
    </message>
</context>
<context>
    <name>Overlays</name>
    <message>
        <source>Desk</source>
        <translation>Werkbank</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>%1 is not installed</source>
        <translation>%1 ist nicht installiert</translation>
    </message>
</context>
<context>
    <name>PDFFile</name>
    <message>
        <source>Unknown error</source>
        <translation>Unbekannter Fehler</translation>
    </message>
    <message>
        <source>The path contains a NUL character</source>
        <translation>Der Pfad enthält ein NUL-Zeichen</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>Das ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>It has more than 64 MiB</source>
        <translation>Sie hat mehr als 64 MiB</translation>
    </message>
    <message>
        <source>Reading the file takes too long</source>
        <translation>Das Lesen der Datei dauert zu lange</translation>
    </message>
    <message>
        <source>The file cannot be tried first: %1</source>
        <translation>Die Datei kann nicht vorab geprüft werden: %1</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>Die Datei ist leer</translation>
    </message>
    <message>
        <source>The file is not safe to read</source>
        <translation>Die Datei kann nicht sicher gelesen werden</translation>
    </message>
    <message>
        <source>%1 gives no answer</source>
        <translation>%1 antwortet nicht</translation>
    </message>
    <message>
        <source>The file is encrypted, and writing it would damage it</source>
        <translation>Die Datei ist verschlüsselt, Schreiben würde sie beschädigen</translation>
    </message>
    <message>
        <source>The file does not begin like a PDF file</source>
        <translation>Die Datei beginnt nicht wie eine PDF-Datei</translation>
    </message>
    <message>
        <source>The PDF file has no end</source>
        <translation>Die PDF-Datei hat kein Ende</translation>
    </message>
    <message>
        <source>The PDF file has no table of its objects</source>
        <translation>Die PDF-Datei hat kein Verzeichnis ihrer Objekte</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>Paths</name>
    <message>
        <source>UIUTILS_ROOT names a folder that is not written in the encoding of file names (%1). None of the instrument&apos;s files are read or written. Name another folder.</source>
        <translation>UIUTILS_ROOT nennt einen Ordner, der nicht in der Kodierung der Dateinamen geschrieben ist (%1). Keine Datei des Geräts wird gelesen oder geschrieben. Geben Sie einen anderen Ordner an.</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>The screen could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>Die Oberfläche konnte aus dem oben genannten Grund nicht geladen werden. Prüfen Sie, ob die QML-Module QtQuick, QtQuick.Controls, QtQuick.Layouts und QtQuick.Window installiert sind.</translation>
    </message>
    <message>
        <source>There is no display to show %1 on. Set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM to what draws on this screen, such as eglfs or linuxfb.</source>
        <translation>Es gibt keine Anzeige für %1. Setzen Sie DISPLAY oder WAYLAND_DISPLAY, oder QT_QPA_PLATFORM auf das, was auf diesem Bildschirm zeichnet, wie eglfs oder linuxfb.</translation>
    </message>
    <message>
        <source>Shows a PDF file, also one that is compressed (.pdf.gz), on a touch screen or in a window.

Exit status: 0 done, 1 the file could not be shown, 2 wrong command line.</source>
        <translation>Zeigt eine PDF-Datei, auch eine komprimierte (.pdf.gz), auf einem Touchscreen oder in einem Fenster.

Exit-Status: 0 fertig, 1 die Datei konnte nicht gezeigt werden, 2 falsche Befehlszeile.</translation>
    </message>
    <message>
        <source>The PDF file to show.</source>
        <translation>Die PDF-Datei, die gezeigt wird.</translation>
    </message>
    <message>
        <source>The screen has &lt;number&gt; dots per inch, 1 to %1 (default: %2). At 100 % a page has its natural size there.</source>
        <translation>Der Bildschirm hat &lt;number&gt; Punkte je Zoll, 1 bis %1 (Vorgabe: %2). Bei 100 % hat eine Seite dort ihre natürliche Größe.</translation>
    </message>
    <message>
        <source>number</source>
        <translation>Zahl</translation>
    </message>
    <message>
        <source>Fill the screen, without a frame. Under a window system that arranges windows itself, the window is one among others.</source>
        <translation>Den Bildschirm füllen, ohne Rahmen. Unter einem Fenstersystem, das Fenster selbst anordnet, ist es ein Fenster unter anderen.</translation>
    </message>
    <message>
        <source>Call the window &lt;title&gt; (default: the file&apos;s name).</source>
        <translation>Das Fenster &lt;title&gt; nennen (Vorgabe: der Name der Datei).</translation>
    </message>
    <message>
        <source>title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Use the input plug-in &lt;name:device&gt;; may be given more than once. Has no effect if a window system provides the input or the device does not exist.</source>
        <translation>Das Eingabe-Plug-in &lt;name:device&gt; verwenden; darf mehrmals angegeben werden. Ohne Wirkung, wenn ein Fenstersystem die Eingabe liefert oder das Gerät nicht existiert.</translation>
    </message>
    <message>
        <source>name:device</source>
        <translation>name:device</translation>
    </message>
    <message>
        <source>Name one PDF file to show.</source>
        <translation>Geben Sie eine PDF-Datei an.</translation>
    </message>
    <message>
        <source>--dpy needs a number from 1 to %1.</source>
        <translation>--dpy braucht eine Zahl von 1 bis %1.</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>Diese Datei gibt es nicht.</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>Das ist keine Datei.</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>Die Datei kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The file holds more than %1 MiB, which is more than this unit can show.</source>
        <translation>Die Datei hat mehr als %1&#xa0;MiB. So viel kann dieses Gerät nicht zeigen.</translation>
    </message>
    <message>
        <source>This is not a PDF file.</source>
        <translation>Das ist keine PDF-Datei.</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>Die Datei ist beschädigt oder unvollständig.</translation>
    </message>
    <message>
        <source>The file is encrypted and can only be opened with a password.</source>
        <translation>Die Datei ist verschlüsselt und nur mit einem Passwort zu öffnen.</translation>
    </message>
    <message>
        <source>The file has no pages.</source>
        <translation>Die Datei hat keine Seiten.</translation>
    </message>
    <message>
        <source>The file has more than %1 pages, which is more than this unit can show.</source>
        <translation>Die Datei hat mehr als %1 Seiten. So viele kann dieses Gerät nicht zeigen.</translation>
    </message>
    <message>
        <source>It may have been deleted or moved, or be on a USB drive that was removed. Choose another file, or save the report again.</source>
        <translation>Vielleicht wurde sie gelöscht oder verschoben, oder der USB-Stick wurde entfernt. Wählen Sie eine andere Datei, oder speichern Sie den Bericht erneut.</translation>
    </message>
    <message>
        <source>Check that the drive is in place and that you may read the file.</source>
        <translation>Prüfen Sie, ob das Laufwerk da ist und Sie die Datei lesen dürfen.</translation>
    </message>
    <message>
        <source>Copy it to a computer and open it there.</source>
        <translation>Kopieren Sie sie auf einen Computer und öffnen Sie sie dort.</translation>
    </message>
    <message>
        <source>Choose a file that was saved as PDF.</source>
        <translation>Wählen Sie eine Datei, die als PDF gespeichert wurde.</translation>
    </message>
    <message>
        <source>Save the report again, or copy the file again from where it came.</source>
        <translation>Speichern Sie den Bericht erneut, oder kopieren Sie die Datei erneut von ihrer Quelle.</translation>
    </message>
    <message>
        <source>Open it on a computer, or ask whoever made it for a file without a password.</source>
        <translation>Öffnen Sie sie auf einem Computer, oder bitten Sie um eine Datei ohne Passwort.</translation>
    </message>
    <message>
        <source>There is no language &quot;%1&quot;.</source>
        <translation>Es gibt keine Sprache „%1“.</translation>
    </message>
    <message>
        <source>Speak the language of that code, such as &quot;de&quot; (default: that of the environment).</source>
        <translation>Die Sprache mit diesem Code sprechen, etwa „de“ (Standard: die der Umgebung).</translation>
    </message>
    <message>
        <source>code</source>
        <translation>Code</translation>
    </message>
</context>
<context>
    <name>PendingChangeRow</name>
    <message>
        <source>Changed meanwhile</source>
        <translation>Inzwischen geändert</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Jetzt: %1</translation>
    </message>
    <message>
        <source>You have set: %1</source>
        <translation>Sie haben eingestellt: %1</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>Set again</source>
        <translation>Erneut setzen</translation>
    </message>
</context>
<context>
    <name>PendingChangesView</name>
    <message>
        <source>Nothing waits</source>
        <translation>Nichts steht aus</translation>
    </message>
    <message>
        <source>Settings that you change are listed here until they are applied.</source>
        <translation>Einstellungen, die Sie ändern, stehen hier, bis sie angewendet sind.</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>Ausstehende Änderungen</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>People</source>
        <translation>Personen</translation>
    </message>
    <message>
        <source>Technician</source>
        <translation>Techniker</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>Kunde</translation>
    </message>
    <message>
        <source>Known customers</source>
        <translation>Bekannte Kunden</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <source>Name, address or circuit</source>
        <translation>Name, Adresse oder Leitung</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n Auftrag</numerusform>
            <numerusform>%n Aufträge</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>PlotImage</name>
    <message>
        <source>at least %1 %2</source>
        <translation>mindestens %1 %2</translation>
    </message>
    <message>
        <source>at most %1 %2</source>
        <translation>höchstens %1 %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>Keine Daten</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1&#xa0;d</translation>
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
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>beyond a limit</source>
        <translation>jenseits eines Grenzwerts</translation>
    </message>
    <message>
        <source>beyond a warning level</source>
        <translation>jenseits einer Warnschwelle</translation>
    </message>
</context>
<context>
    <name>PlovJsonDocument</name>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1: keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>%1: larger than the %2 MiB that a document may have</source>
        <translation>%1: größer als die %2&#xa0;MiB, die ein Dokument haben darf</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>%1: kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1: holds more than the %2 objects and lists that a document may have</source>
        <translation>%1: enthält mehr als die %2 Objekte und Listen, die ein Dokument haben darf</translation>
    </message>
    <message>
        <source>%1:1:1: the root of the document is not an object</source>
        <translation>%1:1:1: Die Wurzel des Dokuments ist kein Objekt</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <source>The pages are being made</source>
        <translation>Die Seiten werden erstellt</translation>
    </message>
    <message>
        <source>There are no pages</source>
        <translation>Es gibt keine Seiten</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>PreviewPages</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
</context>
<context>
    <name>QuantityCard</name>
    <message>
        <source>%1, median: %2</source>
        <translation>%1, Median: %2</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Messwert</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>Noch keine Messwerte</translation>
    </message>
    <message>
        <source>%1 to %2, jitter %3</source>
        <translation>%1 bis %2, Jitter %3</translation>
    </message>
</context>
<context>
    <name>RadixEntry</name>
    <message>
        <source>Only the digits %1 can be used here</source>
        <translation>Nur die Ziffern %1 sind hier möglich</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>%1 ist keine Datei.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>%1 kann nicht gelesen werden: %2.</translation>
    </message>
    <message>
        <source>%1 has no service that can be replayed.</source>
        <translation>%1 enthält keinen Dienst, der wiedergegeben werden kann.</translation>
    </message>
    <message>
        <source>broken lines: %1</source>
        <translation>fehlerhafte Zeilen: %1</translation>
    </message>
    <message>
        <source>lines whose time goes backwards: %1</source>
        <translation>Zeilen, deren Zeit rückwärts läuft: %1</translation>
    </message>
    <message>
        <source>lines about items or services that are not there: %1</source>
        <translation>Zeilen über Werte oder Dienste, die es nicht gibt: %1</translation>
    </message>
    <message>
        <source>lines that do not fit their item: %1</source>
        <translation>Zeilen, die nicht zu ihrem Wert passen: %1</translation>
    </message>
    <message>
        <source>lines beyond the limits: %1</source>
        <translation>Zeilen jenseits der Grenzen: %1</translation>
    </message>
    <message>
        <source>it ends in the middle</source>
        <translation>sie endet mittendrin</translation>
    </message>
    <message>
        <source>The recording is not sound and was played as far as it can be: %1.</source>
        <translation>Die Aufzeichnung ist nicht einwandfrei und wurde so weit wie möglich wiedergegeben: %1.</translation>
    </message>
    <message>
        <source>%1 exists. Name another file, or remove that one.</source>
        <translation>%1 gibt es schon. Nennen Sie eine andere Datei, oder entfernen Sie diese.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>%1 kann nicht geschrieben werden: %2.</translation>
    </message>
    <message>
        <source>%1 is written too slowly. The recording ends here.</source>
        <translation>%1 wird zu langsam geschrieben. Die Aufzeichnung endet hier.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The recording ends here.</source>
        <translation>%1 kann nicht geschrieben werden: %2. Die Aufzeichnung endet hier.</translation>
    </message>
    <message>
        <source>%1 is not a recording of services.</source>
        <translation>%1 ist keine Aufzeichnung von Diensten.</translation>
    </message>
    <message>
        <source>%1 was recorded by a newer program, which writes another form. Use that one.</source>
        <translation>%1 wurde von einem neueren Programm aufgezeichnet, das eine andere Form schreibt. Verwenden Sie jenes.</translation>
    </message>
    <message>
        <source>This is a recording: nothing can be started or stopped in it.</source>
        <translation>Dies ist eine Aufzeichnung: In ihr kann nichts gestartet oder angehalten werden.</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>ID: </source>
        <translation>ID: </translation>
    </message>
    <message>
        <source>Tech: </source>
        <translation>Techn.: </translation>
    </message>
    <message>
        <source>BAN: </source>
        <translation>BAN: </translation>
    </message>
    <message>
        <source>The schema %1 cannot be used: %2</source>
        <translation>Das Schema %1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>The report does not match the job schema: %1</source>
        <translation>Der Bericht entspricht nicht dem Auftragsschema: %1</translation>
    </message>
    <message>
        <source>There is no active job</source>
        <translation>Kein Auftrag ist aktiv</translation>
    </message>
    <message>
        <source>The job has rejected the report: %1</source>
        <translation>Der Auftrag hat den Bericht abgelehnt: %1</translation>
    </message>
    <message>
        <source>The list of reports that are not synced was not changed.</source>
        <translation>Die Liste der nicht zu synchronisierenden Berichte wurde nicht geändert.</translation>
    </message>
    <message>
        <source>The data of the job is not complete: it has no ID</source>
        <translation>Die Daten des Auftrags sind unvollständig: Er hat keine ID</translation>
    </message>
    <message>
        <source>Job Manager</source>
        <translation>Auftragsverwaltung</translation>
    </message>
    <message>
        <source>View Report</source>
        <translation>Bericht ansehen</translation>
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
        <translation>TEXT</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>ALLE</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Sync with Meridex</source>
        <translation>Mit Meridex synchronisieren</translation>
    </message>
    <message>
        <source>Report Copied</source>
        <translation>Bericht kopiert</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>the USB drive is not there</source>
        <translation>der USB-Stick ist nicht da</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>%1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it has more than 1 MiB</source>
        <translation>sie hat mehr als 1 MiB</translation>
    </message>
    <message>
        <source>it would have more than 1 MiB</source>
        <translation>sie hätte mehr als 1 MiB</translation>
    </message>
    <message>
        <source>Cannot lock %1: %2</source>
        <translation>%1 kann nicht gesperrt werden: %2</translation>
    </message>
    <message>
        <source>%1 contains a line feed</source>
        <translation>%1 enthält einen Zeilenvorschub</translation>
    </message>
    <message>
        <source>Cannot compress %1: %2</source>
        <translation>%1 kann nicht komprimiert werden: %2</translation>
    </message>
    <message>
        <source>gzip is missing or has failed</source>
        <translation>gzip fehlt oder ist gescheitert</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>Synchronisierung</translation>
    </message>
    <message>
        <source>%1 is still on the list of reports that are not synced.</source>
        <translation>%1 steht weiter auf der Liste der nicht zu synchronisierenden Berichte.</translation>
    </message>
    <message>
        <source>The cloud may take %1, although it is not to be synced.</source>
        <translation>Die Cloud übernimmt %1 möglicherweise, obwohl es nicht synchronisiert werden soll.</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>Bericht gespeichert</translation>
    </message>
    <message>
        <source>Report %1 saved
Folder: %2</source>
        <translation>Bericht %1 gespeichert
Ordner: %2</translation>
    </message>
    <message>
        <source>No format is chosen to save the report in.</source>
        <translation>Für den Bericht ist kein Format gewählt.</translation>
    </message>
    <message>
        <source>There is no format &quot;%1&quot; to save the report in.</source>
        <translation>Es gibt kein Format „%1“ für den Bericht.</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>Schreibfehler</translation>
    </message>
    <message>
        <source>There is not enough space to save the report.</source>
        <translation>Für den Bericht ist nicht genug Speicherplatz frei.</translation>
    </message>
    <message>
        <source>The results are too large to be kept before they are saved</source>
        <translation>Die Ergebnisse sind zu groß, um sie vor dem Speichern aufzubewahren</translation>
    </message>
    <message>
        <source>There is not enough space to keep the results until they are saved</source>
        <translation>Es ist nicht genug Speicherplatz frei, um die Ergebnisse bis zum Speichern aufzubewahren</translation>
    </message>
    <message>
        <source>The results cannot be kept until they are saved: the disk does not take them</source>
        <translation>Die Ergebnisse können bis zum Speichern nicht aufbewahrt werden: Der Datenträger nimmt sie nicht an</translation>
    </message>
    <message>
        <source>%1 files would be overwritten:</source>
        <translation>%1 Dateien würden überschrieben:</translation>
    </message>
    <message>
        <source>The name does not have the required form</source>
        <translation>Der Name hat nicht die erwartete Form</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>NUL-Zeichen</translation>
    </message>
</context>
<context>
    <name>ReportBuilder</name>
    <message>
        <source>Loopback TCP</source>
        <translation>Loopback TCP</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Begonnen</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>%1, median</source>
        <translation>%1, Median</translation>
    </message>
    <message>
        <source>%1, minimum</source>
        <translation>%1, Minimum</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>%1, Maximum</translation>
    </message>
    <message>
        <source>%1, jitter</source>
        <translation>%1, Jitter</translation>
    </message>
    <message>
        <source>%1, limit</source>
        <translation>%1, Grenzwert</translation>
    </message>
    <message>
        <source>%1 of each sample</source>
        <translation>%1 je Messwert</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>Messwerte</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>Messwert %1</translation>
    </message>
</context>
<context>
    <name>ReportPDF</name>
    <message>
        <source>there is not enough memory for its pages</source>
        <translation>für seine Seiten reicht der Speicher nicht</translation>
    </message>
    <message>
        <source>Unit ID: %1</source>
        <translation>Geräte-ID: %1</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>Zeichnung</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Cannot print %1: %2</source>
        <translation>%1 kann nicht gedruckt werden: %2</translation>
    </message>
    <message>
        <source>another file is being printed</source>
        <translation>eine andere Datei wird gerade gedruckt</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>das Programm hat keine Schriftarten, weil es keine QGuiApplication ist</translation>
    </message>
    <message>
        <source>Solvant Report</source>
        <translation>Solvant-Bericht</translation>
    </message>
    <message>
        <source>%1 - Continued</source>
        <translation>%1 – Fortsetzung</translation>
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
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>Gespeichert in %1</translation>
    </message>
    <message>
        <source>Will be saved in %1</source>
        <translation>Wird gespeichert in %1</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>There is no USB drive: files stay on the unit.</source>
        <translation>Kein USB-Stick: Dateien bleiben auf dem Gerät.</translation>
    </message>
    <message>
        <source>On the report</source>
        <translation>Im Bericht</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>Kein Auftrag</translation>
    </message>
</context>
<context>
    <name>ReportTemplate</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>Median %1, limit %2</source>
        <translation>Median %1, %2</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>Nur Fehler</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>Messwert %1</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>Noch keine Messwerte</translation>
    </message>
    <message>
        <source>Nothing failed</source>
        <translation>Nichts durchgefallen</translation>
    </message>
    <message>
        <source>All samples meet the limit.</source>
        <translation>Alle Messwerte halten den Grenzwert ein.</translation>
    </message>
    <message>
        <source>Go to Run</source>
        <translation>Zur Messung</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>Gemessen</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>Kleinste</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>Größte</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>All of it is applied together, or nothing.</source>
        <translation>Alles wird zusammen übernommen, oder nichts.</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>Alles verwerfen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>Run</source>
        <translation>Messung</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>%1, server at %2</source>
        <translation>%1, Server: %2</translation>
    </message>
</context>
<context>
    <name>SaveProgress</name>
    <message>
        <source>Cancelling the save</source>
        <translation>Das Speichern wird abgebrochen</translation>
    </message>
    <message>
        <source>Saving the report</source>
        <translation>Der Bericht wird gespeichert</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>SchemaValidator</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>%1 is not a file in the folder of the schema</source>
        <translation>%1 ist keine Datei im Ordner des Schemas</translation>
    </message>
    <message>
        <source>document type declarations are not accepted</source>
        <translation>Dokumenttyp-Deklarationen sind nicht zulässig</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>%1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>%1 is not an XML schema</source>
        <translation>%1 ist kein XML-Schema</translation>
    </message>
    <message>
        <source>there is no schema to check against</source>
        <translation>es gibt kein Schema zum Prüfen</translation>
    </message>
    <message>
        <source>the text cannot be read as XML</source>
        <translation>der Text kann nicht als XML gelesen werden</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>Suche leeren</translation>
    </message>
</context>
<context>
    <name>Section</name>
    <message>
        <source>Expanded</source>
        <translation>Aufgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zugeklappt</translation>
    </message>
</context>
<context>
    <name>ServiceBanner</name>
    <message>
        <source>&quot;%1&quot; does not answer. What is shown may be old; the page goes on by itself when the service is back.</source>
        <translation>„%1“ antwortet nicht. Das Gezeigte kann veraltet sein; die Seite macht von selbst weiter, sobald der Dienst wieder da ist.</translation>
    </message>
</context>
<context>
    <name>ServiceBus</name>
    <message>
        <source>The service %1 is run by another user and is not used.</source>
        <translation>Der Dienst %1 gehört einem anderen Benutzer und wird nicht verwendet.</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>Der Dienst %1 ist nicht erreichbar. Versuchen Sie es erneut, wenn er läuft.</translation>
    </message>
    <message>
        <source>There is no object %1.</source>
        <translation>Es gibt kein Objekt %1.</translation>
    </message>
    <message>
        <source>The name of the service %1 is too long for a bus.</source>
        <translation>Der Name des Dienstes %1 ist zu lang für einen Bus.</translation>
    </message>
    <message>
        <source>A service %1 is published already.</source>
        <translation>Ein Dienst %1 ist schon veröffentlicht.</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>die Verbindung wurde geschlossen</translation>
    </message>
    <message>
        <source>it does not take the connection</source>
        <translation>er nimmt die Verbindung nicht an</translation>
    </message>
    <message>
        <source>The system bus cannot be reached: %1.</source>
        <translation>Der Systembus ist nicht erreichbar: %1.</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1.</source>
        <translation>Der Sitzungsbus ist nicht erreichbar: %1.</translation>
    </message>
    <message>
        <source>The service %1 does not say which version of the interface it has: %2</source>
        <translation>Der Dienst %1 gibt nicht an, welche Version der Schnittstelle er hat: %2</translation>
    </message>
    <message>
        <source>The service %1 has version %2 of the interface, and this program knows version %3. Use programs of one release.</source>
        <translation>Der Dienst %1 hat Version %2 der Schnittstelle, dieses Programm kennt Version %3. Verwenden Sie Programme derselben Ausgabe.</translation>
    </message>
    <message>
        <source>The service %1 takes no more clients: %2</source>
        <translation>Der Dienst %1 nimmt keine weiteren Clients an: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: %2</source>
        <translation>Die Elemente des Dienstes %1 können nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: they are not what the interface says.</source>
        <translation>Die Elemente des Dienstes %1 können nicht gelesen werden: Sie entsprechen nicht der Schnittstelle.</translation>
    </message>
    <message>
        <source>%1 cannot be set: the value is too large, or a text of it holds a NUL.</source>
        <translation>%1 kann nicht gesetzt werden: Der Wert ist zu groß, oder ein Text darin enthält NUL.</translation>
    </message>
    <message>
        <source>%1 was not sent: its argument is too large, or holds a NUL.</source>
        <translation>%1 wurde nicht gesendet: Das Argument ist zu groß oder enthält NUL.</translation>
    </message>
    <message>
        <source>The service %1 has not answered an earlier request yet. Try again when it does.</source>
        <translation>Der Dienst %1 hat eine frühere Anfrage noch nicht beantwortet. Versuchen Sie es danach erneut.</translation>
    </message>
    <message>
        <source>The service %1 ended before it answered. Try again when it runs.</source>
        <translation>Der Dienst %1 endete vor der Antwort. Versuchen Sie es erneut, wenn er läuft.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>Der Dienst %1 hat in %2&#xa0;ms nicht geantwortet. Die Anfrage wird vielleicht noch ausgeführt.</translation>
    </message>
    <message>
        <source>There are no properties of %1.</source>
        <translation>%1 hat keine Eigenschaften.</translation>
    </message>
    <message>
        <source>There is no property %1.</source>
        <translation>Es gibt keine Eigenschaft %1.</translation>
    </message>
    <message>
        <source>The properties of a service are read-only.</source>
        <translation>Die Eigenschaften eines Dienstes sind schreibgeschützt.</translation>
    </message>
    <message>
        <source>There is no method %1.%2.</source>
        <translation>Es gibt keine Methode %1.%2.</translation>
    </message>
    <message>
        <source>%1 takes arguments of the signature &quot;%2&quot;, not &quot;%3&quot;.</source>
        <translation>%1 nimmt Argumente der Signatur „%2“, nicht „%3“.</translation>
    </message>
    <message>
        <source>The items of the service are too large for a message.</source>
        <translation>Die Elemente des Dienstes sind zu groß für eine Nachricht.</translation>
    </message>
    <message>
        <source>The service has as many clients as it can serve.</source>
        <translation>Der Dienst hat so viele Clients, wie er bedienen kann.</translation>
    </message>
    <message>
        <source>The value cannot be read.</source>
        <translation>Der Wert kann nicht gelesen werden.</translation>
    </message>
    <message>
        <source>The service has too much to do. Try again later.</source>
        <translation>Der Dienst ist ausgelastet. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>The service %1 was withdrawn before it could answer.</source>
        <translation>Der Dienst %1 wurde zurückgezogen, bevor er antworten konnte.</translation>
    </message>
    <message>
        <source>The service %1 answered something that the interface does not know.</source>
        <translation>Der Dienst %1 hat etwas geantwortet, das die Schnittstelle nicht kennt.</translation>
    </message>
</context>
<context>
    <name>ServiceCard</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n Element</numerusform>
            <numerusform>%n Elemente</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>Nicht erreichbar</translation>
    </message>
    <message>
        <source>answers slowly</source>
        <translation>antwortet langsam</translation>
    </message>
    <message>
        <source>rejects every change</source>
        <translation>lehnt jede Änderung ab</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>Schnell</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>Langsam</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>Annehmen</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>Ablehnen</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Zurückkehren</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>Verschwinden</translation>
    </message>
    <message>
        <source>The service lives in another process. It can be watched and edited, not disturbed.</source>
        <translation>Der Dienst läuft in einem anderen Prozess. Er kann beobachtet und bearbeitet, aber nicht gestört werden.</translation>
    </message>
    <message>
        <source>A transaction runs</source>
        <translation>Eine Transaktion läuft</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>Nicht gesendet</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>Jetzt: %1</translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation>Noch ist nichts geändert.</translation>
    </message>
    <message>
        <source>Pending changes</source>
        <translation>Ausstehende Änderungen</translation>
    </message>
</context>
<context>
    <name>ServiceFile</name>
    <message>
        <source>the id %1 stands twice</source>
        <translation>die ID %1 steht zweimal da</translation>
    </message>
    <message>
        <source>the id %1 lacks its category or the colon at its end, or has more than %2 characters</source>
        <translation>der ID %1 fehlt die Kategorie oder der Doppelpunkt am Ende, oder sie hat mehr als %2 Zeichen</translation>
    </message>
    <message>
        <source>the type %1 of %2 is unknown</source>
        <translation>der Typ %1 von %2 ist unbekannt</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an array</source>
        <translation>Typ %1 und ID %2 sind sich nicht einig, ob es ein Feld von Werten ist</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an action</source>
        <translation>Typ %1 und ID %2 sind sich nicht einig, ob es eine Aktion ist</translation>
    </message>
    <message>
        <source>an aggregate or table without members</source>
        <translation>ein Aggregat oder eine Tabelle ohne Elemente</translation>
    </message>
    <message>
        <source>the type %1 has no members</source>
        <translation>der Typ %1 hat keine Elemente</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; is empty or appears twice</source>
        <translation>der Name „%1“ ist leer oder kommt zweimal vor</translation>
    </message>
    <message>
        <source>a member cannot have the type %1</source>
        <translation>ein Element kann nicht den Typ %1 haben</translation>
    </message>
    <message>
        <source>the type %1 has no choices</source>
        <translation>der Typ %1 hat keine Auswahl</translation>
    </message>
    <message>
        <source>only an action can have &quot;does&quot;, not the type %1</source>
        <translation>nur eine Aktion kann „does“ haben, nicht der Typ %1</translation>
    </message>
    <message>
        <source>a negative delay</source>
        <translation>eine negative Verzögerung</translation>
    </message>
    <message>
        <source>only a text that is a result can be clearable</source>
        <translation>nur ein Text, der ein Ergebnis ist, kann leerbar sein</translation>
    </message>
    <message>
        <source>a precision outside 0 to %1</source>
        <translation>eine Genauigkeit außerhalb von 0 bis %1</translation>
    </message>
    <message>
        <source>/does/set: there is no item %1</source>
        <translation>/does/set: es gibt kein Element %1</translation>
    </message>
    <message>
        <source>/does/set: the value of %1: %2</source>
        <translation>/does/set: der Wert von %1: %2</translation>
    </message>
    <message>
        <source>a mount point begins with a slash</source>
        <translation>ein Einhängepunkt beginnt mit einem Schrägstrich</translation>
    </message>
    <message>
        <source>/service: a name has 1 to %1 characters</source>
        <translation>/service: ein Name hat 1 bis %1 Zeichen</translation>
    </message>
    <message>
        <source>the id %1 appears twice</source>
        <translation>die ID %1 kommt zweimal vor</translation>
    </message>
    <message>
        <source>the value %1 appears twice or is negative</source>
        <translation>der Wert %1 kommt zweimal vor oder ist negativ</translation>
    </message>
    <message>
        <source>a value of this type has no limits</source>
        <translation>ein Wert dieses Typs hat keine Grenzen</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>the minimum is above the maximum</source>
        <translation>das Minimum liegt über dem Maximum</translation>
    </message>
    <message>
        <source>%1: not a folder of service files, or not readable</source>
        <translation>%1: kein Ordner mit Dienstdateien, oder nicht lesbar</translation>
    </message>
    <message>
        <source>the program</source>
        <translation>das Programm</translation>
    </message>
    <message>
        <source>/service: &quot;%1&quot; is published already by %2</source>
        <translation>/service: „%1“ ist schon von %2 veröffentlicht</translation>
    </message>
    <message>
        <source>the service %1 has an item %2 already</source>
        <translation>der Dienst %1 hat schon ein Element %2</translation>
    </message>
    <message>
        <source>not of the type %1</source>
        <translation>nicht vom Typ %1</translation>
    </message>
    <message>
        <source>a service file may not say this here; uiutils-check tells what it may</source>
        <translation>das darf eine Dienstdatei hier nicht sagen; uiutils-check sagt, was sie darf</translation>
    </message>
</context>
<context>
    <name>ServiceItem</name>
    <message>
        <source>Account ID</source>
        <translation>Konto-ID</translation>
    </message>
    <message>
        <source>Active Work Order</source>
        <translation>Aktiver Arbeitsauftrag</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Attach Report</source>
        <translation>Bericht anhängen</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Backscatter</source>
        <translation>Rückstreuung</translation>
    </message>
    <message>
        <source>Base Unit</source>
        <translation>Grundgerät</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>Akku</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>Kabel</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>Kalibrieren</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>Kalibrierung</translation>
    </message>
    <message>
        <source>Circuit ID</source>
        <translation>Leitungs-ID</translation>
    </message>
    <message>
        <source>Collector</source>
        <translation>Sammelserver</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Komponenten</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Ansprechpartner</translation>
    </message>
    <message>
        <source>Customer Fields in Reports</source>
        <translation>Kundenfelder in Berichten</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>Kundenname</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Ethernet Module</source>
        <translation>Ethernet-Modul</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>Intern</translation>
    </message>
    <message>
        <source>Internal and USB</source>
        <translation>Intern und USB</translation>
    </message>
    <message>
        <source>Job Active</source>
        <translation>Auftrag aktiv</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>Auftrags-BAN</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Auftrags-ID</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>Techniker des Auftrags</translation>
    </message>
    <message>
        <source>Keep Report Name</source>
        <translation>Berichtsname behalten</translation>
    </message>
    <message>
        <source>Laser Power</source>
        <translation>Laserleistung</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzwerte</translation>
    </message>
    <message>
        <source>Link Loss</source>
        <translation>Streckendämpfung</translation>
    </message>
    <message>
        <source>Manifest</source>
        <translation>Manifest</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Maximum Round-Trip Time</source>
        <translation>Maximale Umlaufzeit</translation>
    </message>
    <message>
        <source>Message Size</source>
        <translation>Nachrichtengröße</translation>
    </message>
    <message>
        <source>Minimum Throughput</source>
        <translation>Minimaler Durchsatz</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>Modus</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>Versatz</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Proposed Report Name</source>
        <translation>Vorgeschlagener Berichtsname</translation>
    </message>
    <message>
        <source>Pulse Width</source>
        <translation>Pulsbreite</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Bereich</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>Echtzeit</translation>
    </message>
    <message>
        <source>Reports Not Synced</source>
        <translation>Nicht synchronisierte Berichte</translation>
    </message>
    <message>
        <source>Return Loss</source>
        <translation>Rückflussdämpfung</translation>
    </message>
    <message>
        <source>Round-Trip Samples</source>
        <translation>Messwerte Umlaufzeit</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Umlaufzeit</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>Messwert</translation>
    </message>
    <message>
        <source>Save Location</source>
        <translation>Speicherort</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>Sitzung</translation>
    </message>
    <message>
        <source>Splitter Stages</source>
        <translation>Splitterstufen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message>
        <source>Store Traces</source>
        <translation>Kurven speichern</translation>
    </message>
    <message>
        <source>Tech ID</source>
        <translation>Techniker-ID</translation>
    </message>
    <message>
        <source>Technician Fields in Reports</source>
        <translation>Technikerfelder in Berichten</translation>
    </message>
    <message>
        <source>Test Label</source>
        <translation>Prüfbezeichnung</translation>
    </message>
    <message>
        <source>Test Type</source>
        <translation>Prüfungsart</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Durchsatz</translation>
    </message>
    <message>
        <source>Throughput Samples</source>
        <translation>Messwerte Durchsatz</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>USB</translation>
    </message>
    <message>
        <source>USB Attached</source>
        <translation>USB angeschlossen</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>Versionen</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>Wellenlänge</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>Arbeitsablauf</translation>
    </message>
    <message>
        <source>Worst Event</source>
        <translation>Schlechtestes Ereignis</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>Lädt</translation>
    </message>
    <message>
        <source>Close Job</source>
        <translation>Auftrag schließen</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>Kunden</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>Aufträge</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>Verbindung</translation>
    </message>
    <message>
        <source>Link Speed</source>
        <translation>Verbindungsgeschwindigkeit</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>Auftrag öffnen</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>Ton</translation>
    </message>
    <message>
        <source>Sunlight</source>
        <translation>Sonne</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>Received Power</source>
        <translation>Empfangsleistung</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Mbit/s</source>
        <translation>Mbit/s</translation>
    </message>
    <message>
        <source>The calibration can only be set at the factory.</source>
        <translation>Die Kalibrierung kann nur im Werk eingestellt werden.</translation>
    </message>
    <message>
        <source>The calibration needs a reference fiber. Connect one and try again.</source>
        <translation>Die Kalibrierung braucht eine Referenzfaser. Schließen Sie eine an und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is no light on the fiber. Check the connector, and start again.</source>
        <translation>Auf der Faser ist kein Licht. Prüfen Sie den Stecker und starten Sie erneut.</translation>
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
        <translation>Nichts wurde gesetzt. %1</translation>
    </message>
    <message>
        <source>not an object</source>
        <translation>kein Objekt</translation>
    </message>
    <message>
        <source>The settings for the service %1 are not a JSON object of values by name: %2.</source>
        <translation>Die Einstellungen für den Dienst %1 sind kein JSON-Objekt mit Werten nach Namen: %2.</translation>
    </message>
    <message>
        <source>There is no setting &quot;%1&quot;.</source>
        <translation>Es gibt keine Einstellung „%1“.</translation>
    </message>
    <message>
        <source>%1 is named twice.</source>
        <translation>%1 ist zweimal genannt.</translation>
    </message>
    <message>
        <source>Settings applied: %1.</source>
        <translation>Übernommene Einstellungen: %1.</translation>
    </message>
    <message>
        <source>The configuration of %1 was not saved: it needs a name, as in &quot;My settings,1&quot;.</source>
        <translation>Die Konfiguration von %1 wurde nicht gespeichert: Sie braucht einen Namen, wie in „My settings,1“.</translation>
    </message>
    <message>
        <source>The configuration &quot;%1&quot; was not saved: there is no folder to store it in.</source>
        <translation>Die Konfiguration „%1“ wurde nicht gespeichert: Es gibt keinen Ordner dafür.</translation>
    </message>
    <message>
        <source>The configuration was saved as &quot;%1&quot;.</source>
        <translation>Die Konfiguration wurde als „%1“ gespeichert.</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>Der Dienst %1 ist nicht erreichbar. Versuchen Sie es erneut, wenn er läuft.</translation>
    </message>
    <message>
        <source>%1 cannot be set to %2: %3. Allowed: %4.</source>
        <translation>%1 kann nicht auf %2 gesetzt werden: %3. Erlaubt: %4.</translation>
    </message>
    <message>
        <source>%1 cannot be set now: it is not ready. Try again later.</source>
        <translation>%1 kann jetzt nicht gesetzt werden: nicht bereit. Versuchen Sie es später erneut.</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>jetzt nicht verfügbar</translation>
    </message>
    <message>
        <source>The service %1 has no item %2 any more.</source>
        <translation>Der Dienst %1 hat kein Element %2 mehr.</translation>
    </message>
    <message>
        <source>The action failed.</source>
        <translation>Die Aktion ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it is not a setting.</source>
        <translation>%1 kann nicht gesetzt werden: Das ist keine Einstellung.</translation>
    </message>
    <message>
        <source>%1 cannot be set: it can only be emptied.</source>
        <translation>%1 kann nicht gesetzt werden: Es kann nur geleert werden.</translation>
    </message>
    <message>
        <source>The service %1 has no item %2.</source>
        <translation>Der Dienst %1 hat kein Element %2.</translation>
    </message>
    <message>
        <source>%1 cannot be carried out: the service %2 has no handler for it.</source>
        <translation>%1 kann nicht ausgeführt werden: Der Dienst %2 hat dafür keine Funktion.</translation>
    </message>
    <message>
        <source>The service %1 has no action %2.</source>
        <translation>Der Dienst %1 hat keine Aktion %2.</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>Der Dienst %1 hat in %2&#xa0;ms nicht geantwortet. Die Anfrage wird vielleicht noch ausgeführt.</translation>
    </message>
</context>
<context>
    <name>ServiceState</name>
    <message>
        <source>It could not be renamed, so changed settings will be lost when the program ends.</source>
        <translation>Sie konnte nicht umbenannt werden, daher gehen geänderte Einstellungen beim Beenden des Programms verloren.</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings are those of the service file.</source>
        <translation>Sie wurde in %1 umbenannt, es gelten die Einstellungen der Dienstdatei.</translation>
    </message>
    <message>
        <source>%1: /values: the object with the values by item id is missing.</source>
        <translation>%1: /values: das Objekt mit den Werten nach Element-ID fehlt.</translation>
    </message>
    <message>
        <source>The settings of %1 could not be stored in %2: %3.</source>
        <translation>Die Einstellungen von %1 konnten nicht in %2 gespeichert werden: %3.</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>der Ordner kann nicht angelegt werden</translation>
    </message>
    <message>
        <source>the service %1 has no such setting</source>
        <translation>der Dienst %1 hat keine solche Einstellung</translation>
    </message>
    <message>
        <source>%1: %2: %3. The value stays in the file.</source>
        <translation>%1: %2: %3. Der Wert bleibt in der Datei.</translation>
    </message>
    <message>
        <source>this is not a setting</source>
        <translation>das ist keine Einstellung</translation>
    </message>
    <message>
        <source>%1 is %2, allowed: %3</source>
        <translation>%1 ist %2, erlaubt: %3</translation>
    </message>
</context>
<context>
    <name>ServiceValue</name>
    <message>
        <source>%1 or more</source>
        <translation>%1 oder mehr</translation>
    </message>
    <message>
        <source>%1 or less</source>
        <translation>%1 oder weniger</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>ein Text</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>%1 Zeichen</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>jede Zahl</translation>
    </message>
    <message>
        <source>the members %1</source>
        <translation>die Elemente %1</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>nichts</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>eine Liste</translation>
    </message>
    <message>
        <source>an aggregate</source>
        <translation>ein Aggregat</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>keine Zahl</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>keine endliche Zahl</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>keine ganze Zahl</translation>
    </message>
    <message>
        <source>out of range</source>
        <translation>außerhalb des Bereichs</translation>
    </message>
    <message>
        <source>neither true nor false</source>
        <translation>weder wahr noch falsch</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>kein Text</translation>
    </message>
    <message>
        <source>not a value that an item of this type can have</source>
        <translation>kein Wert, den ein Element dieses Typs haben kann</translation>
    </message>
    <message>
        <source>not a list</source>
        <translation>keine Liste</translation>
    </message>
    <message>
        <source>not an aggregate</source>
        <translation>kein Aggregat</translation>
    </message>
    <message>
        <source>the member &quot;%1&quot; is missing</source>
        <translation>das Element „%1“ fehlt</translation>
    </message>
    <message>
        <source>member &quot;%1&quot;: %2</source>
        <translation>Element „%1“: %2</translation>
    </message>
    <message>
        <source>there is no member &quot;%1&quot;</source>
        <translation>es gibt kein Element „%1“</translation>
    </message>
    <message>
        <source>not a list of aggregates</source>
        <translation>keine Liste von Aggregaten</translation>
    </message>
    <message>
        <source>element %1: %2</source>
        <translation>Eintrag %1: %2</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>zu kurz</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>zu lang</translation>
    </message>
    <message>
        <source>not of the expected form</source>
        <translation>nicht in der erwarteten Form</translation>
    </message>
    <message>
        <source>not one of the choices</source>
        <translation>keine der Möglichkeiten</translation>
    </message>
</context>
<context>
    <name>ServicesPage</name>
    <message>
        <source>No services yet</source>
        <translation>Noch keine Dienste</translation>
    </message>
    <message>
        <source>They are shown when they come.</source>
        <translation>Sie werden gezeigt, sobald sie da sind.</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>kB</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>MB</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>GB</translation>
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
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>Bildschirmfoto</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>More</source>
        <translation>Mehr</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Gallery of the kit</source>
        <translation>Galerie der Bausteine</translation>
    </message>
    <message>
        <source>Everything that pages are made of</source>
        <translation>Alles, woraus Seiten bestehen</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Gerät</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Everything is applied.</source>
        <translation>Alles ist übernommen.</translation>
    </message>
    <message numerus="yes">
        <source>%n changes are not applied yet.</source>
        <translation>
            <numerusform>%n Änderung ist noch nicht übernommen.</numerusform>
            <numerusform>%n Änderungen sind noch nicht übernommen.</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Prüfen</translation>
    </message>
    <message>
        <source>There is no set-up</source>
        <translation>Es gibt keine Einstellungen</translation>
    </message>
    <message>
        <source>The service loopback is not published.</source>
        <translation>Der Dienst loopback ist nicht veröffentlicht.</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>Grenzwerte</translation>
    </message>
    <message>
        <source>What passes, and what fails.</source>
        <translation>Was besteht und was durchfällt.</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Messung</translation>
    </message>
    <message numerus="yes">
        <source>%n settings were changed meanwhile.</source>
        <translation>
            <numerusform>%n Einstellung wurde inzwischen geändert.</numerusform>
            <numerusform>%n Einstellungen wurden inzwischen geändert.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn. The file may be damaged.</source>
        <translation>Seite %1 kann nicht gezeichnet werden. Die Datei ist vielleicht beschädigt.</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>%1 is running already. Stop it, or wait until it is done.</source>
        <translation>%1 läuft bereits. Halten Sie es an, oder warten Sie, bis es fertig ist.</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>der Wert von %1: %2</translation>
    </message>
    <message>
        <source>%1: not a regular file</source>
        <translation>%1: keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>%1: kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>%1: larger than %2 MiB</source>
        <translation>%1: größer als %2&#xa0;MiB</translation>
    </message>
    <message>
        <source>%1: the first line names no column &quot;%2&quot;</source>
        <translation>%1: die erste Zeile nennt keine Spalte „%2“</translation>
    </message>
    <message>
        <source>%1: no line has a value of the item&apos;s type in the column</source>
        <translation>%1: keine Zeile hat in der Spalte einen Wert vom Typ des Elements</translation>
    </message>
    <message>
        <source>only a result can move: settings are set by clients</source>
        <translation>nur ein Ergebnis kann sich bewegen: Einstellungen setzen die Clients</translation>
    </message>
    <message>
        <source>an item of the type %1 cannot move as &quot;%2&quot;</source>
        <translation>ein Element vom Typ %1 kann sich nicht als „%2“ bewegen</translation>
    </message>
    <message>
        <source>has no meaning for &quot;%1&quot;</source>
        <translation>hat für „%1“ keine Bedeutung</translation>
    </message>
    <message>
        <source>must be greater than &quot;from&quot;</source>
        <translation>muss größer sein als „from“</translation>
    </message>
    <message>
        <source>only numbers have &quot;noise&quot;, &quot;from&quot; and &quot;to&quot;</source>
        <translation>nur Zahlen haben „noise“, „from“ und „to“</translation>
    </message>
    <message>
        <source>%1. The item %2 stands still.</source>
        <translation>%1. Das Element %2 steht still.</translation>
    </message>
    <message>
        <source>%1: %2 of %3 lines have no value for %4 and are left out.</source>
        <translation>%1: %2 von %3 Zeilen haben keinen Wert für %4 und werden ausgelassen.</translation>
    </message>
    <message>
        <source>only numbers and Booleans can be judged by their value</source>
        <translation>nur Zahlen und Wahrheitswerte können nach ihrem Wert beurteilt werden</translation>
    </message>
    <message>
        <source>&quot;to&quot; is less than &quot;from&quot;</source>
        <translation>„to“ ist kleiner als „from“</translation>
    </message>
    <message>
        <source>there is no item %1 that is a number</source>
        <translation>es gibt kein Element %1, das eine Zahl ist</translation>
    </message>
    <message>
        <source>there is no item %1 that has a value</source>
        <translation>es gibt kein Element %1, das einen Wert hat</translation>
    </message>
    <message>
        <source>a value of %1 is drawn from the numbers between &quot;from&quot; and &quot;to&quot;</source>
        <translation>ein Wert von %1 wird aus den Zahlen zwischen „from“ und „to“ gezogen</translation>
    </message>
    <message>
        <source>must be greater than &quot;for&quot;</source>
        <translation>muss größer sein als „for“</translation>
    </message>
    <message>
        <source>no id begins with &quot;%1&quot;</source>
        <translation>keine Kennung beginnt mit „%1“</translation>
    </message>
    <message>
        <source>there is no action %1 that &quot;runs&quot;</source>
        <translation>es gibt keine Aktion %1 mit „runs“</translation>
    </message>
    <message>
        <source>nothing happens: say what, such as &quot;vanish&quot;: true</source>
        <translation>es geschieht nichts: geben Sie an, was, zum Beispiel &quot;vanish&quot;: true</translation>
    </message>
    <message>
        <source>%1 The item %2 stands still.</source>
        <translation>%1 Der Eintrag %2 steht still.</translation>
    </message>
    <message>
        <source>%1: lines that cannot be read are left out: %2</source>
        <translation>%1: nicht lesbare Zeilen, die ausgelassen werden: %2</translation>
    </message>
    <message>
        <source>%1: the recording has no value of %2.</source>
        <translation>%1: Die Aufzeichnung hat keinen Wert von %2.</translation>
    </message>
</context>
<context>
    <name>SwitchEntry</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>TemplateToHtmlWriter</name>
    <message>
        <source>Pass</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Grenzwertig</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>Auftrags-ID</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>Auftrags-BAN</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>Techniker des Auftrags</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>Untergrenze</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>Obergrenze</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Timestamp</source>
        <translation>Zeitpunkt</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>Gesamtergebnis</translation>
    </message>
    <message>
        <source>Assembly</source>
        <translation>Baugruppe</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>Hardware</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Abschnitt</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>Eintrag</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>Einheit</translation>
    </message>
    <message>
        <source>%1 unit</source>
        <translation>Einheit von %1</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>%1 status</source>
        <translation>Status von %1</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>Diagramm</translation>
    </message>
    <message>
        <source>Legend of the plot</source>
        <translation>Legende des Diagramms</translation>
    </message>
    <message>
        <source>Test Information</source>
        <translation>Prüfinformationen</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Solvant System Information</source>
        <translation>Solvant-Systeminformationen</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>Tabelle %1</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>%1: %2 bis %3</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>There are no curves.</source>
        <translation>Es gibt keine Kurven.</translation>
    </message>
    <message>
        <source>Job Manager Information</source>
        <translation>Auftragsinformationen</translation>
    </message>
    <message>
        <source>Customer Information</source>
        <translation>Kundeninformationen</translation>
    </message>
    <message>
        <source>Technician Information</source>
        <translation>Technikerinformationen</translation>
    </message>
    <message>
        <source>Software Revisions</source>
        <translation>Softwareversionen</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Configuration Values</source>
        <translation>Konfigurationswerte</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>Nicht abgeschlossen</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>Punkte</translation>
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
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>The curves are drawn in the HTML and PDF reports.</source>
        <translation>Die Kurven sind in den HTML- und PDF-Berichten gezeichnet.</translation>
    </message>
</context>
<context>
    <name>TextEntry</name>
    <message>
        <source>&quot;%1&quot; cannot be used here</source>
        <translation>„%1“ ist hier nicht möglich</translation>
    </message>
</context>
<context>
    <name>TouchTab</name>
    <message>
        <source>Needs attention</source>
        <translation>Braucht Beachtung</translation>
    </message>
</context>
<context>
    <name>TouchTabs</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>TurnLine</name>
    <message>
        <source>%1 before</source>
        <translation>%1 früher</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>%1 später</translation>
    </message>
</context>
<context>
    <name>UiData</name>
    <message>
        <source>False</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>True</source>
        <translation>Ja</translation>
    </message>
</context>
<context>
    <name>ViewerBar</name>
    <message>
        <source>Previous page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom %1</source>
        <translation>Zoom %1</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Fit the width</source>
        <translation>An die Breite anpassen</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Fit the page</source>
        <translation>An die Seite anpassen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>Four numbers separated by points, such as 192.0.2.1</source>
        <translation>Vier Zahlen mit Punkten dazwischen, zum Beispiel 192.0.2.1</translation>
    </message>
    <message>
        <source>Each part is a number from 0 to 255</source>
        <translation>Jeder Teil ist eine Zahl von 0 bis 255</translation>
    </message>
    <message>
        <source>No part can begin with 0</source>
        <translation>Kein Teil darf mit 0 beginnen</translation>
    </message>
    <message>
        <source>Up to eight groups separated by colons, such as 2001:db8::1</source>
        <translation>Bis zu acht Gruppen mit Doppelpunkten dazwischen, zum Beispiel 2001:db8::1</translation>
    </message>
    <message>
        <source>&quot;::&quot; can appear only once</source>
        <translation>„::“ darf nur einmal vorkommen</translation>
    </message>
    <message>
        <source>Each group is one to four hexadecimal digits</source>
        <translation>Jede Gruppe hat eine bis vier Hexadezimalziffern</translation>
    </message>
    <message>
        <source>Six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E</source>
        <translation>Sechs Paare von Hexadezimalziffern, zum Beispiel 00:1A:2B:3C:4D:5E</translation>
    </message>
    <message>
        <source>A URL cannot contain blanks</source>
        <translation>Eine URL enthält keine Leerzeichen</translation>
    </message>
    <message>
        <source>Scheme and host, such as https://host/path</source>
        <translation>Schema und Host, zum Beispiel https://host/path</translation>
    </message>
    <message>
        <source>At most %1 characters; this text has %2</source>
        <translation>Höchstens %1 Zeichen; dieser Text hat %2</translation>
    </message>
    <message>
        <source>Digits, + at the beginning, blanks and ( ) / - * #</source>
        <translation>Ziffern, + am Anfang, Leerzeichen und ( ) / - * #</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mindestens %1</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>Höchstens %1</translation>
    </message>
    <message>
        <source>At least %1 characters; this text has %2</source>
        <translation>Mindestens %1 Zeichen; dieser Text hat %2</translation>
    </message>
</context>
<context>
    <name>uiutils::PendingChanges</name>
    <message>
        <source>The service %1 cannot be reached. The change waits until it returns.</source>
        <translation>Der Dienst %1 ist nicht erreichbar. Die Änderung wartet, bis er zurückkehrt.</translation>
    </message>
    <message>
        <source>The entry was rejected.</source>
        <translation>Die Eingabe wurde abgelehnt.</translation>
    </message>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportDraft</name>
    <message>
        <source>Another page or program keeps results of this kind</source>
        <translation>Eine andere Seite oder ein anderes Programm bewahrt solche Ergebnisse auf</translation>
    </message>
    <message>
        <source>There is no folder to keep the results in until they are saved</source>
        <translation>Es gibt keinen Ordner, um die Ergebnisse bis zum Speichern aufzubewahren</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportPaper</name>
    <message>
        <source>the printer takes no further page</source>
        <translation>der Drucker nimmt keine weitere Seite an</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>das Programm hat keine Schriftarten, weil es keine QGuiApplication ist</translation>
    </message>
    <message>
        <source>the report has no page %1, only %2</source>
        <translation>der Bericht hat keine Seite %1, nur %2</translation>
    </message>
    <message>
        <source>the printer cannot be used</source>
        <translation>der Drucker kann nicht verwendet werden</translation>
    </message>
    <message>
        <source>another report is being printed</source>
        <translation>ein anderer Bericht wird gerade gedruckt</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Follower</name>
    <message>
        <source>Following the user&apos;s name, &quot;%1&quot;.</source>
        <translation>Der Name des Benutzers, „%1“, wird verfolgt.</translation>
    </message>
    <message>
        <source>There is no setting %1 to follow. Start kivd with the service that has it.</source>
        <translation>Es gibt keine Einstellung %1, der man folgen könnte. Starten Sie kivd mit dem Dienst, der sie hat.</translation>
    </message>
    <message>
        <source>Another application has changed it to &quot;%1&quot;.</source>
        <translation>Eine andere Anwendung hat ihn in „%1“ geändert.</translation>
    </message>
    <message>
        <source>The services have ended; it stays &quot;%1&quot;.</source>
        <translation>Die Dienste haben geendet; er bleibt „%1“.</translation>
    </message>
    <message>
        <source>The services have returned, and nothing is lost.</source>
        <translation>Die Dienste sind wieder da, und nichts ist verloren.</translation>
    </message>
    <message>
        <source>The services have returned with &quot;%1&quot; instead of &quot;%2&quot;.</source>
        <translation>Die Dienste sind mit „%1“ statt „%2“ wiedergekommen.</translation>
    </message>
    <message>
        <source>The window gives no picture.</source>
        <translation>Das Fenster gibt kein Bild.</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 wurde nicht geschrieben: %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackMeasurement</name>
    <message>
        <source>Ready to measure</source>
        <translation>Bereit zur Messung</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>Verbindung zum Server wird aufgebaut</translation>
    </message>
    <message>
        <source>Measuring round-trip time</source>
        <translation>Umlaufzeit wird gemessen</translation>
    </message>
    <message>
        <source>Measuring throughput</source>
        <translation>Durchsatz wird gemessen</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Measured with a TCP client and a TCP server of this program over the loopback interface of this unit. Round-trip time: %1 samples, each the time from sending a message of %2 bytes until all of its echo had arrived. Throughput: %6 samples, each the time for sending %3 MiB until the server had acknowledged the last byte; 1 Mbit/s is 1,000,000 bits a second. Between samples there is a pause of %4 ms, and one exchange of each kind before the first sample is not counted. Jitter is the mean difference between neighbouring samples. A value passes when it meets its limit with a margin of at least %5 %, is marginal when it meets it with less, and fails when it does not meet it; the overall status is that of the worse median.</source>
        <translation>Gemessen mit einem TCP-Client und einem TCP-Server dieses Programms über die Loopback-Schnittstelle dieses Geräts. Umlaufzeit: %1 Messwerte, jeweils die Zeit vom Senden einer Nachricht von %2 Byte, bis ihr Echo ganz angekommen war. Durchsatz: %6 Messwerte, jeweils die Zeit für das Senden von %3&#xa0;MiB, bis der Server das letzte Byte bestätigt hatte; 1 Mbit/s sind 1 000 000 Bit je Sekunde. Zwischen Messwerten liegt eine Pause von %4&#xa0;ms; ein Austausch jeder Art vor dem ersten Messwert zählt nicht. Jitter ist die mittlere Differenz benachbarter Messwerte. Ein Wert besteht, wenn er den Grenzwert mit mindestens %5 % Abstand einhält, ist grenzwertig, wenn er ihn mit weniger einhält, und fällt durch, wenn er ihn nicht einhält; das Gesamtergebnis ist das des schlechteren Medians.</translation>
    </message>
    <message>
        <source>A run takes %1 to %2 samples of each and messages of %3 B or more; other values are changed to the nearest permitted one.</source>
        <translation>Eine Messung hat %1 bis %2 Messwerte je Größe und Nachrichten ab %3&#xa0;B; andere Werte werden auf den nächsten zulässigen geändert.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackProbe</name>
    <message>
        <source>No server could be opened on the loopback address (%1). Check that the loopback interface is up, then start again.</source>
        <translation>An der Loopback-Adresse konnte kein Server geöffnet werden (%1). Prüfen Sie, ob die Loopback-Schnittstelle aktiv ist, und starten Sie erneut.</translation>
    </message>
    <message>
        <source>The server at %1 sent an answer that does not match the request while %2. Another program may be listening there; start again.</source>
        <translation>Der Server an %1 sandte eine Antwort, die nicht zur Anfrage passt (%2). Vielleicht lauscht dort ein anderes Programm; starten Sie erneut.</translation>
    </message>
    <message>
        <source>The connection to the server at %1 broke while %2 (%3). Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>Die Verbindung zum Server an %1 brach ab (%2; %3). Prüfen Sie, ob die Loopback-Schnittstelle aktiv ist und keine Firewall sie sperrt, und starten Sie erneut.</translation>
    </message>
    <message>
        <source>The server at %1 was silent for %2 s while %3. Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>Der Server an %1 schwieg %2&#xa0;s lang (%3). Prüfen Sie, ob die Loopback-Schnittstelle aktiv ist und keine Firewall sie sperrt, und starten Sie erneut.</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>beim Verbinden</translation>
    </message>
    <message>
        <source>measuring round-trip time, sample %1 of %2</source>
        <translation>Umlaufzeit, Messwert %1 von %2</translation>
    </message>
    <message>
        <source>measuring throughput, sample %1 of %2</source>
        <translation>Durchsatz, Messwert %1 von %2</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackReport</name>
    <message>
        <source>Title on the report</source>
        <translation>Titel des Berichts</translation>
    </message>
    <message>
        <source>TCP loopback test</source>
        <translation>TCP-Loopback-Prüfung</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>Komprimiert</translation>
    </message>
    <message>
        <source>Finish a measurement on the Measure page first.</source>
        <translation>Schließen Sie zuerst eine Messung ab.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::SampleModel</name>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>Bestanden</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>Grenzwertig</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>Nicht bestanden</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Umlaufzeit</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Durchsatz</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::ScreenCamera</name>
    <message>
        <source>Screenshot Saved</source>
        <translation>Bildschirmfoto gespeichert</translation>
    </message>
    <message>
        <source>No picture of the window could be taken.</source>
        <translation>Vom Fenster konnte kein Bild gemacht werden.</translation>
    </message>
    <message>
        <source>The window was not drawn for %1 s.</source>
        <translation>Das Fenster wurde %1&#xa0;s lang nicht gezeichnet.</translation>
    </message>
    <message>
        <source>The picture of the window is empty.</source>
        <translation>Das Bild des Fensters ist leer.</translation>
    </message>
    <message>
        <source>There is not enough space for the picture.</source>
        <translation>Für das Bild ist nicht genug Speicherplatz frei.</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Tour</name>
    <message>
        <source>The picture of the window for %1 is empty. Run the demo without a display, with DISPLAY and WAYLAND_DISPLAY unset.</source>
        <translation>Das Bild des Fensters für %1 ist leer. Starten Sie die Demo ohne Anzeige, ohne DISPLAY und WAYLAND_DISPLAY.</translation>
    </message>
    <message>
        <source>Check the free space and that you may write there, or name another folder with --root.</source>
        <translation>Prüfen Sie den freien Speicherplatz und ob Sie dort schreiben dürfen, oder geben Sie mit --root einen anderen Ordner an.</translation>
    </message>
    <message>
        <source>The tour waited for %1 s in vain: %2. Keep the window in sight, and leave it alone.</source>
        <translation>Der Rundgang hat %1&#xa0;s vergeblich gewartet: %2. Halten Sie das Fenster sichtbar und rühren Sie es nicht an.</translation>
    </message>
    <message>
        <source>the job is open</source>
        <translation>der Auftrag ist offen</translation>
    </message>
    <message>
        <source>half of the run</source>
        <translation>die Hälfte der Messung</translation>
    </message>
    <message>
        <source>the end of the run</source>
        <translation>das Ende der Messung</translation>
    </message>
    <message>
        <source>the format of all files</source>
        <translation>das Format aller Dateien</translation>
    </message>
    <message>
        <source>the report is saved</source>
        <translation>der Bericht ist gespeichert</translation>
    </message>
    <message>
        <source>a question before files are overwritten</source>
        <translation>eine Frage, bevor Dateien überschrieben werden</translation>
    </message>
    <message>
        <source>the answer</source>
        <translation>die Antwort</translation>
    </message>
    <message>
        <source>the screenshot</source>
        <translation>das Bildschirmfoto</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can be pressed</source>
        <translation>„%1“ kann gedrückt werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is typed</source>
        <translation>„%1“ ist eingegeben</translation>
    </message>
    <message>
        <source>a picture of the window can be taken</source>
        <translation>ein Bild des Fensters kann gemacht werden</translation>
    </message>
    <message>
        <source>the picture %1</source>
        <translation>das Bild %1</translation>
    </message>
    <message>
        <source>the pages of the preview</source>
        <translation>die Seiten der Vorschau</translation>
    </message>
    <message>
        <source>the drawer of the desk</source>
        <translation>die Schublade der Werkbank</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::UsbStick</name>
    <message>
        <source>The files in %1 cannot be moved to %2: %3.</source>
        <translation>Die Dateien in %1 können nicht nach %2 verschoben werden: %3.</translation>
    </message>
    <message>
        <source>No service of this instrument knows of USB drives.</source>
        <translation>Kein Dienst dieses Geräts kennt USB-Sticks.</translation>
    </message>
    <message>
        <source>USB Drive</source>
        <translation>USB-Stick</translation>
    </message>
</context>
</TS>
