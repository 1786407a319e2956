<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>AddVinylView</name>
    <message>
        <source>Add Record</source>
        <translation>Platte hinzufügen</translation>
    </message>
    <message>
        <source>Look Up</source>
        <translation>Nachschlagen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
</context>
<context>
    <name>AlertDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>App</name>
    <message>
        <source>unexpected argument &apos;%1&apos;.</source>
        <translation>unerwartetes Argument „%1“.</translation>
    </message>
    <message>
        <source>--data-dir needs a folder.</source>
        <translation>--data-dir braucht einen Ordner.</translation>
    </message>
    <message>
        <source>Work on the collection in DIR instead of $PLATTERBOX_DATA_DIR or the app&apos;s data folder.</source>
        <translation>Mit der Sammlung in DIR arbeiten statt in $PLATTERBOX_DATA_DIR oder im Datenordner der App.</translation>
    </message>
    <message>
        <source>Print these options and exit.</source>
        <translation>Diese Optionen ausgeben und beenden.</translation>
    </message>
    <message>
        <source>Print the name and version and exit.</source>
        <translation>Name und Version ausgeben und beenden.</translation>
    </message>
    <message>
        <source>usage: platterbox-app [--data-dir DIR]

The Platterbox window.

options:
</source>
        <translation>Aufruf: platterbox-app [--data-dir DIR]

Das Fenster von Platterbox.

Optionen:
</translation>
    </message>
</context>
<context>
    <name>BreakdownTableScreen</name>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Report of this list</source>
        <translation>Bericht dieser Liste</translation>
    </message>
    <message>
        <source>Writing the PDF document</source>
        <translation>PDF-Dokument wird geschrieben</translation>
    </message>
</context>
<context>
    <name>Chart</name>
    <message>
        <source>Nothing to show yet</source>
        <translation>Noch nichts anzuzeigen</translation>
    </message>
</context>
<context>
    <name>ChartCard</name>
    <message>
        <source>Open an entry of %1</source>
        <translation>Eintrag aus %1 öffnen</translation>
    </message>
</context>
<context>
    <name>Cli</name>
    <message numerus="yes">
        <source>Backed up %n records and %1 to %2</source>
        <translation>
            <numerusform>%n Platte und %1 nach %2 gesichert</numerusform>
            <numerusform>%n Platten und %1 nach %2 gesichert</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cover files</source>
        <translation>
            <numerusform>%n Cover-Datei</numerusform>
            <numerusform>%n Cover-Dateien</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Restored %n records from %1; &apos;platterbox undo-import&apos; puts back the collection it replaced</source>
        <translation>
            <numerusform>%n Platte aus %1 wiederhergestellt; „platterbox undo-import“ holt die ersetzte Sammlung zurück</numerusform>
            <numerusform>%n Platten aus %1 wiederhergestellt; „platterbox undo-import“ holt die ersetzte Sammlung zurück</numerusform>
        </translation>
    </message>
    <message>
        <source>The collection is back as it was before the restore of %1 on %2 %3</source>
        <translation>Die Sammlung ist wieder so wie vor der Wiederherstellung aus %1 am %2 um %3</translation>
    </message>
    <message>
        <source>The collection is back as it was before the import of %1 on %2 %3</source>
        <translation>Die Sammlung ist wieder so wie vor dem Import von %1 am %2 um %3</translation>
    </message>
    <message>
        <source>Add N sample records (made-up albums with tracks and covers).</source>
        <translation>N Beispielplatten hinzufügen (erfundene Alben mit Titeln und Covern).</translation>
    </message>
    <message>
        <source>Print the number of records, copies and their total value (--json: every figure and chart).</source>
        <translation>Anzahl der Platten und Exemplare und ihren Gesamtwert ausgeben (--json: alle Kennzahlen und Diagramme).</translation>
    </message>
    <message>
        <source>List the records lent out, the longest out first, and which are overdue.</source>
        <translation>Die verliehenen Platten auflisten, die am längsten verliehenen zuerst, und welche überfällig sind.</translation>
    </message>
    <message>
        <source>Write the collection to an exchange file or CSV files, or the wantlist to a CSV file.</source>
        <translation>Die Sammlung in eine Austauschdatei oder CSV-Dateien schreiben, oder die Wunschliste in eine CSV-Datei.</translation>
    </message>
    <message>
        <source>Merge an exchange, Discogs or CSV file into the collection, or add a file&apos;s albums to the wantlist.</source>
        <translation>Eine Austausch-, Discogs- oder CSV-Datei in die Sammlung übernehmen, oder die Alben einer Datei auf die Wunschliste setzen.</translation>
    </message>
    <message>
        <source>Write the printed collection report as a PDF file.</source>
        <translation>Den gedruckten Sammlungsbericht als PDF-Datei schreiben.</translation>
    </message>
    <message>
        <source>Copy the whole collection, cover files included, into FILE.</source>
        <translation>Die ganze Sammlung samt Cover-Dateien nach FILE sichern.</translation>
    </message>
    <message>
        <source>Replace the collection with a backup (undo-import puts it back).</source>
        <translation>Die Sammlung durch eine Sicherung ersetzen (undo-import holt sie zurück).</translation>
    </message>
    <message>
        <source>Find a release in the online catalogue; --add stores it.</source>
        <translation>Eine Veröffentlichung im Online-Katalog suchen; --add nimmt sie auf.</translation>
    </message>
    <message>
        <source>Put the collection back as it was before the last import or restore.</source>
        <translation>Die Sammlung auf den Stand vor dem letzten Import oder der letzten Wiederherstellung zurücksetzen.</translation>
    </message>
    <message>
        <source>usage: %1</source>
        <translation>Aufruf: %1</translation>
    </message>
    <message>
        <source>commands:</source>
        <translation>Befehle:</translation>
    </message>
    <message>
        <source>The store is Platterbox.sqlite in DIR, in $PLATTERBOX_DATA_DIR, or in the app&apos;s data folder.</source>
        <translation>Die Sammlung liegt in Platterbox.sqlite in DIR, in $PLATTERBOX_DATA_DIR oder im Datenordner der App.</translation>
    </message>
    <message>
        <source>unknown command %1</source>
        <translation>unbekannter Befehl %1</translation>
    </message>
    <message>
        <source>Unresolved error %1</source>
        <translation>Ungelöster Fehler %1</translation>
    </message>
    <message>
        <source>N must be between 1 and 32767</source>
        <translation>N muss zwischen 1 und 32767 liegen</translation>
    </message>
    <message numerus="yes">
        <source>Added %n sample records.</source>
        <translation>
            <numerusform>%n Beispielplatte hinzugefügt.</numerusform>
            <numerusform>%n Beispielplatten hinzugefügt.</numerusform>
        </translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Platten: %1</translation>
    </message>
    <message>
        <source>Copies: %1</source>
        <translation>Exemplare: %1</translation>
    </message>
    <message>
        <source>Total value: %1</source>
        <translation>Gesamtwert: %1</translation>
    </message>
    <message>
        <source>%1 by %2: %3</source>
        <translation>%1 von %2: %3</translation>
    </message>
    <message>
        <source>no artist</source>
        <translation>kein Künstler</translation>
    </message>
    <message>
        <source>cannot write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>Wrote %1</source>
        <translation>%1 geschrieben</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>Not read: %1</source>
        <translation>Nicht gelesen: %1</translation>
    </message>
    <message>
        <source>Dry run: nothing was changed.</source>
        <translation>Probelauf: Es wurde nichts geändert.</translation>
    </message>
    <message numerus="yes">
        <source>%n cover pictures could not be read and were left out</source>
        <translation>
            <numerusform>%n Coverbild konnte nicht gelesen werden und wurde ausgelassen</numerusform>
            <numerusform>%n Coverbilder konnten nicht gelesen werden und wurden ausgelassen</numerusform>
        </translation>
    </message>
    <message>
        <source>no %1 section in %2, and no CSV header line that names record attributes</source>
        <translation>kein Abschnitt %1 in %2 und keine CSV-Kopfzeile, die Plattenfelder nennt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a barcode: give its 8, 12 or 13 digits</source>
        <translation>„%1“ ist kein Barcode: Gib seine 8, 12 oder 13 Ziffern an</translation>
    </message>
    <message>
        <source>Read %1 %2 from %3</source>
        <translation>%1 %2 aus %3 gelesen</translation>
    </message>
    <message>
        <source>no release found for %1</source>
        <translation>keine Veröffentlichung für %1 gefunden</translation>
    </message>
    <message numerus="yes">
        <source>there are only %n candidates</source>
        <translation>
            <numerusform>es gibt nur %n Treffer</numerusform>
            <numerusform>es gibt nur %n Treffer</numerusform>
        </translation>
    </message>
    <message>
        <source>already in the collection: %1; nothing was added</source>
        <translation>schon in der Sammlung: %1; nichts hinzugefügt</translation>
    </message>
    <message numerus="yes">
        <source>Added %1 with %n tracks and %2</source>
        <translation>
            <numerusform>%1 mit %n Titel und %2 hinzugefügt</numerusform>
            <numerusform>%1 mit %n Titeln und %2 hinzugefügt</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n covers</source>
        <translation>
            <numerusform>%n Cover</numerusform>
            <numerusform>%n Covern</numerusform>
        </translation>
    </message>
    <message>
        <source>give only one of --artist, --label, --producer and --date</source>
        <translation>gib nur eine der Optionen --artist, --label, --producer und --date an</translation>
    </message>
    <message>
        <source>--origin %1 needs %2</source>
        <translation>--origin %1 braucht %2</translation>
    </message>
    <message>
        <source>%1 does not go with --origin %2</source>
        <translation>%1 passt nicht zu --origin %2</translation>
    </message>
    <message>
        <source>--date wants a date like 1975-03-05, not &quot;%1&quot;</source>
        <translation>--date erwartet ein Datum wie 1975-03-05, nicht „%1“</translation>
    </message>
    <message numerus="yes">
        <source>Wrote %n records to %1</source>
        <translation>
            <numerusform>%n Platte nach %1 geschrieben</numerusform>
            <numerusform>%n Platten nach %1 geschrieben</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n cover</source>
        <translation>
            <numerusform>%n Cover</numerusform>
            <numerusform>%n Cover</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ConditionFormScreen</name>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Condition</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>ConditionTableScreen</name>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Add Condition</source>
        <translation>Zustand hinzufügen</translation>
    </message>
</context>
<context>
    <name>DatePickerPanel</name>
    <message>
        <source>January</source>
        <translation>Januar</translation>
    </message>
    <message>
        <source>February</source>
        <translation>Februar</translation>
    </message>
    <message>
        <source>March</source>
        <translation>März</translation>
    </message>
    <message>
        <source>April</source>
        <translation>April</translation>
    </message>
    <message>
        <source>May</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>June</source>
        <translation>Juni</translation>
    </message>
    <message>
        <source>July</source>
        <translation>Juli</translation>
    </message>
    <message>
        <source>August</source>
        <translation>August</translation>
    </message>
    <message>
        <source>September</source>
        <translation>September</translation>
    </message>
    <message>
        <source>October</source>
        <translation>Oktober</translation>
    </message>
    <message>
        <source>November</source>
        <translation>November</translation>
    </message>
    <message>
        <source>December</source>
        <translation>Dezember</translation>
    </message>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>Monat</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Previous month</source>
        <translation>Vorheriger Monat</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
    <message>
        <source>Date: %1</source>
        <translation>Datum: %1</translation>
    </message>
    <message>
        <source>Calendar, chosen day %1</source>
        <translation>Kalender, gewählter Tag %1</translation>
    </message>
</context>
<context>
    <name>DefaultsView</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Use a Default Date</source>
        <translation>Standarddatum verwenden</translation>
    </message>
    <message>
        <source>Default Date</source>
        <translation>Standarddatum</translation>
    </message>
    <message>
        <source>Tap to choose a date</source>
        <translation>Tippen, um ein Datum zu wählen</translation>
    </message>
    <message>
        <source>Date Picker Style</source>
        <translation>Art der Datumsauswahl</translation>
    </message>
    <message>
        <source>Wheels</source>
        <translation>Räder</translation>
    </message>
    <message>
        <source>Compact</source>
        <translation>Kompakt</translation>
    </message>
    <message>
        <source>Inline Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>The style last switched on stays in use for release dates.</source>
        <translation>Die zuletzt eingeschaltete Art gilt für Erscheinungsdaten.</translation>
    </message>
    <message>
        <source>Release Date</source>
        <translation>Erscheinungsdatum</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Erscheinungsbild</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
</context>
<context>
    <name>EditVinylView</name>
    <message>
        <source>Edit Record</source>
        <translation>Platte bearbeiten</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Look Up</source>
        <translation>Nachschlagen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>ExportView</name>
    <message>
        <source>Export Vinyl Records</source>
        <translation>Platten exportieren</translation>
    </message>
    <message>
        <source>Create File</source>
        <translation>Datei erstellen</translation>
    </message>
    <message>
        <source>Without Images</source>
        <translation>Ohne Bilder</translation>
    </message>
    <message>
        <source>Export CSV</source>
        <translation>CSV exportieren</translation>
    </message>
    <message>
        <source>Tracks in the same file</source>
        <translation>Titel in derselben Datei</translation>
    </message>
    <message>
        <source>Save To Files</source>
        <translation>In Dateien sichern</translation>
    </message>
    <message>
        <source>Email File</source>
        <translation>Datei per E-Mail senden</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Exported text</source>
        <translation>Exportierter Text</translation>
    </message>
</context>
<context>
    <name>GroupListsView</name>
    <message>
        <source>Artists</source>
        <translation>Künstler</translation>
    </message>
    <message>
        <source>Record Labels</source>
        <translation>Labels</translation>
    </message>
    <message>
        <source>Producers</source>
        <translation>Produzenten</translation>
    </message>
    <message>
        <source>Years</source>
        <translation>Jahre</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Künstler</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Produzent</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
</context>
<context>
    <name>GroupRowModel</name>
    <message>
        <source>%1, records: %2</source>
        <comment>a group&apos;s name (or year) and its record count read out</comment>
        <translation>%1, Platten: %2</translation>
    </message>
</context>
<context>
    <name>ImportExportView</name>
    <message>
        <source>Import / Export</source>
        <translation>Import / Export</translation>
    </message>
    <message>
        <source>Back up the collection to</source>
        <translation>Sammlung sichern nach</translation>
    </message>
    <message>
        <source>Platterbox backups (*.platterbox)</source>
        <translation>Platterbox-Sicherungen (*.platterbox)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Choose the backup to restore</source>
        <translation>Sicherung zum Wiederherstellen wählen</translation>
    </message>
    <message>
        <source>Move the whole collection to and from an exchange file.</source>
        <translation>Die ganze Sammlung in eine Austauschdatei schreiben oder daraus lesen.</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>A backup keeps everything: every record, track, picture and cover file, exactly as stored.</source>
        <translation>Eine Sicherung bewahrt alles: jede Platte, jeden Titel, jedes Bild und jede Cover-Datei, genau wie gespeichert.</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Undo Last Import</source>
        <translation>Letzten Import rückgängig machen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ImportPreviewModel</name>
    <message>
        <source>, </source>
        <comment>between the parts of an import line read out</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>ImportView</name>
    <message>
        <source>Import Vinyl Records</source>
        <translation>Platten importieren</translation>
    </message>
    <message>
        <source>Choose the file to import</source>
        <translation>Datei zum Importieren wählen</translation>
    </message>
    <message>
        <source>Collection files (*.csv *.txt)</source>
        <translation>Sammlungsdateien (*.csv *.txt)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Into the Wantlist</source>
        <translation>In die Wunschliste</translation>
    </message>
    <message>
        <source>Add the albums of the file to the wantlist instead of the collection</source>
        <translation>Die Alben der Datei auf die Wunschliste statt in die Sammlung setzen</translation>
    </message>
    <message>
        <source>Load File</source>
        <translation>Datei laden</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Importing %1</source>
        <translation>%1 wird importiert</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Zeigen</translation>
    </message>
    <message>
        <source>All lines</source>
        <translation>Alle Zeilen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Text of the file</source>
        <translation>Text der Datei</translation>
    </message>
</context>
<context>
    <name>ListVinylTableView</name>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Sort Options</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Cards</source>
        <translation>Karten</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabelle</translation>
    </message>
    <message>
        <source>Show the records as cards</source>
        <translation>Platten als Karten zeigen</translation>
    </message>
    <message>
        <source>Show the records as a table</source>
        <translation>Platten als Tabelle zeigen</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Report of this list</source>
        <translation>Bericht dieser Liste</translation>
    </message>
    <message>
        <source>Add a record</source>
        <translation>Eine Platte hinzufügen</translation>
    </message>
    <message>
        <source>Add record</source>
        <translation>Platte hinzufügen</translation>
    </message>
    <message>
        <source>Choose the sort order</source>
        <translation>Sortierung wählen</translation>
    </message>
</context>
<context>
    <name>ListVinylTableViewCell</name>
    <message>
        <source>Front cover of %1</source>
        <translation>Vorderes Cover von %1</translation>
    </message>
</context>
<context>
    <name>LoanPanel</name>
    <message>
        <source>Loans</source>
        <translation>Ausleihen</translation>
    </message>
    <message>
        <source>In the collection</source>
        <translation>In der Sammlung</translation>
    </message>
    <message>
        <source>Returned</source>
        <translation>Zurückgegeben</translation>
    </message>
    <message>
        <source>Lend…</source>
        <translation>Verleihen …</translation>
    </message>
    <message>
        <source>Lend Record</source>
        <translation>Platte verleihen</translation>
    </message>
    <message>
        <source>To</source>
        <translation>An</translation>
    </message>
    <message>
        <source>Lent to</source>
        <translation>Verliehen an</translation>
    </message>
    <message>
        <source>Since</source>
        <translation>Seit</translation>
    </message>
    <message>
        <source>Due back</source>
        <translation>Zurück bis</translation>
    </message>
    <message>
        <source>Optional</source>
        <translation>Optional</translation>
    </message>
    <message>
        <source>Note</source>
        <translation>Notiz</translation>
    </message>
</context>
<context>
    <name>Loans</name>
    <message>
        <source>Lent to %1 since %2</source>
        <translation>An %1 verliehen seit %2</translation>
    </message>
    <message>
        <source>, due %1</source>
        <translation>, fällig am %1</translation>
    </message>
    <message>
        <source> (overdue)</source>
        <translation> (überfällig)</translation>
    </message>
    <message>
        <source>now</source>
        <translation>jetzt</translation>
    </message>
    <message>
        <source>No record is lent out.</source>
        <translation>Keine Platte ist verliehen.</translation>
    </message>
    <message numerus="yes">
        <source>%Ln records are lent out.</source>
        <translation>
            <numerusform>%Ln Platte ist verliehen.</numerusform>
            <numerusform>%Ln Platten sind verliehen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln records are lent out, %1 overdue.</source>
        <translation>
            <numerusform>%Ln Platte ist verliehen, %1 überfällig.</numerusform>
            <numerusform>%Ln Platten sind verliehen, %1 überfällig.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln record is lent out.</source>
        <translation>
            <numerusform>%Ln Platte ist verliehen.</numerusform>
            <numerusform>%Ln Platten sind verliehen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%Ln record is lent out, %1 overdue.</source>
        <translation>
            <numerusform>%Ln Platte ist verliehen, %1 überfällig.</numerusform>
            <numerusform>%Ln Platten sind verliehen, %1 überfällig.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>LoansView</name>
    <message>
        <source>Loans</source>
        <translation>Ausleihen</translation>
    </message>
</context>
<context>
    <name>LoansViewController</name>
    <message>
        <source>, </source>
        <comment>between the parts of a loan read out</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>LookupCandidateModel</name>
    <message>
        <source>, </source>
        <comment>between the parts of a release read out</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>LookupScanPage</name>
    <message>
        <source>Hold the barcode on the sleeve in view</source>
        <translation>Halte den Barcode auf der Hülle vor die Kamera</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>LookupSheet</name>
    <message>
        <source>Choose a Photo of the Barcode</source>
        <translation>Foto des Barcodes wählen</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png *.webp *.bmp)</source>
        <translation>Bilder (*.jpg *.jpeg *.png *.webp *.bmp)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Look Up</source>
        <translation>Nachschlagen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Barcode, catalog number or Artist - Title</source>
        <translation>Barcode, Katalognummer oder Künstler - Titel</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Choose Photo…</source>
        <translation>Foto wählen …</translation>
    </message>
    <message>
        <source>Front cover of %1</source>
        <translation>Vorderes Cover von %1</translation>
    </message>
    <message>
        <source>Already in the Collection?</source>
        <translation>Schon in der Sammlung?</translation>
    </message>
    <message>
        <source>Raise Its Quantity by One</source>
        <translation>Anzahl um eins erhöhen</translation>
    </message>
    <message>
        <source>Add as a Separate Record</source>
        <translation>Als eigene Platte hinzufügen</translation>
    </message>
    <message>
        <source>Fill In What Is Empty</source>
        <translation>Leere Felder ausfüllen</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Fill In</source>
        <translation>Ausfüllen</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>Platterbox</source>
        <translation>Platterbox</translation>
    </message>
</context>
<context>
    <name>MainMenuGlance</name>
    <message>
        <source>Your Collection</source>
        <translation>Deine Sammlung</translation>
    </message>
    <message>
        <source>Added Last</source>
        <translation>Zuletzt hinzugefügt</translation>
    </message>
    <message>
        <source>Records you add show here.</source>
        <translation>Platten, die du hinzufügst, erscheinen hier.</translation>
    </message>
    <message>
        <source>%1 by %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>MainMenuView</name>
    <message>
        <source>Platterbox</source>
        <translation>Platterbox</translation>
    </message>
    <message>
        <source>Your vinyl collection</source>
        <translation>Deine Schallplattensammlung</translation>
    </message>
    <message>
        <source>Close Menu</source>
        <translation>Menü schließen</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
</context>
<context>
    <name>MainMenuViewController</name>
    <message>
        <source>Records</source>
        <translation>Platten</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Total value</source>
        <translation>Gesamtwert</translation>
    </message>
    <message>
        <source>On loan, %1 overdue</source>
        <translation>Verliehen, %1 überfällig</translation>
    </message>
    <message>
        <source>On loan</source>
        <translation>Verliehen</translation>
    </message>
    <message>
        <source>Wanted</source>
        <translation>Gesucht</translation>
    </message>
</context>
<context>
    <name>NotesView</name>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
</context>
<context>
    <name>Platterbox</name>
    <message>
        <source>List Vinyl&apos;s</source>
        <translation>Plattenliste</translation>
    </message>
    <message>
        <source>Sort by</source>
        <translation>Sortieren nach</translation>
    </message>
    <message>
        <source>Sort Options</source>
        <translation>Sortierung</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Search By Artist</source>
        <translation>Nach Künstler suchen</translation>
    </message>
    <message>
        <source>Search by Name</source>
        <translation>Nach Name suchen</translation>
    </message>
    <message>
        <source>Record Not Found</source>
        <translation>Platte nicht gefunden</translation>
    </message>
    <message>
        <source>This record is no longer in the collection; the list has been refreshed.</source>
        <translation>Diese Platte ist nicht mehr in der Sammlung; die Liste wurde aktualisiert.</translation>
    </message>
    <message>
        <source>Can&apos;t Send Text Message</source>
        <translation>Nachricht kann nicht gesendet werden</translation>
    </message>
    <message>
        <source>Your device is not able to send text messages.</source>
        <translation>Dein Gerät kann keine Textnachrichten senden.</translation>
    </message>
    <message>
        <source>Document not Created</source>
        <translation>Dokument nicht erstellt</translation>
    </message>
    <message>
        <source>Empty Data Set!</source>
        <translation>Keine Daten!</translation>
    </message>
    <message>
        <source>No Vinyl&apos;s to Print!</source>
        <translation>Keine Platten zum Drucken!</translation>
    </message>
    <message>
        <source>Say who borrows the record.</source>
        <translation>Gib an, wer die Platte ausleiht.</translation>
    </message>
    <message>
        <source>The day it is due back comes before the day it is lent.</source>
        <translation>Der Rückgabetag liegt vor dem Tag des Verleihs.</translation>
    </message>
    <message>
        <source>The record cannot come back before the day it was lent.</source>
        <translation>Die Platte kann nicht vor dem Tag des Verleihs zurückkommen.</translation>
    </message>
    <message>
        <source>The record is no longer in the collection.</source>
        <translation>Die Platte ist nicht mehr in der Sammlung.</translation>
    </message>
    <message>
        <source>Delete a Record on Loan?</source>
        <translation>Verliehene Platte löschen?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is lent to %2. Delete it and its loans anyway?</source>
        <translation>„%1“ ist an %2 verliehen. Trotzdem samt Ausleihen löschen?</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Behalten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Choose the day the record is lent.</source>
        <translation>Wähle den Tag, an dem die Platte verliehen wird.</translation>
    </message>
    <message>
        <source>Record not Saved!</source>
        <translation>Platte nicht gespeichert!</translation>
    </message>
    <message>
        <source>Required Fields in RED not Entered</source>
        <translation>Pflichtfelder in ROT nicht ausgefüllt</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>There is no camera available</source>
        <translation>Es ist keine Kamera verfügbar</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>There is no image in the Clipboard</source>
        <translation>In der Zwischenablage ist kein Bild</translation>
    </message>
    <message>
        <source>Picture not Loaded</source>
        <translation>Bild nicht geladen</translation>
    </message>
    <message>
        <source>No Search</source>
        <translation>Keine Suche</translation>
    </message>
    <message>
        <source>Required Fields Name Not Entered</source>
        <translation>Pflichtfeld Name nicht ausgefüllt</translation>
    </message>
    <message>
        <source>New Value not Entered</source>
        <translation>Neuer Wert nicht eingegeben</translation>
    </message>
    <message>
        <source>New Value &quot;%1&quot; is not an amount.</source>
        <translation>Neuer Wert „%1“ ist kein Betrag.</translation>
    </message>
    <message>
        <source>Page not Opened</source>
        <translation>Seite nicht geöffnet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a web address.</source>
        <translation>„%1“ ist keine Webadresse.</translation>
    </message>
    <message>
        <source>Last valued %1</source>
        <translation>Zuletzt bewertet am %1</translation>
    </message>
    <message>
        <source>Not valued yet</source>
        <translation>Noch nicht bewertet</translation>
    </message>
    <message>
        <source>Album not Saved!</source>
        <translation>Album nicht gespeichert!</translation>
    </message>
    <message>
        <source>Enter at least the album and the artist.</source>
        <translation>Gib mindestens das Album und den Künstler ein.</translation>
    </message>
    <message>
        <source>The album is no longer on the wantlist.</source>
        <translation>Das Album steht nicht mehr auf der Wunschliste.</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Gekauft</translation>
    </message>
    <message>
        <source>What did &quot;%1&quot; cost?</source>
        <translation>Was hat „%1“ gekostet?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in the collection now, numbered %2.</source>
        <translation>„%1“ ist jetzt in der Sammlung, mit der Nummer %2.</translation>
    </message>
    <message>
        <source>On Your Wantlist</source>
        <translation>Auf deiner Wunschliste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; by %2 is on your wantlist. Take it off, now that it is in the collection?</source>
        <translation>„%1“ von %2 steht auf deiner Wunschliste. Jetzt, wo es in der Sammlung ist, streichen?</translation>
    </message>
    <message>
        <source>Take Off</source>
        <translation>Streichen</translation>
    </message>
    <message>
        <source>Delete Wanted Album?</source>
        <translation>Gesuchtes Album löschen?</translation>
    </message>
    <message>
        <source>Take &quot;%1&quot; by %2 off the wantlist?</source>
        <translation>„%1“ von %2 von der Wunschliste streichen?</translation>
    </message>
    <message>
        <source>%1 on line %2 is not a readable image; left out.</source>
        <translation>%1 in Zeile %2 ist kein lesbares Bild; ausgelassen.</translation>
    </message>
    <message>
        <source>The import was cancelled; nothing was changed.</source>
        <translation>Der Import wurde abgebrochen; es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>The import was stopped after %1 of %2 lines of the file; those lines were imported (%3). Undo Last Import puts the collection back as it was before.</source>
        <translation>Der Import wurde nach %1 von %2 Zeilen der Datei angehalten; diese Zeilen wurden importiert (%3). „Letzten Import rückgängig machen“ stellt die Sammlung wieder her, wie sie vorher war.</translation>
    </message>
    <message>
        <source>The first %1 lines of the file were imported before it; Undo Last Import puts the collection back as it was.</source>
        <translation>Die ersten %1 Zeilen der Datei wurden vorher importiert; „Letzten Import rückgängig machen“ stellt die Sammlung wieder her, wie sie war.</translation>
    </message>
    <message>
        <source>Nothing was imported; the collection is as it was.</source>
        <translation>Es wurde nichts importiert; die Sammlung ist unverändert.</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Data File Import Completed</source>
        <translation>Import der Datendatei abgeschlossen</translation>
    </message>
    <message>
        <source>no artist</source>
        <translation>kein Künstler</translation>
    </message>
    <message>
        <source>already on the wantlist</source>
        <translation>schon auf der Wunschliste</translation>
    </message>
    <message>
        <source>the same album as line %1</source>
        <translation>dasselbe Album wie Zeile %1</translation>
    </message>
    <message>
        <source>Priority &quot;%1&quot; is not 1, 2 or 3</source>
        <translation>Priorität „%1“ ist nicht 1, 2 oder 3</translation>
    </message>
    <message>
        <source>no CSV header line that names record attributes, and no Discogs wantlist header</source>
        <translation>keine CSV-Kopfzeile, die Plattenfelder nennt, und kein Kopf einer Discogs-Wunschliste</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a barcode: a barcode has 6 to 14 digits.</source>
        <translation>„%1“ ist kein Barcode: Ein Barcode hat 6 bis 14 Ziffern.</translation>
    </message>
    <message>
        <source>Type an artist and a title (&quot;Artist - Title&quot;), a title or a catalog number.</source>
        <translation>Gib Künstler und Titel („Künstler - Titel“), einen Titel oder eine Katalognummer ein.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a MusicBrainz release id.</source>
        <translation>„%1“ ist keine MusicBrainz-Release-ID.</translation>
    </message>
    <message>
        <source>%1 is not a web address: &quot;%2&quot;.</source>
        <translation>%1 ist keine Webadresse: „%2“.</translation>
    </message>
    <message>
        <source>Could not reach %1 (%2).</source>
        <translation>%1 ist nicht erreichbar (%2).</translation>
    </message>
    <message>
        <source>Error from %1: HTTP status %2.</source>
        <translation>Fehler von %1: HTTP-Status %2.</translation>
    </message>
    <message>
        <source>No answer from %1 within %2 seconds.</source>
        <translation>Keine Antwort von %1 innerhalb von %2 Sekunden.</translation>
    </message>
    <message>
        <source>No answer from %1: it is too busy (asked to slow down %2 times). Try again in a minute.</source>
        <translation>Keine Antwort von %1: Der Dienst ist überlastet (%2-mal um Geduld gebeten). Versuch es in einer Minute noch einmal.</translation>
    </message>
    <message>
        <source>The answer from %1 is larger than %2 MB and was not read.</source>
        <translation>Die Antwort von %1 ist größer als %2 MB und wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>MusicBrainz has no release %1.</source>
        <translation>MusicBrainz hat keine Veröffentlichung %1.</translation>
    </message>
    <message>
        <source>The look-up was cancelled.</source>
        <translation>Die Suche wurde abgebrochen.</translation>
    </message>
    <message>
        <source>MusicBrainz sent an answer that is not JSON (%1).</source>
        <translation>MusicBrainz hat eine Antwort geschickt, die kein JSON ist (%1).</translation>
    </message>
    <message>
        <source>MusicBrainz sent an answer without a list of releases.</source>
        <translation>MusicBrainz hat eine Antwort ohne Liste von Veröffentlichungen geschickt.</translation>
    </message>
    <message>
        <source>MusicBrainz sent an answer that is not a release.</source>
        <translation>MusicBrainz hat eine Antwort geschickt, die keine Veröffentlichung ist.</translation>
    </message>
    <message>
        <source>The %1 cover from the Cover Art Archive could not be read as a picture (%2).</source>
        <translation>Das Cover (%1) aus dem Cover Art Archive konnte nicht als Bild gelesen werden (%2).</translation>
    </message>
    <message>
        <source>The %1 cover from the Cover Art Archive is larger than %2 × %2 pixels and was not read.</source>
        <translation>Das Cover (%1) aus dem Cover Art Archive ist größer als %2 × %2 Pixel und wurde nicht gelesen.</translation>
    </message>
    <message>
        <source>front</source>
        <translation>vorne</translation>
    </message>
    <message>
        <source>%1 already has %2 copies, the most a record can hold.</source>
        <translation>%1 hat schon %2 Exemplare, so viele wie eine Platte haben kann.</translation>
    </message>
    <message>
        <source>back</source>
        <translation>hinten</translation>
    </message>
    <message>
        <source>Searching MusicBrainz for %1…</source>
        <translation>MusicBrainz wird nach %1 durchsucht …</translation>
    </message>
    <message>
        <source>Reading the barcode in %1…</source>
        <translation>Barcode in %1 wird gelesen …</translation>
    </message>
    <message>
        <source>%1 releases found. Choose yours.</source>
        <translation>%1 Veröffentlichungen gefunden. Wähle deine.</translation>
    </message>
    <message>
        <source>1 release found. Choose it if it is yours.</source>
        <translation>1 Veröffentlichung gefunden. Wähle sie, wenn es deine ist.</translation>
    </message>
    <message>
        <source>No release found for %1.</source>
        <translation>Keine Veröffentlichung für %1 gefunden.</translation>
    </message>
    <message>
        <source>Fetching &quot;%1&quot; with its tracks and covers…</source>
        <translation>„%1“ wird mit Titeln und Covern geladen …</translation>
    </message>
    <message>
        <source>%1 is already in the collection (%2).</source>
        <translation>%1 ist schon in der Sammlung (%2).</translation>
    </message>
    <message>
        <source>The record already has everything this release gives: there is nothing to fill in.</source>
        <translation>Die Platte hat schon alles, was diese Veröffentlichung bietet: Es gibt nichts zu ergänzen.</translation>
    </message>
    <message>
        <source>Covers not Loaded</source>
        <translation>Cover nicht geladen</translation>
    </message>
    <message>
        <source>%1 The record is filled in without its covers.</source>
        <translation>%1 Die Platte wird ohne Cover ausgefüllt.</translation>
    </message>
    <message>
        <source>Report not Created</source>
        <translation>Bericht nicht erstellt</translation>
    </message>
    <message>
        <source>Report not Printed</source>
        <translation>Bericht nicht gedruckt</translation>
    </message>
    <message>
        <source>The first record has no %1, so the document has no title.</source>
        <translation>Die erste Platte hat kein Feld %1, daher hat das Dokument keinen Titel.</translation>
    </message>
    <message>
        <source>The %1 of &quot;%2&quot; cannot be read as a number.</source>
        <translation>Das Feld %1 von „%2“ ist keine lesbare Zahl.</translation>
    </message>
    <message>
        <source>Print Vinyl</source>
        <translation>Platten drucken</translation>
    </message>
    <message>
        <source>Vinyl Collection Overview</source>
        <translation>Überblick über die Plattensammlung</translation>
    </message>
    <message>
        <source>Cancelled.</source>
        <translation>Abgebrochen.</translation>
    </message>
    <message>
        <source>Laying out pages</source>
        <translation>Seiten werden gesetzt</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Wird gedruckt</translation>
    </message>
    <message>
        <source>The record is lent to %1 already: it can be lent again once it is back.</source>
        <translation>Die Platte ist schon an %1 verliehen: Sie kann wieder verliehen werden, sobald sie zurück ist.</translation>
    </message>
    <message>
        <source>The record is not lent out.</source>
        <translation>Die Platte ist nicht verliehen.</translation>
    </message>
    <message>
        <source>This collection is read-only: %1. It can be browsed, searched, exported and backed up, but not changed; copy its folder to a place you can write to change it.</source>
        <translation>Diese Sammlung ist schreibgeschützt: %1. Sie kann durchsucht, exportiert und gesichert, aber nicht geändert werden; kopiere ihren Ordner an einen beschreibbaren Ort, um sie zu ändern.</translation>
    </message>
    <message>
        <source>the folder %1 cannot be written</source>
        <translation>der Ordner %1 ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>the file %1 cannot be written</source>
        <translation>die Datei %1 ist nicht beschreibbar</translation>
    </message>
    <message>
        <source>the disk refused a write to %1</source>
        <translation>der Datenträger hat das Schreiben nach %1 verweigert</translation>
    </message>
    <message>
        <source>This collection is read-only (%1) and was made by an older version of Platterbox; open a copy of its folder in a place you can write, and it is brought up to date.</source>
        <translation>Diese Sammlung ist schreibgeschützt (%1) und stammt von einer älteren Version von Platterbox; öffne eine Kopie ihres Ordners an einem beschreibbaren Ort, dann wird sie auf den neuesten Stand gebracht.</translation>
    </message>
    <message>
        <source>The collection is busy: another program is changing it. Try again in a moment.</source>
        <translation>Die Sammlung ist belegt: Ein anderes Programm ändert sie gerade. Versuch es gleich noch einmal.</translation>
    </message>
    <message>
        <source>By Name</source>
        <translation>Nach Name</translation>
    </message>
    <message>
        <source>By Year</source>
        <translation>Nach Jahr</translation>
    </message>
    <message>
        <source>Search by Year</source>
        <translation>Nach Jahr suchen</translation>
    </message>
    <message>
        <source>By Record Label</source>
        <translation>Nach Label</translation>
    </message>
    <message>
        <source>Search by Record Label</source>
        <translation>Nach Label suchen</translation>
    </message>
    <message>
        <source>By Artist</source>
        <translation>Nach Künstler</translation>
    </message>
    <message>
        <source>Search by Artist</source>
        <translation>Nach Künstler suchen</translation>
    </message>
    <message>
        <source>Overdue</source>
        <translation>Überfällig</translation>
    </message>
    <message>
        <source>On Loan</source>
        <translation>Verliehen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Record not Shared</source>
        <translation>Platte nicht geteilt</translation>
    </message>
    <message>
        <source>Remove Front Cover Image</source>
        <translation>Vorderes Coverbild entfernen</translation>
    </message>
    <message>
        <source>Remove Back Cover Image</source>
        <translation>Hinteres Coverbild entfernen</translation>
    </message>
    <message>
        <source>Not Lent</source>
        <translation>Nicht verliehen</translation>
    </message>
    <message>
        <source>Not Returned</source>
        <translation>Nicht zurückgegeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a day: write it as %2.</source>
        <translation>„%1“ ist kein Datum: Schreib es als %2.</translation>
    </message>
    <message>
        <source>Do You Want to Remove This Image?</source>
        <translation>Möchtest du dieses Bild entfernen?</translation>
    </message>
    <message>
        <source>Save To Files</source>
        <translation>In Dateien sichern</translation>
    </message>
    <message>
        <source>Data Export</source>
        <translation>Datenexport</translation>
    </message>
    <message>
        <source>Process Complete - File Ready to Save to Files or Email</source>
        <translation>Fertig – Datei bereit zum Speichern oder Versenden per E-Mail</translation>
    </message>
    <message>
        <source>Sending Email</source>
        <translation>E-Mail senden</translation>
    </message>
    <message>
        <source>Email not Setup or Unavailable</source>
        <translation>E-Mail nicht eingerichtet oder nicht verfügbar</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Undo Last Import</source>
        <translation>Letzten Import rückgängig machen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Data Import File</source>
        <translation>Datei importieren</translation>
    </message>
    <message>
        <source>File Loaded and Ready to Import</source>
        <translation>Datei geladen und bereit zum Import</translation>
    </message>
    <message>
        <source>Import Cancelled</source>
        <translation>Import abgebrochen</translation>
    </message>
    <message>
        <source>Wantlist Import Completed</source>
        <translation>Import in die Wunschliste abgeschlossen</translation>
    </message>
    <message>
        <source>Rate Platterbox</source>
        <translation>Platterbox bewerten</translation>
    </message>
    <message>
        <source>Share Platterbox with a Friend</source>
        <translation>Platterbox mit Freunden teilen</translation>
    </message>
    <message>
        <source>Share the Platterbox Website</source>
        <translation>Website von Platterbox teilen</translation>
    </message>
    <message>
        <source>Visit the Platterbox Website</source>
        <translation>Website von Platterbox besuchen</translation>
    </message>
    <message>
        <source>Send Feedback</source>
        <translation>Feedback senden</translation>
    </message>
    <message>
        <source>Click the following link to visit the Platterbox App website</source>
        <translation>Klicke auf den folgenden Link, um die Website der Platterbox-App zu besuchen</translation>
    </message>
    <message>
        <source>Your Device is not able to send text messages.</source>
        <translation>Dein Gerät kann keine Textnachrichten senden.</translation>
    </message>
    <message>
        <source>Can&apos;t Send Email</source>
        <translation>E-Mail kann nicht gesendet werden</translation>
    </message>
    <message>
        <source>Your Device is not able to send Email.</source>
        <translation>Dein Gerät kann keine E-Mails senden.</translation>
    </message>
    <message>
        <source>Groups</source>
        <translation>Gruppen</translation>
    </message>
    <message>
        <source>Add Vinyl</source>
        <translation>Platte hinzufügen</translation>
    </message>
    <message>
        <source>Valuation</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Wantlist</source>
        <translation>Wunschliste</translation>
    </message>
    <message>
        <source>Loans</source>
        <translation>Ausleihen</translation>
    </message>
    <message>
        <source>Reference Lists</source>
        <translation>Auswahllisten</translation>
    </message>
    <message>
        <source>Import / Export</source>
        <translation>Import / Export</translation>
    </message>
    <message>
        <source>Rate &amp; Share</source>
        <translation>Bewerten &amp; Teilen</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>Überblick</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Unresolved error </source>
        <translation>Ungelöster Fehler </translation>
    </message>
    <message>
        <source>Read-Only Collection</source>
        <translation>Schreibgeschützte Sammlung</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Platten</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplare</translation>
    </message>
    <message>
        <source>Total Cost</source>
        <translation>Gesamtkosten</translation>
    </message>
    <message>
        <source>Total Value</source>
        <translation>Gesamtwert</translation>
    </message>
    <message>
        <source>%1 (%2 overdue)</source>
        <translation>%1 (%2 überfällig)</translation>
    </message>
    <message>
        <source>Backing up the collection…</source>
        <translation>Die Sammlung wird gesichert …</translation>
    </message>
    <message>
        <source>The backup was cancelled; no file was written.</source>
        <translation>Die Sicherung wurde abgebrochen; es wurde keine Datei geschrieben.</translation>
    </message>
    <message>
        <source>The collection could not be backed up.</source>
        <translation>Die Sammlung konnte nicht gesichert werden.</translation>
    </message>
    <message>
        <source>%1 and %2 cover files were backed up to &quot;%3&quot;.</source>
        <translation>%1 und %2 Cover-Dateien wurden nach „%3“ gesichert.</translation>
    </message>
    <message>
        <source>Checking the backup…</source>
        <translation>Die Sicherung wird geprüft …</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>Restoring the collection…</source>
        <translation>Die Sammlung wird wiederhergestellt …</translation>
    </message>
    <message>
        <source>The restore was cancelled.</source>
        <translation>Die Wiederherstellung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The collection is as it was.</source>
        <translation>Die Sammlung ist unverändert.</translation>
    </message>
    <message>
        <source>The collection was restored from &quot;%1&quot;.</source>
        <translation>Die Sammlung wurde aus „%1“ wiederhergestellt.</translation>
    </message>
    <message>
        <source>There is no import or restore to undo.</source>
        <translation>Es gibt keinen Import und keine Wiederherstellung zum Rückgängigmachen.</translation>
    </message>
    <message>
        <source>Putting the collection back…</source>
        <translation>Die Sammlung wird zurückgesetzt …</translation>
    </message>
    <message>
        <source>The collection is back as it was.</source>
        <translation>Die Sammlung ist wieder wie vorher.</translation>
    </message>
    <message>
        <source>1 cover picture could not be read and was left out.</source>
        <translation>1 Coverbild konnte nicht gelesen werden und wurde ausgelassen.</translation>
    </message>
    <message>
        <source>%1 cover pictures could not be read and were left out.</source>
        <translation>%1 Coverbilder konnten nicht gelesen werden und wurden ausgelassen.</translation>
    </message>
    <message>
        <source>Not read: </source>
        <translation>Nicht gelesen: </translation>
    </message>
    <message>
        <source>YOU CAN IMPORT THE FILE CREATED BY THIS APP, A DISCOGS COLLECTION EXPORT OR A CSV FILE.</source>
        <translation>DU KANNST DIE VON DIESER APP ERSTELLTE DATEI, EINEN DISCOGS-SAMMLUNGSEXPORT ODER EINE CSV-DATEI IMPORTIEREN.</translation>
    </message>
    <message>
        <source>1: Select the file you saved to your iCloud drive</source>
        <translation>1: Wähle die Datei, die du in deinem iCloud Drive gespeichert hast</translation>
    </message>
    <message>
        <source>2: Import the file into your device</source>
        <translation>2: Importiere die Datei auf dein Gerät</translation>
    </message>
    <message>
        <source>With Into the Wantlist on, a Discogs wantlist export or a CSV file adds its albums to the wantlist.</source>
        <translation>Mit „In die Wunschliste“ setzt ein Discogs-Wunschlistenexport oder eine CSV-Datei ihre Alben auf die Wunschliste.</translation>
    </message>
    <message>
        <source>The file could not be read.</source>
        <translation>Die Datei konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>List by Artist</source>
        <translation>Nach Künstler</translation>
    </message>
    <message>
        <source>Search by Album Name</source>
        <translation>Nach Albumname suchen</translation>
    </message>
    <message>
        <source>List by Producer</source>
        <translation>Nach Produzent</translation>
    </message>
    <message>
        <source>Search by Producer</source>
        <translation>Nach Produzent suchen</translation>
    </message>
    <message>
        <source>List by Year</source>
        <translation>Nach Jahr</translation>
    </message>
    <message>
        <source>Search by Release Date</source>
        <translation>Nach Erscheinungsdatum suchen</translation>
    </message>
    <message>
        <source>Valuation for displayed vinyl&apos;s: </source>
        <translation>Wert der angezeigten Platten: </translation>
    </message>
    <message>
        <source># Vinyl Records = %1 of %2</source>
        <translation># Platten = %1 von %2</translation>
    </message>
    <message>
        <source>The picture could not be stored as JPEG.</source>
        <translation>Das Bild konnte nicht als JPEG gespeichert werden.</translation>
    </message>
    <message>
        <source>Quantity &quot;%1&quot; is not a whole number from 0 to 32767.</source>
        <translation>Menge „%1“ ist keine ganze Zahl von 0 bis 32767.</translation>
    </message>
    <message>
        <source>Run Length &quot;%1&quot; is not a number of minutes.</source>
        <translation>Spieldauer „%1“ ist keine Zahl von Minuten.</translation>
    </message>
    <message>
        <source>%1 &quot;%2&quot; is not an amount.</source>
        <translation>%1 „%2“ ist kein Betrag.</translation>
    </message>
    <message>
        <source>There is no picture to store.</source>
        <translation>Es gibt kein Bild zum Speichern.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read as a picture (%2).</source>
        <translation>„%1“ konnte nicht als Bild gelesen werden (%2).</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Value over Time</source>
        <translation>Wert im Zeitverlauf</translation>
    </message>
    <message>
        <source>Records per Decade</source>
        <translation>Platten pro Jahrzehnt</translation>
    </message>
    <message>
        <source>Records per Year</source>
        <translation>Platten pro Jahr</translation>
    </message>
    <message>
        <source>Top 10 Artists by Records</source>
        <translation>Top 10 Künstler nach Platten</translation>
    </message>
    <message>
        <source>Top 10 Artists by Value</source>
        <translation>Top 10 Künstler nach Wert</translation>
    </message>
    <message>
        <source>Top 10 Labels by Records</source>
        <translation>Top 10 Labels nach Platten</translation>
    </message>
    <message>
        <source>Top 10 Labels by Value</source>
        <translation>Top 10 Labels nach Wert</translation>
    </message>
    <message>
        <source>Record Condition</source>
        <translation>Zustand der Platte</translation>
    </message>
    <message>
        <source>Cover Condition</source>
        <translation>Zustand des Covers</translation>
    </message>
    <message>
        <source>Speeds</source>
        <translation>Geschwindigkeiten</translation>
    </message>
    <message>
        <source>Album Types</source>
        <translation>Albumarten</translation>
    </message>
    <message>
        <source>Top 10 Gains against Cost</source>
        <translation>Top 10 Wertzuwächse gegenüber den Kosten</translation>
    </message>
    <message>
        <source>Cannot total the collection: %1</source>
        <translation>Die Sammlung kann nicht summiert werden: %1</translation>
    </message>
    <message>
        <source>Duration must be a number, such as %1.</source>
        <translation>Die Dauer muss eine Zahl sein, etwa %1.</translation>
    </message>
    <message>
        <source>Track # %1</source>
        <translation>Titel Nr. %1</translation>
    </message>
    <message>
        <source>Duration: %1</source>
        <translation>Dauer: %1</translation>
    </message>
    <message>
        <source>Written By: %1</source>
        <translation>Autor: %1</translation>
    </message>
    <message>
        <source>Records held: %1
Total value: %2
</source>
        <translation>Platten im Besitz: %1
Gesamtwert: %2
</translation>
    </message>
    <message>
        <source>Nothing on the wantlist yet: add the albums you are looking for, with the most you would pay.</source>
        <translation>Noch nichts auf der Wunschliste: Füge die Alben hinzu, die du suchst, mit dem Höchstpreis, den du zahlen würdest.</translation>
    </message>
    <message>
        <source>1 album wanted</source>
        <translation>1 Album gesucht</translation>
    </message>
    <message>
        <source>%1 albums wanted</source>
        <translation>%1 Alben gesucht</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>The export was cancelled.</source>
        <translation>Der Export wurde abgebrochen.</translation>
    </message>
    <message>
        <source>Platterbox exchange file</source>
        <translation>Platterbox-Austauschdatei</translation>
    </message>
    <message>
        <source>Discogs collection export</source>
        <translation>Discogs-Sammlungsexport</translation>
    </message>
    <message>
        <source>CSV file</source>
        <translation>CSV-Datei</translation>
    </message>
    <message>
        <source>Not a file Platterbox can read</source>
        <translation>Keine Datei, die Platterbox lesen kann</translation>
    </message>
    <message>
        <source>The collection could not be kept before the import, so nothing was imported. %1</source>
        <translation>Die Sammlung konnte vor dem Import nicht festgehalten werden, daher wurde nichts importiert. %1</translation>
    </message>
    <message>
        <source>%1 new, %2 updated, %3 unchanged, %4 %5</source>
        <translation>%1 neu, %2 geändert, %3 unverändert, %4 %5</translation>
    </message>
    <message>
        <source>problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>artist</source>
        <translation>Künstler</translation>
    </message>
    <message>
        <source>producer</source>
        <translation>Produzent</translation>
    </message>
    <message>
        <source>record label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>release date</source>
        <translation>Erscheinungsdatum</translation>
    </message>
    <message>
        <source>cost</source>
        <translation>Kosten</translation>
    </message>
    <message>
        <source>value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>No such page.</source>
        <translation>Diese Seite gibt es nicht.</translation>
    </message>
    <message>
        <source>Vinyl Collection</source>
        <translation>Plattensammlung</translation>
    </message>
    <message>
        <source>Filtered list</source>
        <translation>Gefilterte Liste</translation>
    </message>
    <message>
        <source>Collection report</source>
        <translation>Sammlungsbericht</translation>
    </message>
    <message>
        <source>Qty: %1 - Cost: %2 - Total Value (Qty * Value): %3</source>
        <translation>Anz.: %1 - Kosten: %2 - Gesamtwert (Anz. * Wert): %3</translation>
    </message>
    <message>
        <source>Complete List of Vinyl</source>
        <translation>Vollständige Plattenliste</translation>
    </message>
    <message>
        <source>Vinyl&apos;s Filtered by Artist: </source>
        <translation>Platten gefiltert nach Künstler: </translation>
    </message>
    <message>
        <source>Vinyl&apos;s Filtered by Release Date: </source>
        <translation>Platten gefiltert nach Erscheinungsdatum: </translation>
    </message>
    <message>
        <source>Vinyl&apos;s Filtered by Producer: </source>
        <translation>Platten gefiltert nach Produzent: </translation>
    </message>
    <message>
        <source>Vinyl&apos;s Filtered by Record Label: </source>
        <translation>Platten gefiltert nach Label: </translation>
    </message>
    <message>
        <source>Vinyl Filtered by Artist: </source>
        <translation>Platten gefiltert nach Künstler: </translation>
    </message>
    <message>
        <source>Vinyl Filtered by Record Label: </source>
        <translation>Platten gefiltert nach Label: </translation>
    </message>
    <message>
        <source>Vinyl Filtered by Producer: </source>
        <translation>Platten gefiltert nach Produzent: </translation>
    </message>
    <message>
        <source>Vinyl Filtered by Year: </source>
        <translation>Platten gefiltert nach Jahr: </translation>
    </message>
    <message>
        <source>Album: </source>
        <translation>Album: </translation>
    </message>
    <message>
        <source>Album Name: </source>
        <translation>Albumname: </translation>
    </message>
    <message>
        <source>Name: </source>
        <translation>Name: </translation>
    </message>
    <message>
        <source>Artist: </source>
        <translation>Künstler: </translation>
    </message>
    <message>
        <source>Year Issued: </source>
        <translation>Erscheinungsjahr: </translation>
    </message>
    <message>
        <source>Release Date: </source>
        <translation>Erscheinungsdatum: </translation>
    </message>
    <message>
        <source>Date Released: </source>
        <translation>Erschienen: </translation>
    </message>
    <message>
        <source>Record Label: </source>
        <translation>Label: </translation>
    </message>
    <message>
        <source>Producer: </source>
        <translation>Produzent: </translation>
    </message>
    <message>
        <source>Quantity: </source>
        <translation>Menge: </translation>
    </message>
    <message>
        <source>Speed: </source>
        <translation>Tempo: </translation>
    </message>
    <message>
        <source>Record Speed: </source>
        <translation>Geschwindigkeit: </translation>
    </message>
    <message>
        <source>Length: </source>
        <translation>Länge: </translation>
    </message>
    <message>
        <source>Record Length (min): </source>
        <translation>Spieldauer (min): </translation>
    </message>
    <message>
        <source>Run Length (min): </source>
        <translation>Spieldauer (min): </translation>
    </message>
    <message>
        <source> min</source>
        <translation> min</translation>
    </message>
    <message>
        <source>Type: </source>
        <translation>Art: </translation>
    </message>
    <message>
        <source>Single/Double: </source>
        <translation>Einfach/Doppel: </translation>
    </message>
    <message>
        <source>Vinyl Condition: </source>
        <translation>Zustand der Platte: </translation>
    </message>
    <message>
        <source>Cover Condition: </source>
        <translation>Zustand des Covers: </translation>
    </message>
    <message>
        <source>Cost: </source>
        <translation>Kosten: </translation>
    </message>
    <message>
        <source>Value: </source>
        <translation>Wert: </translation>
    </message>
    <message>
        <source>Est. Value: </source>
        <translation>Gesch. Wert: </translation>
    </message>
    <message>
        <source>Total Value: </source>
        <translation>Gesamtwert: </translation>
    </message>
    <message>
        <source>Notes: </source>
        <translation>Notizen: </translation>
    </message>
    <message>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <source>Step 1: Create the Export File
Step 2: Option 1: Click &apos;Save To Files&apos; button
             Option 2: Click the Email File button to email the file to yourself and then from your email save the file to your iCloud Drive. There are size limits to email attachments for most carriers.</source>
        <translation>Schritt 1: Exportdatei erstellen
Schritt 2: Möglichkeit 1: Auf „In Dateien sichern“ klicken
             Möglichkeit 2: Auf „E-Mail“ klicken, um dir die Datei selbst zu schicken, und sie dann aus deiner E-Mail in dein iCloud Drive sichern. Die meisten Anbieter begrenzen die Größe von E-Mail-Anhängen.</translation>
    </message>
    <message>
        <source>The collection could not be read: %1</source>
        <translation>Die Sammlung konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Track %1: %2</source>
        <translation>Titel %1: %2</translation>
    </message>
    <message>
        <source> (record %1)</source>
        <translation> (Platte %1)</translation>
    </message>
    <message>
        <source>Conditions: %1</source>
        <translation>Zustände: %1</translation>
    </message>
    <message>
        <source>The overview document is missing from this build.</source>
        <translation>Das Überblicksdokument fehlt in diesem Build.</translation>
    </message>
    <message>
        <source>The printer could not be used.</source>
        <translation>Der Drucker konnte nicht verwendet werden.</translation>
    </message>
    <message>
        <source>Records in the %1</source>
        <translation>Platten der %1</translation>
    </message>
    <message>
        <source>Sort by name</source>
        <translation>Nach Name sortieren</translation>
    </message>
    <message>
        <source>Sort by year</source>
        <translation>Nach Jahr sortieren</translation>
    </message>
    <message>
        <source>Sort by record label</source>
        <translation>Nach Label sortieren</translation>
    </message>
    <message>
        <source>Sort by artist</source>
        <translation>Nach Künstler sortieren</translation>
    </message>
    <message>
        <source>Gain</source>
        <translation>Wertzuwachs</translation>
    </message>
    <message>
        <source>Loss</source>
        <translation>Wertverlust</translation>
    </message>
    <message>
        <source>other texts that are no grade: kept in the notes</source>
        <translation>weitere Texte, die keine Bewertung sind: in den Notizen behalten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no grade: kept in the notes</source>
        <translation>„%1“ ist keine Bewertung: in den Notizen behalten</translation>
    </message>
    <message>
        <source>Record Number</source>
        <translation>Plattennummer</translation>
    </message>
    <message>
        <source>Album Name</source>
        <translation>Albumname</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Künstler</translation>
    </message>
    <message>
        <source>Release Date</source>
        <translation>Erscheinungsdatum</translation>
    </message>
    <message>
        <source>Record Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Run Length (min)</source>
        <translation>Spieldauer (min)</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Produzent</translation>
    </message>
    <message>
        <source>Vinyl Condition</source>
        <translation>Zustand der Platte</translation>
    </message>
    <message>
        <source>Record Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Single/Double</source>
        <translation>Einfach/Doppel</translation>
    </message>
    <message>
        <source>Est. Value</source>
        <translation>Gesch. Wert</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>MusicBrainz Release ID</source>
        <translation>MusicBrainz-Release-ID</translation>
    </message>
    <message>
        <source>Vinyl ID</source>
        <translation>Platten-ID</translation>
    </message>
    <message>
        <source>Track #</source>
        <translation>Titel Nr.</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Written By</source>
        <translation>Geschrieben von</translation>
    </message>
    <message>
        <source>record</source>
        <translation>Platte</translation>
    </message>
    <message>
        <source>records</source>
        <translation>Platten</translation>
    </message>
    <message>
        <source>track</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>1 record</source>
        <translation>1 Platte</translation>
    </message>
    <message>
        <source>%1 records</source>
        <translation>%1 Platten</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Unchanged</source>
        <translation>Unverändert</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Album</source>
        <translation>Album</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Speed</source>
        <translation>Tempo</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Gesamt</translation>
    </message>
</context>
<context>
    <name>PrintVinylView</name>
    <message>
        <source>Page %1 of the report</source>
        <translation>Seite %1 des Berichts</translation>
    </message>
    <message>
        <source>Rebuild</source>
        <translation>Neu aufbauen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
</context>
<context>
    <name>ProgressPanel</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gesichert</translation>
    </message>
    <message>
        <source>Open %1 now?</source>
        <translation>%1 jetzt öffnen?</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Copied to the clipboard.</source>
        <translation>In die Zwischenablage kopiert.</translation>
    </message>
</context>
<context>
    <name>RateShareTableView</name>
    <message>
        <source>Rate &amp; Share</source>
        <translation>Bewerten &amp; Teilen</translation>
    </message>
</context>
<context>
    <name>RecordCameraPage</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Take Photo</source>
        <translation>Foto aufnehmen</translation>
    </message>
</context>
<context>
    <name>RecordCardModel</name>
    <message>
        <source>, </source>
        <comment>between the parts of a record card read out</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>RecordFormField</name>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
</context>
<context>
    <name>RecordFormPanel</name>
    <message>
        <source>Choose a Cover Picture</source>
        <translation>Coverbild wählen</translation>
    </message>
    <message>
        <source>Pictures (*.jpg *.jpeg *.png)</source>
        <translation>Bilder (*.jpg *.jpeg *.png)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Front Cover</source>
        <translation>Vorderseite</translation>
    </message>
    <message>
        <source>Back Cover</source>
        <translation>Rückseite</translation>
    </message>
    <message>
        <source>No Picture</source>
        <translation>Kein Bild</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Camera</source>
        <translation>Kamera</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Ordner</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Album Name</source>
        <translation>Albumname</translation>
    </message>
    <message>
        <source>Artist</source>
        <translation>Künstler</translation>
    </message>
    <message>
        <source>Release Date</source>
        <translation>Erscheinungsdatum</translation>
    </message>
    <message>
        <source>Tap to choose</source>
        <translation>Tippen zum Auswählen</translation>
    </message>
    <message>
        <source>Record Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Anzahl</translation>
    </message>
    <message>
        <source>Run Length (min)</source>
        <translation>Spieldauer (min)</translation>
    </message>
    <message>
        <source>Producer</source>
        <translation>Produzent</translation>
    </message>
    <message>
        <source>Barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>Vinyl Condition</source>
        <translation>Zustand der Platte</translation>
    </message>
    <message>
        <source>Cover Condition</source>
        <translation>Zustand des Covers</translation>
    </message>
    <message>
        <source>Record Speed</source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message>
        <source>Single/Double</source>
        <translation>Einfach/Doppel</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Est. Value</source>
        <translation>Gesch. Wert</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Tracks, stored when the record is saved</source>
        <translation>Titel, gespeichert mit der Platte</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>No entries</source>
        <translation>Keine Einträge</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
</context>
<context>
    <name>ReferenceListsView</name>
    <message>
        <source>Reference Lists</source>
        <translation>Auswahllisten</translation>
    </message>
    <message>
        <source>The grades offered when you describe a record&apos;s condition and its cover&apos;s condition.</source>
        <translation>Die Stufen, die zur Wahl stehen, wenn du den Zustand einer Platte und ihres Covers beschreibst.</translation>
    </message>
    <message>
        <source>Vinyl Condition</source>
        <translation>Zustand der Platte</translation>
    </message>
    <message>
        <source>Cover Condition</source>
        <translation>Zustand des Covers</translation>
    </message>
</context>
<context>
    <name>ScreenPage</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
</context>
<context>
    <name>StatisticsView</name>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>All Decades</source>
        <translation>Alle Jahrzehnte</translation>
    </message>
</context>
<context>
    <name>SwipeRow</name>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
    <message>
        <source>delete</source>
        <translation>löschen</translation>
    </message>
</context>
<context>
    <name>TracksFormScreen</name>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Track #</source>
        <translation>Titel-Nr.</translation>
    </message>
    <message>
        <source>Song</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>Dauer</translation>
    </message>
    <message>
        <source>Written By</source>
        <translation>Geschrieben von</translation>
    </message>
</context>
<context>
    <name>TracksListModel</name>
    <message>
        <source>, </source>
        <comment>between the parts of a track read out</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>TracksTableView</name>
    <message>
        <source>Tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Sort</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Add Track</source>
        <translation>Titel hinzufügen</translation>
    </message>
</context>
<context>
    <name>ValuationRowModel</name>
    <message>
        <source>, </source>
        <comment>between the parts of a valuation row read out</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>ValuationTableViewCell</name>
    <message>
        <source>Front cover of %1</source>
        <translation>Vorderes Cover von %1</translation>
    </message>
</context>
<context>
    <name>ValuationView</name>
    <message>
        <source>Valuation</source>
        <translation>Bewertung</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>Records held</source>
        <translation>Platten im Bestand</translation>
    </message>
    <message>
        <source>Total value</source>
        <translation>Gesamtwert</translation>
    </message>
    <message>
        <source>Album name</source>
        <translation>Albumname</translation>
    </message>
    <message>
        <source>Search Web</source>
        <translation>Im Web suchen</translation>
    </message>
    <message>
        <source>Popsike</source>
        <translation>Popsike</translation>
    </message>
    <message>
        <source>ValueYourMusic</source>
        <translation>ValueYourMusic</translation>
    </message>
    <message>
        <source>New value</source>
        <translation>Neuer Wert</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Save the new value</source>
        <translation>Neuen Wert speichern</translation>
    </message>
</context>
<context>
    <name>ValueHistoryPanel</name>
    <message>
        <source>Value History</source>
        <translation>Wertverlauf</translation>
    </message>
    <message>
        <source>No value kept yet</source>
        <translation>Noch kein Wert gespeichert</translation>
    </message>
</context>
<context>
    <name>WantedView</name>
    <message>
        <source>Add Wanted Album</source>
        <translation>Gesuchtes Album hinzufügen</translation>
    </message>
    <message>
        <source>Wanted Album</source>
        <translation>Gesucht</translation>
    </message>
    <message>
        <source>Look Up</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Got It</source>
        <translation>Gekauft</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Most I Would Pay</source>
        <translation>Höchstens bezahlen</translation>
    </message>
    <message>
        <source>Priority</source>
        <translation>Priorität</translation>
    </message>
    <message>
        <source>Tracks</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
</context>
<context>
    <name>WantlistView</name>
    <message>
        <source>Wantlist</source>
        <translation>Wunschliste</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Search album or artist</source>
        <translation>Album oder Künstler suchen</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>%1 löschen</translation>
    </message>
</context>
<context>
    <name>WantlistViewController</name>
    <message>
        <source>, </source>
        <comment>between the parts of a wanted album read out</comment>
        <translation>, </translation>
    </message>
</context>
<context>
    <name>ZoomView</name>
    <message>
        <source>Cover Images</source>
        <translation>Coverbilder</translation>
    </message>
    <message>
        <source>Share</source>
        <translation>Teilen</translation>
    </message>
    <message>
        <source>This record has no cover images.</source>
        <translation>Diese Platte hat keine Coverbilder.</translation>
    </message>
    <message>
        <source>Cover picture %1 of %2</source>
        <translation>Coverbild %1 von %2</translation>
    </message>
</context>
</TS>
