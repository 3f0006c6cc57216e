<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>Schaltflächen und Texte</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>Bildschirmfoto aufnehmen</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>Schaltflächen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>Überschreiben</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>Nicht jetzt</translation>
    </message>
    <message>
        <source>A long text takes a second line</source>
        <translation>Ein langer Text braucht zwei Zeilen</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>The title of a page</source>
        <translation>Der Titel einer Seite</translation>
    </message>
    <message>
        <source>The heading of a card</source>
        <translation>Die Überschrift einer Karte</translation>
    </message>
    <message>
        <source>A text that people read, which wraps where the line ends.</source>
        <translation>Ein Text zum Lesen, der am Ende der Zeile umbricht.</translation>
    </message>
    <message>
        <source>A text of less importance.</source>
        <translation>Ein weniger wichtiger Text.</translation>
    </message>
    <message>
        <source>A label, which ends in an ellipsis where there is no room for it</source>
        <translation>Eine Beschriftung, die ohne Platz mit Auslassungspunkten endet</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>Symbole</translation>
    </message>
</context>
<context>
    <name>CablePage</name>
    <message>
        <source>Cable test</source>
        <translation>Kabelprüfung</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>Einrichtung</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Cable test, %1</source>
        <translation>Kabelprüfung, %1</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Ergebnisse</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>Gespeichert: %1</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
</context>
<context>
    <name>ChangesPage</name>
    <message>
        <source>Changes that wait</source>
        <translation>Ausstehende Änderungen</translation>
    </message>
    <message>
        <source>Nothing is sent before Apply</source>
        <translation>Vor „Anwenden“ wird nichts gesendet</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>Alles rückgängig</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>Prüfen</translation>
    </message>
</context>
<context>
    <name>DatesPage</name>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked; passed on as ISO 8601</source>
        <translation>Getippt, wie es das Land schreibt, oder gewählt; weitergegeben nach ISO 8601</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Elemente dieser Seite</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>Fällig</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Values of this page</source>
        <translation>Werte dieser Seite</translation>
    </message>
    <message>
        <source>Next calibration</source>
        <translation>Nächste Kalibrierung</translation>
    </message>
    <message>
        <source>In this year</source>
        <translation>In diesem Jahr</translation>
    </message>
    <message>
        <source>Passed on: %1</source>
        <translation>Weitergegeben: %1</translation>
    </message>
</context>
<context>
    <name>EntriesPage</name>
    <message>
        <source>Entries</source>
        <translation>Eingabefelder</translation>
    </message>
    <message>
        <source>ItemEntry over items of the optical service</source>
        <translation>ItemEntry über Elementen des optischen Dienstes</translation>
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
        <translation>Akku</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farben</translation>
    </message>
    <message>
        <source>light</source>
        <translation>hell</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>dunkel</translation>
    </message>
    <message>
        <source>sunlight</source>
        <translation>Sonne</translation>
    </message>
</context>
<context>
    <name>GroupsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>Schaltflächen und Texte</translation>
    </message>
    <message>
        <source>Buttons, icons, cards and the sizes of texts</source>
        <translation>Schaltflächen, Symbole, Karten und Textgrößen</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Rows, sections and what stands there when a list is empty</source>
        <translation>Zeilen, Abschnitte und was in einer leeren Liste steht</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>Eingabefelder</translation>
    </message>
    <message>
        <source>The entry for every kind of item</source>
        <translation>Das Eingabefeld für jede Art von Element</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>Auswahl und Zahlen</translation>
    </message>
    <message>
        <source>Segments, steppers and sliders that keep an item&apos;s limits</source>
        <translation>Segmente, Schrittfelder und Schieber in den Grenzen des Elements</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>Datum und Uhrzeit</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked</source>
        <translation>Getippt, wie es das Land schreibt, oder gewählt</translation>
    </message>
    <message>
        <source>Status and messages</source>
        <translation>Status und Meldungen</translation>
    </message>
    <message>
        <source>Verdicts, progress, problems and services that are away</source>
        <translation>Ergebnisse, Fortschritt, Probleme und fehlende Dienste</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>The stack of pages, tabs and the line at the top</source>
        <translation>Der Stapel der Seiten, Reiter und die Zeile oben</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>Komponenten</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>Ausstehende Änderungen</translation>
    </message>
    <message>
        <source>What is applied together, each change with what became of it</source>
        <translation>Was zusammen angewendet wird: jede Änderung und was aus ihr wurde</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>Lists</source>
        <translation>Listen</translation>
    </message>
    <message>
        <source>Rows of 11 mm and more, which may touch</source>
        <translation>Zeilen ab 11 mm, die sich berühren dürfen</translation>
    </message>
    <message>
        <source>JOB-4711, 3 tests</source>
        <translation>JOB-4711, 3 Prüfungen</translation>
    </message>
    <message>
        <source>JOB-4712, 1 test</source>
        <translation>JOB-4712, 1 Prüfung</translation>
    </message>
    <message>
        <source>JOB-4713, 8 tests</source>
        <translation>JOB-4713, 8 Prüfungen</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>A section whose contents fold away</source>
        <translation>Ein Abschnitt, der sich zuklappen lässt</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>being copied</source>
        <translation>wird kopiert</translation>
    </message>
    <message>
        <source>No screenshots</source>
        <translation>Keine Bildschirmfotos</translation>
    </message>
    <message>
        <source>Tap the camera at the top of a page to keep what it shows.</source>
        <translation>Tippen Sie oben auf einer Seite auf die Kamera, um sie festzuhalten.</translation>
    </message>
    <message>
        <source>Take one</source>
        <translation>Aufnehmen</translation>
    </message>
</context>
<context>
    <name>NumbersPage</name>
    <message>
        <source>Choices and numbers</source>
        <translation>Auswahl und Zahlen</translation>
    </message>
    <message>
        <source>A gesture writes one value, within the limits of the item</source>
        <translation>Eine Geste schreibt einen Wert, in den Grenzen des Elements</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>Elemente eines Dienstes</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Elemente dieser Seite</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Brightness in per cent</source>
        <translation>Helligkeit in Prozent</translation>
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
        <source>Chosen: %1</source>
        <translation>Gewählt: %1</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page %1 of the stack</source>
        <translation>Seite %1 des Stapels</translation>
    </message>
    <message>
        <source>The footer stays where it is.</source>
        <translation>Die Fußzeile bleibt, wo sie ist.</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>Ereignisse</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>Kurve</translation>
    </message>
    <message>
        <source>Tabs above the contents. The arrow keys go from tab to tab.</source>
        <translation>Reiter über dem Inhalt. Die Pfeiltasten gehen von Reiter zu Reiter.</translation>
    </message>
    <message>
        <source>Tabs below the contents are the navigation of a program.</source>
        <translation>Reiter unter dem Inhalt sind die Navigation eines Programms.</translation>
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
    <name>StatusPage</name>
    <message>
        <source>Status and messages</source>
        <translation>Status und Meldungen</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>Umlaufzeit</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>Durchsatz</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Dämpfung</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Let the service return</source>
        <translation>Dienst zurückkehren lassen</translation>
    </message>
    <message>
        <source>Let the service vanish</source>
        <translation>Dienst verschwinden lassen</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>42 of 100 samples, 12 s left</source>
        <translation>42 von 100 Messwerten, noch 12 s</translation>
    </message>
    <message>
        <source>Waiting for the far end</source>
        <translation>Warten auf die Gegenstelle</translation>
    </message>
    <message>
        <source>Problems, where they are</source>
        <translation>Probleme, wo sie sind</translation>
    </message>
    <message>
        <source>The name may have 50 characters, it has 86.</source>
        <translation>Der Name darf 50 Zeichen haben, er hat 86.</translation>
    </message>
    <message>
        <source>The drive is full. Delete files, or save to the USB drive; what was measured is kept as a draft until then.</source>
        <translation>Der Datenträger ist voll. Löschen Sie Dateien, oder speichern Sie auf dem USB-Stick; das Gemessene bleibt bis dahin als Entwurf.</translation>
    </message>
</context>
<context>
    <name>gallery</name>
    <message>
        <source>Site</source>
        <translation>Standort</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>Dämpfung</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>Wiederholungen</translation>
    </message>
    <message>
        <source>Server (either version)</source>
        <translation>Server (beide Versionen)</translation>
    </message>
    <message>
        <source>Unit address</source>
        <translation>Adresse des Geräts</translation>
    </message>
    <message>
        <source>Unit address, version 6</source>
        <translation>Adresse des Geräts, Version 6</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>Upload to</source>
        <translation>Hochladen nach</translation>
    </message>
    <message>
        <source>Report file</source>
        <translation>Berichtsdatei</translation>
    </message>
    <message>
        <source>Upload password</source>
        <translation>Passwort zum Hochladen</translation>
    </message>
    <message>
        <source>Call back</source>
        <translation>Rückruf</translation>
    </message>
    <message>
        <source>Cabinet code</source>
        <translation>Code des Schaltschranks</translation>
    </message>
    <message>
        <source>Test pattern (hexadecimal)</source>
        <translation>Prüfmuster (hexadezimal)</translation>
    </message>
    <message>
        <source>File mode (octal)</source>
        <translation>Dateimodus (oktal)</translation>
    </message>
    <message>
        <source>Alarm lines (binary)</source>
        <translation>Alarmleitungen (binär)</translation>
    </message>
    <message>
        <source>Test time</source>
        <translation>Prüfdauer</translation>
    </message>
    <message>
        <source>Buzzer</source>
        <translation>Summer</translation>
    </message>
    <message>
        <source>Connector</source>
        <translation>Steckverbinder</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>Gerade</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>Schräg</translation>
    </message>
    <message>
        <source>Bare fiber</source>
        <translation>Offene Faser</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>Wegpunkte</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>Referenz</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>Sensor</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>Elemente eines Dienstes</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>Elemente dieser Seite</translation>
    </message>
</context>
</TS>
