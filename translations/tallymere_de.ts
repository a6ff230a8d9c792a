<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>Base</name>
    <message>
        <source>The Corvane database has not been defined. The application can not continue. Corvane will now terminate...</source>
        <translation>Die Corvane-Datenbank wurde nicht festgelegt. Die Anwendung kann nicht fortgesetzt werden. Corvane wird jetzt beendet...</translation>
    </message>
    <message>
        <source>The Corvane database:
%1
does not appear to be valid. Corvane will now terminate...</source>
        <translation>Die Corvane-Datenbank:
%1
ist offenbar nicht gültig. Corvane wird jetzt beendet...</translation>
    </message>
    <message>
        <source>The text is not UTF-8. Save the file in UTF-8 and try again.</source>
        <translation>Der Text ist nicht in UTF-8. Speichern Sie die Datei in UTF-8, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>There is a zero byte in the text. This is no CSV file in UTF-8.</source>
        <translation>Der Text enthält ein Nullbyte. Dies ist keine CSV-Datei in UTF-8.</translation>
    </message>
    <message>
        <source>There is a text here that is larger than any field takes.</source>
        <translation>Hier steht ein Text, der für jedes Feld zu groß ist.</translation>
    </message>
    <message>
        <source>There is a quote inside a field that does not begin with one.</source>
        <translation>Ein Anführungszeichen steht innerhalb eines Feldes, das nicht mit einem beginnt.</translation>
    </message>
    <message>
        <source>The quote that opens on this line never closes.</source>
        <translation>Das Anführungszeichen, das in dieser Zeile öffnet, wird nirgends geschlossen.</translation>
    </message>
    <message>
        <source>There is text after a closing quote.</source>
        <translation>Nach einem schließenden Anführungszeichen folgt noch Text.</translation>
    </message>
    <message>
        <source>The output could not be written: %1</source>
        <translation>Die Ausgabe konnte nicht geschrieben werden: %1</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is out of range</source>
        <translation>„%1“ liegt außerhalb des zulässigen Bereichs</translation>
    </message>
    <message>
        <source>%1 is more than a year away from today.
Do you want this date all the same?</source>
        <translation>%1 liegt mehr als ein Jahr von heute entfernt.
Möchten Sie dieses Datum trotzdem?</translation>
    </message>
    <message>
        <source>%1 is not a valid value for field &apos;%2&apos;. The allowed range is 1 to 12</source>
        <translation>%1 ist kein gültiger Wert für das Feld „%2“. Zulässig sind 1 bis 12</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; may hold letters only</source>
        <translation>%1 „%2“ darf nur Buchstaben enthalten</translation>
    </message>
    <message>
        <source>You do not have a default printer defined.

To preview or print reports a printer must be defined, though not necessarily attached.</source>
        <translation>Es ist kein Standarddrucker festgelegt.

Für Vorschau und Druck von Berichten muss ein Drucker festgelegt, aber nicht unbedingt angeschlossen sein.</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Bestätigung</translation>
    </message>
    <message>
        <source>The rows that were read cannot be kept in &apos;%1&apos;...
%2</source>
        <translation>Die gelesenen Zeilen können nicht in „%1“ abgelegt werden...
%2</translation>
    </message>
    <message>
        <source>Unable to save &apos;%1&apos;...
%2</source>
        <translation>„%1“ kann nicht gespeichert werden...
%2</translation>
    </message>
    <message>
        <source>Error in Opening Corvane Key</source>
        <translation>Fehler beim Öffnen des Corvane-Schlüssels</translation>
    </message>
    <message>
        <source>This is a disk, not a file.</source>
        <translation>Das ist ein Datenträger, keine Datei.</translation>
    </message>
    <message>
        <source>Nobody reads from this pipe.</source>
        <translation>Niemand liest aus dieser Pipe.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a whole number</source>
        <translation>„%1“ ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number</source>
        <translation>„%1“ ist keine Zahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a valid date. It is entered as %2.</source>
        <translation>„%1“ ist kein gültiges Datum. Die Eingabe erfolgt als %2.</translation>
    </message>
    <message>
        <source>The data in %1 are of a newer release, %2, and this one, %3, would take out what it does not know. Nothing has been changed. Install that release or a later one to work with them (data version %4; this release knows %5).</source>
        <translation>Die Daten in %1 stammen aus einer neueren Version, %2, und diese Version, %3, würde entfernen, was sie nicht kennt. Es wurde nichts geändert. Installieren Sie jene oder eine spätere Version, um mit ihnen zu arbeiten (Datenversion %4; diese Version kennt %5).</translation>
    </message>
    <message>
        <source>cannot be read, error %1</source>
        <translation>nicht lesbar, Fehler %1</translation>
    </message>
    <message>
        <source>Server, %1</source>
        <translation>Server, %1</translation>
    </message>
    <message>
        <source>Folder, %1</source>
        <translation>Ordner, %1</translation>
    </message>
    <message>
        <source>none</source>
        <translation>keine</translation>
    </message>
    <message>
        <source>%1, from release %2</source>
        <translation>%1, aus Version %2</translation>
    </message>
    <message>
        <source>no temporary file could be made in %1</source>
        <translation>in %1 konnte keine temporäre Datei angelegt werden</translation>
    </message>
    <message>
        <source>There are more rows than a sheet can hold (%1). Save as CSV instead.</source>
        <translation>Es sind mehr Zeilen, als ein Blatt aufnehmen kann (%1). Speichern Sie stattdessen als CSV.</translation>
    </message>
    <message>
        <source>Row %1: the text in %2 is longer than a cell can hold (%3 characters). Save as CSV instead.</source>
        <translation>Zeile %1: Der Text in %2 ist länger, als eine Zelle aufnehmen kann (%3 Zeichen). Speichern Sie stattdessen als CSV.</translation>
    </message>
    <message>
        <source>As of %1, from the primary server: the standby server is too far behind</source>
        <translation>Stand %1, vom Hauptserver: Der Bereitschaftsserver liegt zu weit zurück</translation>
    </message>
    <message>
        <source>As of %1, from the primary server: the standby server has ended the reading</source>
        <translation>Stand %1, vom Hauptserver: Der Bereitschaftsserver hat das Lesen beendet</translation>
    </message>
    <message>
        <source>As of %1, from the primary server: there is no standby server to read from</source>
        <translation>Stand %1, vom Hauptserver: Es gibt keinen Bereitschaftsserver, von dem gelesen werden kann</translation>
    </message>
    <message>
        <source>As of %1, from the standby server %2</source>
        <translation>Stand %1, vom Bereitschaftsserver %2</translation>
    </message>
    <message>
        <source>As of %1, %n second behind, from the standby server %2</source>
        <translation>Stand %1, %n Sekunde zurück, vom Bereitschaftsserver %2</translation>
    </message>
    <message>
        <source>As of %1, %n seconds behind, from the standby server %2</source>
        <translation>Stand %1, %n Sekunden zurück, vom Bereitschaftsserver %2</translation>
    </message>
    <message>
        <source>(the decimal sign is &apos;%1&apos;, as in %2)</source>
        <translation>(das Dezimalzeichen ist „%1“, wie in %2)</translation>
    </message>
</context>
<context>
    <name>Books</name>
    <message>
        <source>There are books already in %1. Nothing has been changed.</source>
        <translation>In %1 sind bereits Bücher. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>the server %1</source>
        <translation>Server %1</translation>
    </message>
    <message>
        <source>Enter the name of the company.</source>
        <translation>Geben Sie den Namen der Firma ein.</translation>
    </message>
    <message>
        <source>Choose the folder for the books.</source>
        <translation>Wählen Sie den Ordner für die Bücher.</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>Der Ordner %1 konnte nicht angelegt werden: %2</translation>
    </message>
</context>
<context>
    <name>Care</name>
    <message>
        <source>Nothing can be written in %1: %2</source>
        <translation>In %1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 cannot be copied into %2. Is there room on the disk?</source>
        <translation>%1 kann nicht nach %2 kopiert werden. Ist auf dem Datenträger genug Platz?</translation>
    </message>
    <message>
        <source>%1 could not be written: %2</source>
        <translation>%1 konnte nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>%1 could not be written: there is a file of this name by now.</source>
        <translation>%1 konnte nicht geschrieben werden: Inzwischen gibt es eine Datei dieses Namens.</translation>
    </message>
    <message>
        <source>The disk of %1 has %2 MB left, and %3 MB are needed.</source>
        <translation>Auf dem Datenträger von %1 sind noch %2 MB frei, benötigt werden %3 MB.</translation>
    </message>
    <message>
        <source>%1 exists already. Choose another name.</source>
        <translation>%1 ist bereits vorhanden. Wählen Sie einen anderen Namen.</translation>
    </message>
    <message>
        <source>%1 is damaged: %2</source>
        <translation>%1 ist beschädigt: %2</translation>
    </message>
    <message>
        <source>%1 does not hold all of the table %2.</source>
        <translation>%1 enthält die Tabelle %2 nicht vollständig.</translation>
    </message>
    <message>
        <source>Restored from the backup %1</source>
        <translation>Wiederhergestellt aus der Sicherung %1</translation>
    </message>
    <message>
        <source>This backup is of a newer release: its table %1 has a field %2 that this one does not know and would take out. Restore it with that release.</source>
        <translation>Diese Sicherung stammt aus einer neueren Version: Ihre Tabelle %1 hat ein Feld %2, das diese Version nicht kennt und entfernen würde. Stellen Sie sie mit jener Version wieder her.</translation>
    </message>
    <message>
        <source>%1 is no backup of a database, or it is damaged.</source>
        <translation>%1 ist keine Sicherung einer Datenbank oder beschädigt.</translation>
    </message>
    <message>
        <source>There is no file %1.</source>
        <translation>Die Datei %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Only a database in a folder can be kept as it stands.</source>
        <translation>Nur eine Datenbank in einem Ordner kann unverändert aufbewahrt werden.</translation>
    </message>
    <message>
        <source>%1 holds a database already.</source>
        <translation>%1 enthält bereits eine Datenbank.</translation>
    </message>
    <message>
        <source>Choose a folder for the daily backups.</source>
        <translation>Wählen Sie einen Ordner für die täglichen Sicherungen.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Der Ordner %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The backup was made, but the older one %1 could not be removed.</source>
        <translation>Die Sicherung wurde erstellt, aber die ältere Sicherung %1 konnte nicht entfernt werden.</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>On hand is %1, the history comes to %2.</source>
        <translation>Der Bestand ist %1, die Bewegungen ergeben %2.</translation>
    </message>
    <message>
        <source>Totals and values count %1 that no document accounts for.</source>
        <translation>Bestände und Werte enthalten eine Menge von %1, die kein Beleg erklärt.</translation>
    </message>
    <message>
        <source>Count the item once its documents are in order.</source>
        <translation>Zählen Sie den Artikel, sobald seine Belege in Ordnung sind.</translation>
    </message>
    <message>
        <source>Count the item. What a host has brought along without a history is right as it is.</source>
        <translation>Zählen Sie den Artikel. Was ein Host-Programm ohne Bewegungen mitgebracht hat, ist richtig, wie es ist.</translation>
    </message>
    <message>
        <source>This could not be checked to its end: %1</source>
        <translation>Dies konnte nicht zu Ende geprüft werden: %1</translation>
    </message>
    <message>
        <source>What stands there is missing in all figures.</source>
        <translation>Was dort steht, fehlt in allen Zahlen.</translation>
    </message>
    <message>
        <source>Restore the last backup, or let a damaged table be mended.</source>
        <translation>Stellen Sie die letzte Sicherung wieder her, oder lassen Sie eine beschädigte Tabelle reparieren.</translation>
    </message>
    <message>
        <source>Structure</source>
        <translation>Struktur</translation>
    </message>
    <message>
        <source>Values</source>
        <translation>Werte</translation>
    </message>
    <message>
        <source>Numbers</source>
        <translation>Nummern</translation>
    </message>
    <message>
        <source>Counters</source>
        <translation>Zähler</translation>
    </message>
    <message>
        <source>References</source>
        <translation>Verweise</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Belege</translation>
    </message>
    <message>
        <source>Balances</source>
        <translation>Bestände</translation>
    </message>
    <message>
        <source>The counter %1 stands at %2, and %3 goes up to %4.</source>
        <translation>Der Zähler %1 steht auf %2, und %3 reicht bis %4.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; new records look for a free key.</source>
        <translation>Keine Zahl ist deswegen falsch; neue Datensätze suchen sich einen freien Schlüssel.</translation>
    </message>
    <message>
        <source>A repair lets it go on above.</source>
        <translation>Eine Reparatur setzt ihn darüber fort.</translation>
    </message>
    <message>
        <source>It is gone, and its history is there.</source>
        <translation>Der Beleg fehlt, seine Bewegungen sind vorhanden:</translation>
    </message>
    <message>
        <source>No line of it accounts for what its history has.</source>
        <translation>Keine Position des Belegs erklärt, was seine Bewegungen enthalten:</translation>
    </message>
    <message>
        <source>It is not posted, and a part of it is in the history.</source>
        <translation>Der Beleg ist nicht gebucht, ein Teil davon steht aber in den Bewegungen.</translation>
    </message>
    <message>
        <source>Posting it counts that part twice.</source>
        <translation>Beim Buchen wird dieser Teil doppelt gezählt.</translation>
    </message>
    <message>
        <source>Delete it, and enter what is missing as a new document.</source>
        <translation>Löschen Sie den Beleg, und erfassen Sie das Fehlende als neuen Beleg.</translation>
    </message>
    <message>
        <source>It is marked as posted, and not in the history: %1.</source>
        <translation>Der Beleg ist als gebucht gekennzeichnet, steht aber nicht in den Bewegungen: %1.</translation>
    </message>
    <message>
        <source>Balances, values and the reports by period lack that.</source>
        <translation>In Beständen, Werten und Periodenberichten fehlt dies.</translation>
    </message>
    <message>
        <source>Enter it as a new document and post that. If the type of the item was not stocked when it was posted, nothing is missing.</source>
        <translation>Erfassen Sie dies als neuen Beleg, und buchen Sie ihn. Wurde die Artikelart beim Buchen nicht im Bestand geführt, so fehlt nichts.</translation>
    </message>
    <message>
        <source>The reports by period count it; whether it is right nobody can see.</source>
        <translation>Die Periodenberichte zählen dies mit; ob es richtig ist, lässt sich nicht feststellen.</translation>
    </message>
    <message>
        <source>Look whether a backup has the document.</source>
        <translation>Sehen Sie nach, ob eine Sicherung den Beleg enthält.</translation>
    </message>
    <message>
        <source>It is not marked as posted, and all of it is in the history.</source>
        <translation>Der Beleg ist nicht als gebucht gekennzeichnet, steht aber vollständig in den Bewegungen.</translation>
    </message>
    <message>
        <source>Posting it counts it twice.</source>
        <translation>Beim Buchen wird er doppelt gezählt.</translation>
    </message>
    <message>
        <source>A repair marks it as posted.</source>
        <translation>Eine Reparatur kennzeichnet ihn als gebucht.</translation>
    </message>
    <message>
        <source>They count nowhere.</source>
        <translation>Sie zählen nirgends mit.</translation>
    </message>
    <message>
        <source>A repair takes them out.</source>
        <translation>Eine Reparatur entfernt sie.</translation>
    </message>
    <message>
        <source>If nobody is entering it just now, %1 is asked about it with the next new document.</source>
        <translation>Falls ihn gerade niemand erfasst, wird %1 beim nächsten neuen Beleg danach gefragt.</translation>
    </message>
    <message>
        <source>Item with the key %1</source>
        <translation>Artikel mit dem Schlüssel %1</translation>
    </message>
    <message>
        <source>location with the key %1</source>
        <translation>Lagerort mit dem Schlüssel %1</translation>
    </message>
    <message>
        <source>The number %1 is there %2 times.</source>
        <translation>Die Nummer %1 ist %2-mal vorhanden.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; what is found by its number may be the other one.</source>
        <translation>Keine Zahl ist deswegen falsch; was über seine Nummer gesucht wird, kann das andere sein.</translation>
    </message>
    <message>
        <source>Open one of them and give it another number.</source>
        <translation>Öffnen Sie einen davon, und geben Sie ihm eine andere Nummer.</translation>
    </message>
    <message>
        <source>%1 is %2, which is gone from %3.</source>
        <translation>%1 ist %2; dieser Eintrag fehlt in %3.</translation>
    </message>
    <message>
        <source>Open it and choose another one.</source>
        <translation>Öffnen Sie den Eintrag, und wählen Sie einen anderen.</translation>
    </message>
    <message>
        <source>Posted as it is, it moves the stock of a location that no list shows.</source>
        <translation>So gebucht, verändert der Beleg den Bestand eines Lagerorts, den keine Liste zeigt.</translation>
    </message>
    <message>
        <source>It cannot be converted by a rate, and is posted as it stands.</source>
        <translation>Der Beleg kann nicht mit einem Kurs umgerechnet werden und wird unverändert gebucht.</translation>
    </message>
    <message>
        <source>Posted as it is, it moves the stock of an item that no list shows.</source>
        <translation>So gebucht, verändert der Beleg den Bestand eines Artikels, den keine Liste zeigt.</translation>
    </message>
    <message>
        <source>Reports that group or convert by it leave the record out or show it without.</source>
        <translation>Berichte, die danach gruppieren oder umrechnen, lassen den Datensatz weg oder zeigen ihn ohne diese Angabe.</translation>
    </message>
    <message>
        <source>The indexes of the table were damaged, and have been built anew.</source>
        <translation>Die Indizes der Tabelle waren beschädigt und wurden neu aufgebaut.</translation>
    </message>
    <message>
        <source>Repaired: %1: %2</source>
        <translation>Repariert: %1: %2</translation>
    </message>
    <message>
        <source>Lists and reports may have lacked rows.</source>
        <translation>In Listen und Berichten können Zeilen gefehlt haben.</translation>
    </message>
    <message>
        <source>No row of it is lost.</source>
        <translation>Keine Zeile davon ist verloren.</translation>
    </message>
    <message>
        <source>This is not mended by what should mend it, so nothing has been changed: %1</source>
        <translation>Dies wurde durch die vorgesehene Reparatur nicht behoben; daher wurde nichts geändert: %1</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Nothing is wrong.</source>
        <translation>Es wurden keine Fehler gefunden.</translation>
    </message>
    <message>
        <source>%n finding</source>
        <translation>%n Befund</translation>
    </message>
    <message>
        <source>%n findings</source>
        <translation>%n Befunde</translation>
    </message>
    <message>
        <source>%1, mended: %2, left to you: %3</source>
        <translation>%1, repariert: %2, Ihnen überlassen: %3</translation>
    </message>
    <message>
        <source>%1, a repair mends: %2</source>
        <translation>%1, durch Reparatur behebbar: %2</translation>
    </message>
    <message>
        <source>Can be mended</source>
        <translation>Reparierbar</translation>
    </message>
    <message>
        <source>Mended</source>
        <translation>Repariert</translation>
    </message>
    <message>
        <source>Left to you</source>
        <translation>Ihnen überlassen</translation>
    </message>
    <message>
        <source>Check of the Books</source>
        <translation>Prüfung der Bücher</translation>
    </message>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was falsch ist</translation>
    </message>
    <message>
        <source>What it does to the figures</source>
        <translation>Auswirkung auf die Zahlen</translation>
    </message>
    <message>
        <source>What mends it</source>
        <translation>Abhilfe</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The table %1 is missing.</source>
        <translation>Die Tabelle %1 fehlt.</translation>
    </message>
    <message>
        <source>Whatever needs it stops with an error.</source>
        <translation>Was sie benötigt, bricht mit einem Fehler ab.</translation>
    </message>
    <message>
        <source>Opening the inventory makes it, empty.</source>
        <translation>Beim Öffnen der Lagerverwaltung wird sie leer angelegt.</translation>
    </message>
    <message>
        <source>Fields or indexes of the table %1 are not as they should be.</source>
        <translation>Felder oder Indizes der Tabelle %1 sind nicht, wie sie sein sollen.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; lists may be slow.</source>
        <translation>Keine Zahl ist deswegen falsch; Listen können langsam sein.</translation>
    </message>
    <message>
        <source>Opening the inventory brings it up to date.</source>
        <translation>Beim Öffnen der Lagerverwaltung wird sie auf den neuesten Stand gebracht.</translation>
    </message>
    <message>
        <source>The last one that is known was made on %1 at %2.</source>
        <translation>Die letzte bekannte Sicherung wurde am %1 um %2 erstellt.</translation>
    </message>
    <message>
        <source>None is known to this database; look where they are kept.</source>
        <translation>Dieser Datenbank ist keine Sicherung bekannt; sehen Sie nach, wo Ihre Sicherungen aufbewahrt werden.</translation>
    </message>
    <message>
        <source>(and %1 lines like these)</source>
        <translation>(und %1 weitere solche Zeilen)</translation>
    </message>
    <message>
        <source>Lists, totals and reports may lack rows or stop with an error.</source>
        <translation>In Listen, Beständen und Berichten können Zeilen fehlen, oder sie brechen mit einem Fehler ab.</translation>
    </message>
    <message>
        <source>Rows are damaged, and no repair brings them back: restore the last backup. %1</source>
        <translation>Zeilen sind beschädigt, und keine Reparatur bringt sie zurück: Stellen Sie die letzte Sicherung wieder her. %1</translation>
    </message>
    <message>
        <source>A repair builds the indexes of these tables anew, and no row of them is lost: %1.</source>
        <translation>Eine Reparatur baut die Indizes dieser Tabellen neu auf; keine Zeile geht dabei verloren: %1.</translation>
    </message>
    <message>
        <source>The table %1 does not hold the same in the copy.</source>
        <translation>Die Tabelle %1 hat in der Kopie nicht denselben Inhalt.</translation>
    </message>
    <message>
        <source>Open the record and enter it anew.</source>
        <translation>Öffnen Sie den Datensatz, und geben Sie den Wert neu ein.</translation>
    </message>
    <message>
        <source>%1 is not what the field holds.</source>
        <translation>%1 enthält etwas anderes, als das Feld vorsieht.</translation>
    </message>
    <message>
        <source>It counts as zero or as nothing.</source>
        <translation>Es zählt als null oder gar nicht.</translation>
    </message>
    <message>
        <source>%1 is infinite or no number.</source>
        <translation>%1 ist unendlich oder keine Zahl.</translation>
    </message>
    <message>
        <source>Every sum that it goes into is worth nothing.</source>
        <translation>Jede Summe, in die der Wert eingeht, ist unbrauchbar.</translation>
    </message>
    <message>
        <source>%1 is no date.</source>
        <translation>%1 ist kein Datum.</translation>
    </message>
    <message>
        <source>It counts as no date.</source>
        <translation>Es zählt als fehlendes Datum.</translation>
    </message>
    <message>
        <source>%1 is longer than %2 characters.</source>
        <translation>%1 ist länger als %2 Zeichen.</translation>
    </message>
    <message>
        <source>No figure is wrong for it; a server would not take it.</source>
        <translation>Keine Zahl ist deswegen falsch; ein Server würde den Text nicht annehmen.</translation>
    </message>
    <message>
        <source>Open the record and shorten it.</source>
        <translation>Öffnen Sie den Datensatz, und kürzen Sie den Text.</translation>
    </message>
    <message>
        <source>%1 is empty, and is part of the key.</source>
        <translation>%1 ist leer, gehört aber zum Schlüssel.</translation>
    </message>
    <message>
        <source>The row cannot be opened, changed or deleted on a screen.</source>
        <translation>Die Zeile kann in keinem Fenster geöffnet, geändert oder gelöscht werden.</translation>
    </message>
    <message>
        <source>Take the row out with the store&apos;s own tools, once it is clear what it was.</source>
        <translation>Entfernen Sie die Zeile mit den Werkzeugen des Datenbanksystems, sobald klar ist, was sie war.</translation>
    </message>
    <message>
        <source>%1 is empty.</source>
        <translation>%1 ist leer.</translation>
    </message>
    <message>
        <source>Lists, reports and posting may pass the document over.</source>
        <translation>Listen, Berichte und die Buchung können den Beleg übergehen.</translation>
    </message>
    <message>
        <source>GLPeriod is no period of a year.</source>
        <translation>GLPeriod ist keine Periode eines Jahres.</translation>
    </message>
    <message>
        <source>Reports by period leave the document out.</source>
        <translation>Periodenberichte lassen den Beleg weg.</translation>
    </message>
    <message>
        <source>The line moves nothing, and its document cannot be posted as it stands.</source>
        <translation>Die Position bewegt nichts, und ihr Beleg kann so nicht gebucht werden.</translation>
    </message>
    <message>
        <source>The table %1 has %2 rows in the copy, and %3 where they come from.</source>
        <translation>Die Tabelle %1 hat in der Kopie %2 Zeilen, am Ursprung %3.</translation>
    </message>
    <message>
        <source>The sum of %1 in the table %2 is %3 in the copy, and %4 where they come from.</source>
        <translation>Die Summe von %1 in der Tabelle %2 ist in der Kopie %3, am Ursprung %4.</translation>
    </message>
    <message>
        <source>%n row</source>
        <translation>%n Zeile</translation>
    </message>
    <message>
        <source>%n rows</source>
        <translation>%n Zeilen</translation>
    </message>
    <message>
        <source>%1, %2 items, %3 rows of history</source>
        <translation>%1, %2 Artikel, %3 Zeilen Bewegungen</translation>
    </message>
    <message>
        <source>%1 is where the books are already.</source>
        <translation>Die Bücher sind bereits in %1.</translation>
    </message>
    <message>
        <source>%1 holds no books.</source>
        <translation>%1 enthält keine Bücher.</translation>
    </message>
    <message>
        <source>The books in %1 were left by an older release. Open them once with this one before they move.</source>
        <translation>Die Bücher in %1 stammen von einer älteren Version. Öffnen Sie sie einmal mit dieser, bevor sie umziehen.</translation>
    </message>
    <message>
        <source>%1 holds books already (%2), and nothing is copied over them. Choose a place that holds none.</source>
        <translation>%1 enthält bereits Bücher (%2), und über sie wird nichts kopiert. Wählen Sie einen Ort ohne Bücher.</translation>
    </message>
    <message>
        <source>%1 holds a copy of %2 that has not come to its end. Only the same can go on with it; for a copy of %3, choose another place.</source>
        <translation>%1 enthält eine nicht beendete Kopie von %2. Nur dieselbe kann fortgesetzt werden; wählen Sie für eine Kopie von %3 einen anderen Ort.</translation>
    </message>
    <message>
        <source>An earlier copy of these books had not come to its end; this one goes on with it.</source>
        <translation>Eine frühere Kopie dieser Bücher war nicht beendet; diese setzt sie fort.</translation>
    </message>
    <message>
        <source>The table %1 cannot be copied: %2</source>
        <translation>Die Tabelle %1 lässt sich nicht kopieren: %2</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; finds %2 in the copy, and %3 where it comes from.</source>
        <translation>Die Prüfung „%1“ findet in der Kopie %2, am Ursprung %3.</translation>
    </message>
    <message>
        <source>Check &quot;%1&quot;: nothing is wrong on either side.</source>
        <translation>Prüfung „%1“: auf beiden Seiten kein Befund.</translation>
    </message>
    <message>
        <source>Check &quot;%1&quot;: the same on both sides, %2.</source>
        <translation>Prüfung „%1“: auf beiden Seiten dasselbe, %2.</translation>
    </message>
    <message>
        <source>Somebody has written to %1 meanwhile: it is copied once more.</source>
        <translation>In %1 wurde inzwischen geschrieben: Die Tabelle wird noch einmal kopiert.</translation>
    </message>
    <message>
        <source>The books in %1 have not moved.</source>
        <translation>Die Bücher in %1 sind nicht umgezogen.</translation>
    </message>
    <message>
        <source>Taken up again; they had moved to %1</source>
        <translation>Wieder aufgenommen; sie waren nach %1 umgezogen</translation>
    </message>
    <message>
        <source>The folder %1 could not be made: %2</source>
        <translation>Der Ordner %1 konnte nicht angelegt werden: %2</translation>
    </message>
    <message>
        <source>These books (movements: %1, programs that write: %2) will soon be too much for a folder. &quot;Copy Books To...&quot; in Data Options takes them to a server.</source>
        <translation>Diese Bücher (Bewegungen: %1, schreibende Programme: %2) werden bald zu viel für einen Ordner. „Bücher kopieren nach...“ in den Datenoptionen bringt sie auf einen Server.</translation>
    </message>
    <message>
        <source>The server has given %1 up to %2, and the table goes up to %3.</source>
        <translation>Der Server hat %1 bis %2 vergeben, und die Tabelle reicht bis %3.</translation>
    </message>
    <message>
        <source>A document that is posted now lacks its history.</source>
        <translation>Einem Beleg, der jetzt gebucht wird, fehlt sein Verlauf.</translation>
    </message>
    <message>
        <source>New rows are refused until it has come to that.</source>
        <translation>Neue Zeilen werden abgelehnt, bis er dort angekommen ist.</translation>
    </message>
    <message>
        <source>Its header is not there, and %n line of it is.</source>
        <translation>Der Belegkopf fehlt, %n seiner Positionen ist vorhanden.</translation>
    </message>
    <message>
        <source>Its header is not there, and %n lines of it are.</source>
        <translation>Der Belegkopf fehlt, %n seiner Positionen sind vorhanden.</translation>
    </message>
    <message>
        <source>%1 has begun it and not saved it, with %n line.</source>
        <translation>%1 hat den Beleg angefangen und nicht gespeichert, mit %n Position.</translation>
    </message>
    <message>
        <source>%1 has begun it and not saved it, with %n lines.</source>
        <translation>%1 hat den Beleg angefangen und nicht gespeichert, mit %n Positionen.</translation>
    </message>
    <message>
        <source>%n row names the location with the key %1, which is gone.</source>
        <translation>%n Zeile nennt den Lagerort mit dem Schlüssel %1, den es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>%n rows name the location with the key %1, which is gone.</source>
        <translation>%n Zeilen nennen den Lagerort mit dem Schlüssel %1, den es nicht mehr gibt.</translation>
    </message>
    <message>
        <source>Restore the location from a backup.</source>
        <translation>Den Lagerort aus einer Sicherung zurückholen.</translation>
    </message>
    <message>
        <source>Reports by location show it without a name.</source>
        <translation>Berichte nach Lagerort zeigen ihn ohne Namen.</translation>
    </message>
    <message>
        <source>The stock counts in totals and values, at a location without a name.</source>
        <translation>Der Bestand zählt in Summen und Werten mit, an einem Lagerort ohne Namen.</translation>
    </message>
    <message>
        <source>Lists and reports show the record without it.</source>
        <translation>Listen und Berichte zeigen den Datensatz ohne diese Angabe.</translation>
    </message>
    <message>
        <source>The check &quot;%1&quot; finds other things in the copy than where it comes from, as what stands there cannot be kept as it is. Mend this first: %2</source>
        <translation>Die Prüfung „%1“ findet in der Kopie anderes als in der Vorlage, weil sich nicht behalten lässt, was dort steht. Bitte bringen Sie zuerst das in Ordnung: %2</translation>
    </message>
    <message>
        <source>Name the file that the backup is to be.</source>
        <translation>Nennen Sie die Datei, die die Sicherung werden soll.</translation>
    </message>
    <message>
        <source>The books are damaged, so that no sound backup of them can be made. A check of the books tells what is damaged and what mends it.</source>
        <translation>Die Bücher sind beschädigt, sodass keine heile Sicherung von ihnen gemacht werden kann. Eine Prüfung der Bücher sagt, was beschädigt ist und was hilft.</translation>
    </message>
    <message>
        <source>%1 is a folder. What is restored is one file, which a backup has made.</source>
        <translation>%1 ist ein Ordner. Wiederhergestellt wird eine einzelne Datei, die eine Sicherung angelegt hat.</translation>
    </message>
    <message>
        <source>Building the indexes of %1</source>
        <translation>Die Indizes von %1 werden angelegt</translation>
    </message>
</context>
<context>
    <name>Controls</name>
    <message>
        <source>&apos;%1&apos; takes no more than %2 characters, in lines of no more than %3. What has been put in was left out.</source>
        <translation>„%1“ nimmt höchstens %2 Zeichen auf, in Zeilen von höchstens %3. Das Eingefügte wurde weggelassen.</translation>
    </message>
    <message>
        <source>The list is filtered. Only the rows that it shows are searched.</source>
        <translation>Die Liste ist gefiltert. Nur die angezeigten Zeilen werden durchsucht.</translation>
    </message>
    <message>
        <source>The filter &apos;%1&apos; no longer fits this list: something that it asks for is gone (%2). You can delete it.</source>
        <translation>Der Filter „%1“ passt nicht mehr zu dieser Liste: Etwas, wonach er fragt, gibt es nicht mehr (%2). Sie können ihn löschen.</translation>
    </message>
    <message>
        <source>An unexpected failure has stopped this. Nothing is known about its cause.</source>
        <translation>Ein unerwarteter Fehler hat den Vorgang abgebrochen. Über die Ursache ist nichts bekannt.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; takes no more than %2 characters.</source>
        <translation>„%1“ nimmt höchstens %2 Zeichen auf.</translation>
    </message>
    <message>
        <source>This has been cut off: &quot;%1&quot;</source>
        <translation>Abgeschnitten wurde: „%1“</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not opened: it is neither a web page nor a mail address.</source>
        <translation>„%1“ wird nicht geöffnet: Es ist weder eine Webseite noch eine E-Mail-Adresse.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; cannot be opened: this computer has no program for it.</source>
        <translation>„%1“ kann nicht geöffnet werden: Auf diesem Computer gibt es kein Programm dafür.</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Zeilenumbruch</translation>
    </message>
</context>
<context>
    <name>Data</name>
    <message>
        <source>The configuration of the host application is missing in %1. Open the company in the host application once, or choose another database.</source>
        <translation>In %1 fehlt die Konfiguration des Host-Programms. Öffnen Sie die Firma einmal im Host-Programm, oder wählen Sie eine andere Datenbank.</translation>
    </message>
    <message>
        <source>Current fiscal year is not yet defined...
See &quot;Your Company&quot;</source>
        <translation>Das aktuelle Geschäftsjahr ist noch nicht festgelegt...
Siehe „Ihre Organisation“</translation>
    </message>
    <message>
        <source>GL Period is prior to current fiscal year 
as defined by &quot;Your Company&quot;</source>
        <translation>Die Buchungsperiode liegt vor dem aktuellen Geschäftsjahr, 
das in „Ihre Organisation“ festgelegt ist</translation>
    </message>
    <message>
        <source>GL Period is not within allowed range 
as defined by &quot;Your Company&quot;</source>
        <translation>Die Buchungsperiode liegt nicht im zulässigen Bereich, 
der in „Ihre Organisation“ festgelegt ist</translation>
    </message>
    <message>
        <source>GL Period is not within expected range 
as defined by &quot;Your Company&quot;.</source>
        <translation>Die Buchungsperiode liegt nicht im erwarteten Bereich, 
der in „Ihre Organisation“ festgelegt ist.</translation>
    </message>
    <message>
        <source>Unknown or unexpected database engine error #%1</source>
        <translation>Unbekannter oder unerwarteter Fehler Nr. %1 des Datenbanksystems</translation>
    </message>
    <message>
        <source>%1 table. Another user has the table open in exclusive mode.</source>
        <translation>Tabelle %1. Ein anderer Benutzer hat die Tabelle exklusiv geöffnet.</translation>
    </message>
    <message>
        <source>Cannot get next unique number. (btGetUniqueNumber)</source>
        <translation>Die nächste eindeutige Nummer kann nicht vergeben werden. (btGetUniqueNumber)</translation>
    </message>
    <message>
        <source>The table %1 is damaged and could not be repaired: %2
Have everybody close the program and try again. If that does not help, restore the last backup.</source>
        <translation>Die Tabelle %1 ist beschädigt und konnte nicht repariert werden: %2
Lassen Sie alle das Programm schließen, und versuchen Sie es erneut. Wenn das nicht hilft, stellen Sie die letzte Sicherung wieder her.</translation>
    </message>
    <message>
        <source>Please enter a name for the filter.</source>
        <translation>Geben Sie einen Namen für den Filter ein.</translation>
    </message>
    <message>
        <source>There is a filter &apos;%1&apos; already. Replace it?</source>
        <translation>Ein Filter „%1“ ist bereits vorhanden. Soll er ersetzt werden?</translation>
    </message>
    <message>
        <source>Your settings cannot be written. The kept filters stay as they were.</source>
        <translation>Ihre Einstellungen können nicht geschrieben werden. Die eigenen Filter bleiben, wie sie waren.</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Item Numbers</source>
        <translation>Artikelnummern</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Artikelarten</translation>
    </message>
    <message>
        <source>Your Organization</source>
        <translation>Ihre Organisation</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Salespeople</source>
        <translation>Verkäufer</translation>
    </message>
    <message>
        <source>Adjustment Lines</source>
        <translation>Korrekturpositionen</translation>
    </message>
    <message>
        <source>Adjustments</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>Inventory History</source>
        <translation>Lagerbewegungen</translation>
    </message>
    <message>
        <source>Receipt Lines</source>
        <translation>Eingangspositionen</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Wareneingänge</translation>
    </message>
    <message>
        <source>Item Balance</source>
        <translation>Artikelbestand</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Lagerorte</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Lieferanten</translation>
    </message>
    <message>
        <source>Vendor Balances</source>
        <translation>Lieferantensalden</translation>
    </message>
    <message>
        <source>Vendor Contacts</source>
        <translation>Lieferantenkontakte</translation>
    </message>
    <message>
        <source>Vendor Numbers</source>
        <translation>Lieferantennummern</translation>
    </message>
    <message>
        <source>Usage</source>
        <translation>Verbrauch</translation>
    </message>
    <message>
        <source>Usage Lines</source>
        <translation>Verbrauchspositionen</translation>
    </message>
    <message>
        <source>Invoice Numbers</source>
        <translation>Rechnungsnummern</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Banken</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Währungen</translation>
    </message>
    <message>
        <source>Accounts</source>
        <translation>Konten</translation>
    </message>
    <message>
        <source>Saved Documents</source>
        <translation>Gespeicherte Belege</translation>
    </message>
    <message>
        <source>Counted Items</source>
        <translation>Gezählte Artikel</translation>
    </message>
    <message>
        <source>Backups</source>
        <translation>Sicherungen</translation>
    </message>
    <message>
        <source>Begun Documents</source>
        <translation>Angefangene Belege</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>There is no list &apos;%1&apos; to choose from</source>
        <translation>Es gibt keine Auswahlliste „%1“</translation>
    </message>
    <message>
        <source>item numbers</source>
        <translation>Artikelnummern</translation>
    </message>
    <message>
        <source>keys of items</source>
        <translation>Artikelschlüssel</translation>
    </message>
    <message>
        <source>keys of adjustments</source>
        <translation>Korrekturschlüssel</translation>
    </message>
    <message>
        <source>keys of receipts</source>
        <translation>Eingangsschlüssel</translation>
    </message>
    <message>
        <source>receipt numbers</source>
        <translation>Eingangsnummern</translation>
    </message>
    <message>
        <source>vendor numbers</source>
        <translation>Lieferantennummern</translation>
    </message>
    <message>
        <source>keys of vendors</source>
        <translation>Lieferantenschlüssel</translation>
    </message>
    <message>
        <source>keys of usages</source>
        <translation>Verbrauchsschlüssel</translation>
    </message>
    <message>
        <source>usage numbers</source>
        <translation>Verbrauchsnummern</translation>
    </message>
    <message>
        <source>The %1 have come to their end: none can be given from %2 on.</source>
        <translation>Die %1 sind aufgebraucht: Ab %2 kann keine mehr vergeben werden.</translation>
    </message>
    <message>
        <source>Adjust</source>
        <translation>Korrektur</translation>
    </message>
    <message>
        <source>PO Receipt</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>PO Receipts</source>
        <translation>Wareneingänge</translation>
    </message>
    <message>
        <source>Sale</source>
        <translation>Verkauf</translation>
    </message>
    <message>
        <source>Mfg Receipt</source>
        <translation>Fertigung</translation>
    </message>
    <message>
        <source>Barcodes</source>
        <translation>Barcodes</translation>
    </message>
    <message>
        <source>Data Version</source>
        <translation>Datenversion</translation>
    </message>
    <message>
        <source>%1 at %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>an unnamed user</source>
        <translation>ein ungenannter Benutzer</translation>
    </message>
    <message>
        <source>These books have moved to %1, on %2, by %3. What is open here, %4, is how they stood then: it can be read, and takes no more changes until it is taken up again.</source>
        <translation>Diese Bücher sind am %2 von %3 nach %1 umgezogen. Was hier geöffnet ist, %4, ist ihr damaliger Stand: Er lässt sich lesen und nimmt keine Änderungen mehr an, bis er wieder aufgenommen wird.</translation>
    </message>
    <message>
        <source>%1 holds a copy of %2 that has not come to its end; it was begun on %3 by %4. Have the same copied there once more, which goes on with it, or work with %2.</source>
        <translation>%1 enthält eine nicht beendete Kopie von %2; %4 hat sie am %3 begonnen. Lassen Sie dasselbe noch einmal dorthin kopieren, das setzt sie fort, oder arbeiten Sie mit %2.</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Address, second line</source>
        <translation>Adresse, zweite Zeile</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>Business Phone</source>
        <translation>Telefon geschäftlich</translation>
    </message>
    <message>
        <source>Business Phone 2</source>
        <translation>Telefon geschäftlich 2</translation>
    </message>
    <message>
        <source>Extension 2</source>
        <translation>Durchwahl 2</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Durchwahl</translation>
    </message>
    <message>
        <source>Cellular</source>
        <translation>Mobil</translation>
    </message>
    <message>
        <source>City</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Costing Method</source>
        <translation>Bewertungsmethode</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
    <message>
        <source>Default Description</source>
        <translation>Standardbeschreibung</translation>
    </message>
    <message>
        <source>Days to due date</source>
        <translation>Tage bis zur Fälligkeit</translation>
    </message>
    <message>
        <source>Discount days</source>
        <translation>Skontotage</translation>
    </message>
    <message>
        <source>Discount %</source>
        <translation>Skonto %</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Exchange Rate</source>
        <translation>Wechselkurs</translation>
    </message>
    <message>
        <source>Fax</source>
        <translation>Fax</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Jahr der Periode</translation>
    </message>
    <message>
        <source>Home Phone</source>
        <translation>Telefon privat</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Lager</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>Net days</source>
        <translation>Zahlungsziel</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Pager</source>
        <translation>Pager</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Purchase Order no.</source>
        <translation>Bestellnr.</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Rate %</source>
        <translation>Satz %</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>Eingangsnr.</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Standardpreis</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Bundesland</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Gesperrt</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Tax Codes</source>
        <translation>Steuercodes</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Steuer</translation>
    </message>
    <message>
        <source>Tax no.</source>
        <translation>Steuernr.</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Einst.-Preis</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Verk.-Preis</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>Verbrauchsnr.</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>Lieferantennr.</translation>
    </message>
    <message>
        <source>Web Page</source>
        <translation>Webseite</translation>
    </message>
    <message>
        <source>Wgt Avg Cost</source>
        <translation>Durchschn.-Preis</translation>
    </message>
    <message>
        <source>Zip Code</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <source>quantity, qty, number of units, pieces</source>
        <translation>menge, anzahl, stück, stückzahl, mge, quantity, qty</translation>
    </message>
    <message>
        <source>description, item description, item name, name</source>
        <translation>beschreibung, artikelbeschreibung, bezeichnung, artikelbezeichnung, artikelname, name, description</translation>
    </message>
    <message>
        <source>item, item no, item number, no, number, article, article no, sku, code</source>
        <translation>artikel, artikelnr, art nr, artikelnummer, nr, nummer, sachnummer, materialnummer, item, item no, sku, code</translation>
    </message>
    <message>
        <source>standard cost, std cost</source>
        <translation>standardkosten, standardpreis, standard cost</translation>
    </message>
    <message>
        <source>unit cost, cost, unit price, price</source>
        <translation>einstandspreis, preis, stückpreis, einzelpreis, kosten, stückkosten, ek, unit cost, unit price</translation>
    </message>
    <message>
        <source>Bringing the table %1 up to date</source>
        <translation>Die Tabelle %1 wird auf den neuesten Stand gebracht</translation>
    </message>
</context>
<context>
    <name>DateDialog</name>
    <message>
        <source>Select a Date</source>
        <translation>Datum wählen</translation>
    </message>
    <message>
        <source>Select a date:</source>
        <translation>Wählen Sie ein Datum:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DocumentFindScreen</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>DocumentPostScreen</name>
    <message>
        <source>Post</source>
        <translation>Buchen</translation>
    </message>
    <message>
        <source>0 document(s) to be posted</source>
        <translation>0 Beleg(e) zu buchen</translation>
    </message>
    <message>
        <source>To look at before posting</source>
        <translation>Vor dem Buchen ansehen</translation>
    </message>
    <message>
        <source>Enter or a double click opens the document</source>
        <translation>Eingabetaste oder Doppelklick öffnet den Beleg</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Engine</name>
    <message>
        <source>a condition was expected.</source>
        <translation>Hier wurde eine Bedingung erwartet.</translation>
    </message>
    <message>
        <source>these two do not compare with each other.</source>
        <translation>Diese beiden lassen sich nicht miteinander vergleichen.</translation>
    </message>
    <message>
        <source>%1 is no condition by itself.</source>
        <translation>%1 ist für sich allein keine Bedingung.</translation>
    </message>
    <message>
        <source>there is no field &quot;%1&quot;.</source>
        <translation>Es gibt kein Feld „%1“.</translation>
    </message>
    <message>
        <source>a value was expected, not a condition.</source>
        <translation>Hier wurde ein Wert erwartet, keine Bedingung.</translation>
    </message>
    <message>
        <source>this number is too large to calculate with.</source>
        <translation>Diese Zahl ist zu groß zum Rechnen.</translation>
    </message>
    <message>
        <source>a number was expected.</source>
        <translation>Hier wurde eine Zahl erwartet.</translation>
    </message>
    <message>
        <source>too many figures to calculate with.</source>
        <translation>Zu viele Stellen zum Rechnen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a date (YYYY-MM-DD).</source>
        <translation>„%1“ ist kein Datum (JJJJ-MM-TT).</translation>
    </message>
    <message>
        <source>null compares with = and &lt;&gt; only.</source>
        <translation>null lässt sich nur mit = und &lt;&gt; vergleichen.</translation>
    </message>
    <message>
        <source>the text is too long to look for.</source>
        <translation>Der Suchtext ist zu lang.</translation>
    </message>
    <message>
        <source>LIKE needs a text field.</source>
        <translation>LIKE benötigt ein Textfeld.</translation>
    </message>
    <message>
        <source>CONTAINS needs a text field.</source>
        <translation>CONTAINS benötigt ein Textfeld.</translation>
    </message>
    <message>
        <source>The expression %1 cannot be used. Position %2: %3</source>
        <translation>Der Ausdruck %1 kann nicht verwendet werden. Position %2: %3</translation>
    </message>
    <message>
        <source>this quote is not closed.</source>
        <translation>Dieses Anführungszeichen wird nicht geschlossen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no meaning here.</source>
        <translation>„%1“ hat hier keine Bedeutung.</translation>
    </message>
    <message>
        <source>AND, OR or the end</source>
        <translation>AND, OR oder das Ende</translation>
    </message>
    <message>
        <source>too many levels of parentheses or operations.</source>
        <translation>Zu viele Klammer- oder Rechenebenen.</translation>
    </message>
    <message>
        <source>the end</source>
        <translation>das Ende</translation>
    </message>
    <message>
        <source>%1 was expected, but %2 was found.</source>
        <translation>Erwartet wurde %1, gefunden wurde %2.</translation>
    </message>
    <message>
        <source>too many conditions.</source>
        <translation>Zu viele Bedingungen.</translation>
    </message>
    <message>
        <source>a text in quotes</source>
        <translation>ein Text in Anführungszeichen</translation>
    </message>
    <message>
        <source>a field or a value</source>
        <translation>ein Feld oder ein Wert</translation>
    </message>
    <message>
        <source>no answer within %1 seconds</source>
        <translation>keine Antwort innerhalb von %1 Sekunden</translation>
    </message>
    <message>
        <source>The %1 asks for the password of the account &quot;%2&quot;, and none has been given. Enter it in the password file of the client library or in PGPASSWORD.</source>
        <translation>Die %1 verlangt das Kennwort des Kontos „%2“, es wurde aber keines angegeben. Tragen Sie es in die Kennwortdatei der Clientbibliothek oder in PGPASSWORD ein.</translation>
    </message>
    <message>
        <source>The connection to the %1 must be encrypted, and could not be (%2). Have TLS set up on the server, or choose another kind of connection in the settings.</source>
        <translation>Die Verbindung zur %1 muss verschlüsselt sein, das war aber nicht möglich (%2). Lassen Sie TLS auf dem Server einrichten, oder wählen Sie in den Einstellungen eine andere Verbindungsart.</translation>
    </message>
    <message>
        <source>The %1 cannot be reached (%2). Check the address in the settings, the network, and that the server runs.</source>
        <translation>Die %1 ist nicht erreichbar (%2). Prüfen Sie die Adresse in den Einstellungen, das Netzwerk und ob der Server läuft.</translation>
    </message>
    <message>
        <source>No server address has been set. Enter it in the settings.</source>
        <translation>Es ist keine Serveradresse eingestellt. Geben Sie sie in den Einstellungen ein.</translation>
    </message>
    <message>
        <source>What has been set as the server address is no address. Enter the name or the number of the server alone, without account and password.</source>
        <translation>Was als Serveradresse eingestellt ist, ist keine Adresse. Geben Sie nur den Namen oder die Nummer des Servers ein, ohne Konto und Kennwort.</translation>
    </message>
    <message>
        <source>database &quot;%1&quot; on the server %2</source>
        <translation>Datenbank „%1“ auf dem Server %2</translation>
    </message>
    <message>
        <source>The record exists already (%2).</source>
        <translation>Der Datensatz ist bereits vorhanden (%2).</translation>
    </message>
    <message>
        <source>A value does not fit its field (%2).</source>
        <translation>Ein Wert passt nicht in sein Feld (%2).</translation>
    </message>
    <message>
        <source>The %1 is damaged. Have the table repaired, or restore the last backup. (%2)</source>
        <translation>Die %1 ist beschädigt. Lassen Sie die Tabelle reparieren, oder stellen Sie die letzte Sicherung wieder her. (%2)</translation>
    </message>
    <message>
        <source>The %1 is being written by another user%3. Try again in a moment.</source>
        <translation>Ein anderer Benutzer%3 schreibt gerade in die %1. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>The %1 refuses access: %2. Check the account and its rights.</source>
        <translation>Die %1 verweigert den Zugriff: %2. Prüfen Sie das Konto und seine Rechte.</translation>
    </message>
    <message>
        <source>The %1 cannot be opened: %2.</source>
        <translation>Die %1 kann nicht geöffnet werden: %2.</translation>
    </message>
    <message>
        <source>A key field is empty (%2).</source>
        <translation>Ein Schlüsselfeld ist leer (%2).</translation>
    </message>
    <message>
        <source>A value is not allowed (%2).</source>
        <translation>Ein Wert ist nicht zulässig (%2).</translation>
    </message>
    <message>
        <source>There is no such table (%2).</source>
        <translation>Es gibt keine solche Tabelle (%2).</translation>
    </message>
    <message>
        <source>There is no such field (%2).</source>
        <translation>Es gibt kein solches Feld (%2).</translation>
    </message>
    <message>
        <source>The %1 can only be read at the moment (%2).</source>
        <translation>Die %1 kann zurzeit nur gelesen werden (%2).</translation>
    </message>
    <message>
        <source>The disk of the %1 is full. The changes were undone. Make room and try again.</source>
        <translation>Der Datenträger der %1 ist voll. Die Änderungen wurden rückgängig gemacht. Schaffen Sie Platz, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>The %1 has no room for more users or locks: %2. Try again later.</source>
        <translation>Die %1 hat keinen Platz für weitere Benutzer oder Sperren: %2. Versuchen Sie es später noch einmal.</translation>
    </message>
    <message>
        <source>The %1 reports: %2</source>
        <translation>Die %1 meldet: %2</translation>
    </message>
    <message>
        <source>The connection to the %1 was lost. Nothing that was saved is lost; check the network and repeat the last step.</source>
        <translation>Die Verbindung zur %1 ging verloren. Nichts Gespeichertes ist verloren; prüfen Sie das Netzwerk, und wiederholen Sie den letzten Schritt.</translation>
    </message>
    <message>
        <source>An earlier step of the same change has failed.</source>
        <translation>Ein früherer Schritt derselben Änderung ist fehlgeschlagen.</translation>
    </message>
    <message>
        <source>An earlier step of the same change has failed; the changes were undone.</source>
        <translation>Ein früherer Schritt derselben Änderung ist fehlgeschlagen; die Änderungen wurden rückgängig gemacht.</translation>
    </message>
    <message>
        <source>A text holds a character that cannot be stored.</source>
        <translation>Ein Text enthält ein Zeichen, das nicht gespeichert werden kann.</translation>
    </message>
    <message>
        <source>The table is not open.</source>
        <translation>Die Tabelle ist nicht geöffnet.</translation>
    </message>
    <message>
        <source>A query without key fields cannot be filtered.</source>
        <translation>Eine Abfrage ohne Schlüsselfelder kann nicht gefiltert werden.</translation>
    </message>
    <message>
        <source>The rows cannot be sorted by %1.</source>
        <translation>Die Zeilen können nicht nach %1 sortiert werden.</translation>
    </message>
    <message>
        <source>There is no field &quot;%1&quot;.</source>
        <translation>Es gibt kein Feld „%1“.</translation>
    </message>
    <message>
        <source>%1 holds %2, which is too large for an amount.</source>
        <translation>%1 enthält %2; das ist für einen Betrag zu groß.</translation>
    </message>
    <message>
        <source>The field &quot;%1&quot; cannot be added: the table is open or has it.</source>
        <translation>Das Feld „%1“ kann nicht hinzugefügt werden: Die Tabelle ist geöffnet oder hat es bereits.</translation>
    </message>
    <message>
        <source>The query&apos;s parameter &quot;%1&quot; has no value.</source>
        <translation>Der Parameter „%1“ der Abfrage hat keinen Wert.</translation>
    </message>
    <message>
        <source>%1 is calculated and cannot be searched for.</source>
        <translation>%1 ist berechnet und kann nicht gesucht werden.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is not being edited.</source>
        <translation>Tabelle „%1“ wird nicht bearbeitet.</translation>
    </message>
    <message>
        <source>This record of table &apos;%1&apos;</source>
        <translation>Dieser Datensatz der Tabelle „%1“</translation>
    </message>
    <message>
        <source>%1 was changed by another user while the connection was lost. Cancel, and make your changes again.</source>
        <translation>%1 wurde von einem anderen Benutzer geändert, während die Verbindung unterbrochen war. Brechen Sie ab, und nehmen Sie Ihre Änderungen erneut vor.</translation>
    </message>
    <message>
        <source>%1 follows from other fields.</source>
        <translation>%1 ergibt sich aus anderen Feldern.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is in use by another user%2.</source>
        <translation>Tabelle „%1“ wird von einem anderen Benutzer%2 verwendet.</translation>
    </message>
    <message>
        <source>There is no table &apos;%1&apos; in %2.</source>
        <translation>Es gibt keine Tabelle „%1“ in %2.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no index &quot;%2&quot;.</source>
        <translation>Tabelle „%1“ hat keinen Index „%2“.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no order.</source>
        <translation>Tabelle „%1“ hat keine Sortierung.</translation>
    </message>
    <message>
        <source>The order of table &apos;%1&apos; has only %2 fields.</source>
        <translation>Die Sortierung der Tabelle „%1“ hat nur %2 Felder.</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; must have a value</source>
        <translation>Das Feld „%1“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; already has a record with this key.</source>
        <translation>Die Tabelle „%1“ hat bereits einen Datensatz mit diesem Schlüssel.</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; already exists in table &apos;%3&apos;.</source>
        <translation>%1 „%2“ ist in Tabelle „%3“ bereits vorhanden.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; has no record to delete.</source>
        <translation>Tabelle „%1“ hat keinen Datensatz, der gelöscht werden könnte.</translation>
    </message>
    <message>
        <source>A record of table &apos;%1&apos;</source>
        <translation>Ein Datensatz der Tabelle „%1“</translation>
    </message>
    <message>
        <source>A database in memory has one connection only.</source>
        <translation>Eine Datenbank im Arbeitsspeicher hat nur eine Verbindung.</translation>
    </message>
    <message>
        <source>No database folder has been set. Choose the folder in the settings.</source>
        <translation>Es ist kein Datenbankordner eingestellt. Wählen Sie den Ordner in den Einstellungen.</translation>
    </message>
    <message>
        <source>The database folder %1 does not exist or cannot be reached. Check the settings and the network.</source>
        <translation>Der Datenbankordner %1 ist nicht vorhanden oder nicht erreichbar. Prüfen Sie die Einstellungen und das Netzwerk.</translation>
    </message>
    <message>
        <source>You have no right to enter the database folder %1. Ask its owner for access.</source>
        <translation>Sie haben kein Zugriffsrecht auf den Datenbankordner %1. Bitten Sie seinen Besitzer um Zugriff.</translation>
    </message>
    <message>
        <source>%1 is damaged. Have the table repaired, or restore the last backup.</source>
        <translation>%1 ist beschädigt. Lassen Sie die Tabelle reparieren, oder stellen Sie die letzte Sicherung wieder her.</translation>
    </message>
    <message>
        <source>The disk of %1 is full. The changes were undone. Make room and try again.</source>
        <translation>Der Datenträger von %1 ist voll. Die Änderungen wurden rückgängig gemacht. Schaffen Sie Platz, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>%1 cannot be written. Check the permissions of the file and of its folder.</source>
        <translation>%1 kann nicht geschrieben werden. Prüfen Sie die Zugriffsrechte der Datei und ihres Ordners.</translation>
    </message>
    <message>
        <source>A value is too long (%2).</source>
        <translation>Ein Wert ist zu lang (%2).</translation>
    </message>
    <message>
        <source>%1 is being read or written by another user. Try again in a moment.</source>
        <translation>%1 wird gerade von einem anderen Benutzer gelesen oder geschrieben. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>%1 is in use by this program at the moment. Try again. (%2)</source>
        <translation>%1 wird gerade von diesem Programm verwendet. Versuchen Sie es erneut. (%2)</translation>
    </message>
    <message>
        <source>%1 could not be read or written (%2). Check the disk or the network folder.</source>
        <translation>%1 konnte nicht gelesen oder geschrieben werden (%2). Prüfen Sie den Datenträger oder den Netzwerkordner.</translation>
    </message>
    <message>
        <source>%1 is not a database. Check the database folder, or restore the last backup.</source>
        <translation>%1 ist keine Datenbank. Prüfen Sie den Datenbankordner, oder stellen Sie die letzte Sicherung wieder her.</translation>
    </message>
    <message>
        <source>%1 cannot be opened. Check that the folder exists and that you may write in it.</source>
        <translation>%1 kann nicht geöffnet werden. Prüfen Sie, ob der Ordner vorhanden ist und ob Sie darin schreiben dürfen.</translation>
    </message>
    <message>
        <source>The database in memory</source>
        <translation>Die Datenbank im Arbeitsspeicher</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
    <message>
        <source>%1 has no table &quot;%2&quot;.</source>
        <translation>%1 hat keine Tabelle „%2“.</translation>
    </message>
    <message>
        <source>The lock file %1 has been deleted or replaced while it was in use. Nothing can be saved any more: close the program and open it anew.</source>
        <translation>Die Sperrdatei %1 wurde während der Verwendung gelöscht oder ersetzt. Es kann nichts mehr gespeichert werden: Schließen Sie das Programm, und öffnen Sie es neu.</translation>
    </message>
    <message>
        <source>%1: the index %2 has %3 of %4 rows</source>
        <translation>%1: Der Index %2 hat %3 von %4 Zeilen</translation>
    </message>
    <message>
        <source>The file %1 has a second name (a hard link). Two users who open it by different names would destroy each other&apos;s work. Remove the other name, or put a copy of the file in its place.</source>
        <translation>Die Datei %1 hat einen zweiten Namen (einen Hardlink). Zwei Benutzer, die sie unter verschiedenen Namen öffnen, würden einander die Arbeit zerstören. Entfernen Sie den anderen Namen, oder ersetzen Sie die Datei durch eine Kopie.</translation>
    </message>
    <message>
        <source>The file %1 has been deleted, moved or replaced while it was in use. Nothing can be saved any more: close the program and open it anew.</source>
        <translation>Die Datei %1 wurde während der Verwendung gelöscht, verschoben oder ersetzt. Es kann nichts mehr gespeichert werden: Schließen Sie das Programm, und öffnen Sie es neu.</translation>
    </message>
    <message>
        <source>%1 has undone the changes by itself. Try again.</source>
        <translation>%1 hat die Änderungen von sich aus rückgängig gemacht. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>another user</source>
        <translation>ein anderer Benutzer</translation>
    </message>
    <message>
        <source>%1 on %2</source>
        <translation>%1 auf %2</translation>
    </message>
    <message>
        <source>%1, since %2</source>
        <translation>%1, seit %2</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be used (%2).</source>
        <translation>Die Sperrdatei %1 kann nicht verwendet werden (%2).</translation>
    </message>
    <message>
        <source>%1 cannot be used: a name in this path is not UTF-8. Rename the folder.</source>
        <translation>%1 kann nicht verwendet werden: Ein Name in diesem Pfad ist nicht in UTF-8. Benennen Sie den Ordner um.</translation>
    </message>
    <message>
        <source>The lock file %1 is a link, or no file at all. Remove it while nobody uses the database, and open the program anew.</source>
        <translation>Die Sperrdatei %1 ist eine Verknüpfung oder gar keine Datei. Entfernen Sie sie, während niemand die Datenbank verwendet, und öffnen Sie das Programm neu.</translation>
    </message>
    <message>
        <source>The lock file %1 cannot be written (%2). Check the permissions of the file and of its folder.</source>
        <translation>Die Sperrdatei %1 kann nicht geschrieben werden (%2). Prüfen Sie die Zugriffsrechte der Datei und ihres Ordners.</translation>
    </message>
    <message>
        <source>%1 (process %2)</source>
        <translation>%1 (Prozess %2)</translation>
    </message>
    <message>
        <source>%1 is being edited in another window. Finish there first.</source>
        <translation>%1 wird in einem anderen Fenster bearbeitet. Schließen Sie die Bearbeitung zuerst dort ab.</translation>
    </message>
    <message>
        <source>%1 is being edited by another user%2. Try again in a moment.</source>
        <translation>%1 wird von einem anderen Benutzer%2 bearbeitet. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>%1 was deleted by another user.</source>
        <translation>%1 wurde von einem anderen Benutzer gelöscht.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is open elsewhere and cannot be changed now. Have everybody close it and try again.</source>
        <translation>Tabelle „%1“ ist anderswo geöffnet und kann jetzt nicht geändert werden. Lassen Sie sie überall schließen, und versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Another user%2 has table &apos;%1&apos; open in exclusive mode.</source>
        <translation>Ein anderer Benutzer%2 hat die Tabelle „%1“ exklusiv geöffnet.</translation>
    </message>
    <message>
        <source>Table &apos;%1&apos; is locked by another user%2. Try again in a moment.</source>
        <translation>Tabelle „%1“ ist von einem anderen Benutzer%2 gesperrt. Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>An amount of money is too large.</source>
        <translation>Ein Geldbetrag ist zu groß.</translation>
    </message>
    <message>
        <source>%1: a text of more than %2 characters is not taken</source>
        <translation>%1: Ein Text von mehr als %2 Zeichen wird nicht angenommen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is longer than %n character</source>
        <translation>%1: „%2“ ist länger als %n Zeichen</translation>
    </message>
    <message>
        <source>%1: &apos;%2&apos; is longer than %n characters</source>
        <translation>%1: „%2“ ist länger als %n Zeichen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not %2</source>
        <translation>„%1“ ist ungültig; erwartet wird %2</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not within %2 to %3</source>
        <translation>„%1“ liegt nicht zwischen %2 und %3</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>wahr oder falsch</translation>
    </message>
    <message>
        <source>a date (YYYY-MM-DD)</source>
        <translation>ein Datum (JJJJ-MM-TT)</translation>
    </message>
    <message>
        <source>a date and time (YYYY-MM-DD HH:MM:SS)</source>
        <translation>Datum und Uhrzeit (JJJJ-MM-TT HH:MM:SS)</translation>
    </message>
    <message>
        <source>The text &quot;%1&quot; holds a character that cannot be stored.</source>
        <translation>Der Text „%1“ enthält ein Zeichen, das nicht gespeichert werden kann.</translation>
    </message>
    <message>
        <source>These books have moved to %1. Here they can be read, and take no more changes until they are taken up again.</source>
        <translation>Diese Bücher sind nach %1 umgezogen. Hier lassen sie sich lesen und nehmen keine Änderungen mehr an, bis sie wieder aufgenommen werden.</translation>
    </message>
    <message>
        <source>There is no %1. Check the settings, or make a new company.</source>
        <translation>%1 gibt es nicht. Prüfen Sie die Einstellungen oder legen Sie eine neue Firma an.</translation>
    </message>
    <message>
        <source>There is no database %1 in %2. Check the folder in the settings, or make a new company.</source>
        <translation>In %2 gibt es keine Datenbank %1. Prüfen Sie den Ordner in den Einstellungen oder legen Sie eine neue Firma an.</translation>
    </message>
    <message>
        <source>The %1 has given the session to somebody else (%2). If a pooler stands between, have it keep sessions (pgbouncer: pool_mode = session).</source>
        <translation>%1 hat die Sitzung an jemand anderen vergeben (%2). Wenn ein Pooler dazwischen steht, lassen Sie ihn Sitzungen behalten (pgbouncer: pool_mode = session).</translation>
    </message>
    <message>
        <source>Between this program and the %1 stands a pooler that gives every transaction another session. Locks would keep nobody out. Have it keep sessions for this database (pgbouncer: pool_mode = session).</source>
        <translation>Zwischen diesem Programm und %1 steht ein Pooler, der jeder Transaktion eine andere Sitzung gibt. Sperren würden niemanden fernhalten. Lassen Sie ihn für diese Datenbank Sitzungen behalten (pgbouncer: pool_mode = session).</translation>
    </message>
    <message>
        <source>The connection to the %1 was lost while changes were being saved, and it could not be found out whether they were. Look whether they are there before you repeat them.</source>
        <translation>Die Verbindung zu %1 ging verloren, während Änderungen gespeichert wurden, und ob sie gespeichert sind, ließ sich nicht feststellen. Sehen Sie nach, ob sie da sind, bevor Sie sie wiederholen.</translation>
    </message>
    <message>
        <source>The former connection has not ended yet.</source>
        <translation>Die frühere Verbindung ist noch nicht beendet.</translation>
    </message>
    <message>
        <source>The connection was lost while %1 was being saved. Save it again.</source>
        <translation>Die Verbindung ging verloren, während %1 gespeichert wurde. Speichern Sie noch einmal.</translation>
    </message>
    <message>
        <source>%1 is being written to by another user (%2). Try again in a moment.</source>
        <translation>In %1 schreibt gerade ein anderer Benutzer (%2). Versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>%1 is a file. Name the folder that holds the database.</source>
        <translation>%1 ist eine Datei. Nennen Sie den Ordner, in dem die Datenbank liegt.</translation>
    </message>
</context>
<context>
    <name>FilterDialog</name>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nein</translation>
    </message>
    <message>
        <source>&amp;All</source>
        <translation>&amp;Alle</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Frame</name>
    <message>
        <source>Not available in this version</source>
        <translation>In dieser Version nicht verfügbar</translation>
    </message>
    <message>
        <source>%1 (not available in this version)</source>
        <translation>%1 (in dieser Version nicht verfügbar)</translation>
    </message>
    <message>
        <source>Receive Inventory</source>
        <translation>Waren annehmen</translation>
    </message>
    <message>
        <source>Enter inventory receipts</source>
        <translation>Wareneingänge erfassen</translation>
    </message>
    <message>
        <source>Post Receipts</source>
        <translation>Eingänge buchen</translation>
    </message>
    <message>
        <source>Post inventory receipts</source>
        <translation>Wareneingänge buchen</translation>
    </message>
    <message>
        <source>Enter Inventory</source>
        <translation>Inventur erfassen</translation>
    </message>
    <message>
        <source>Enter inventory and calculate usage</source>
        <translation>Inventur erfassen und Verbrauch berechnen</translation>
    </message>
    <message>
        <source>Edit Usage</source>
        <translation>Verbrauch bearbeiten</translation>
    </message>
    <message>
        <source>Edit usage records</source>
        <translation>Verbrauchsbelege bearbeiten</translation>
    </message>
    <message>
        <source>Post Usage</source>
        <translation>Verbrauch buchen</translation>
    </message>
    <message>
        <source>Enter Inventory Adjustments</source>
        <translation>Bestandskorrekturen erfassen</translation>
    </message>
    <message>
        <source>Enter inventory adjustments</source>
        <translation>Bestandskorrekturen erfassen</translation>
    </message>
    <message>
        <source>Post Adustments</source>
        <translation>Korrekturen buchen</translation>
    </message>
    <message>
        <source>Post inventory adjustments</source>
        <translation>Bestandskorrekturen buchen</translation>
    </message>
    <message>
        <source>Print Reports...</source>
        <translation>Berichte drucken...</translation>
    </message>
    <message>
        <source>Print inventory reports</source>
        <translation>Lagerberichte drucken</translation>
    </message>
    <message>
        <source>Blank Inventory Form</source>
        <translation>Zählliste</translation>
    </message>
    <message>
        <source>Edit Organization Setup</source>
        <translation>Organisation einrichten</translation>
    </message>
    <message>
        <source>View Totals</source>
        <translation>Lagerbestände</translation>
    </message>
    <message>
        <source>View History</source>
        <translation>Lagerbewegungen</translation>
    </message>
    <message>
        <source>View Stock As Of</source>
        <translation>Stichtagsbestand</translation>
    </message>
    <message>
        <source>The stock as it was at the end of a day or period</source>
        <translation>Der Bestand am Ende eines Tages oder einer Periode</translation>
    </message>
    <message>
        <source>View What to Buy</source>
        <translation>Bestellvorschlag</translation>
    </message>
    <message>
        <source>What has been used and will not last, by vendor</source>
        <translation>Was verbraucht wurde und nicht reichen wird, nach Lieferant</translation>
    </message>
    <message>
        <source>Month End</source>
        <translation>Monatsabschluss</translation>
    </message>
    <message>
        <source>What is to be done before the next period is opened</source>
        <translation>Was zu tun ist, bevor die nächste Periode geöffnet wird</translation>
    </message>
    <message>
        <source>Check Books</source>
        <translation>Bücher prüfen</translation>
    </message>
    <message>
        <source>Whether the books are sound, and what mends them</source>
        <translation>Ob die Bücher in Ordnung sind und was Fehler behebt</translation>
    </message>
    <message>
        <source>Back Up...</source>
        <translation>Sichern...</translation>
    </message>
    <message>
        <source>A copy of the whole database in one file</source>
        <translation>Eine Kopie der ganzen Datenbank in einer Datei</translation>
    </message>
    <message>
        <source>Restore...</source>
        <translation>Wiederherstellen...</translation>
    </message>
    <message>
        <source>A backup back, into a folder or a server without a database</source>
        <translation>Eine Sicherung zurückholen, in einen Ordner oder auf einen Server ohne Datenbank</translation>
    </message>
    <message>
        <source>Audit List</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Who has deleted, repaired or restored what, and when</source>
        <translation>Wer wann was gelöscht, repariert oder wiederhergestellt hat</translation>
    </message>
    <message>
        <source>Synchronize Locations</source>
        <translation>Lagerorte abgleichen</translation>
    </message>
    <message>
        <source>Synchronize Items</source>
        <translation>Artikel abgleichen</translation>
    </message>
    <message>
        <source>Synchronize Clients</source>
        <translation>Kunden abgleichen</translation>
    </message>
    <message>
        <source>Print Payments</source>
        <translation>Zahlungen drucken</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>Befehle</translation>
    </message>
    <message>
        <source>not posted</source>
        <translation>nicht gebucht</translation>
    </message>
    <message>
        <source>Opened last</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>Handbuch</translation>
    </message>
    <message>
        <source>The manual, %1, was not found in %2.</source>
        <translation>Das Handbuch %1 wurde in %2 nicht gefunden.</translation>
    </message>
    <message>
        <source>The manual, %1, could not be opened: %2</source>
        <translation>Das Handbuch %1 konnte nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>Succesfully completed the synchronization.</source>
        <translation>Der Abgleich wurde erfolgreich abgeschlossen.</translation>
    </message>
    <message>
        <source>Insert any Corvane locations into the 
Ledgerwick locations table?</source>
        <translation>Corvane-Lagerorte in die 
Lagerorttabelle von Ledgerwick einfügen?</translation>
    </message>
    <message>
        <source>Inventory Usage</source>
        <translation>Lagerverbrauch</translation>
    </message>
    <message>
        <source>Inventory Totals</source>
        <translation>Lagerbestände</translation>
    </message>
    <message>
        <source>Inventory History</source>
        <translation>Lagerbewegungen</translation>
    </message>
    <message>
        <source>First Steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>What new books need, and how far you are</source>
        <translation>Was neue Bücher brauchen und wie weit Sie sind</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>Server %1</source>
        <translation>Server %1</translation>
    </message>
    <message>
        <source>Corvane client billing, with the inventory module.</source>
        <translation>Corvane-Kundenabrechnung mit dem Lagermodul.</translation>
    </message>
    <message>
        <source>Shows this text.</source>
        <translation>Zeigt diesen Text.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Zeigt die Version.</translation>
    </message>
    <message>
        <source>Loads the inventory module from this file.</source>
        <translation>Lädt das Lagermodul aus dieser Datei.</translation>
    </message>
    <message>
        <source>Works as this user instead of the login name.</source>
        <translation>Arbeitet unter diesem Benutzernamen statt unter dem Anmeldenamen.</translation>
    </message>
    <message>
        <source>Uses the company database in this folder from now on.</source>
        <translation>Verwendet ab jetzt die Firmendatenbank in diesem Ordner.</translation>
    </message>
    <message>
        <source>Opens the inventory at once.</source>
        <translation>Öffnet die Lagerverwaltung sofort.</translation>
    </message>
    <message>
        <source>Is light, dark or as the desktop is. The environment variable TALLYMERE_LOOK says the same for whoever gives no option.</source>
        <translation>Ist light (hell), dark (dunkel) oder wie der Desktop. Die Umgebungsvariable TALLYMERE_LOOK sagt dasselbe für alle, die keine Option angeben.</translation>
    </message>
    <message>
        <source>Unknown argument: %1</source>
        <translation>Unbekanntes Argument: %1</translation>
    </message>
    <message>
        <source>There is no look %1. It is light, dark or desktop.</source>
        <translation>Die Darstellung %1 gibt es nicht. Möglich sind light, dark oder desktop.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Der Ordner %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The inventory module cannot be loaded: there is no file %1.</source>
        <translation>Das Lagermodul kann nicht geladen werden: Die Datei %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>The inventory module cannot be loaded: %1</source>
        <translation>Das Lagermodul kann nicht geladen werden: %1</translation>
    </message>
    <message>
        <source>%1 is not an inventory module: it lacks the entry points of one.</source>
        <translation>%1 ist kein Lagermodul: Die Einsprungpunkte eines solchen fehlen.</translation>
    </message>
    <message>
        <source>The module does not offer the form TFormTallymereSystem.</source>
        <translation>Das Modul bietet das Formular TFormTallymereSystem nicht an.</translation>
    </message>
    <message>
        <source>The form TFormTallymereSystem cannot be driven by this host.</source>
        <translation>Das Formular TFormTallymereSystem kann von diesem Host nicht bedient werden.</translation>
    </message>
    <message>
        <source>%1 is not an inventory module.</source>
        <translation>%1 ist kein Lagermodul.</translation>
    </message>
    <message>
        <source>The inventory module %1 is of release %2, and this program of %3. Install both of one release.</source>
        <translation>Das Lagermodul %1 hat die Version %2, dieses Programm die Version %3. Installieren Sie beide in derselben Version.</translation>
    </message>
    <message>
        <source>There are no books of a company in %1.</source>
        <translation>In %1 gibt es keine Bücher einer Firma.</translation>
    </message>
    <message>
        <source>The database in %1 is not that of a company.</source>
        <translation>Die Datenbank in %1 ist nicht die einer Firma.</translation>
    </message>
    <message>
        <source>Sample Company</source>
        <translation>Beispielfirma</translation>
    </message>
</context>
<context>
    <name>Import</name>
    <message>
        <source>a count</source>
        <translation>eine Zählung</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; was not found</source>
        <translation>Der Artikel „%1“ wurde nicht gefunden</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; has been suspended and is not counted</source>
        <translation>Der Artikel „%1“ ist gesperrt und wird nicht gezählt</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; is of a type without inventory and is not counted</source>
        <translation>Der Artikel „%1“ gehört zu einer Artikelart ohne Bestand und wird nicht gezählt</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; is not among those that are counted at this location</source>
        <translation>Der Artikel „%1“ gehört nicht zu denen, die an diesem Lagerort gezählt werden</translation>
    </message>
    <message>
        <source>An item number is needed</source>
        <translation>Eine Artikelnummer ist erforderlich</translation>
    </message>
    <message>
        <source>A quantity is needed for the item &apos;%1&apos;</source>
        <translation>Für den Artikel „%1“ ist eine Menge erforderlich</translation>
    </message>
    <message>
        <source>The item &apos;%1&apos; has been counted in an earlier row</source>
        <translation>Der Artikel „%1“ wurde bereits in einer früheren Zeile gezählt</translation>
    </message>
    <message>
        <source>The column &apos;%1&apos; is set by the system and cannot be imported.</source>
        <translation>Die Spalte „%1“ wird vom System gesetzt und kann nicht importiert werden.</translation>
    </message>
    <message>
        <source>There is no column &apos;%1&apos; in %2.</source>
        <translation>In %2 gibt es keine Spalte „%1“.</translation>
    </message>
    <message>
        <source>The column &apos;%1&apos; is there twice.</source>
        <translation>Die Spalte „%1“ kommt zweimal vor.</translation>
    </message>
    <message>
        <source>The columns &apos;%1&apos; and &apos;%2&apos; say the same thing; leave one out.</source>
        <translation>Die Spalten „%1“ und „%2“ besagen dasselbe; lassen Sie eine weg.</translation>
    </message>
    <message>
        <source>The column %1 is missing.</source>
        <translation>Die Spalte %1 fehlt.</translation>
    </message>
    <message>
        <source> or </source>
        <translation> oder </translation>
    </message>
    <message>
        <source>The header has %n field, this row %1.</source>
        <translation>Die Kopfzeile hat %n Feld, diese Zeile %1.</translation>
    </message>
    <message>
        <source>The header has %n fields, this row %1.</source>
        <translation>Die Kopfzeile hat %n Felder, diese Zeile %1.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Die Datei ist leer.</translation>
    </message>
    <message>
        <source>Location &apos;%1&apos; not found</source>
        <translation>Lagerort „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>is infinite</source>
        <translation>ist unendlich</translation>
    </message>
    <message>
        <source>is not a number</source>
        <translation>ist keine Zahl</translation>
    </message>
    <message>
        <source>is out of range</source>
        <translation>liegt außerhalb des zulässigen Bereichs</translation>
    </message>
    <message>
        <source>is not a whole number</source>
        <translation>ist keine ganze Zahl</translation>
    </message>
    <message>
        <source>is not within %1 to %2</source>
        <translation>liegt nicht zwischen %1 und %2</translation>
    </message>
    <message>
        <source>is not a year of two or four digits</source>
        <translation>ist keine zwei- oder vierstellige Jahreszahl</translation>
    </message>
    <message>
        <source>is not a date (YYYY-MM-DD)</source>
        <translation>ist kein Datum (JJJJ-MM-TT)</translation>
    </message>
    <message>
        <source>is neither true nor false</source>
        <translation>ist weder „true“ noch „false“</translation>
    </message>
    <message>
        <source>is longer than %1 characters</source>
        <translation>ist länger als %1 Zeichen</translation>
    </message>
    <message>
        <source>is longer than %n character</source>
        <translation>ist länger als %n Zeichen</translation>
    </message>
    <message>
        <source>is longer than %n characters</source>
        <translation>ist länger als %n Zeichen</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos; is there more than once; give %3 instead</source>
        <translation>%1 „%2“ ist mehrfach vorhanden; geben Sie stattdessen %3 an</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is used by now: %2. Nothing was taken back.</source>
        <translation>„%1“ wird inzwischen verwendet: %2. Es wurde nichts zurückgenommen.</translation>
    </message>
    <message>
        <source>Of what was imported, something has been deleted since. Nothing was taken back.</source>
        <translation>Vom Importierten wurde seither etwas gelöscht. Es wurde nichts zurückgenommen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; has been changed, used or posted since it was imported. Nothing was taken back.</source>
        <translation>„%1“ wurde seit dem Import geändert, verwendet oder gebucht. Es wurde nichts zurückgenommen.</translation>
    </message>
    <message>
        <source>The file %1 could not be read: %2</source>
        <translation>Die Datei %1 konnte nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>%1, row %2: %3</source>
        <translation>%1, Zeile %2: %3</translation>
    </message>
    <message>
        <source>Nothing stands in the sheet from that row on.</source>
        <translation>Ab dieser Zeile steht nichts im Blatt.</translation>
    </message>
    <message>
        <source>No column is taken.</source>
        <translation>Es wird keine Spalte übernommen.</translation>
    </message>
    <message>
        <source>The file is larger than %1 MB.</source>
        <translation>Die Datei ist größer als %1 MB.</translation>
    </message>
    <message>
        <source>The file is neither a spreadsheet (XLSX, ODS) nor CSV.</source>
        <translation>Die Datei ist weder eine Tabellenkalkulation (XLSX, ODS) noch CSV.</translation>
    </message>
    <message>
        <source>The file is a spreadsheet of an older format or protected by a password. Save it as XLSX, ODS or CSV without a password.</source>
        <translation>Die Datei ist eine Tabellenkalkulation in einem älteren Format oder durch ein Kennwort geschützt. Speichern Sie sie ohne Kennwort als XLSX, ODS oder CSV.</translation>
    </message>
    <message>
        <source>There is no sheet &apos;%1&apos; in a CSV file.</source>
        <translation>In einer CSV-Datei gibt es kein Blatt „%1“.</translation>
    </message>
    <message>
        <source>The file is protected by a password. Save it without one.</source>
        <translation>Die Datei ist durch ein Kennwort geschützt. Speichern Sie sie ohne Kennwort.</translation>
    </message>
    <message>
        <source>The cell %1 shows an error: %2</source>
        <translation>Die Zelle %1 zeigt einen Fehler: %2</translation>
    </message>
    <message>
        <source>The file is no proper spreadsheet: it declares a document type.</source>
        <translation>Die Datei ist keine ordnungsgemäße Tabellenkalkulation: Sie deklariert einen Dokumenttyp.</translation>
    </message>
    <message>
        <source>The file is damaged: %1</source>
        <translation>Die Datei ist beschädigt: %1</translation>
    </message>
    <message>
        <source>The file is no proper spreadsheet: its elements are nested too deep.</source>
        <translation>Die Datei ist keine ordnungsgemäße Tabellenkalkulation: Ihre Elemente sind zu tief verschachtelt.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Import</translation>
    </message>
    <message>
        <source>Spreadsheets and CSV files</source>
        <translation>Tabellenkalkulationen und CSV-Dateien</translation>
    </message>
    <message>
        <source>All files</source>
        <translation>Alle Dateien</translation>
    </message>
    <message>
        <source>%n record was imported.</source>
        <translation>%n Datensatz wurde importiert.</translation>
    </message>
    <message>
        <source>%n records were imported.</source>
        <translation>%n Datensätze wurden importiert.</translation>
    </message>
    <message>
        <source>Nothing has been imported into this list since the program was started.</source>
        <translation>In diese Liste wurde seit dem Start des Programms nichts importiert.</translation>
    </message>
    <message>
        <source>Take back the %n record that was imported?</source>
        <translation>Den %n importierten Datensatz zurücknehmen?</translation>
    </message>
    <message>
        <source>Take back the %n records that were imported?</source>
        <translation>Die %n importierten Datensätze zurücknehmen?</translation>
    </message>
    <message>
        <source>Taking back the import</source>
        <translation>Import wird zurückgenommen</translation>
    </message>
    <message>
        <source>There is no sheet in the file.</source>
        <translation>Die Datei enthält kein Blatt.</translation>
    </message>
    <message>
        <source>There is no sheet &apos;%1&apos;, but: %2</source>
        <translation>Es gibt kein Blatt „%1“, aber: %2</translation>
    </message>
    <message>
        <source>The sheet has more than %1 rows.</source>
        <translation>Das Blatt hat mehr als %1 Zeilen.</translation>
    </message>
    <message>
        <source>The sheet has more than %1 columns.</source>
        <translation>Das Blatt hat mehr als %1 Spalten.</translation>
    </message>
    <message>
        <source>The cell %1 stands under no heading.</source>
        <translation>Die Zelle %1 steht unter keiner Überschrift.</translation>
    </message>
    <message>
        <source>The texts of the file are longer than %1 million characters.</source>
        <translation>Die Texte der Datei sind länger als %1 Millionen Zeichen.</translation>
    </message>
    <message>
        <source>The formula in %1 has no stored result. Open the file in a spreadsheet program and save it.</source>
        <translation>Die Formel in %1 hat kein gespeichertes Ergebnis. Öffnen Sie die Datei in einem Tabellenkalkulationsprogramm, und speichern Sie sie.</translation>
    </message>
    <message>
        <source>The file is damaged and could not be unpacked: %1</source>
        <translation>Die Datei ist beschädigt und konnte nicht entpackt werden: %1</translation>
    </message>
    <message>
        <source>The file holds more than %1 MB when it is unpacked, and is not read any further.</source>
        <translation>Entpackt enthält die Datei mehr als %1 MB; sie wird nicht weiter gelesen.</translation>
    </message>
    <message>
        <source>The file holds a text that is longer than any cell may hold.</source>
        <translation>Die Datei enthält einen Text, der länger ist, als eine Zelle sein darf.</translation>
    </message>
    <message>
        <source>The file is no proper spreadsheet: an element has too many attributes.</source>
        <translation>Die Datei ist keine ordnungsgemäße Tabellenkalkulation: Ein Element hat zu viele Attribute.</translation>
    </message>
    <message>
        <source>The file is damaged: a text is missing.</source>
        <translation>Die Datei ist beschädigt: Ein Text fehlt.</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>true</source>
        <translation>wahr</translation>
    </message>
    <message>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <source>false</source>
        <translation>falsch</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>Save for an Import</source>
        <translation>Für einen Import speichern</translation>
    </message>
    <message>
        <source>XLSX files</source>
        <translation>XLSX-Dateien</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>%1 wird gespeichert</translation>
    </message>
    <message>
        <source>%n document was imported.</source>
        <translation>%n Beleg wurde importiert.</translation>
    </message>
    <message>
        <source>%n documents were imported.</source>
        <translation>%n Belege wurden importiert.</translation>
    </message>
    <message>
        <source>Saved as %1.</source>
        <translation>Gespeichert als %1.</translation>
    </message>
    <message>
        <source>There is no column &apos;%1&apos; to leave out.</source>
        <translation>Es gibt keine Spalte „%1“, die ausgelassen werden könnte.</translation>
    </message>
    <message>
        <source>There is only %n row, so that row %1 cannot hold the names of the columns.</source>
        <translation>Es gibt nur %n Zeile, sodass Zeile %1 nicht die Namen der Spalten enthalten kann.</translation>
    </message>
    <message>
        <source>There are only %n rows, so that row %1 cannot hold the names of the columns.</source>
        <translation>Es gibt nur %n Zeilen, sodass Zeile %1 nicht die Namen der Spalten enthalten kann.</translation>
    </message>
</context>
<context>
    <name>Insight</name>
    <message>
        <source>A quantity to buy cannot be below zero</source>
        <translation>Eine Bestellmenge darf nicht unter null liegen</translation>
    </message>
    <message>
        <source>There is nothing to buy of this vendor: no item has a quantity</source>
        <translation>Bei diesem Lieferanten ist nichts zu bestellen: Kein Artikel hat eine Menge</translation>
    </message>
    <message>
        <source>Item not found</source>
        <translation>Artikel nicht gefunden</translation>
    </message>
    <message>
        <source>Nothing has been received: the cost was set by hand</source>
        <translation>Es gab keinen Wareneingang: Der Preis wurde von Hand gesetzt</translation>
    </message>
    <message>
        <source>Nothing has been received</source>
        <translation>Es gab keinen Wareneingang</translation>
    </message>
    <message>
        <source>What the receipts come to is the average cost of the item</source>
        <translation>Der Durchschnittspreis des Artikels ergibt sich aus den Wareneingängen</translation>
    </message>
    <message>
        <source>The average cost was set by hand, before the first receipt or later</source>
        <translation>Der Durchschnittspreis wurde von Hand gesetzt, vor dem ersten Wareneingang oder später</translation>
    </message>
    <message>
        <source>The receipts come to %1: the average cost was set by hand after &quot;%2&quot;</source>
        <translation>Die Wareneingänge ergeben %1: Der Durchschnittspreis wurde nach „%2“ von Hand gesetzt</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>%1 (%2 of %3 items)</source>
        <translation>%1 (%2 von %3 Artikeln)</translation>
    </message>
    <message>
        <source>Not counted: %1</source>
        <translation>Nicht gezählt: %1</translation>
    </message>
    <message>
        <source>Counted: %1</source>
        <translation>Gezählt: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <source>The value is that of this moment: print or save it before anything of the next period is posted.</source>
        <translation>Der Wert gilt für diesen Augenblick: Drucken oder speichern Sie ihn, bevor etwas aus der nächsten Periode gebucht wird.</translation>
    </message>
    <message>
        <source>The organization sets no default period, so that new documents take the month of the day. There is no period to open.</source>
        <translation>Die Organisation legt keine Standardperiode fest, daher erhalten neue Belege den Monat des jeweiligen Tages. Es gibt keine Periode, die zu öffnen wäre.</translation>
    </message>
    <message>
        <source>The default period is %1 by now: somebody has moved it meanwhile.</source>
        <translation>Die Standardperiode ist jetzt %1: Jemand hat sie inzwischen weitergesetzt.</translation>
    </message>
    <message>
        <source>Period %1 cannot be opened, as its documents would be refused: %2</source>
        <translation>Die Periode %1 kann nicht geöffnet werden, da ihre Belege abgewiesen würden: %2</translation>
    </message>
    <message>
        <source>Locations counted</source>
        <translation>Lagerorte gezählt</translation>
    </message>
    <message>
        <source>Count...</source>
        <translation>Zählen...</translation>
    </message>
    <message>
        <source>Value printed</source>
        <translation>Wert gedruckt</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Drucken...</translation>
    </message>
    <message>
        <source>Line %1 cannot be bought: %2</source>
        <translation>Position %1 kann nicht bestellt werden: %2</translation>
    </message>
    <message>
        <source>Use has to be looked at over a week at least</source>
        <translation>Der Verbrauch muss über mindestens eine Woche betrachtet werden</translation>
    </message>
    <message>
        <source>Period %1 opened after %2.</source>
        <translation>Periode %1 nach %2 geöffnet.</translation>
    </message>
    <message>
        <source>None of the item types is kept in stock: tick Inventory in one of them.</source>
        <translation>Keine der Artikelarten wird im Lager geführt: Kreuzen Sie bei einer „Lager“ an.</translation>
    </message>
    <message>
        <source>The receipt of what is there is waiting to be posted.</source>
        <translation>Der Wareneingang mit dem, was da ist, wartet auf das Buchen.</translation>
    </message>
    <message>
        <source>By Hand</source>
        <translation>Von Hand</translation>
    </message>
    <message>
        <source>From a Spreadsheet...</source>
        <translation>Aus einer Tabelle...</translation>
    </message>
    <message>
        <source>Fiscal year and period</source>
        <translation>Geschäftsjahr und Periode</translation>
    </message>
    <message>
        <source>When your year begins, and the period that new documents go into.</source>
        <translation>Wann Ihr Jahr beginnt und in welche Periode neue Belege gehen.</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Lagerorte</translation>
    </message>
    <message>
        <source>The rooms and shelves where stock is kept, each counted by itself.</source>
        <translation>Die Räume und Regale, in denen Ware liegt; jeder wird für sich gezählt.</translation>
    </message>
    <message>
        <source>Item types</source>
        <translation>Artikelarten</translation>
    </message>
    <message>
        <source>Kinds of goods, such as produce or packing; each says how its items are costed.</source>
        <translation>Arten von Waren, etwa Gemüse oder Verpackung; jede sagt, wie ihre Artikel bewertet werden.</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>The goods themselves, with their numbers, units and types.</source>
        <translation>Die Waren selbst, mit Nummern, Einheiten und Arten.</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Lieferanten</translation>
    </message>
    <message>
        <source>Whom goods are received from.</source>
        <translation>Von wem Waren kommen.</translation>
    </message>
    <message>
        <source>First count</source>
        <translation>Erste Zählung</translation>
    </message>
    <message>
        <source>What is on the shelves: counted on a form, entered as a receipt with its costs, posted.</source>
        <translation>Was in den Regalen liegt: auf einer Liste gezählt, als Wareneingang mit Preisen erfasst, gebucht.</translation>
    </message>
    <message>
        <source>Blank Form...</source>
        <translation>Zählliste...</translation>
    </message>
    <message>
        <source>As a Receipt</source>
        <translation>Als Wareneingang</translation>
    </message>
    <message>
        <source>Up to which period documents are taken stands in Edit, Other, Organization Setup.</source>
        <translation>Bis zu welcher Periode Belege angenommen werden, steht unter Bearbeiten, Sonstiges, Organisation einrichten.</translation>
    </message>
    <message>
        <source>the end of period %1</source>
        <translation>Ende der Periode %1</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>not known</source>
        <translation>nicht bekannt</translation>
    </message>
    <message>
        <source>Last saved by: %1</source>
        <translation>Zuletzt gespeichert von: %1</translation>
    </message>
    <message>
        <source>%1. New in the list asks whether to go on.</source>
        <translation>%1. „Neu“ in der Liste fragt, ob Sie damit fortfahren.</translation>
    </message>
    <message>
        <source>today</source>
        <translation>heute</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>gestern</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>No backup of this database is known.</source>
        <translation>Von dieser Datenbank ist keine Sicherung bekannt.</translation>
    </message>
    <message>
        <source>%1, by %2</source>
        <translation>%1, von %2</translation>
    </message>
    <message>
        <source>Below zero</source>
        <translation>Unter null</translation>
    </message>
    <message>
        <source>Begun, not saved</source>
        <translation>Angefangene Belege</translation>
    </message>
    <message>
        <source>Counts begun</source>
        <translation>Laufende Zählungen</translation>
    </message>
    <message>
        <source>Backup</source>
        <translation>Sicherung</translation>
    </message>
</context>
<context>
    <name>ItemBarcodesDialog</name>
    <message>
        <source>Barcodes</source>
        <translation>Barcodes</translation>
    </message>
    <message>
        <source>&amp;Barcode:</source>
        <translation>&amp;Barcode:</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>KeptFiltersDialog</name>
    <message>
        <source>Kept Filters</source>
        <translation>Eigene Filter</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Keep</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation>Eigene Filter</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Apply</source>
        <translation>&amp;Anwenden</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Master</name>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>New Bank</source>
        <translation>Neue Bank</translation>
    </message>
    <message>
        <source>Field &apos;Bank Name&apos; must have a value</source>
        <translation>Das Feld „Name der Bank“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Field &apos;Currency&apos; must have a value</source>
        <translation>Das Feld „Währung“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Currency no longer exists</source>
        <translation>Die Währung ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Currency &apos;%1&apos; not found</source>
        <translation>Währung „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Bank already exists</source>
        <translation>Die Bank ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Banks</source>
        <translation>Banken</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>AP cheque(s) exist for this bank</source>
        <translation>Für diese Bank sind Schecks an Lieferanten vorhanden</translation>
    </message>
    <message>
        <source>AR payment(s) exist for this bank</source>
        <translation>Für diese Bank sind Zahlungen von Kunden vorhanden</translation>
    </message>
    <message>
        <source>Edit Banks</source>
        <translation>Banken bearbeiten</translation>
    </message>
    <message>
        <source>Current Fiscal Year invalid...
Enter year as 2 digits</source>
        <translation>Aktuelles Geschäftsjahr ungültig...
Geben Sie das Jahr zweistellig ein</translation>
    </message>
    <message>
        <source>Default Period invalid...
Enter year as 2 digits</source>
        <translation>Standardperiode ungültig...
Geben Sie das Jahr zweistellig ein</translation>
    </message>
    <message>
        <source>Warn Before Period invalid...
Enter year as 2 digits</source>
        <translation>Periode für „Warnung vor“ ungültig...
Geben Sie das Jahr zweistellig ein</translation>
    </message>
    <message>
        <source>Warn After Period invalid...
Enter year as 2 digits</source>
        <translation>Periode für „Warnung nach“ ungültig...
Geben Sie das Jahr zweistellig ein</translation>
    </message>
    <message>
        <source>Error Before Period invalid...
Enter year as 2 digits</source>
        <translation>Periode für „Fehler vor“ ungültig...
Geben Sie das Jahr zweistellig ein</translation>
    </message>
    <message>
        <source>Error After Period invalid...
Enter year as 2 digits</source>
        <translation>Periode für „Fehler nach“ ungültig...
Geben Sie das Jahr zweistellig ein</translation>
    </message>
    <message>
        <source>Default Period</source>
        <translation>Standardperiode</translation>
    </message>
    <message>
        <source>Warn if before</source>
        <translation>Warnung vor</translation>
    </message>
    <message>
        <source>Warn if after</source>
        <translation>Warnung nach</translation>
    </message>
    <message>
        <source>Error if before</source>
        <translation>Fehler vor</translation>
    </message>
    <message>
        <source>Error if after</source>
        <translation>Fehler nach</translation>
    </message>
    <message>
        <source>Default Days in which invoice is due</source>
        <translation>Zahlungsziel für Rechnungen in Tagen</translation>
    </message>
    <message>
        <source>Fiscal Year must be between 1989 and 2050</source>
        <translation>Das Geschäftsjahr muss zwischen 1989 und 2050 liegen</translation>
    </message>
    <message>
        <source>Your Organization</source>
        <translation>Ihre Organisation</translation>
    </message>
    <message>
        <source>Field &apos;Company Name&apos; must have a value</source>
        <translation>Das Feld „Firmenname“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>New Currency</source>
        <translation>Neue Währung</translation>
    </message>
    <message>
        <source>Field &apos;Currency Name&apos; must have a value</source>
        <translation>Das Feld „Name der Währung“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Currency already exists</source>
        <translation>Die Währung ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Währungen</translation>
    </message>
    <message>
        <source>Exchange Rate</source>
        <translation>Wechselkurs</translation>
    </message>
    <message>
        <source>Bank(s) exist for this currency</source>
        <translation>Für diese Währung sind Banken vorhanden</translation>
    </message>
    <message>
        <source>Vendor(s) exist for this currency</source>
        <translation>Für diese Währung sind Lieferanten vorhanden</translation>
    </message>
    <message>
        <source>Customer(s) exist for this currency</source>
        <translation>Für diese Währung sind Kunden vorhanden</translation>
    </message>
    <message>
        <source>Edit Currencies</source>
        <translation>Währungen bearbeiten</translation>
    </message>
    <message>
        <source>The port cannot be saved: %1 cannot be written.</source>
        <translation>Der Anschluss kann nicht gespeichert werden: %1 kann nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Unable to dial number.</source>
        <translation>Die Nummer kann nicht gewählt werden.</translation>
    </message>
    <message>
        <source>Unable to open %1</source>
        <translation>%1 kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Pick up the phone.
Click OK after dialing has completed.</source>
        <translation>Nehmen Sie den Hörer ab.
Klicken Sie auf OK, wenn die Nummer gewählt ist.</translation>
    </message>
    <message>
        <source>There is no number left for %n new record.</source>
        <translation>Für %n neuen Datensatz ist keine Nummer mehr frei.</translation>
    </message>
    <message>
        <source>There are not enough numbers left for %n new records.</source>
        <translation>Für %n neue Datensätze sind nicht genug Nummern frei.</translation>
    </message>
    <message>
        <source>Tax Codes</source>
        <translation>Steuercodes</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>New Item</source>
        <translation>Neuer Artikel</translation>
    </message>
    <message>
        <source>New (copied) Item</source>
        <translation>Neuer (kopierter) Artikel</translation>
    </message>
    <message>
        <source>Field &apos;Item no.&apos; must have a value</source>
        <translation>Das Feld „Artikelnr.“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Field &apos;Description&apos; must have a value</source>
        <translation>Das Feld „Beschreibung“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Field &apos;Item Type&apos; must have a value</source>
        <translation>Das Feld „Artikelart“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Item Type no longer exists</source>
        <translation>Die Artikelart ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Item type &apos;%1&apos; not found</source>
        <translation>Artikelart „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Item no. already exists</source>
        <translation>Die Artikelnr. ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Item no. &apos;%1&apos; not found</source>
        <translation>Artikelnr. „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Verk.-Preis</translation>
    </message>
    <message>
        <source>&amp;Item no.</source>
        <translation>&amp;Artikelnr.</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>Edit Items</source>
        <translation>Artikel bearbeiten</translation>
    </message>
    <message>
        <source>The items are in use by another user%1. Nothing has been changed; try again in a moment.</source>
        <translation>Die Artikel werden von einem anderen Benutzer%1 verwendet. Es wurde nichts geändert; versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Item %1 &quot;%2&quot;</source>
        <translation>Artikel %1 „%2“</translation>
    </message>
    <message>
        <source>The price of the host&apos;s item %1 is too large.</source>
        <translation>Der Preis des Artikels %1 im Host-Programm ist zu groß.</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>New Item Type</source>
        <translation>Neue Artikelart</translation>
    </message>
    <message>
        <source>Field &apos;Type Name&apos; must have a value</source>
        <translation>Das Feld „Name der Artikelart“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Item Type already exists</source>
        <translation>Die Artikelart ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Artikelarten</translation>
    </message>
    <message>
        <source>System-defined Item Types can&apos;t be deleted!</source>
        <translation>Vom System vorgegebene Artikelarten können nicht gelöscht werden!</translation>
    </message>
    <message>
        <source>Item(s) exist for this item type</source>
        <translation>Für diese Artikelart sind Artikel vorhanden</translation>
    </message>
    <message>
        <source>Edit Item Types</source>
        <translation>Artikelarten bearbeiten</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>New Location</source>
        <translation>Neuer Lagerort</translation>
    </message>
    <message>
        <source>Field &apos;Location Name&apos; must have a value</source>
        <translation>Das Feld „Name des Lagerorts“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>That Location already exists</source>
        <translation>Dieser Lagerort ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Lagerorte</translation>
    </message>
    <message>
        <source>History exists for this location</source>
        <translation>Für diesen Lagerort sind Bewegungen vorhanden</translation>
    </message>
    <message>
        <source>Receipts exist for this location</source>
        <translation>Für diesen Lagerort sind Wareneingänge vorhanden</translation>
    </message>
    <message>
        <source>Adjustments exist for this location</source>
        <translation>Für diesen Lagerort sind Korrekturen vorhanden</translation>
    </message>
    <message>
        <source>Edit Locations</source>
        <translation>Lagerorte bearbeiten</translation>
    </message>
    <message>
        <source>The locations are in use by another user%1. Nothing has been changed; try again in a moment.</source>
        <translation>Die Lagerorte werden von einem anderen Benutzer%1 verwendet. Es wurde nichts geändert; versuchen Sie es gleich noch einmal.</translation>
    </message>
    <message>
        <source>Location %1 &quot;%2&quot;</source>
        <translation>Lagerort %1 „%2“</translation>
    </message>
    <message>
        <source>Delete &apos;%1&apos;?</source>
        <translation>„%1“ löschen?</translation>
    </message>
    <message>
        <source>Unable to delete &apos;%1&apos;...</source>
        <translation>„%1“ kann nicht gelöscht werden...</translation>
    </message>
    <message>
        <source>&apos;%1&apos; not found</source>
        <translation>„%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Steuer</translation>
    </message>
    <message>
        <source>New Tax</source>
        <translation>Neue Steuer</translation>
    </message>
    <message>
        <source>Field &apos;Tax Name&apos; must have a value</source>
        <translation>Das Feld „Name der Steuer“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Field &apos;Code&apos; must have a value</source>
        <translation>Das Feld „Code“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Field &apos;Rate&apos; must have a value</source>
        <translation>Das Feld „Satz“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Tax already exists</source>
        <translation>Die Steuer ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Taxes</source>
        <translation>Steuern</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Satz</translation>
    </message>
    <message>
        <source>Unable to delete tax &apos;%1&apos;...</source>
        <translation>Die Steuer „%1“ kann nicht gelöscht werden...</translation>
    </message>
    <message>
        <source>Customer(s) exist for this tax</source>
        <translation>Für diese Steuer sind Kunden vorhanden</translation>
    </message>
    <message>
        <source>Invoice(s) exist for this tax</source>
        <translation>Für diese Steuer sind Rechnungen vorhanden</translation>
    </message>
    <message>
        <source>Edit Taxes</source>
        <translation>Steuern bearbeiten</translation>
    </message>
    <message>
        <source>Field &apos;Contact Name&apos; must have a value</source>
        <translation>Das Feld „Kontaktname“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Vendor Contact</source>
        <translation>Lieferantenkontakt</translation>
    </message>
    <message>
        <source>New Contact</source>
        <translation>Neuer Kontakt</translation>
    </message>
    <message>
        <source>Field &apos;Vendor&apos; must have a value</source>
        <translation>Das Feld „Lieferant“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Vendor no longer exists</source>
        <translation>Der Lieferant ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>Nachname</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <source>Job Title</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Currency cannot be changed... 
Invoice(s) already exist</source>
        <translation>Die Währung kann nicht geändert werden... 
Es sind bereits Rechnungen vorhanden</translation>
    </message>
    <message>
        <source>Discount %</source>
        <translation>Skonto %</translation>
    </message>
    <message>
        <source>Discount days</source>
        <translation>Skontotage</translation>
    </message>
    <message>
        <source>Net days</source>
        <translation>Zahlungsziel</translation>
    </message>
    <message>
        <source>Default number of days to due date</source>
        <translation>Standardanzahl der Tage bis zur Fälligkeit</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Field &apos;Vendor no.&apos; must have a value</source>
        <translation>Das Feld „Lieferantennr.“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Field &apos;Vendor Name&apos; must have a value</source>
        <translation>Das Feld „Name des Lieferanten“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>Vendor no. already exists</source>
        <translation>Die Lieferantennr. ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Vendor no. &apos;%1&apos; not found</source>
        <translation>Lieferantennr. „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Lieferanten</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>Lief.-Nr.</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>Kontakt</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Saldo</translation>
    </message>
    <message>
        <source>&amp;Vendor no.</source>
        <translation>&amp;Lief.-Nr.</translation>
    </message>
    <message>
        <source>&amp;Name</source>
        <translation>&amp;Name</translation>
    </message>
    <message>
        <source>Edit Vendors</source>
        <translation>Lieferanten bearbeiten</translation>
    </message>
    <message>
        <source>Year End: Permanently close %1?

GL balances have been carried forward, etc. so you can now print financial statements for %2.  You can leave %1 open if there will be more transactions.</source>
        <translation>Jahresabschluss: %1 endgültig abschließen?

Die Salden des Hauptbuchs usw. wurden vorgetragen, sodass Sie jetzt die Abschlüsse für %2 drucken können.  Sie können %1 offen lassen, wenn noch Vorgänge folgen.</translation>
    </message>
    <message>
        <source>Scan or type the code first.</source>
        <translation>Scannen Sie den Code zuerst, oder geben Sie ihn ein.</translation>
    </message>
    <message>
        <source>A code has %1 letters at most.</source>
        <translation>Ein Code hat höchstens %1 Zeichen.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is the item no. of &apos;%2&apos;.</source>
        <translation>„%1“ ist die Artikelnr. von „%2“.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is a code of &apos;%2&apos;. Take it out there first.</source>
        <translation>„%1“ ist ein Code von „%2“. Entfernen Sie ihn zuerst dort.</translation>
    </message>
    <message>
        <source>The item is not there any more.</source>
        <translation>Der Artikel ist nicht mehr vorhanden.</translation>
    </message>
    <message>
        <source>Another user has added a code at the same moment. Try again.</source>
        <translation>Ein anderer Benutzer hat im selben Augenblick einen Code hinzugefügt. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>Keep the code &apos;%1&apos; for &apos;%2&apos;, so that it is known from now on?</source>
        <translation>Den Code „%1“ für „%2“ speichern, damit er ab jetzt bekannt ist?</translation>
    </message>
    <message>
        <source>No item has the code &apos;%1&apos;. Do you want to look for the item?</source>
        <translation>Kein Artikel hat den Code „%1“. Möchten Sie den Artikel suchen?</translation>
    </message>
</context>
<context>
    <name>PhoneCount</name>
    <message>
        <source>No certificate could be made, without which nothing is sent to a phone.</source>
        <translation>Es konnte kein Zertifikat erstellt werden; ohne dieses wird nichts an ein Telefon gesendet.</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Zählung</translation>
    </message>
    <message>
        <source>Who is counting?</source>
        <translation>Wer zählt?</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginnen</translation>
    </message>
    <message>
        <source>Number, description or barcode</source>
        <translation>Nummer, Beschreibung oder Barcode</translation>
    </message>
    <message>
        <source>Scan</source>
        <translation>Scannen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1 of %2 counted</source>
        <translation>%1 von %2 gezählt</translation>
    </message>
    <message>
        <source>All sent</source>
        <translation>Alles gesendet</translation>
    </message>
    <message>
        <source>Waiting: %1</source>
        <translation>Wartend: %1</translation>
    </message>
    <message>
        <source>To be answered: %1</source>
        <translation>Zu beantworten: %1</translation>
    </message>
    <message>
        <source>No connection. What you type is kept on this phone and sent later.</source>
        <translation>Keine Verbindung. Was Sie eingeben, bleibt auf diesem Telefon und wird später gesendet.</translation>
    </message>
    <message>
        <source>The count has been closed at the computer. What has not been sent is kept on this phone: ask for a new link there.</source>
        <translation>Die Zählung wurde am Computer geschlossen. Was noch nicht gesendet ist, bleibt auf diesem Telefon: Lassen Sie sich dort einen neuen Link geben.</translation>
    </message>
    <message>
        <source>This browser keeps nothing. Do not close the page before all has been sent.</source>
        <translation>Dieser Browser bewahrt nichts auf. Schließen Sie die Seite nicht, bevor alles gesendet ist.</translation>
    </message>
    <message>
        <source>Recorded: %1</source>
        <translation>Gebucht: %1</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>At the computer</source>
        <translation>Am Computer</translation>
    </message>
    <message>
        <source>Not sent yet</source>
        <translation>Noch nicht gesendet</translation>
    </message>
    <message>
        <source>The computer takes it in a moment</source>
        <translation>Der Computer nimmt es gleich an</translation>
    </message>
    <message>
        <source>%1 has counted %2. You have typed %3.</source>
        <translation>%1 hat %2 gezählt. Sie haben %3 eingegeben.</translation>
    </message>
    <message>
        <source>The count of this item has been taken back. You have typed %1.</source>
        <translation>Die Zählung dieses Artikels wurde zurückgenommen. Sie haben %1 eingegeben.</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>Leave it</source>
        <translation>So lassen</translation>
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
        <source>Take back</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in the list</source>
        <translation>„%1“ ist nicht in der Liste</translation>
    </message>
    <message>
        <source>Quantity of %1</source>
        <translation>Menge von %1</translation>
    </message>
    <message>
        <source>Not sent of another count of %1: %2</source>
        <translation>Nicht gesendet aus einer anderen Zählung von %1: %2</translation>
    </message>
    <message>
        <source>Send to this count</source>
        <translation>An diese Zählung senden</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>The camera cannot be used.</source>
        <translation>Die Kamera kann nicht verwendet werden.</translation>
    </message>
    <message>
        <source>No page can be served at %1: %2</source>
        <translation>Unter %1 kann keine Seite bereitgestellt werden: %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a number.</source>
        <translation>„%1“ ist keine Zahl.</translation>
    </message>
    <message>
        <source>This item is not in the list any more.</source>
        <translation>Dieser Artikel steht nicht mehr in der Liste.</translation>
    </message>
</context>
<context>
    <name>Printing</name>
    <message>
        <source>(none)</source>
        <translation>(keine)</translation>
    </message>
    <message>
        <source>There is nothing to show.</source>
        <translation>Es gibt nichts anzuzeigen.</translation>
    </message>
    <message>
        <source>%1 (continued)</source>
        <translation>%1 (Fortsetzung)</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>Seite %1</translation>
    </message>
    <message>
        <source>The pages of the report cannot be kept in &apos;%1&apos;...
%2</source>
        <translation>Die Seiten des Berichts können nicht in „%1“ abgelegt werden...
%2</translation>
    </message>
    <message>
        <source>The report was not printed: the printer &apos;%1&apos; cannot be found any more.</source>
        <translation>Der Bericht wurde nicht gedruckt: Der Drucker „%1“ ist nicht mehr zu finden.</translation>
    </message>
    <message>
        <source>The report was not printed: %1</source>
        <translation>Der Bericht wurde nicht gedruckt: %1</translation>
    </message>
    <message>
        <source>A total of the report &apos;%1&apos; is beyond what an amount of money can be</source>
        <translation>Eine Summe des Berichts „%1“ ist größer, als ein Geldbetrag sein kann</translation>
    </message>
    <message>
        <source>The report cannot be printed: its pages could not be made to the end.</source>
        <translation>Der Bericht kann nicht gedruckt werden: Seine Seiten konnten nicht zu Ende erstellt werden.</translation>
    </message>
    <message>
        <source>The report cannot be printed: the printer or the file takes nothing.</source>
        <translation>Der Bericht kann nicht gedruckt werden: Der Drucker oder die Datei nimmt nichts an.</translation>
    </message>
    <message>
        <source>Page %1 cannot be printed.</source>
        <translation>Seite %1 kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The report could not be printed to its end.</source>
        <translation>Der Bericht konnte nicht zu Ende gedruckt werden.</translation>
    </message>
    <message>
        <source>The report cannot be kept in &apos;%1&apos; until it is printed...
%2</source>
        <translation>Der Bericht kann bis zum Druck nicht in „%1“ abgelegt werden...
%2</translation>
    </message>
</context>
<context>
    <name>RecordFindScreen</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>Reports</name>
    <message>
        <source>Item No</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Prior Quantity</source>
        <translation>Vorherige Menge</translation>
    </message>
    <message>
        <source>Current Quantity</source>
        <translation>Aktuelle Menge</translation>
    </message>
    <message>
        <source>There are unposted transactions for this location: prior quantities will change.</source>
        <translation>Für diesen Lagerort gibt es ungebuchte Vorgänge: Die vorherigen Mengen werden sich ändern.</translation>
    </message>
    <message>
        <source>Choose the location that is counted.</source>
        <translation>Wählen Sie den Lagerort, der gezählt wird.</translation>
    </message>
    <message>
        <source>Blank Inventory Form</source>
        <translation>Zählliste</translation>
    </message>
    <message>
        <source>Counted by:</source>
        <translation>Gezählt von:</translation>
    </message>
    <message>
        <source>Date:</source>
        <translation>Datum:</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Einst.-Preis</translation>
    </message>
    <message>
        <source>Type %1</source>
        <translation>Art %1</translation>
    </message>
    <message>
        <source>No type</source>
        <translation>Keine Art</translation>
    </message>
    <message>
        <source>%1. Average cost: %2</source>
        <translation>%1. Durchschnittspreis: %2</translation>
    </message>
    <message>
        <source>Why This Cost</source>
        <translation>Preisherleitung</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>On hand before</source>
        <translation>Bestand vorher</translation>
    </message>
    <message>
        <source>Cost before</source>
        <translation>Preis vorher</translation>
    </message>
    <message>
        <source>On hand after</source>
        <translation>Bestand nachher</translation>
    </message>
    <message>
        <source>Cost after</source>
        <translation>Preis nachher</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Posted</source>
        <translation>Gebucht</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Artikelarten</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Unit Price</source>
        <translation>Verk.-Preis</translation>
    </message>
    <message>
        <source>Tax</source>
        <translation>Steuer</translation>
    </message>
    <message>
        <source>Wgt Av Cost</source>
        <translation>Ø-Preis</translation>
    </message>
    <message>
        <source>Stnd Cost</source>
        <translation>Std.-Preis</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Lieferanten</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>Lief.-Nr.</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>Inventory Receipts</source>
        <translation>Wareneingänge</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>Eingangsnr.</translation>
    </message>
    <message>
        <source>PO</source>
        <translation>Best.-Nr.</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Inventory Usage</source>
        <translation>Lagerverbrauch</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>Verbr.-Nr.</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Inventory Adjustments</source>
        <translation>Bestandskorrekturen</translation>
    </message>
    <message>
        <source>Inventory History</source>
        <translation>Lagerbewegungen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Inventory Totals</source>
        <translation>Lagerbestände</translation>
    </message>
    <message>
        <source>Quantity On Hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Audit List</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>There is no location %1</source>
        <translation>Es gibt keinen Lagerort %1</translation>
    </message>
    <message>
        <source>There is no item type %1</source>
        <translation>Es gibt keine Artikelart %1</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Lagerort: %1</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Art: %1</translation>
    </message>
    <message>
        <source>Period: %1/%2</source>
        <translation>Periode: %1/%2</translation>
    </message>
    <message>
        <source>Printed at %1 %2</source>
        <translation>Gedruckt am %1 %2</translation>
    </message>
    <message>
        <source>Opening Balance:</source>
        <translation>Anfangsbestand:</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Opening Balance</source>
        <translation>Anfangsbestand</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Eingänge</translation>
    </message>
    <message>
        <source>Adjustments</source>
        <translation>Korrekturen</translation>
    </message>
    <message>
        <source>Sales</source>
        <translation>Verkäufe</translation>
    </message>
    <message>
        <source>Closing Balance</source>
        <translation>Endbestand</translation>
    </message>
    <message>
        <source>Closing balance %1</source>
        <translation>Endbestand %1</translation>
    </message>
    <message>
        <source>Perpetual by Item</source>
        <translation>Fortschreibung nach Artikel</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Item</source>
        <translation>Bestandsfortschreibung nach Artikel</translation>
    </message>
    <message>
        <source>Perpetual by Item /Location</source>
        <translation>Fortschreibung nach Artikel/Lagerort</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Item /Location</source>
        <translation>Bestandsfortschreibung nach Artikel/Lagerort</translation>
    </message>
    <message>
        <source>Perpetual by Type /Item</source>
        <translation>Fortschreibung nach Art/Artikel</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Type /Item</source>
        <translation>Bestandsfortschreibung nach Art/Artikel</translation>
    </message>
    <message>
        <source>Perpetual by Type /Item /Location</source>
        <translation>Fortschreibung nach Art/Artikel/Lagerort</translation>
    </message>
    <message>
        <source>Perpetual Inventory by Type /Item /Location</source>
        <translation>Bestandsfortschreibung nach Art/Artikel/Lagerort</translation>
    </message>
    <message>
        <source>Perpetual Summary by Item</source>
        <translation>Fortschreibung, Summen nach Artikel</translation>
    </message>
    <message>
        <source>Perpetual Inventory Summary by Item</source>
        <translation>Bestandsfortschreibung, Summen nach Artikel</translation>
    </message>
    <message>
        <source>Perpetual Summary by Type /Item</source>
        <translation>Fortschreibung, Summen nach Art/Artikel</translation>
    </message>
    <message>
        <source>Perpetual Inventory Summary by Type /Item</source>
        <translation>Bestandsfortschreibung, Summen nach Art/Artikel</translation>
    </message>
    <message>
        <source>Total %1</source>
        <translation>Summe %1</translation>
    </message>
    <message>
        <source>Enter the period that the report begins with, 1 to 12.</source>
        <translation>Geben Sie die Periode ein, mit der der Bericht beginnt, 1 bis 12.</translation>
    </message>
    <message>
        <source>Enter the fiscal year of the period, in two or four digits.</source>
        <translation>Geben Sie das Geschäftsjahr der Periode ein, zwei- oder vierstellig.</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not a year of two or four digits</source>
        <translation>„%1“ ist keine zwei- oder vierstellige Jahreszahl</translation>
    </message>
    <message>
        <source>The report &apos;%1&apos; has nothing to show yet.</source>
        <translation>Der Bericht „%1“ hat noch nichts zu zeigen.</translation>
    </message>
    <message>
        <source>Save as PDF</source>
        <translation>Als PDF speichern</translation>
    </message>
    <message>
        <source>PDF files</source>
        <translation>PDF-Dateien</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Als CSV speichern</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>CSV-Dateien</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Speichern: %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>Lesen: %1</translation>
    </message>
    <message>
        <source>As of %1</source>
        <translation>Stichtag: %1</translation>
    </message>
    <message>
        <source>The value is that of the quantity then at what a unit costs now.</source>
        <translation>Bewertet ist die damalige Menge zum heutigen Preis je Einheit.</translation>
    </message>
    <message>
        <source>Stock as of</source>
        <translation>Stichtagsbestand</translation>
    </message>
    <message>
        <source>Quantity then</source>
        <translation>Damalige Menge</translation>
    </message>
    <message>
        <source>At today&apos;s cost</source>
        <translation>Zum heutigen Preis</translation>
    </message>
    <message>
        <source>Location %1</source>
        <translation>Lagerort %1</translation>
    </message>
    <message>
        <source>No location</source>
        <translation>Kein Lagerort</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>By the use of %1 weeks, to last %2 weeks</source>
        <translation>Nach dem Verbrauch von %1 Wochen, Reichweite %2 Wochen</translation>
    </message>
    <message>
        <source>What to buy</source>
        <translation>Bestellvorschlag</translation>
    </message>
    <message>
        <source>Use a week</source>
        <translation>Verbr./Woche</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Unposted</source>
        <translation>Ungebucht</translation>
    </message>
    <message>
        <source>Days left</source>
        <translation>Tage Rest</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Vorschlag</translation>
    </message>
    <message>
        <source>Last cost</source>
        <translation>Letzter Preis</translation>
    </message>
    <message>
        <source>No vendor yet</source>
        <translation>Ohne Lieferant</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Inventory %1</source>
        <translation>Lager: %1</translation>
    </message>
    <message>
        <source>Value by Item</source>
        <translation>Wert nach Artikel</translation>
    </message>
    <message>
        <source>Value by Item /Location</source>
        <translation>Wert nach Artikel/Lagerort</translation>
    </message>
    <message>
        <source>Value by Type /Item</source>
        <translation>Wert nach Art/Artikel</translation>
    </message>
    <message>
        <source>Value by Type</source>
        <translation>Wert nach Art</translation>
    </message>
    <message>
        <source>Inventory Value by Type</source>
        <translation>Lagerwert nach Artikelart</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>Value by Type /Item /Location</source>
        <translation>Wert nach Art/Artikel/Lagerort</translation>
    </message>
    <message>
        <source>Value by GL Account /Item</source>
        <translation>Wert nach Sachkonto/Artikel</translation>
    </message>
    <message>
        <source>Account %1</source>
        <translation>Konto %1</translation>
    </message>
    <message>
        <source>No account</source>
        <translation>Kein Konto</translation>
    </message>
    <message>
        <source>Cost per Meal</source>
        <translation>Kosten pro Mahlzeit</translation>
    </message>
    <message>
        <source>The value of item &apos;%1&apos; is beyond what an amount of money can be</source>
        <translation>Der Wert des Artikels „%1“ ist größer, als ein Geldbetrag sein kann</translation>
    </message>
    <message>
        <source>Save as XLSX</source>
        <translation>Als XLSX speichern</translation>
    </message>
    <message>
        <source>XLSX files</source>
        <translation>XLSX-Dateien</translation>
    </message>
    <message>
        <source>Day concerned</source>
        <translation>Betroffener Tag</translation>
    </message>
    <message>
        <source>There is no report %1</source>
        <translation>Es gibt keinen Bericht %1</translation>
    </message>
</context>
<context>
    <name>Sample</name>
    <message>
        <source>The sample file %1 is missing from the program.</source>
        <translation>Die Musterdatei %1 fehlt im Programm.</translation>
    </message>
    <message>
        <source>The sample kitchen does not fit into this database: %1 (%2.csv, line %3)</source>
        <translation>Die Musterküche passt nicht in diese Datenbank: %1 (%2.csv, Zeile %3)</translation>
    </message>
    <message>
        <source>The sample kitchen goes into a new database only: table &apos;%1&apos; holds rows already.</source>
        <translation>Die Beispielküche kommt nur in eine neue Datenbank: Die Tabelle „%1“ enthält bereits Zeilen.</translation>
    </message>
    <message>
        <source>The sample kitchen counts in US $, but the home currency of this database is %1. Make a database with the postal format USA.</source>
        <translation>Die Beispielküche rechnet in US $, die Hauswährung dieser Datenbank ist aber %1. Legen Sie eine Datenbank mit dem Postformat USA an.</translation>
    </message>
</context>
<context>
    <name>StockTimeDialog</name>
    <message>
        <source>Stock As Of</source>
        <translation>Stichtagsbestand</translation>
    </message>
    <message>
        <source>At the end of the &amp;day:</source>
        <translation>Am Ende des &amp;Tages:</translation>
    </message>
    <message>
        <source>Day</source>
        <translation>Tag</translation>
    </message>
    <message>
        <source>At the end of the &amp;period:</source>
        <translation>Am Ende der &amp;Periode:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Year of the period</source>
        <translation>Jahr der Periode</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TFormBlankInventoryReportSelection</name>
    <message>
        <source>Blank Inventory Form</source>
        <translation>Zählliste</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Lagerort:</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Reihenfolge</translation>
    </message>
    <message>
        <source>By &amp;category</source>
        <translation>Nach &amp;Kategorie</translation>
    </message>
    <message>
        <source>Each category on a &amp;new page</source>
        <translation>Jede Kategorie auf &amp;neuer Seite</translation>
    </message>
    <message>
        <source>By &amp;item number</source>
        <translation>Nach &amp;Artikelnr.</translation>
    </message>
    <message>
        <source>Content</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Include &amp;Zero Count Items</source>
        <translation>Auch Artikel mit &amp;Bestand null</translation>
    </message>
    <message>
        <source>P&amp;rior quantities (leave out for a blind count)</source>
        <translation>Vorherige &amp;Mengen (für Blindzählung weglassen)</translation>
    </message>
    <message>
        <source>&amp;Barcodes of the item numbers</source>
        <translation>Strich&amp;codes der Artikelnummern</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Speichern als</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>Am Bildsch&amp;irm</translation>
    </message>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TFormEnterInventory</name>
    <message>
        <source>Enter Inventory</source>
        <translation>Inventur erfassen</translation>
    </message>
    <message>
        <source>Select the &amp;Location for the inventory:</source>
        <translation>Wählen Sie den &amp;Lagerort der Inventur:</translation>
    </message>
    <message>
        <source>Select the &amp;Date of the inventory</source>
        <translation>Wählen Sie das &amp;Datum der Inventur</translation>
    </message>
    <message>
        <source>Hides what the books hold until the count has been calculated</source>
        <translation>Verbirgt bis zur Berechnung der Zählung, was die Bücher enthalten</translation>
    </message>
    <message>
        <source>&amp;Blind</source>
        <translation>&amp;Blind</translation>
    </message>
    <message>
        <source>Include Items with no inventory</source>
        <translation>Auch Artikel ohne Bestand</translation>
    </message>
    <message>
        <source>Include &amp;Zero Count Items</source>
        <translation>Auch Artikel mit Bestand n&amp;ull</translation>
    </message>
    <message>
        <source>Inventory &amp;Items and Quantities</source>
        <translation>&amp;Artikel und Mengen der Inventur</translation>
    </message>
    <message>
        <source>&amp;Search:</source>
        <translation>&amp;Suche in:</translation>
    </message>
    <message>
        <source>&amp;for:</source>
        <translation>&amp;nach:</translation>
    </message>
    <message>
        <source>Inventory Items and Quantities</source>
        <translation>Artikel und Mengen der Inventur</translation>
    </message>
    <message>
        <source>Diff&amp;erences...</source>
        <translation>Di&amp;fferenzen...</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>Calculate usage</source>
        <translation>Verbrauch berechnen</translation>
    </message>
    <message>
        <source>Count on a &amp;Phone...</source>
        <translation>Am T&amp;elefon zählen...</translation>
    </message>
    <message>
        <source>Serves the list of this location to phones on the local network until the count is closed</source>
        <translation>Stellt die Liste dieses Lagerorts Telefonen im lokalen Netzwerk bereit, bis die Zählung geschlossen wird</translation>
    </message>
</context>
<context>
    <name>Tallymere::AboutBox</name>
    <message>
        <source>About Corvane</source>
        <translation>Info über Corvane</translation>
    </message>
    <message>
        <source>For those who help you, a report can be copied.</source>
        <translation>Für alle, die Ihnen helfen, kann ein Bericht kopiert werden.</translation>
    </message>
    <message>
        <source>Corvane Client Billing</source>
        <translation>Corvane-Kundenabrechnung</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>The inventory module is loaded.</source>
        <translation>Das Lagermodul ist geladen.</translation>
    </message>
    <message>
        <source>The inventory module is not loaded.</source>
        <translation>Das Lagermodul ist nicht geladen.</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Bericht &amp;kopieren</translation>
    </message>
    <message>
        <source>Store: %1</source>
        <translation>Datenspeicher: %1</translation>
    </message>
    <message>
        <source>Data version: %1</source>
        <translation>Datenversion: %1</translation>
    </message>
    <message>
        <source>Copied. The report holds versions, no figures and no names.</source>
        <translation>Kopiert. Der Bericht enthält Versionen, keine Zahlen und keine Namen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::BuyingGrid</name>
    <message>
        <source>To buy</source>
        <translation>Zu bestellen</translation>
    </message>
</context>
<context>
    <name>Tallymere::BuyingModel</name>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Use a week</source>
        <translation>Verbr./Woche</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Unposted</source>
        <translation>Ungebucht</translation>
    </message>
    <message>
        <source>Days left</source>
        <translation>Tage Rest</translation>
    </message>
    <message>
        <source>Last cost</source>
        <translation>Letzter Preis</translation>
    </message>
    <message>
        <source>Proposed</source>
        <translation>Vorschlag</translation>
    </message>
    <message>
        <source>To buy</source>
        <translation>Bestellen</translation>
    </message>
    <message>
        <source>No vendor yet</source>
        <translation>Ohne Lieferant</translation>
    </message>
</context>
<context>
    <name>Tallymere::CompanyBox</name>
    <message>
        <source>New Company</source>
        <translation>Neue Firma</translation>
    </message>
    <message>
        <source>&amp;Name of the company:</source>
        <translation>&amp;Name der Firma:</translation>
    </message>
    <message>
        <source>&amp;Postal format:</source>
        <translation>&amp;Postformat:</translation>
    </message>
    <message>
        <source>The format of addresses, and the currency that the books begin with</source>
        <translation>Das Format der Adressen und die Währung, mit der die Bücher beginnen</translation>
    </message>
    <message>
        <source>In a &amp;folder:</source>
        <translation>In einem &amp;Ordner:</translation>
    </message>
    <message>
        <source>Folder of the books</source>
        <translation>Ordner der Bücher</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>On a &amp;server:</source>
        <translation>Auf einem &amp;Server:</translation>
    </message>
    <message>
        <source>Address of the server</source>
        <translation>Adresse des Servers</translation>
    </message>
    <message>
        <source>Link to the server</source>
        <translation>Verbindung zum Server</translation>
    </message>
    <message>
        <source>A PostgreSQL server. The database there is called corvane; whoever looks after the server has set up its account.</source>
        <translation>Ein PostgreSQL-Server. Die Datenbank dort heißt corvane; ihr Konto hat eingerichtet, wer den Server betreut.</translation>
    </message>
    <message>
        <source>&amp;Try the Connection</source>
        <translation>&amp;Verbindung prüfen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Open Company</source>
        <translation>Firma öffnen</translation>
    </message>
    <message>
        <source>Where are its books to be kept?</source>
        <translation>Wo sollen ihre Bücher liegen?</translation>
    </message>
    <message>
        <source>Where are the books of the company?</source>
        <translation>Wo sind die Bücher der Firma?</translation>
    </message>
    <message>
        <source>&amp;Make Company</source>
        <translation>Firma &amp;anlegen</translation>
    </message>
    <message>
        <source>United States (US $)</source>
        <translation>Vereinigte Staaten (US $)</translation>
    </message>
    <message>
        <source>Canada (Canadian $)</source>
        <translation>Kanada (kanadische $)</translation>
    </message>
    <message>
        <source>United Kingdom (Pounds)</source>
        <translation>Vereinigtes Königreich (Pfund)</translation>
    </message>
    <message>
        <source>Another country (its own currency)</source>
        <translation>Ein anderes Land (eigene Währung)</translation>
    </message>
    <message>
        <source>Folder for the Books</source>
        <translation>Ordner für die Bücher</translation>
    </message>
    <message>
        <source>Folder with the Books</source>
        <translation>Ordner mit den Büchern</translation>
    </message>
    <message>
        <source>Choose the folder of the books.</source>
        <translation>Wählen Sie den Ordner der Bücher.</translation>
    </message>
    <message>
        <source>Enter the address of the server.</source>
        <translation>Geben Sie die Adresse des Servers ein.</translation>
    </message>
    <message>
        <source>Looking for books</source>
        <translation>Bücher werden gesucht</translation>
    </message>
    <message>
        <source>There are no books yet in %1. They can be made there.</source>
        <translation>In %1 sind noch keine Bücher. Dort können welche angelegt werden.</translation>
    </message>
    <message>
        <source>There are no books of a company in %1.</source>
        <translation>In %1 gibt es keine Bücher einer Firma.</translation>
    </message>
    <message>
        <source>There are books already: those of %1.</source>
        <translation>Es gibt bereits Bücher: die von %1.</translation>
    </message>
    <message>
        <source>Enter the name of the company.</source>
        <translation>Geben Sie den Namen der Firma ein.</translation>
    </message>
    <message>
        <source>There are no books of a company in %1. New Company makes some there.</source>
        <translation>In %1 sind keine Bücher einer Firma. „Neue Firma“ legt dort welche an.</translation>
    </message>
    <message>
        <source>The books of %1 are in %2 already. Open these instead?</source>
        <translation>Die Bücher von %1 sind bereits in %2. Stattdessen diese öffnen?</translation>
    </message>
    <message>
        <source>Making the books of %1</source>
        <translation>Die Bücher von %1 werden angelegt</translation>
    </message>
</context>
<context>
    <name>Tallymere::CountGrid</name>
    <message>
        <source>Current Quantity</source>
        <translation>Aktuelle Menge</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Standardpreis</translation>
    </message>
</context>
<context>
    <name>Tallymere::CountModel</name>
    <message>
        <source>Item No</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Standardpreis</translation>
    </message>
    <message>
        <source>Prior Quantity</source>
        <translation>Vorherige Menge</translation>
    </message>
    <message>
        <source>Current Quantity</source>
        <translation>Aktuelle Menge</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Einst.-Preis</translation>
    </message>
    <message>
        <source>Counted by %1, %2</source>
        <translation>Gezählt von %1, %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::CountSearch</name>
    <message>
        <source>%1 is not taken: &apos;%2&apos; is not in the list</source>
        <translation>%1 wird nicht übernommen: „%2“ ist nicht in der Liste</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in the list</source>
        <translation>„%1“ ist nicht in der Liste</translation>
    </message>
    <message>
        <source>&apos;%1&apos; is not in the list: %2</source>
        <translation>&apos;%1&apos; ist nicht in der Liste: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::DatePicker</name>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>The latest date is %1</source>
        <translation>Das späteste Datum ist %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::DifferenceModel</name>
    <message>
        <source>Item No</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Difference</source>
        <translation>Differenz</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Einst.-Preis</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Where the money is</source>
        <translation>Wo das Geld steckt</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentFilterScreen</name>
    <message>
        <source>Posted</source>
        <translation>Gebucht</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentListScreen</name>
    <message>
        <source>&amp;Post...</source>
        <translation>Bu&amp;chen...</translation>
    </message>
    <message>
        <source>&amp;Reverse...</source>
        <translation>St&amp;ornieren...</translation>
    </message>
    <message>
        <source>Reverse...</source>
        <translation>Stornieren...</translation>
    </message>
    <message>
        <source>%1 &amp;Help</source>
        <translation>&amp;Hilfe zu: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentPostScreen</name>
    <message>
        <source>%1 of them not in the list</source>
        <translation>%1 davon nicht in der Liste</translation>
    </message>
    <message>
        <source>%1, last saved by %2</source>
        <translation>%1, zuletzt gespeichert von %2</translation>
    </message>
    <message>
        <source>%n line</source>
        <translation>%n Position</translation>
    </message>
    <message>
        <source>%n lines</source>
        <translation>%n Positionen</translation>
    </message>
    <message>
        <source>%1. To look at before:</source>
        <translation>%1. Vorher ansehen:</translation>
    </message>
</context>
<context>
    <name>Tallymere::DocumentScreen</name>
    <message>
        <source>On hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Danach</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>New Line</source>
        <translation>Neue Position</translation>
    </message>
    <message>
        <source>Appends a line (Page Down)</source>
        <translation>Fügt eine Position an (Bild ab)</translation>
    </message>
    <message>
        <source>Paste Rows...</source>
        <translation>Zeilen einfügen...</translation>
    </message>
    <message>
        <source>Takes rows of a spreadsheet from the clipboard (Ctrl+Shift+V)</source>
        <translation>Übernimmt Zeilen einer Tabellenkalkulation aus der Zwischenablage (Strg+Umschalt+V)</translation>
    </message>
    <message>
        <source>last %1</source>
        <translation>zuletzt %1</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Undo Delete</source>
        <translation>Löschen rückgängig</translation>
    </message>
    <message>
        <source>Enter Passes Over What Is Known</source>
        <translation>Eingabetaste überspringt Bekanntes</translation>
    </message>
    <message>
        <source>Rever&amp;se...</source>
        <translation>S&amp;tornieren...</translation>
    </message>
    <message>
        <source>Item Card</source>
        <translation>Artikelkarte</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos;</source>
        <translation>%1 „%2“</translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Summe</translation>
    </message>
    <message>
        <source>Ctrl+Z puts back: %1</source>
        <translation>Strg+Z holt zurück: %1</translation>
    </message>
    <message>
        <source>%1 goes below zero at this location</source>
        <translation>%1 fällt an diesem Lagerort unter null</translation>
    </message>
    <message>
        <source>Enter takes it. %1</source>
        <translation>Die Eingabetaste übernimmt ihn. %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::EntryScreen</name>
    <message>
        <source>Do you want to save changes?</source>
        <translation>Möchten Sie die Änderungen speichern?</translation>
    </message>
</context>
<context>
    <name>Tallymere::FieldBinder</name>
    <message>
        <source>%1 cannot show field %2 of table %3.</source>
        <translation>%1 kann das Feld %2 der Tabelle %3 nicht anzeigen.</translation>
    </message>
    <message>
        <source>Another user has changed this since it was shown. Here is what it is now.</source>
        <translation>Ein anderer Benutzer hat dies geändert, seit es angezeigt wurde. Hier ist der jetzige Stand.</translation>
    </message>
</context>
<context>
    <name>Tallymere::FigureButton</name>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::FilterChip</name>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message>
        <source>Shows all records again.</source>
        <translation>Zeigt wieder alle Datensätze.</translation>
    </message>
    <message>
        <source>%1
Click to show all records again.</source>
        <translation>%1
Klicken Sie, um wieder alle Datensätze zu zeigen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::FilterDialog</name>
    <message>
        <source>&amp;From:</source>
        <translation>&amp;Von:</translation>
    </message>
    <message>
        <source>T&amp;o:</source>
        <translation>&amp;Bis:</translation>
    </message>
    <message>
        <source>Words</source>
        <translation>Wörter</translation>
    </message>
    <message>
        <source>anywhere in the row</source>
        <translation>irgendwo in der Zeile</translation>
    </message>
    <message>
        <source>&amp;Words:</source>
        <translation>&amp;Wörter:</translation>
    </message>
    <message>
        <source>Any day</source>
        <translation>Jeder Tag</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::FinderBox</name>
    <message>
        <source>Find Anything</source>
        <translation>Alles suchen</translation>
    </message>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Number or any part of a name</source>
        <translation>Nummer oder beliebiger Teil eines Namens</translation>
    </message>
    <message>
        <source>Found</source>
        <translation>Gefunden</translation>
    </message>
    <message>
        <source>Enter opens it, Shift+Enter an item&apos;s card, the arrow keys go along, Esc closes.</source>
        <translation>Eingabe öffnet den Eintrag, Umschalt+Eingabe die Artikelkarte, die Pfeiltasten wechseln, Esc schließt.</translation>
    </message>
    <message>
        <source>Items, vendors, locations, documents, commands and pages of the manual, by number or by any words.</source>
        <translation>Artikel, Lieferanten, Lagerorte, Belege, Befehle und Handbuchseiten, nach Nummer oder beliebigen Wörtern.</translation>
    </message>
    <message>
        <source>Looking...</source>
        <translation>Suche läuft...</translation>
    </message>
    <message>
        <source>Nothing has all of these words.</source>
        <translation>Nichts enthält alle diese Wörter.</translation>
    </message>
</context>
<context>
    <name>Tallymere::HelpWindow</name>
    <message>
        <source>Tallymere Help</source>
        <translation>Tallymere-Hilfe</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>The page before (Alt+Left)</source>
        <translation>Die vorherige Seite (Alt+Links)</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>The page after (Alt+Right)</source>
        <translation>Die nächste Seite (Alt+Rechts)</translation>
    </message>
    <message>
        <source>First &amp;Page</source>
        <translation>&amp;Startseite</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>C&amp;ontents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>&amp;Index</source>
        <translation>Inde&amp;x</translation>
    </message>
    <message>
        <source>&amp;Look for:</source>
        <translation>Such&amp;en nach:</translation>
    </message>
    <message>
        <source>&amp;Search</source>
        <translation>S&amp;uche</translation>
    </message>
    <message>
        <source>&amp;Words in the text:</source>
        <translation>&amp;Wörter im Text:</translation>
    </message>
    <message>
        <source>Enter words and press Enter.</source>
        <translation>Geben Sie Wörter ein, und drücken Sie die Eingabetaste.</translation>
    </message>
    <message>
        <source>Pages found</source>
        <translation>Gefundene Seiten</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Index</source>
        <translation>Index</translation>
    </message>
    <message>
        <source>No page has these words. Try fewer, or another form of a word.</source>
        <translation>Keine Seite enthält diese Wörter. Versuchen Sie es mit weniger Wörtern oder einer anderen Wortform.</translation>
    </message>
    <message>
        <source>%n page</source>
        <translation>%n Seite</translation>
    </message>
    <message>
        <source>%n pages</source>
        <translation>%n Seiten</translation>
    </message>
</context>
<context>
    <name>Tallymere::HostWindow</name>
    <message>
        <source>Inventory</source>
        <translation>Lager</translation>
    </message>
    <message>
        <source>Receipts, usage, counts and what is in stock</source>
        <translation>Wareneingänge, Verbrauch, Zählungen und Bestände</translation>
    </message>
    <message>
        <source>&amp;Data Options</source>
        <translation>Daten&amp;optionen</translation>
    </message>
    <message>
        <source>Where the data of the company is</source>
        <translation>Wo die Daten der Firma liegen</translation>
    </message>
    <message>
        <source>Reload Module</source>
        <translation>Modul neu laden</translation>
    </message>
    <message>
        <source>Begins anew with the inventory as it is installed now</source>
        <translation>Beginnt neu mit der Lagerverwaltung, wie sie jetzt installiert ist</translation>
    </message>
    <message>
        <source>&amp;About Corvane</source>
        <translation>&amp;Info über Corvane</translation>
    </message>
    <message>
        <source>The version of this program</source>
        <translation>Die Version dieses Programms</translation>
    </message>
    <message>
        <source>User:</source>
        <translation>Benutzer:</translation>
    </message>
    <message>
        <source>Database:</source>
        <translation>Datenbank:</translation>
    </message>
    <message>
        <source>Inventory module:</source>
        <translation>Lagermodul:</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Inventory</source>
        <translation>&amp;Lager</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;Data Options...</source>
        <translation>Daten&amp;optionen...</translation>
    </message>
    <message>
        <source>&amp;Back Up...</source>
        <translation>Si&amp;chern...</translation>
    </message>
    <message>
        <source>Re&amp;store...</source>
        <translation>&amp;Wiederherstellen...</translation>
    </message>
    <message>
        <source>&amp;Reload Module</source>
        <translation>Modul neu &amp;laden</translation>
    </message>
    <message>
        <source>&amp;Unload Module</source>
        <translation>Modul &amp;entladen</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Unloaded.</source>
        <translation>Entladen.</translation>
    </message>
    <message>
        <source>No company</source>
        <translation>Keine Firma</translation>
    </message>
    <message>
        <source>Corvane - %1</source>
        <translation>Corvane - %1</translation>
    </message>
    <message>
        <source>&amp;Load Module</source>
        <translation>Modul &amp;laden</translation>
    </message>
    <message>
        <source>&amp;New Company</source>
        <translation>&amp;Neue Firma</translation>
    </message>
    <message>
        <source>Begin with books of your own</source>
        <translation>Mit eigenen Büchern beginnen</translation>
    </message>
    <message>
        <source>&amp;Open a Folder or Server</source>
        <translation>&amp;Ordner oder Server öffnen</translation>
    </message>
    <message>
        <source>Books that are there already</source>
        <translation>Bücher, die es bereits gibt</translation>
    </message>
    <message>
        <source>&amp;Try the Sample Company</source>
        <translation>&amp;Beispielfirma ausprobieren</translation>
    </message>
    <message>
        <source>A kitchen with a year of receipts, usage and counts, to look around in</source>
        <translation>Eine Küche mit einem Jahr Wareneingängen, Verbrauch und Zählungen zum Umsehen</translation>
    </message>
    <message>
        <source>Back into an empty folder or a server without books</source>
        <translation>Zurück in einen leeren Ordner oder auf einen Server ohne Bücher</translation>
    </message>
    <message>
        <source>&amp;New Company...</source>
        <translation>&amp;Neue Firma...</translation>
    </message>
    <message>
        <source>&amp;Open Company...</source>
        <translation>Firma ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Sam&amp;ple Company</source>
        <translation>Bei&amp;spielfirma</translation>
    </message>
    <message>
        <source>None has been chosen.</source>
        <translation>Es wurde keine gewählt.</translation>
    </message>
    <message>
        <source>Loaded.</source>
        <translation>Geladen.</translation>
    </message>
    <message>
        <source>Making the sample company in %1</source>
        <translation>Die Beispielfirma wird in %1 angelegt</translation>
    </message>
    <message>
        <source>Restore a &amp;Backup</source>
        <translation>Sicherung &amp;wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Check Books</source>
        <translation>Bücher &amp;prüfen</translation>
    </message>
</context>
<context>
    <name>Tallymere::ImportRowsGrid</name>
    <message>
        <source>The rows of the file</source>
        <translation>Die Zeilen der Datei</translation>
    </message>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was falsch ist</translation>
    </message>
</context>
<context>
    <name>Tallymere::InUseNotice</name>
    <message>
        <source>In use by %1. You can read it; it can be changed once it is free.</source>
        <translation>Wird von %1 verwendet. Sie können den Datensatz lesen; ändern können Sie ihn, sobald er frei ist.</translation>
    </message>
</context>
<context>
    <name>Tallymere::ItemBarcodesDialog</name>
    <message>
        <source>Barcode</source>
        <translation>Barcode</translation>
    </message>
    <message>
        <source>Scan a code of this item, or type it and press Enter.</source>
        <translation>Scannen Sie einen Code dieses Artikels, oder geben Sie ihn ein, und drücken Sie die Eingabetaste.</translation>
    </message>
    <message>
        <source>Take out the code &apos;%1&apos;?</source>
        <translation>Den Code „%1“ entfernen?</translation>
    </message>
</context>
<context>
    <name>Tallymere::KeptFilterMenu</name>
    <message>
        <source>&amp;Kept Filters</source>
        <translation>Ei&amp;gene Filter</translation>
    </message>
    <message>
        <source>Keep, Rename or Delete...</source>
        <translation>Speichern, umbenennen oder löschen...</translation>
    </message>
    <message>
        <source>Kept filters</source>
        <translation>Eigene Filter</translation>
    </message>
    <message>
        <source>Filters that you have kept</source>
        <translation>Filter, die Sie gespeichert haben</translation>
    </message>
</context>
<context>
    <name>Tallymere::KeptFiltersDialog</name>
    <message>
        <source>To keep a filter, set it with Filter first and then give it a name here.</source>
        <translation>Um einen Filter zu speichern, stellen Sie ihn zuerst mit „Filter“ ein, und geben Sie ihm dann hier einen Namen.</translation>
    </message>
    <message>
        <source>The list shows %1</source>
        <translation>Die Liste zeigt: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>What it shows</source>
        <translation>Was er zeigt</translation>
    </message>
    <message>
        <source>You have kept no filter for this list yet.</source>
        <translation>Sie haben für diese Liste noch keinen Filter gespeichert.</translation>
    </message>
    <message>
        <source>Delete the filter &apos;%1&apos;?</source>
        <translation>Den Filter „%1“ löschen?</translation>
    </message>
</context>
<context>
    <name>Tallymere::LineGrid</name>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>No lines yet. Double-click here or press Page Down to enter the first one.</source>
        <translation>Noch keine Positionen. Doppelklicken Sie hier, oder drücken Sie Bild ab, um die erste zu erfassen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListCommands</name>
    <message>
        <source>Not available in this version</source>
        <translation>In dieser Version nicht verfügbar</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListOutput</name>
    <message>
        <source>Copying...</source>
        <translation>Wird kopiert...</translation>
    </message>
    <message>
        <source>Save as CSV</source>
        <translation>Als CSV speichern</translation>
    </message>
    <message>
        <source>CSV files</source>
        <translation>CSV-Dateien</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Speichern: %1</translation>
    </message>
    <message>
        <source>%n row</source>
        <translation>%n Zeile</translation>
    </message>
    <message>
        <source>%n rows</source>
        <translation>%n Zeilen</translation>
    </message>
    <message>
        <source>%1 saved as %2</source>
        <translation>%1 gespeichert als %2</translation>
    </message>
    <message>
        <source>Save as XLSX</source>
        <translation>Als XLSX speichern</translation>
    </message>
    <message>
        <source>XLSX files</source>
        <translation>XLSX-Dateien</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListScreen</name>
    <message>
        <source>Item Card</source>
        <translation>Artikelkarte</translation>
    </message>
    <message>
        <source>Sort by Column</source>
        <translation>Nach Spalte sortieren</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Save as CSV...</source>
        <translation>Als CSV speichern...</translation>
    </message>
    <message>
        <source>&amp;Copy as Text</source>
        <translation>Als Text &amp;kopieren</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>&amp;Find...</source>
        <translation>&amp;Suchen...</translation>
    </message>
    <message>
        <source>&amp;Filter...</source>
        <translation>&amp;Filter...</translation>
    </message>
    <message>
        <source>&amp;Refresh</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>%1 (Filtered)</source>
        <translation>%1 (gefiltert)</translation>
    </message>
    <message>
        <source>Filtered</source>
        <translation>Gefiltert</translation>
    </message>
    <message>
        <source>No records match the filter. Press Filter to change it.</source>
        <translation>Kein Datensatz entspricht dem Filter. Drücken Sie „Filter“, um ihn zu ändern.</translation>
    </message>
    <message>
        <source>No records match the filter.</source>
        <translation>Kein Datensatz entspricht dem Filter.</translation>
    </message>
    <message>
        <source>No records yet. Press New to add one.</source>
        <translation>Noch keine Datensätze. Drücken Sie „Neu“, um einen anzulegen.</translation>
    </message>
    <message>
        <source>No records yet.</source>
        <translation>Noch keine Datensätze.</translation>
    </message>
    <message>
        <source>&amp;Import...</source>
        <translation>&amp;Importieren...</translation>
    </message>
    <message>
        <source>Take &amp;Back Import...</source>
        <translation>Import &amp;zurücknehmen...</translation>
    </message>
    <message>
        <source>Save as XLSX...</source>
        <translation>Als XLSX speichern...</translation>
    </message>
    <message>
        <source>Reading the rows of the list</source>
        <translation>Die Zeilen der Liste werden gelesen</translation>
    </message>
    <message>
        <source>Save &amp;for an Import...</source>
        <translation>Fü&amp;r einen Import speichern...</translation>
    </message>
</context>
<context>
    <name>Tallymere::ListStatus</name>
    <message>
        <source>No rows</source>
        <translation>Keine Zeilen</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 (filtered)</source>
        <translation>%1 (gefiltert)</translation>
    </message>
    <message>
        <source>%1, %2 selected</source>
        <translation>%1, %2 markiert</translation>
    </message>
    <message>
        <source>Search: %1</source>
        <translation>Suche: %1</translation>
    </message>
    <message>
        <source>Search: %1 (not found in the filtered rows)</source>
        <translation>Suche: %1 (in den gefilterten Zeilen nicht gefunden)</translation>
    </message>
    <message>
        <source>Search: %1 (not found)</source>
        <translation>Suche: %1 (nicht gefunden)</translation>
    </message>
    <message>
        <source>Search: %1 (looking, row %2 of %3; Esc stops)</source>
        <translation>Suche: %1 (sucht, Zeile %2 von %3; Esc hält an)</translation>
    </message>
    <message>
        <source>Reading the rows of the list</source>
        <translation>Die Zeilen der Liste werden gelesen</translation>
    </message>
</context>
<context>
    <name>Tallymere::MasterListScreen</name>
    <message>
        <source>%1 &amp;Help</source>
        <translation>&amp;Hilfe zu: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::MasterRecordScreen</name>
    <message>
        <source>Save and New</source>
        <translation>Speichern und neu</translation>
    </message>
    <message>
        <source>%1 &apos;%2&apos;</source>
        <translation>%1 „%2“</translation>
    </message>
</context>
<context>
    <name>Tallymere::OptionalDate</name>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>Tallymere::OptionalNumber</name>
    <message>
        <source>&lt;All&gt;</source>
        <translation>&lt;Alle&gt;</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
</context>
<context>
    <name>Tallymere::PastedRowsGrid</name>
    <message>
        <source>Row</source>
        <translation>Zeile</translation>
    </message>
    <message>
        <source>Remark</source>
        <translation>Bemerkung</translation>
    </message>
</context>
<context>
    <name>Tallymere::RecordListScreen</name>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Fil&amp;ter</source>
        <translation>Fil&amp;ter</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>Daten&amp;sätze</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>S&amp;ortierung</translation>
    </message>
</context>
<context>
    <name>Tallymere::ReportHolder</name>
    <message>
        <source>The report template file &apos;%1&apos; cannot be read...
%2</source>
        <translation>Die Berichtsvorlage „%1“ kann nicht gelesen werden...
%2</translation>
    </message>
    <message>
        <source>The printer &apos;%1&apos; has not taken the report.</source>
        <translation>Der Drucker „%1“ hat den Bericht nicht angenommen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::ReportWays</name>
    <message>
        <source>&amp;PDF...</source>
        <translation>&amp;PDF...</translation>
    </message>
    <message>
        <source>&amp;CSV...</source>
        <translation>&amp;CSV...</translation>
    </message>
    <message>
        <source>%1 saved as %2</source>
        <translation>%1 gespeichert als %2</translation>
    </message>
    <message>
        <source>&amp;XLSX...</source>
        <translation>&amp;XLSX...</translation>
    </message>
</context>
<context>
    <name>Tallymere::ServerLabel</name>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Connected to the server again at %1.</source>
        <translation>Um %1 wieder mit dem Server verbunden.</translation>
    </message>
    <message>
        <source>No connection to the server since %1. What is typed stays; it will be connected again.</source>
        <translation>Seit %1 keine Verbindung zum Server. Was eingegeben ist, bleibt; die Verbindung wird wiederhergestellt.</translation>
    </message>
    <message>
        <source>No connection to the server</source>
        <translation>Keine Verbindung zum Server</translation>
    </message>
</context>
<context>
    <name>Tallymere::StepBox</name>
    <message>
        <source>&apos;%1&apos; must not be greater than %2</source>
        <translation>„%1“ darf nicht größer sein als %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must not be less than %2</source>
        <translation>„%1“ darf nicht kleiner sein als %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::StockFilterDialog</name>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Item description</source>
        <translation>Artikelbeschreibung</translation>
    </message>
    <message>
        <source>Item &amp;no.:</source>
        <translation>Arti&amp;kelnr.:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>Be&amp;schreibung:</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Lagerort:</translation>
    </message>
</context>
<context>
    <name>Tallymere::StockViewScreen</name>
    <message>
        <source>Fil&amp;ter</source>
        <translation>Fil&amp;ter</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>Daten&amp;sätze</translation>
    </message>
    <message>
        <source>&amp;Sort by</source>
        <translation>S&amp;ortierung</translation>
    </message>
    <message>
        <source>&amp;Item no.</source>
        <translation>&amp;Artikelnr.</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormAboutTallymereSystem</name>
    <message>
        <source>About...</source>
        <translation>Info...</translation>
    </message>
    <message>
        <source>Corvane Tallymere Plug-In</source>
        <translation>Tallymere-Plug-in für Corvane</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>For those who help you, a report can be copied.</source>
        <translation>Für alle, die Ihnen helfen, kann ein Bericht kopiert werden.</translation>
    </message>
    <message>
        <source>Copy &amp;Report</source>
        <translation>Bericht &amp;kopieren</translation>
    </message>
    <message>
        <source>Store: %1</source>
        <translation>Datenspeicher: %1</translation>
    </message>
    <message>
        <source>Data version: %1</source>
        <translation>Datenversion: %1</translation>
    </message>
    <message>
        <source>Copied. The report holds versions, no figures and no names.</source>
        <translation>Kopiert. Der Bericht enthält Versionen, keine Zahlen und keine Namen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormEnterInventory</name>
    <message>
        <source>Item No</source>
        <translation>Art.-Nr.</translation>
    </message>
    <message>
        <source>Category</source>
        <translation>Kategorie</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Standard Cost</source>
        <translation>Standardpreis</translation>
    </message>
    <message>
        <source>If you change Locations the edits you <byte value="xd"/>
have made to the inventory list will be lost.<byte value="xd"/>
Proceed with changing the Location?</source>
        <translation>Wenn Sie den Lagerort wechseln, gehen Ihre Änderungen <byte value="xd"/>
an der Inventurliste verloren.<byte value="xd"/>
Möchten Sie den Lagerort trotzdem wechseln?</translation>
    </message>
    <message>
        <source>You have counted %n item at this location and not calculated the usage yet (%1).
Do you want to go on with that count? No gives it up.</source>
        <translation>Sie haben an diesem Lagerort %n Artikel gezählt und den Verbrauch noch nicht berechnet (%1).
Möchten Sie diese Zählung fortsetzen? Mit „Nein“ wird sie verworfen.</translation>
    </message>
    <message>
        <source>You have counted %n items at this location and not calculated the usage yet (%1).
Do you want to go on with that count? No gives it up.</source>
        <translation>Sie haben an diesem Lagerort %n Artikel gezählt und den Verbrauch noch nicht berechnet (%1).
Möchten Sie diese Zählung fortsetzen? Mit „Nein“ wird sie verworfen.</translation>
    </message>
    <message>
        <source>If you change items to be included the edits you <byte value="xd"/>
have made to the inventory list will be lost.<byte value="xd"/>
Proceed with changing the items?</source>
        <translation>Wenn Sie die Auswahl der Artikel ändern, gehen Ihre Änderungen <byte value="xd"/>
an der Inventurliste verloren.<byte value="xd"/>
Möchten Sie die Auswahl trotzdem ändern?</translation>
    </message>
    <message>
        <source>Not while the count is blind</source>
        <translation>Nicht, solange blind gezählt wird</translation>
    </message>
    <message>
        <source>The date is a year back or more: choose a later one</source>
        <translation>Das Datum liegt ein Jahr oder länger zurück: Wählen Sie ein späteres</translation>
    </message>
    <message>
        <source>%1 of %2 counted</source>
        <translation>%1 von %2 gezählt</translation>
    </message>
    <message>
        <source>%1 of %2 counted, %3 differ, value of the difference %4</source>
        <translation>%1 von %2 gezählt, %3 weichen ab, Wert der Differenz %4</translation>
    </message>
    <message>
        <source> - not kept on this machine</source>
        <translation> - auf diesem Computer nicht aufbewahrt</translation>
    </message>
    <message>
        <source>There is no stock at this location. &quot;Include Zero Count Items&quot; shows what could be there.</source>
        <translation>An diesem Lagerort gibt es keinen Bestand. „Auch Artikel mit Bestand null“ zeigt, was dort sein könnte.</translation>
    </message>
    <message>
        <source>This location can be counted when its transactions have been posted.</source>
        <translation>Dieser Lagerort kann gezählt werden, sobald seine Vorgänge gebucht sind.</translation>
    </message>
    <message>
        <source>Choose the location that is counted.</source>
        <translation>Wählen Sie den Lagerort, der gezählt wird.</translation>
    </message>
    <message>
        <source>Counted and not calculated yet: %1</source>
        <translation>Gezählt und noch nicht berechnet: %1</translation>
    </message>
    <message>
        <source>Proceed with calculating the item usage based<byte value="xd"/>
upon the quantities that have been entered?</source>
        <translation>Möchten Sie den Artikelverbrauch aus den<byte value="xd"/>
erfassten Mengen berechnen?</translation>
    </message>
    <message>
        <source>%n item has not been counted. It keeps its recorded quantity.</source>
        <translation>%n Artikel wurde nicht gezählt. Er behält seine verzeichnete Menge.</translation>
    </message>
    <message>
        <source>%n items have not been counted. They keep their recorded quantities.</source>
        <translation>%n Artikel wurden nicht gezählt. Sie behalten ihre verzeichneten Mengen.</translation>
    </message>
    <message>
        <source>Usage %1 has been written, %n line. Post it when it has been looked over.</source>
        <translation>Verbrauch %1 wurde erstellt, %n Position. Buchen Sie ihn, wenn er durchgesehen ist.</translation>
    </message>
    <message>
        <source>Usage %1 has been written, %n lines. Post it when it has been looked over.</source>
        <translation>Verbrauch %1 wurde erstellt, %n Positionen. Buchen Sie ihn, wenn er durchgesehen ist.</translation>
    </message>
    <message>
        <source>No item holds less than recorded: no usage has been written.</source>
        <translation>Von keinem Artikel ist weniger da als verzeichnet: Es wurde kein Verbrauch erstellt.</translation>
    </message>
    <message>
        <source>What you have entered has not been calculated.
Do you want to keep it on this machine and go on later?</source>
        <translation>Ihre Eingaben wurden noch nicht berechnet.
Möchten Sie sie auf diesem Computer aufbewahren und später fortfahren?</translation>
    </message>
    <message>
        <source>Enter Inventory</source>
        <translation>Inventur erfassen</translation>
    </message>
    <message>
        <source>%1 has counted %2 of this item meanwhile.
Do you want to put %3 in its place?</source>
        <translation>%1 hat inzwischen %2 von diesem Artikel gezählt.
Möchten Sie dies durch %3 ersetzen?</translation>
    </message>
    <message>
        <source>Phones: %1, numbers from them: %2</source>
        <translation>Telefone: %1, Zahlen davon: %2</translation>
    </message>
    <message>
        <source>Phones count this location. What has not come from them yet will not be in the usage.</source>
        <translation>Telefone zählen diesen Lagerort. Was von ihnen noch nicht eingegangen ist, wird im Verbrauch fehlen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormMessageInventorySystem</name>
    <message>
        <source>Corvane</source>
        <translation>Corvane</translation>
    </message>
    <message>
        <source>Saving data. Please do not interrupt!</source>
        <translation>Daten werden gespeichert. Bitte nicht unterbrechen!</translation>
    </message>
    <message>
        <source>Save progress</source>
        <translation>Speichervorgang</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormRegistryEditor</name>
    <message>
        <source>Corvane Data Options</source>
        <translation>Corvane-Datenoptionen</translation>
    </message>
    <message>
        <source>Operation Mode</source>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>File Server</source>
        <translation>Dateiserver</translation>
    </message>
    <message>
        <source>Client-Server Engine</source>
        <translation>Client-Server-System</translation>
    </message>
    <message>
        <source>Database location:</source>
        <translation>Ort der Datenbank:</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Server IP Address:</source>
        <translation>IP-Adresse des Servers:</translation>
    </message>
    <message>
        <source>ServerType:</source>
        <translation>Servertyp:</translation>
    </message>
    <message>
        <source>Texts that begin with =, +, - or @ get an apostrophe in CSV files, so that no spreadsheet calculates with them</source>
        <translation>Texte, die mit =, +, - oder @ beginnen, erhalten in CSV-Dateien einen Apostroph, damit keine Tabellenkalkulation mit ihnen rechnet</translation>
    </message>
    <message>
        <source>&amp;Defuse formulas in CSV files</source>
        <translation>&amp;Formeln in CSV-Dateien entschärfen</translation>
    </message>
    <message>
        <source>Delete All Settings</source>
        <translation>Alle Einstellungen löschen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Shared Ini Directory:</source>
        <translation>Gemeinsamer INI-Ordner:</translation>
    </message>
    <message>
        <source>Data Location:</source>
        <translation>Ort der Daten:</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>&amp;Sprache:</translation>
    </message>
    <message>
        <source>What the program speaks from its next start on</source>
        <translation>Die Sprache des Programms ab dem nächsten Start</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>The language changes when the program is started next.</source>
        <translation>Die Sprache ändert sich beim nächsten Start des Programms.</translation>
    </message>
    <message>
        <source>From the place above onto a server or into another folder</source>
        <translation>Vom Ort oben auf einen Server oder in einen anderen Ordner</translation>
    </message>
    <message>
        <source>Copy &amp;Books To...</source>
        <translation>&amp;Bücher kopieren nach...</translation>
    </message>
    <message>
        <source>Lets books that have moved from the place above be changed there again</source>
        <translation>Lässt Bücher, die vom Ort oben umgezogen sind, dort wieder ändern</translation>
    </message>
    <message>
        <source>&amp;Take Up Again...</source>
        <translation>Wieder a&amp;ufnehmen...</translation>
    </message>
    <message>
        <source>Choose first where the books are.</source>
        <translation>Wählen Sie zuerst, wo die Bücher sind.</translation>
    </message>
    <message>
        <source>Work with the books there from now on? OK in the data options saves that.</source>
        <translation>Ab jetzt mit den Büchern dort arbeiten? OK in den Datenoptionen speichert das.</translation>
    </message>
    <message>
        <source>The books in %1 have not moved.</source>
        <translation>Die Bücher in %1 sind nicht umgezogen.</translation>
    </message>
    <message>
        <source>%1

Taken up again they are another set of books than those there: what is entered in the one is not in the other. Take them up again?</source>
        <translation>%1

Wieder aufgenommen sind sie andere Bücher als die dort: Was in den einen erfasst wird, steht nicht in den anderen. Wieder aufnehmen?</translation>
    </message>
    <message>
        <source>The books in %1 can be changed again.</source>
        <translation>Die Bücher in %1 lassen sich wieder ändern.</translation>
    </message>
    <message>
        <source>Reports, totals, history, what to buy and the check of the books, from the next start on; what you have saved is always there</source>
        <translation>Berichte, Bestände, Verlauf, Einkaufsvorschlag und die Prüfung der Bücher, vom nächsten Start an; was Sie gespeichert haben, ist immer dabei</translation>
    </message>
    <message>
        <source>&amp;Read reports from a standby server</source>
        <translation>Berichte &amp;vom Bereitschaftsserver lesen</translation>
    </message>
</context>
<context>
    <name>Tallymere::TFormTallymereSystem</name>
    <message>
        <source>Corvane Tallymere</source>
        <translation>Corvane Tallymere</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Other</source>
        <translation>S&amp;onstiges</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>&amp;Utilities</source>
        <translation>&amp;Extras</translation>
    </message>
    <message>
        <source>Synchronize</source>
        <translation>Abgleichen</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>D&amp;rucken</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Organization Setup</source>
        <translation>Organisation einrichten</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Bestände</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Bewegungen</translation>
    </message>
    <message>
        <source>Stock As Of</source>
        <translation>Stichtagsbestand</translation>
    </message>
    <message>
        <source>Find Anything</source>
        <translation>Alles suchen</translation>
    </message>
    <message>
        <source>Find items, vendors, documents, commands and more by any words</source>
        <translation>Artikel, Lieferanten, Belege, Befehle und mehr mit beliebigen Wörtern suchen</translation>
    </message>
    <message>
        <source>Ctrl+K</source>
        <translation>Ctrl+K</translation>
    </message>
    <message>
        <source>What to Buy</source>
        <translation>Bestellvorschlag</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Lagerorte</translation>
    </message>
    <message>
        <source>Reports...</source>
        <translation>Berichte...</translation>
    </message>
    <message>
        <source>Help Topics</source>
        <translation>Hilfethemen</translation>
    </message>
    <message>
        <source>Contents and index of the manual</source>
        <translation>Inhalt und Index des Handbuchs</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Info</translation>
    </message>
    <message>
        <source>The requested report template file:<byte value="xd"/>
%1<byte value="xd"/>
could not be found.</source>
        <translation>Die angeforderte Berichtsvorlage:<byte value="xd"/>
%1<byte value="xd"/>
wurde nicht gefunden.</translation>
    </message>
    <message>
        <source>Tallymere</source>
        <translation>Tallymere</translation>
    </message>
    <message>
        <source>The inventory system does not know who is working. The host application has opened it without a window that names its user.</source>
        <translation>Die Lagerverwaltung weiß nicht, wer arbeitet. Das Host-Programm hat sie ohne ein Fenster geöffnet, das seinen Benutzer nennt.</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Hint</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Fortschritt</translation>
    </message>
</context>
<context>
    <name>Tallymere::TableModel</name>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmAudit</name>
    <message>
        <source>Audit List</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <source>What was done</source>
        <translation>Was getan wurde</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>Day concerned</source>
        <translation>Betroffener Tag</translation>
    </message>
    <message>
        <source>Fil&amp;ter</source>
        <translation>Fil&amp;ter</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Audit List &amp;Help</source>
        <translation>&amp;Hilfe zum Protokoll</translation>
    </message>
    <message>
        <source>Audit List Filter</source>
        <translation>Protokollfilter</translation>
    </message>
    <message>
        <source>No notes yet. Deletions by date, opened periods, repairs and restored backups leave one each.</source>
        <translation>Noch keine Einträge. Löschungen nach Datum, geöffnete Perioden, Reparaturen und wiederhergestellte Sicherungen hinterlassen je einen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmBackUp</name>
    <message>
        <source>No backup of this database is known.</source>
        <translation>Von dieser Datenbank ist keine Sicherung bekannt.</translation>
    </message>
    <message>
        <source>%1, by %2</source>
        <translation>%1, von %2</translation>
    </message>
    <message>
        <source>Folder for Daily Backups</source>
        <translation>Ordner für tägliche Sicherungen</translation>
    </message>
    <message>
        <source>Back Up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Backing up into %1</source>
        <translation>Sichern nach %1</translation>
    </message>
    <message>
        <source>%1 holds a backup of %2, which has been verified.</source>
        <translation>%1 enthält eine Sicherung von %2; sie wurde überprüft.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmBanksInv</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Bank Book</source>
        <translation>Ban&amp;kbuch</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCheckBooks</name>
    <message>
        <source>Check</source>
        <translation>Prüfung</translation>
    </message>
    <message>
        <source>Where</source>
        <translation>Wo</translation>
    </message>
    <message>
        <source>What is wrong</source>
        <translation>Was falsch ist</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>The books have not been checked yet.</source>
        <translation>Die Bücher wurden noch nicht geprüft.</translation>
    </message>
    <message>
        <source>Checking the books</source>
        <translation>Bücher werden geprüft</translation>
    </message>
    <message>
        <source>Backup to Make before the Repair</source>
        <translation>Sicherung vor der Reparatur</translation>
    </message>
    <message>
        <source>Repairing the books</source>
        <translation>Bücher werden repariert</translation>
    </message>
    <message>
        <source>There is nothing to mend by now. Nothing has been changed.</source>
        <translation>Inzwischen gibt es nichts mehr zu reparieren. Es wurde nichts geändert.</translation>
    </message>
    <message>
        <source>%n finding mended; before it the books stood as in %1.</source>
        <translation>%n Befund repariert; der Stand davor ist in %1 gesichert.</translation>
    </message>
    <message>
        <source>%n findings mended; before it the books stood as in %1.</source>
        <translation>%n Befunde repariert; der Stand davor ist in %1 gesichert.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCopyBooks</name>
    <message>
        <source>the server %1</source>
        <translation>Server %1</translation>
    </message>
    <message>
        <source>Folder to Copy Into</source>
        <translation>Ordner, in den kopiert wird</translation>
    </message>
    <message>
        <source>Choose a folder to copy into.</source>
        <translation>Wählen Sie einen Ordner, in den kopiert wird.</translation>
    </message>
    <message>
        <source>Enter the address of the server to copy onto.</source>
        <translation>Geben Sie die Adresse des Servers ein, auf den kopiert wird.</translation>
    </message>
    <message>
        <source>From then on nobody can change anything where the books are now, whatever window is open. Nobody may have a document open at that moment. Move them?</source>
        <translation>Danach kann niemand mehr etwas ändern, wo die Bücher jetzt sind, gleich welches Fenster offen ist. In dem Augenblick darf niemand einen Beleg geöffnet haben. Umziehen?</translation>
    </message>
    <message>
        <source>Moving the books</source>
        <translation>Die Bücher ziehen um</translation>
    </message>
    <message>
        <source>Copying the books</source>
        <translation>Die Bücher werden kopiert</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The books have moved to %1, and have been verified.</source>
        <translation>Die Bücher sind nach %1 umgezogen und geprüft.</translation>
    </message>
    <message>
        <source>%1 holds a copy of the books, which has been verified.</source>
        <translation>%1 enthält eine geprüfte Kopie der Bücher.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCostTrail</name>
    <message>
        <source>Why This Cost: %1</source>
        <translation>Preisherleitung: %1</translation>
    </message>
    <message>
        <source>Receipts</source>
        <translation>Wareneingänge</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Receipt</source>
        <translation>Eingang</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Received</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Einst.-Preis</translation>
    </message>
    <message>
        <source>On hand before</source>
        <translation>Bestand vorher</translation>
    </message>
    <message>
        <source>Cost before</source>
        <translation>Preis vorher</translation>
    </message>
    <message>
        <source>On hand after</source>
        <translation>Bestand nachher</translation>
    </message>
    <message>
        <source>Cost after</source>
        <translation>Preis nachher</translation>
    </message>
    <message>
        <source>Nothing has been received.</source>
        <translation>Es gab keinen Wareneingang.</translation>
    </message>
    <message>
        <source>&amp;Print or Save...</source>
        <translation>&amp;Drucken/speichern...</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>. Average cost: %1</source>
        <translation>. Durchschnittspreis: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmCountDifferences</name>
    <message>
        <source>What has been counted is as recorded.</source>
        <translation>Das Gezählte stimmt mit dem Verzeichneten überein.</translation>
    </message>
    <message>
        <source>Together %1</source>
        <translation>Zusammen %1</translation>
    </message>
    <message>
        <source>Missing: %n item, %1</source>
        <translation>Fehlend: %n Artikel, %1</translation>
    </message>
    <message>
        <source>Missing: %n items, %1</source>
        <translation>Fehlend: %n Artikel, %1</translation>
    </message>
    <message>
        <source>Over: %n item, %1</source>
        <translation>Zu viel: %n Artikel, %1</translation>
    </message>
    <message>
        <source>Over: %n items, %1</source>
        <translation>Zu viel: %n Artikel, %1</translation>
    </message>
    <message>
        <source>%n of these items has no cost.</source>
        <translation>%n dieser Artikel hat keinen Preis.</translation>
    </message>
    <message>
        <source>%n of these items have no cost.</source>
        <translation>%n dieser Artikel haben keinen Preis.</translation>
    </message>
    <message>
        <source>%n item has not been counted.</source>
        <translation>%n Artikel wurde nicht gezählt.</translation>
    </message>
    <message>
        <source>%n items have not been counted.</source>
        <translation>%n Artikel wurden nicht gezählt.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmDailyBackup</name>
    <message>
        <source>Daily Backup</source>
        <translation>Tägliche Sicherung</translation>
    </message>
    <message>
        <source>&amp;Try Again</source>
        <translation>&amp;Erneut versuchen</translation>
    </message>
    <message>
        <source>Close &amp;Without</source>
        <translation>&amp;Ohne Sicherung schließen</translation>
    </message>
    <message>
        <source>Backup of today, into %1</source>
        <translation>Heutige Sicherung nach %1</translation>
    </message>
    <message>
        <source>The backup of today has been cancelled.</source>
        <translation>Die heutige Sicherung wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The backup of today: %1</source>
        <translation>Die heutige Sicherung: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmDialerInv</name>
    <message>
        <source>Phone &apos;%1&apos;
at %2</source>
        <translation>Telefon „%1“
unter %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmFirstSteps</name>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>This could not be read.</source>
        <translation>Dies konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Everything is done.</source>
        <translation>Alles ist erledigt.</translation>
    </message>
    <message>
        <source>%1 of %2 done</source>
        <translation>%1 von %2 erledigt</translation>
    </message>
    <message>
        <source>The first steps are done.</source>
        <translation>Die ersten Schritte sind erledigt.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmImport</name>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Nicht verwendet</translation>
    </message>
    <message>
        <source>Checking %1</source>
        <translation>Prüfen: %1</translation>
    </message>
    <message>
        <source>The rows have not been checked.</source>
        <translation>Die Zeilen wurden noch nicht geprüft.</translation>
    </message>
    <message>
        <source>%n row cannot be imported, so none is.</source>
        <translation>%n Zeile kann nicht importiert werden, daher wird keine importiert.</translation>
    </message>
    <message>
        <source>%n rows cannot be imported, so none is.</source>
        <translation>%n Zeilen können nicht importiert werden, daher wird keine importiert.</translation>
    </message>
    <message>
        <source>%n document can be imported.</source>
        <translation>%n Beleg kann importiert werden.</translation>
    </message>
    <message>
        <source>%n documents can be imported.</source>
        <translation>%n Belege können importiert werden.</translation>
    </message>
    <message>
        <source>%n record can be imported.</source>
        <translation>%n Datensatz kann importiert werden.</translation>
    </message>
    <message>
        <source>%n records can be imported.</source>
        <translation>%n Datensätze können importiert werden.</translation>
    </message>
    <message>
        <source>Importing %1</source>
        <translation>Importieren: %1</translation>
    </message>
    <message>
        <source>Reading %1</source>
        <translation>%1 wird gelesen</translation>
    </message>
    <message>
        <source>Check &amp;Rows</source>
        <translation>Zeilen &amp;prüfen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvHistory</name>
    <message>
        <source>Inventory History</source>
        <translation>Lagerbewegungen</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Einst.-Preis</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Transaction Description</source>
        <translation>Vorgang</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Source</source>
        <translation>&amp;Quelle</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Open &amp;Document</source>
        <translation>&amp;Beleg öffnen</translation>
    </message>
    <message>
        <source>Open Document</source>
        <translation>Beleg öffnen</translation>
    </message>
    <message>
        <source>Inventory History &amp;Help</source>
        <translation>&amp;Hilfe zu Lagerbewegungen</translation>
    </message>
    <message>
        <source>No history yet. Each line of a document shows here when the document has been posted.</source>
        <translation>Noch keine Bewegungen. Jede Position eines Belegs erscheint hier, sobald der Beleg gebucht ist.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvHistoryFilter</name>
    <message>
        <source>Inventory History Filter</source>
        <translation>Filter für Lagerbewegungen</translation>
    </message>
    <message>
        <source>&amp;Year:</source>
        <translation>Jah&amp;r:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>All years</source>
        <translation>Alle Jahre</translation>
    </message>
    <message>
        <source>&amp;Period:</source>
        <translation>&amp;Periode:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>All periods</source>
        <translation>Alle Perioden</translation>
    </message>
    <message>
        <source>&amp;Transaction Type:</source>
        <translation>Vorgangsar&amp;t:</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvReceipt</name>
    <message>
        <source>Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>Lieferantennr.</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>Lagerort</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvReports</name>
    <message>
        <source>&amp;Preview</source>
        <translation>&amp;Vorschau</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvTotals</name>
    <message>
        <source>Inventory Totals</source>
        <translation>Lagerbestände</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Quantity On Hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Last moved</source>
        <translation>Letzte Bew.</translation>
    </message>
    <message>
        <source>Last counted</source>
        <translation>Letzte Zählung</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>Be&amp;wegungen</translation>
    </message>
    <message>
        <source>Stock &amp;as of...</source>
        <translation>St&amp;ichtagsbestand...</translation>
    </message>
    <message>
        <source>Inventory Totals &amp;Help</source>
        <translation>&amp;Hilfe zu Lagerbeständen</translation>
    </message>
    <message>
        <source>No stock yet. What is received shows here when the receipt has been posted.</source>
        <translation>Noch kein Bestand. Was eingeht, erscheint hier, sobald der Wareneingang gebucht ist.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmInvTotalsFilter</name>
    <message>
        <source>Inventory Totals Filter</source>
        <translation>Filter für Lagerbestände</translation>
    </message>
    <message>
        <source>Below zero</source>
        <translation>Unter null</translation>
    </message>
    <message>
        <source>Zero</source>
        <translation>Null</translation>
    </message>
    <message>
        <source>&amp;Quantity On Hand:</source>
        <translation>B&amp;estand:</translation>
    </message>
    <message>
        <source>Quantity On Hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Not moved since</source>
        <translation>Nicht bewegt seit</translation>
    </message>
    <message>
        <source>Whenever it has moved</source>
        <translation>Ohne Einschränkung</translation>
    </message>
    <message>
        <source>Not &amp;moved since:</source>
        <translation>Nicht bewe&amp;gt seit:</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemCard</name>
    <message>
        <source>&amp;Why This Cost...</source>
        <translation>&amp;Preisherleitung...</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Bewegungen</translation>
    </message>
    <message>
        <source>Show in &amp;Items</source>
        <translation>In &amp;Artikeln zeigen</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Nothing has been posted.</source>
        <translation>Es wurde nichts gebucht.</translation>
    </message>
    <message>
        <source>Quantity on hand</source>
        <translation>Bestandsmenge</translation>
    </message>
    <message>
        <source>Nothing has been received.</source>
        <translation>Es gab keinen Wareneingang.</translation>
    </message>
    <message>
        <source>Average cost</source>
        <translation>Durchschnittspreis</translation>
    </message>
    <message>
        <source>Figures</source>
        <translation>Zahlen</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Item Card: %1 %2</source>
        <translation>Artikelkarte: %1 %2</translation>
    </message>
    <message>
        <source>suspended</source>
        <translation>gesperrt</translation>
    </message>
    <message>
        <source>of its many movements the last of each day is shown</source>
        <translation>von vielen Bewegungen ist die letzte jedes Tages gezeigt</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Location %1</source>
        <translation>Lagerort %1</translation>
    </message>
    <message>
        <source>All</source>
        <translation>Alle</translation>
    </message>
    <message>
        <source>Cost</source>
        <translation>Preis</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Durchschn.</translation>
    </message>
    <message>
        <source>Last, %1</source>
        <translation>Letzter, %1</translation>
    </message>
    <message>
        <source>Last</source>
        <translation>Letzter</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Waiting to be posted</source>
        <translation>Noch zu buchen</translation>
    </message>
    <message>
        <source>%1, %2: %3, then %4 on hand</source>
        <translation>%1, %2: %3, danach Bestand %4</translation>
    </message>
    <message>
        <source>%1, %2: average cost %3</source>
        <translation>%1, %2: Durchschnittspreis %3</translation>
    </message>
    <message>
        <source>%1 on hand</source>
        <translation>Bestand %1</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemInv</name>
    <message>
        <source>&amp;Barcodes...</source>
        <translation>Barcod&amp;es...</translation>
    </message>
    <message>
        <source>Save the item first</source>
        <translation>Speichern Sie den Artikel zuerst</translation>
    </message>
    <message>
        <source>The codes that makers print on it</source>
        <translation>Die Codes, die Hersteller darauf drucken</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemSearchInv</name>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Item Type</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>On hand</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Item not found. F3 looks for the words anywhere.</source>
        <translation>Artikel nicht gefunden. F3 sucht die Wörter überall.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemsFilter</name>
    <message>
        <source>Items Filter</source>
        <translation>Artikelfilter</translation>
    </message>
    <message>
        <source>Item &amp;Type:</source>
        <translation>Artikelar&amp;t:</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Gesperrt</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemsFind</name>
    <message>
        <source>Find Item</source>
        <translation>Artikel suchen</translation>
    </message>
    <message>
        <source>Item &amp;no.:</source>
        <translation>Artikel&amp;nr.:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmItemsInv</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>Daten&amp;sätze</translation>
    </message>
    <message>
        <source>Synchronize Items</source>
        <translation>Artikel abgleichen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Totals</source>
        <translation>B&amp;estände</translation>
    </message>
    <message>
        <source>Totals</source>
        <translation>Bestände</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>Be&amp;wegungen</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Bewegungen</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmMonthEnd</name>
    <message>
        <source>Done</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Period %1, by the calendar</source>
        <translation>Periode %1, laut Kalender</translation>
    </message>
    <message>
        <source>Period %1</source>
        <translation>Periode %1</translation>
    </message>
    <message>
        <source>Open &amp;Period %1</source>
        <translation>&amp;Periode %1 öffnen</translation>
    </message>
    <message>
        <source>This could not be read.</source>
        <translation>Dies konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>Somebody has opened period %1 meanwhile.</source>
        <translation>Jemand hat inzwischen die Periode %1 geöffnet.</translation>
    </message>
    <message>
        <source>Open period %1? New documents take it from now on.</source>
        <translation>Periode %1 öffnen? Neue Belege erhalten sie ab jetzt.</translation>
    </message>
    <message>
        <source>Not everything of period %1 is done:

%2

%3</source>
        <translation>Noch nicht alles der Periode %1 ist erledigt:

%2

%3</translation>
    </message>
    <message>
        <source>Period %1 is open.</source>
        <translation>Die Periode %1 ist geöffnet.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmPasteRows</name>
    <message>
        <source>No location has been chosen yet.</source>
        <translation>Es wurde noch kein Lagerort gewählt.</translation>
    </message>
    <message>
        <source>Location: %1</source>
        <translation>Lagerort: %1</translation>
    </message>
    <message>
        <source>Not used</source>
        <translation>Nicht verwendet</translation>
    </message>
    <message>
        <source>%n row</source>
        <translation>%n Zeile</translation>
    </message>
    <message>
        <source>%n rows</source>
        <translation>%n Zeilen</translation>
    </message>
    <message>
        <source>%n of %1 rows cannot be taken, so none can.</source>
        <translation>%n von %1 Zeilen können nicht übernommen werden, daher wird keine übernommen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmPhoneCount</name>
    <message>
        <source>This computer is on no network, so that no phone can reach it.</source>
        <translation>Dieser Computer ist mit keinem Netzwerk verbunden, sodass ihn kein Telefon erreicht.</translation>
    </message>
    <message>
        <source>The phone warns of the certificate, which has been made for this count alone: choose to go on. Its SHA-256 begins with %1</source>
        <translation>Das Telefon warnt vor dem Zertifikat, das nur für diese Zählung erstellt wurde: Wählen Sie „Fortfahren“. Sein SHA-256 beginnt mit %1</translation>
    </message>
    <message>
        <source>The phones that count now need a new link at another address.
Do you want to change it?</source>
        <translation>Die Telefone, die jetzt zählen, brauchen unter einer anderen Adresse einen neuen Link.
Möchten Sie die Adresse ändern?</translation>
    </message>
    <message>
        <source>Phone %1, without a name yet</source>
        <translation>Telefon %1, noch ohne Namen</translation>
    </message>
    <message>
        <source>%1: %n number</source>
        <translation>%1: %n Zahl</translation>
    </message>
    <message>
        <source>%1: %n numbers</source>
        <translation>%1: %n Zahlen</translation>
    </message>
    <message>
        <source>Scan the picture with the phone&apos;s camera. It is good for one phone, on the same network.</source>
        <translation>Scannen Sie das Bild mit der Kamera des Telefons. Es gilt für ein Telefon im selben Netzwerk.</translation>
    </message>
    <message>
        <source>A phone has used the link. &quot;Another Phone&quot; makes a further one.</source>
        <translation>Ein Telefon hat den Link benutzt. „Weiteres Telefon“ erstellt einen neuen.</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmPreview</name>
    <message>
        <source>&amp;PDF...</source>
        <translation>&amp;PDF...</translation>
    </message>
    <message>
        <source>&amp;CSV...</source>
        <translation>&amp;CSV...</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>Seite %1 von %2</translation>
    </message>
    <message>
        <source>Page %1 of %2, incomplete</source>
        <translation>Seite %1 von %2, unvollständig</translation>
    </message>
    <message>
        <source>Page %1 of %2...</source>
        <translation>Seite %1 von %2...</translation>
    </message>
    <message>
        <source>Searched %1 of %2 pages</source>
        <translation>%1 von %2 Seiten durchsucht</translation>
    </message>
    <message>
        <source>Not found</source>
        <translation>Nicht gefunden</translation>
    </message>
    <message>
        <source>Not found in the pages that could be made</source>
        <translation>Auf den Seiten, die erstellt werden konnten, nicht gefunden</translation>
    </message>
    <message>
        <source>Stopped after %1 of %2 pages</source>
        <translation>Nach %1 von %2 Seiten angehalten</translation>
    </message>
    <message>
        <source>%n page</source>
        <translation>%n Seite</translation>
    </message>
    <message>
        <source>%n pages</source>
        <translation>%n Seiten</translation>
    </message>
    <message>
        <source>Saving %1</source>
        <translation>Speichern: %1</translation>
    </message>
    <message>
        <source>Printing on %1</source>
        <translation>Drucken auf %1</translation>
    </message>
    <message>
        <source>%1 saved as %2</source>
        <translation>%1 gespeichert als %2</translation>
    </message>
    <message>
        <source>%1 sent to the printer %2</source>
        <translation>%1 an den Drucker %2 gesendet</translation>
    </message>
    <message>
        <source>&amp;XLSX...</source>
        <translation>&amp;XLSX...</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmRestore</name>
    <message>
        <source>Backup to Restore</source>
        <translation>Wiederherzustellende Sicherung</translation>
    </message>
    <message>
        <source>Backups (*.sqlite);;All files (*)</source>
        <translation>Sicherungen (*.sqlite);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Folder to Restore Into</source>
        <translation>Zielordner der Wiederherstellung</translation>
    </message>
    <message>
        <source>Choose the backup that is to be restored.</source>
        <translation>Wählen Sie die Sicherung, die wiederhergestellt werden soll.</translation>
    </message>
    <message>
        <source>the server %1</source>
        <translation>Server %1</translation>
    </message>
    <message>
        <source>The backup has been restored into %1. To work with it, choose that in Data Options.</source>
        <translation>Die Sicherung wurde wiederhergestellt. Ziel: %1. Um damit zu arbeiten, wählen Sie dieses Ziel in den Datenoptionen.</translation>
    </message>
    <message>
        <source>It is of an older release. When it is opened first these are brought up to date: %1.</source>
        <translation>Die Sicherung stammt aus einer älteren Version. Beim ersten Öffnen werden diese auf den neuesten Stand gebracht: %1.</translation>
    </message>
    <message>
        <source>Choose an empty folder to restore into.</source>
        <translation>Wählen Sie einen leeren Ordner für die Wiederherstellung.</translation>
    </message>
    <message>
        <source>There is no folder %1.</source>
        <translation>Der Ordner %1 ist nicht vorhanden.</translation>
    </message>
    <message>
        <source>Restoring into %1</source>
        <translation>Wiederherstellen in %1</translation>
    </message>
    <message>
        <source>Enter the address of the server to restore into.</source>
        <translation>Geben Sie die Adresse des Servers für die Wiederherstellung ein.</translation>
    </message>
    <message>
        <source>Restoring into the server %1</source>
        <translation>Wiederherstellen auf Server %1</translation>
    </message>
    <message>
        <source>The backup has been restored into %1.</source>
        <translation>Die Sicherung wurde in %1 wiederhergestellt.</translation>
    </message>
    <message>
        <source>Work with it from now on?</source>
        <translation>Ab jetzt damit arbeiten?</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmStockAsOf</name>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Day or Period...</source>
        <translation>Tag oder P&amp;eriode...</translation>
    </message>
    <message>
        <source>Stock As Of</source>
        <translation>Stichtagsbestand</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Quantity then</source>
        <translation>Damalige Menge</translation>
    </message>
    <message>
        <source>At today&apos;s cost</source>
        <translation>Zum heutigen Preis</translation>
    </message>
    <message>
        <source>On hand now</source>
        <translation>Bestand jetzt</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>Stock As Of &amp;Help</source>
        <translation>&amp;Hilfe zum Stichtag</translation>
    </message>
    <message>
        <source>No stock yet. What is received shows here when the receipt has been posted.</source>
        <translation>Noch kein Bestand. Was eingeht, erscheint hier, sobald der Wareneingang gebucht ist.</translation>
    </message>
    <message>
        <source>Stock As Of Filter</source>
        <translation>Stichtagsfilter</translation>
    </message>
    <message>
        <source>Stock as of %1</source>
        <translation>Bestand am Stichtag: %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmUsages</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;Print List...</source>
        <translation>&amp;Liste drucken...</translation>
    </message>
    <message>
        <source>Print &amp;Selected Usage...</source>
        <translation>&amp;Markierten Verbrauch drucken...</translation>
    </message>
    <message>
        <source>&amp;Records</source>
        <translation>Daten&amp;sätze</translation>
    </message>
    <message>
        <source>Post...</source>
        <translation>Buchen...</translation>
    </message>
    <message>
        <source>Selected Usage</source>
        <translation>Markierter Verbrauch</translation>
    </message>
    <message>
        <source>Specified Usage Date</source>
        <translation>Bestimmtes Verbrauchsdatum</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVContact</name>
    <message>
        <source>New Contact at %1</source>
        <translation>Neuer Kontakt bei %1</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendor</name>
    <message>
        <source>No contacts yet. Press New to add one.</source>
        <translation>Noch keine Kontakte. Drücken Sie „Neu“, um einen anzulegen.</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <source>E-Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>New vendor must be saved before entering contacts...
Save now?</source>
        <translation>Ein neuer Lieferant muss gespeichert werden, bevor Kontakte erfasst werden...
Jetzt speichern?</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendors</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>&amp;Invoices</source>
        <translation>&amp;Rechnungen</translation>
    </message>
    <message>
        <source>&amp;Cheques</source>
        <translation>Sche&amp;cks</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendorsFilter</name>
    <message>
        <source>Vendors Filter</source>
        <translation>Lieferantenfilter</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>Wäh&amp;rung:</translation>
    </message>
    <message>
        <source>Suspended</source>
        <translation>Gesperrt</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmVendorsFind</name>
    <message>
        <source>Find Vendor</source>
        <translation>Lieferant suchen</translation>
    </message>
    <message>
        <source>&amp;Vendor no.:</source>
        <translation>&amp;Lieferantennr.:</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmWarehousesInv</name>
    <message>
        <source>&amp;Records</source>
        <translation>Daten&amp;sätze</translation>
    </message>
    <message>
        <source>Synchronize Locations</source>
        <translation>Lagerorte abgleichen</translation>
    </message>
</context>
<context>
    <name>Tallymere::TfrmWhatToBuy</name>
    <message>
        <source>The history is being read.</source>
        <translation>Die Bewegungen werden gelesen.</translation>
    </message>
    <message>
        <source>What is in stock lasts long enough.</source>
        <translation>Was auf Lager ist, reicht lange genug.</translation>
    </message>
    <message>
        <source>Nothing has been used in these weeks.</source>
        <translation>In diesen Wochen wurde nichts verbraucht.</translation>
    </message>
    <message>
        <source>Reading the history...</source>
        <translation>Bewegungen werden gelesen...</translation>
    </message>
    <message>
        <source>%n item to buy</source>
        <translation>%n Artikel zu bestellen</translation>
    </message>
    <message>
        <source>%n items to buy</source>
        <translation>%n Artikel zu bestellen</translation>
    </message>
    <message>
        <source>%1.  Make Receipt: %2</source>
        <translation>%1.  Eingang anlegen: %2</translation>
    </message>
</context>
<context>
    <name>Tallymere::TodayPanel</name>
    <message>
        <source>Today</source>
        <translation>Heute</translation>
    </message>
    <message>
        <source>This could not be read.</source>
        <translation>Dies konnte nicht gelesen werden.</translation>
    </message>
    <message>
        <source>as of %1</source>
        <translation>Stand %1</translation>
    </message>
    <message>
        <source>reading...</source>
        <translation>wird gelesen...</translation>
    </message>
</context>
<context>
    <name>Tallymere::WordsFinding</name>
    <message>
        <source>Searching</source>
        <translation>Suche</translation>
    </message>
    <message>
        <source>No row of the list has these words.</source>
        <translation>Keine Zeile der Liste enthält diese Wörter.</translation>
    </message>
    <message>
        <source>These words are in row %1 of %2: %3. Enter goes to the next row that has them.</source>
        <translation>Diese Wörter stehen in Zeile %1 von %2: %3. Die Eingabetaste geht zur nächsten Zeile, die sie enthält.</translation>
    </message>
</context>
<context>
    <name>TfrmBackUp</name>
    <message>
        <source>Back Up</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Last backup:</source>
        <translation>Letzte Sicherung:</translation>
    </message>
    <message>
        <source>A backup is a copy of the whole database in one new file, made while others go on working, and verified.</source>
        <translation>Eine Sicherung ist eine Kopie der ganzen Datenbank in einer neuen Datei; sie wird erstellt, während andere weiterarbeiten, und überprüft.</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>One each &amp;day, when the host is closed for the first time</source>
        <translation>&amp;Täglich eine, beim ersten Schließen des Host-Programms</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>&amp;Ordner:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>&amp;Keep the last:</source>
        <translation>&amp;Letzte behalten:</translation>
    </message>
    <message>
        <source>older ones are removed</source>
        <translation>ältere werden entfernt</translation>
    </message>
    <message>
        <source>&amp;Back Up Now...</source>
        <translation>Jetzt &amp;sichern...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmBankInv</name>
    <message>
        <source>Bank</source>
        <translation>Bank</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>&amp;Währung:</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Währungen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmCheckBooks</name>
    <message>
        <source>Check Books</source>
        <translation>Bücher prüfen</translation>
    </message>
    <message>
        <source>Findings</source>
        <translation>Befunde</translation>
    </message>
    <message>
        <source>In the figures:</source>
        <translation>In den Zahlen:</translation>
    </message>
    <message>
        <source>What mends it:</source>
        <translation>Abhilfe:</translation>
    </message>
    <message>
        <source>&amp;Check Again</source>
        <translation>&amp;Erneut prüfen</translation>
    </message>
    <message>
        <source>&amp;Repair...</source>
        <translation>&amp;Reparieren...</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Speichern als</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>Am &amp;Bildschirm</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>TfrmCompany</name>
    <message>
        <source>Your Organization</source>
        <translation>Ihre Organisation</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Na&amp;me:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>&amp;Address:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>Address, second line</source>
        <translation>Adresse, zweite Zeile</translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>Ta&amp;x no.:</source>
        <translation>&amp;Steuernr.:</translation>
    </message>
    <message>
        <source>Tax or business number</source>
        <translation>Steuer- oder Betriebsnummer</translation>
    </message>
    <message>
        <source>&amp;Fiscal Year:</source>
        <translation>&amp;Geschäftsjahr:</translation>
    </message>
    <message>
        <source>Current fiscal year: the calendar year of your last fiscal period</source>
        <translation>Aktuelles Geschäftsjahr: das Kalenderjahr Ihrer letzten Periode</translation>
    </message>
    <message>
        <source>Year-End...</source>
        <translation>Jahresabschluss...</translation>
    </message>
    <message>
        <source>Year-End</source>
        <translation>Jahresabschluss</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>&amp;Default Period:</source>
        <translation>Standard&amp;periode:</translation>
    </message>
    <message>
        <source>Period number, 1 to 12</source>
        <translation>Periodennummer, 1 bis 12</translation>
    </message>
    <message>
        <source>Year, entered as 2 digits</source>
        <translation>Jahr, zweistellig eingegeben</translation>
    </message>
    <message>
        <source>Default Period (year)</source>
        <translation>Standardperiode (Jahr)</translation>
    </message>
    <message>
        <source>&amp;Warn if before:</source>
        <translation>&amp;Warnung vor:</translation>
    </message>
    <message>
        <source>Warn if before (year)</source>
        <translation>Warnung vor (Jahr)</translation>
    </message>
    <message>
        <source>War&amp;n if after:</source>
        <translation>War&amp;nung nach:</translation>
    </message>
    <message>
        <source>Warn if after (year)</source>
        <translation>Warnung nach (Jahr)</translation>
    </message>
    <message>
        <source>&amp;Error if before:</source>
        <translation>&amp;Fehler vor:</translation>
    </message>
    <message>
        <source>Error if before (year)</source>
        <translation>Fehler vor (Jahr)</translation>
    </message>
    <message>
        <source>E&amp;rror if after:</source>
        <translation>F&amp;ehler nach:</translation>
    </message>
    <message>
        <source>Error if after (year)</source>
        <translation>Fehler nach (Jahr)</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Vorgaben</translation>
    </message>
    <message>
        <source>Default &amp;Days in which invoice is due:</source>
        <translation>&amp;Zahlungsziel für Rechnungen in Tagen:</translation>
    </message>
    <message>
        <source>Invoice &amp;Line Items:</source>
        <translation>&amp;Rechnungspositionen:</translation>
    </message>
    <message>
        <source>Summarized by item</source>
        <translation>Nach Artikel zusammengefasst</translation>
    </message>
    <message>
        <source>Detailed by delivery date</source>
        <translation>Einzeln nach Liefertag</translation>
    </message>
    <message>
        <source>&amp;Invoice Format:</source>
        <translation>Rechn&amp;ungsformat:</translation>
    </message>
    <message>
        <source>Separate Invoice and Statement</source>
        <translation>Rechnung und Kontoauszug getrennt</translation>
    </message>
    <message>
        <source>Integrated Invoice and Statement</source>
        <translation>Rechnung und Kontoauszug in einem</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>Wä&amp;hrung:</translation>
    </message>
    <message>
        <source>The currency of your main bank account</source>
        <translation>Die Währung Ihres Hauptbankkontos</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Währungen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Hi&amp;lfe</translation>
    </message>
</context>
<context>
    <name>TfrmCopyBooks</name>
    <message>
        <source>Copy Books</source>
        <translation>Bücher kopieren</translation>
    </message>
    <message>
        <source>From:</source>
        <translation>Von:</translation>
    </message>
    <message>
        <source>Into a &amp;folder that holds no books:</source>
        <translation>In einen &amp;Ordner ohne Bücher:</translation>
    </message>
    <message>
        <source>Folder to copy into</source>
        <translation>Zielordner</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Onto a &amp;server that holds no books:</source>
        <translation>Auf einen &amp;Server ohne Bücher:</translation>
    </message>
    <message>
        <source>Address of the server</source>
        <translation>Adresse des Servers</translation>
    </message>
    <message>
        <source>Link to the server</source>
        <translation>Verbindung zum Server</translation>
    </message>
    <message>
        <source>The books &amp;move: where they are now they can be read, and take no more changes</source>
        <translation>Die Bücher &amp;ziehen um: Am jetzigen Ort sind sie lesbar und nehmen keine Änderungen mehr an</translation>
    </message>
    <message>
        <source>Others can go on working meanwhile. Each table is compared row by row and by its sums, and both sides are checked. A copy that is cancelled cannot be opened; the same goes on with it.</source>
        <translation>Andere können inzwischen weiterarbeiten. Jede Tabelle wird Zeile für Zeile und nach Summen verglichen, beide Seiten werden geprüft. Eine abgebrochene Kopie lässt sich nicht öffnen; dieselbe setzt sie fort.</translation>
    </message>
    <message>
        <source>What has been verified</source>
        <translation>Was geprüft wurde</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmCountDifferences</name>
    <message>
        <source>Count Differences</source>
        <translation>Zähldifferenzen</translation>
    </message>
    <message>
        <source>Differences, the largest first</source>
        <translation>Differenzen, die größte zuerst</translation>
    </message>
    <message>
        <source>&amp;Go to Item</source>
        <translation>&amp;Zum Artikel</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
</context>
<context>
    <name>TfrmCurrencyInv</name>
    <message>
        <source>Currency</source>
        <translation>Währung</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Exchange Rate:</source>
        <translation>&amp;Wechselkurs:</translation>
    </message>
    <message>
        <source>Factor by which to multiply foreign amount</source>
        <translation>Faktor, mit dem der Fremdbetrag multipliziert wird</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmDialerInv</name>
    <message>
        <source>Dialer</source>
        <translation>Wählhilfe</translation>
    </message>
    <message>
        <source>Setup...</source>
        <translation>Einrichten...</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmDialerSetupInv</name>
    <message>
        <source>Dialer Setup</source>
        <translation>Wählhilfe einrichten</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>Anschluss</translation>
    </message>
    <message>
        <source>COM&amp;1</source>
        <translation>COM&amp;1</translation>
    </message>
    <message>
        <source>COM&amp;2</source>
        <translation>COM&amp;2</translation>
    </message>
    <message>
        <source>COM&amp;3</source>
        <translation>COM&amp;3</translation>
    </message>
    <message>
        <source>COM&amp;4</source>
        <translation>COM&amp;4</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmFirstSteps</name>
    <message>
        <source>First Steps</source>
        <translation>Erste Schritte</translation>
    </message>
    <message>
        <source>What new books need, in an order that works. Leave it at any time; it knows from the books how far you are.</source>
        <translation>Was neue Bücher brauchen, in einer Reihenfolge, die funktioniert. Sie können jederzeit aufhören; aus den Büchern ist bekannt, wie weit Sie sind.</translation>
    </message>
    <message>
        <source>&amp;Do not show this at the start again</source>
        <translation>Am Anfang &amp;nicht mehr zeigen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>TfrmImport</name>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>&amp;Sheet</source>
        <translation>&amp;Blatt</translation>
    </message>
    <message>
        <source>&amp;Headings in row</source>
        <translation>Übersc&amp;hriften in Zeile</translation>
    </message>
    <message>
        <source>What the columns stand for</source>
        <translation>Wofür die Spalten stehen</translation>
    </message>
    <message>
        <source>Large figures, periods that are not expected and the like are taken without a question</source>
        <translation>Große Zahlen, unerwartete Perioden und Ähnliches werden ohne Rückfrage übernommen</translation>
    </message>
    <message>
        <source>&amp;Take what would be asked about</source>
        <translation>Ohne &amp;Rückfragen übernehmen</translation>
    </message>
    <message>
        <source>&amp;Import</source>
        <translation>&amp;Importieren</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmInvAdjustment</name>
    <message>
        <source>Inventory Adjustment</source>
        <translation>Bestandskorrektur</translation>
    </message>
    <message>
        <source>Descri&amp;ption:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>POSTED</source>
        <translation>GEBUCHT</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Lagerort:</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Locations</source>
        <translation>Lagerorte</translation>
    </message>
    <message>
        <source>P&amp;eriod:</source>
        <translation>&amp;Periode:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>&amp;Year of Period:</source>
        <translation>&amp;Jahr der Periode:</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Jahr der Periode</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Positionen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmInvReceipt</name>
    <message>
        <source>Inventory Receipt</source>
        <translation>Wareneingang</translation>
    </message>
    <message>
        <source>&amp;Vendor:</source>
        <translation>&amp;Lieferant:</translation>
    </message>
    <message>
        <source>Vendor no.</source>
        <translation>Lieferantennr.</translation>
    </message>
    <message>
        <source>Vendor name</source>
        <translation>Lieferantenname</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Vendors</source>
        <translation>Lieferanten</translation>
    </message>
    <message>
        <source>&amp;Receipt no.:</source>
        <translation>&amp;Eingangsnr.:</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>Eingangsnr.</translation>
    </message>
    <message>
        <source>POSTED</source>
        <translation>GEBUCHT</translation>
    </message>
    <message>
        <source>&amp;Warehouse:</source>
        <translation>La&amp;gerort:</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Warehouses</source>
        <translation>Lagerorte</translation>
    </message>
    <message>
        <source>&amp;Date:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>&amp;Purchase Order no.:</source>
        <translation>&amp;Bestellnr.:</translation>
    </message>
    <message>
        <source>Purchase Order no.</source>
        <translation>Bestellnr.</translation>
    </message>
    <message>
        <source>P&amp;eriod:</source>
        <translation>&amp;Periode:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>&amp;Year of Period:</source>
        <translation>&amp;Jahr der Periode:</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Jahr der Periode</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Positionen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmInvReports</name>
    <message>
        <source>Inventory Reports</source>
        <translation>Lagerberichte</translation>
    </message>
    <message>
        <source>Choose a report.</source>
        <translation>Wählen Sie einen Bericht.</translation>
    </message>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>Location:</source>
        <translation>Lagerort:</translation>
    </message>
    <message>
        <source>Item Type:</source>
        <translation>Artikelart:</translation>
    </message>
    <message>
        <source>Period:</source>
        <translation>Periode:</translation>
    </message>
    <message>
        <source>Year</source>
        <translation>Jahr</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Speichern als</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>Am &amp;Bildschirm</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; &amp;Zurück</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>&amp;Weiter &gt;</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmItemInv</name>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Item &amp;no.:</source>
        <translation>Artikel&amp;nr.:</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Check here to prevent further transactions from being entered</source>
        <translation>Ankreuzen, damit keine weiteren Vorgänge erfasst werden</translation>
    </message>
    <message>
        <source>S&amp;uspended</source>
        <translation>&amp;Gesperrt</translation>
    </message>
    <message>
        <source>&amp;Tax Codes:</source>
        <translation>Steuer&amp;codes:</translation>
    </message>
    <message>
        <source>Applicable taxes.  example: PG  (PST and GST)</source>
        <translation>Anwendbare Steuern.  Beispiel: PG  (PST und GST)</translation>
    </message>
    <message>
        <source>Item T&amp;ype:</source>
        <translation>Ar&amp;tikelart:</translation>
    </message>
    <message>
        <source>Item Types</source>
        <translation>Artikelarten</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>&amp;Wgt Avg Cost:</source>
        <translation>&amp;Durchschn.-Preis:</translation>
    </message>
    <message>
        <source>Weighted Average Cost (calculated automatically)</source>
        <translation>Gewichteter Durchschnittspreis (wird automatisch berechnet)</translation>
    </message>
    <message>
        <source>&amp;Read Only</source>
        <translation>Sch&amp;reibschutz</translation>
    </message>
    <message>
        <source>&amp;Standard Cost:</source>
        <translation>&amp;Standardpreis:</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmItemSearchInv</name>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Item &amp;no.</source>
        <translation>Artikel&amp;nr.</translation>
    </message>
    <message>
        <source>&amp;Description</source>
        <translation>&amp;Beschreibung</translation>
    </message>
    <message>
        <source>Item &amp;Type</source>
        <translation>Artikelar&amp;t</translation>
    </message>
    <message>
        <source>Find item no.</source>
        <translation>Artikelnr. suchen</translation>
    </message>
    <message>
        <source>Find description</source>
        <translation>Beschreibung suchen</translation>
    </message>
    <message>
        <source>Item Type Filter</source>
        <translation>Filter nach Artikelart</translation>
    </message>
    <message>
        <source>Item type</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmItemTypeInv</name>
    <message>
        <source>Item Type</source>
        <translation>Artikelart</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;Inventory:</source>
        <translation>&amp;Bestand:</translation>
    </message>
    <message>
        <source>Items of this type are stocked</source>
        <translation>Artikel dieser Art werden im Bestand geführt</translation>
    </message>
    <message>
        <source>Inventory</source>
        <translation>Bestand</translation>
    </message>
    <message>
        <source>Default Costing Method</source>
        <translation>Standard-Bewertungsverfahren</translation>
    </message>
    <message>
        <source>&amp;Weighted Average</source>
        <translation>&amp;Gew. Durchschnitt</translation>
    </message>
    <message>
        <source>S&amp;tandard</source>
        <translation>&amp;Standard</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmMonthEnd</name>
    <message>
        <source>Month End</source>
        <translation>Monatsabschluss</translation>
    </message>
    <message>
        <source>To be &amp;counted since:</source>
        <translation>Zu &amp;zählen seit:</translation>
    </message>
    <message>
        <source>Open &amp;Period</source>
        <translation>&amp;Periode öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>TfrmPasteRows</name>
    <message>
        <source>Paste Rows</source>
        <translation>Zeilen einfügen</translation>
    </message>
    <message>
        <source>The &amp;first row has titles</source>
        <translation>&amp;Erste Zeile enthält Überschriften</translation>
    </message>
    <message>
        <source>The lines that the rows become</source>
        <translation>Die Positionen, die aus den Zeilen werden</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmPhoneCount</name>
    <message>
        <source>Count on a Phone</source>
        <translation>Mit dem Telefon zählen</translation>
    </message>
    <message>
        <source>A&amp;ddress of this computer:</source>
        <translation>A&amp;dresse dieses Computers:</translation>
    </message>
    <message>
        <source>&amp;Link for one phone:</source>
        <translation>&amp;Link für ein Telefon:</translation>
    </message>
    <message>
        <source>The link as a picture to scan</source>
        <translation>Der Link als Bild zum Scannen</translation>
    </message>
    <message>
        <source>Who &amp;counts:</source>
        <translation>Wer &amp;zählt:</translation>
    </message>
    <message>
        <source>&amp;Another Phone</source>
        <translation>&amp;Weiteres Telefon</translation>
    </message>
    <message>
        <source>&amp;Stop</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ends the page and its links; what has come stays in the count</source>
        <translation>Beendet die Seite und ihre Links; was angekommen ist, bleibt in der Zählung</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Ausblenden</translation>
    </message>
    <message>
        <source>The phones go on counting</source>
        <translation>Die Telefone zählen weiter</translation>
    </message>
    <message>
        <source>Address of this computer</source>
        <translation>Adresse dieses Computers</translation>
    </message>
    <message>
        <source>Link for one phone</source>
        <translation>Link für ein Telefon</translation>
    </message>
    <message>
        <source>Who counts</source>
        <translation>Wer zählt</translation>
    </message>
</context>
<context>
    <name>TfrmPreview</name>
    <message>
        <source>Reports</source>
        <translation>Berichte</translation>
    </message>
    <message>
        <source>First Page</source>
        <translation>Erste Seite</translation>
    </message>
    <message>
        <source>Previous Page</source>
        <translation>Vorige Seite</translation>
    </message>
    <message>
        <source>Page 1 of 1</source>
        <translation>Seite 1 von 1</translation>
    </message>
    <message>
        <source>Next Page</source>
        <translation>Nächste Seite</translation>
    </message>
    <message>
        <source>Last Page</source>
        <translation>Letzte Seite</translation>
    </message>
    <message>
        <source>&amp;Zoom</source>
        <translation>&amp;Zoom</translation>
    </message>
    <message>
        <source>&amp;Width</source>
        <translation>&amp;Breite</translation>
    </message>
    <message>
        <source>As wide as the window</source>
        <translation>So breit wie das Fenster</translation>
    </message>
    <message>
        <source>Pa&amp;ge</source>
        <translation>Se&amp;ite</translation>
    </message>
    <message>
        <source>One page in the window</source>
        <translation>Eine Seite im Fenster</translation>
    </message>
    <message>
        <source>F&amp;ind:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>Previous Place (Shift+F3)</source>
        <translation>Vorige Stelle (Umschalt+F3)</translation>
    </message>
    <message>
        <source>↑</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>Next Place (F3)</source>
        <translation>Nächste Stelle (F3)</translation>
    </message>
    <message>
        <source>↓</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Speichern als</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
</context>
<context>
    <name>TfrmRestore</name>
    <message>
        <source>Restore</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>&amp;Backup:</source>
        <translation>&amp;Sicherung:</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Choose the backup</source>
        <translation>Sicherung wählen</translation>
    </message>
    <message>
        <source>Into an empty &amp;folder:</source>
        <translation>In einen leeren &amp;Ordner:</translation>
    </message>
    <message>
        <source>Folder to restore into</source>
        <translation>Zielordner der Wiederherstellung</translation>
    </message>
    <message>
        <source>Choose the folder</source>
        <translation>Ordner wählen</translation>
    </message>
    <message>
        <source>Into a &amp;server without a database:</source>
        <translation>A&amp;uf einen Server ohne Datenbank:</translation>
    </message>
    <message>
        <source>Address of the server</source>
        <translation>Adresse des Servers</translation>
    </message>
    <message>
        <source>Link to the server</source>
        <translation>Verbindung zum Server</translation>
    </message>
    <message>
        <source>Nothing that exists is written over. The backup is verified before it is used and stays as it is. One of an older release is brought up to date when it is opened first; one of a newer release is refused.</source>
        <translation>Nichts Vorhandenes wird überschrieben. Die Sicherung wird vor der Verwendung überprüft und bleibt, wie sie ist. Stammt sie aus einer älteren Version, wird sie beim ersten Öffnen auf den neuesten Stand gebracht; aus einer neueren Version wird sie abgelehnt.</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmTaxInv</name>
    <message>
        <source>Tax</source>
        <translation>Steuer</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>Tax Name  (example: PST - Ontario)</source>
        <translation>Name der Steuer  (Beispiel: PST - Ontario)</translation>
    </message>
    <message>
        <source>&amp;Rate %:</source>
        <translation>&amp;Satz %:</translation>
    </message>
    <message>
        <source>Tax Rate %  (example: 7)</source>
        <translation>Steuersatz %  (Beispiel: 7)</translation>
    </message>
    <message>
        <source>Co&amp;de:</source>
        <translation>&amp;Code:</translation>
    </message>
    <message>
        <source>Tax Code prints on invoice detail lines</source>
        <translation>Der Steuercode wird auf den Rechnungspositionen gedruckt</translation>
    </message>
    <message>
        <source>De&amp;scription:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Tax Description prints on invoice footer  (example: PST)</source>
        <translation>Die Beschreibung der Steuer wird am Rechnungsende gedruckt  (Beispiel: PST)</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmUsage</name>
    <message>
        <source>Inventory Usage</source>
        <translation>Lagerverbrauch</translation>
    </message>
    <message>
        <source>&amp;Usage no.:</source>
        <translation>&amp;Verbrauchsnr.:</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>Verbrauchsnr.</translation>
    </message>
    <message>
        <source>POSTED</source>
        <translation>GEBUCHT</translation>
    </message>
    <message>
        <source>D&amp;ate:</source>
        <translation>&amp;Datum:</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Calendar</source>
        <translation>Kalender</translation>
    </message>
    <message>
        <source>&amp;Description:</source>
        <translation>&amp;Beschreibung:</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>P&amp;eriod:</source>
        <translation>&amp;Periode:</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>&amp;Year of Period:</source>
        <translation>&amp;Jahr der Periode:</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Jahr der Periode</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Lagerort:</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>P&amp;rinted</source>
        <translation>&amp;Gedruckt</translation>
    </message>
    <message>
        <source>Lines</source>
        <translation>Positionen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmVContact</name>
    <message>
        <source>Vendor Contact</source>
        <translation>Lieferantenkontakt</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>&amp;First Name:</source>
        <translation>&amp;Vorname:</translation>
    </message>
    <message>
        <source>&amp;Last:</source>
        <translation>&amp;Nachname:</translation>
    </message>
    <message>
        <source>&amp;Job Title:</source>
        <translation>&amp;Position:</translation>
    </message>
    <message>
        <source>&amp;Business 1:</source>
        <translation>&amp;Geschäftl. 1:</translation>
    </message>
    <message>
        <source>Ext:</source>
        <translation>App.:</translation>
    </message>
    <message>
        <source>Extension</source>
        <translation>Durchwahl</translation>
    </message>
    <message>
        <source>Dial this number</source>
        <translation>Diese Nummer wählen</translation>
    </message>
    <message>
        <source>Dial</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>B&amp;usiness 2:</source>
        <translation>Ge&amp;schäftl. 2:</translation>
    </message>
    <message>
        <source>Extension 2</source>
        <translation>Durchwahl 2</translation>
    </message>
    <message>
        <source>&amp;Home:</source>
        <translation>P&amp;rivat:</translation>
    </message>
    <message>
        <source>Fa&amp;x:</source>
        <translation>Fa&amp;x:</translation>
    </message>
    <message>
        <source>Cellula&amp;r:</source>
        <translation>&amp;Mobil:</translation>
    </message>
    <message>
        <source>&amp;Pager:</source>
        <translation>P&amp;ager:</translation>
    </message>
    <message>
        <source>&amp;E-Mail:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Write to the e-mail address</source>
        <translation>An die E-Mail-Adresse schreiben</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
</context>
<context>
    <name>TfrmVendor</name>
    <message>
        <source>Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <source>Vendor &amp;no.:</source>
        <translation>Lieferanten&amp;nr.:</translation>
    </message>
    <message>
        <source>N&amp;ame:</source>
        <translation>Na&amp;me:</translation>
    </message>
    <message>
        <source>Con&amp;tact:</source>
        <translation>&amp;Kontakt:</translation>
    </message>
    <message>
        <source>Main contact</source>
        <translation>Hauptkontakt</translation>
    </message>
    <message>
        <source>A&amp;ddress:</source>
        <translation>&amp;Adresse:</translation>
    </message>
    <message>
        <source>&amp;Phone:</source>
        <translation>&amp;Telefon:</translation>
    </message>
    <message>
        <source>Dial the phone number</source>
        <translation>Die Telefonnummer wählen</translation>
    </message>
    <message>
        <source>Dial</source>
        <translation>Wählen</translation>
    </message>
    <message>
        <source>Address line 2</source>
        <translation>Adresszeile 2</translation>
    </message>
    <message>
        <source>&amp;Fax:</source>
        <translation>&amp;Fax:</translation>
    </message>
    <message>
        <source>Cit&amp;y:</source>
        <translation>O&amp;rt:</translation>
    </message>
    <message>
        <source>&amp;E-Mail:</source>
        <translation>&amp;E-Mail:</translation>
    </message>
    <message>
        <source>Write to the e-mail address</source>
        <translation>An die E-Mail-Adresse schreiben</translation>
    </message>
    <message>
        <source>Mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <source>&amp;State:</source>
        <translation>&amp;Staat:</translation>
    </message>
    <message>
        <source>State/Province/County</source>
        <translation>Bundesland/Provinz/Kreis</translation>
    </message>
    <message>
        <source>&amp;Web Page:</source>
        <translation>&amp;Webseite:</translation>
    </message>
    <message>
        <source>Open the web page</source>
        <translation>Die Webseite öffnen</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>&amp;Zip Code:</source>
        <translation>&amp;PLZ:</translation>
    </message>
    <message>
        <source>Co&amp;untry:</source>
        <translation>&amp;Land:</translation>
    </message>
    <message>
        <source>Terms, etc.</source>
        <translation>Konditionen usw.</translation>
    </message>
    <message>
        <source>Terms</source>
        <translation>Konditionen</translation>
    </message>
    <message>
        <source>&amp;Discount %:</source>
        <translation>S&amp;konto %:</translation>
    </message>
    <message>
        <source>Discount da&amp;ys:</source>
        <translation>Skontota&amp;ge:</translation>
    </message>
    <message>
        <source>&amp;Net days:</source>
        <translation>&amp;Zahlungsziel:</translation>
    </message>
    <message>
        <source>Default num&amp;ber of days to due date:</source>
        <translation>&amp;Standardanzahl der Tage bis zur Fälligkeit:</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>&amp;Tax no./Business no.:</source>
        <translation>Ste&amp;uer-/Betriebsnr.:</translation>
    </message>
    <message>
        <source>De&amp;fault Description:</source>
        <translation>Standard&amp;beschreibung:</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>Wä&amp;hrung:</translation>
    </message>
    <message>
        <source>Currencies</source>
        <translation>Währungen</translation>
    </message>
    <message>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <source>Check here to prevent further invoices from being entered</source>
        <translation>Ankreuzen, damit keine weiteren Rechnungen erfasst werden</translation>
    </message>
    <message>
        <source>&amp;Suspended</source>
        <translation>Gespe&amp;rrt</translation>
    </message>
    <message>
        <source>Contacts</source>
        <translation>Kontakte</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Notes</source>
        <translation>Notizen</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>Abbre&amp;chen</translation>
    </message>
</context>
<context>
    <name>TfrmWarehouseInv</name>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>&amp;Name:</source>
        <translation>&amp;Name:</translation>
    </message>
    <message>
        <source>&amp;OK</source>
        <translation>&amp;OK</translation>
    </message>
    <message>
        <source>&amp;Cancel</source>
        <translation>&amp;Abbrechen</translation>
    </message>
</context>
<context>
    <name>TfrmWhatToBuy</name>
    <message>
        <source>What to Buy</source>
        <translation>Bestellvorschlag</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Lagerort:</translation>
    </message>
    <message>
        <source>Weeks of &amp;use:</source>
        <translation>&amp;Verbrauchswochen:</translation>
    </message>
    <message>
        <source>Weeks to &amp;cover:</source>
        <translation>&amp;Reichweite (Wochen):</translation>
    </message>
    <message>
        <source>&amp;Also what is in stock</source>
        <translation>&amp;Auch ausreichend Vorhandenes</translation>
    </message>
    <message>
        <source>What to buy</source>
        <translation>Bestellvorschlag</translation>
    </message>
    <message>
        <source>Make &amp;Receipt</source>
        <translation>&amp;Eingang anlegen</translation>
    </message>
    <message>
        <source>&amp;Print...</source>
        <translation>&amp;Drucken...</translation>
    </message>
    <message>
        <source>&amp;Save as</source>
        <translation>&amp;Speichern als</translation>
    </message>
    <message>
        <source>Show &amp;on Screen</source>
        <translation>Am &amp;Bildschirm</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>Transactions</name>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Inventory Adjustment %1</source>
        <translation>Bestandskorrektur %1</translation>
    </message>
    <message>
        <source>New Inventory Adjustment</source>
        <translation>Neue Bestandskorrektur</translation>
    </message>
    <message>
        <source>Posted adjustments cannot be changed...

To undo an adjustment after posting, you must &quot;reverse&quot; it (enter it again with the opposite amount).</source>
        <translation>Gebuchte Korrekturen können nicht geändert werden...

Um eine Korrektur nach dem Buchen rückgängig zu machen, müssen Sie sie „stornieren“ (mit umgekehrtem Betrag erneut erfassen).</translation>
    </message>
    <message>
        <source>AdjustmentID already exists</source>
        <translation>Diese AdjustmentID ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Do you want to save changes?</source>
        <translation>Möchten Sie die Änderungen speichern?</translation>
    </message>
    <message>
        <source>Quantities have not been entered</source>
        <translation>Es wurden keine Mengen erfasst</translation>
    </message>
    <message>
        <source>Location no longer exists</source>
        <translation>Der Lagerort ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Quantity</source>
        <translation>Menge</translation>
    </message>
    <message>
        <source>Item no.</source>
        <translation>Artikelnr.</translation>
    </message>
    <message>
        <source>Inventory Adjustments</source>
        <translation>Bestandskorrekturen</translation>
    </message>
    <message>
        <source>Period</source>
        <translation>Periode</translation>
    </message>
    <message>
        <source>Date</source>
        <translation>Datum</translation>
    </message>
    <message>
        <source>Location</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Inventory Adjustments Filter</source>
        <translation>Filter für Bestandskorrekturen</translation>
    </message>
    <message>
        <source>Delete adjustment &apos;%1&apos;?</source>
        <translation>Die Korrektur „%1“ löschen?</translation>
    </message>
    <message>
        <source>Unable to delete adjustment &apos;%1&apos;...
It has already been posted</source>
        <translation>Die Korrektur „%1“ kann nicht gelöscht werden...
Sie wurde bereits gebucht</translation>
    </message>
    <message>
        <source>Post Inventory Adjustments</source>
        <translation>Bestandskorrekturen buchen</translation>
    </message>
    <message>
        <source>Unable to lock Adjustments table... this table is being updated by another job.</source>
        <translation>Die Tabelle „Korrekturen“ kann nicht gesperrt werden... Sie wird gerade von einem anderen Vorgang aktualisiert.</translation>
    </message>
    <message>
        <source>A conflicting program is running...
Please close &apos;Inventory Adjustment&apos; form</source>
        <translation>Ein damit unverträgliches Fenster ist geöffnet...
Bitte schließen Sie das Fenster „Bestandskorrektur“</translation>
    </message>
    <message>
        <source>Adjustments to post</source>
        <translation>Zu buchende Korrekturen</translation>
    </message>
    <message>
        <source>%1 adjustment(s) to be posted</source>
        <translation>%1 Korrektur(en) zu buchen</translation>
    </message>
    <message>
        <source>%n adjustment posted</source>
        <translation>%n Korrektur gebucht</translation>
    </message>
    <message>
        <source>%n adjustments posted</source>
        <translation>%n Korrekturen gebucht</translation>
    </message>
    <message>
        <source>Taken out: %1, which was begun and not saved, with %2</source>
        <translation>Entfernt: %1, angefangen und nicht gespeichert, mit %2</translation>
    </message>
    <message>
        <source>%n line</source>
        <translation>%n Position</translation>
    </message>
    <message>
        <source>%n lines</source>
        <translation>%n Positionen</translation>
    </message>
    <message>
        <source>What has been counted could not be kept in %1: %2</source>
        <translation>Das Gezählte konnte nicht in %1 aufbewahrt werden: %2</translation>
    </message>
    <message>
        <source>A quantity that has been counted cannot be below zero</source>
        <translation>Eine gezählte Menge darf nicht unter null liegen</translation>
    </message>
    <message>
        <source>Year of Period</source>
        <translation>Jahr der Periode</translation>
    </message>
    <message>
        <source>Period invalid...
Enter year as 2 digits</source>
        <translation>Periode ungültig...
Geben Sie das Jahr zweistellig ein</translation>
    </message>
    <message>
        <source>Warehouse</source>
        <translation>Lagerort</translation>
    </message>
    <message>
        <source>Unit Cost</source>
        <translation>Einst.-Preis</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; must have a value</source>
        <translation>Das Feld „%1“ muss einen Wert haben</translation>
    </message>
    <message>
        <source>The line could not be saved because another one was added meanwhile. Try again.</source>
        <translation>Die Position konnte nicht gespeichert werden, weil inzwischen eine andere hinzugefügt wurde. Versuchen Sie es erneut.</translation>
    </message>
    <message>
        <source>This line was deleted or replaced by another user. The lines are shown anew.</source>
        <translation>Diese Position wurde von einem anderen Benutzer gelöscht oder ersetzt. Die Positionen werden neu angezeigt.</translation>
    </message>
    <message>
        <source>%1, line %2</source>
        <translation>%1, Position %2</translation>
    </message>
    <message>
        <source>Line %1</source>
        <translation>Position %1</translation>
    </message>
    <message>
        <source>%1 cannot be put back: %2</source>
        <translation>%1 kann nicht zurückgeholt werden: %2</translation>
    </message>
    <message>
        <source>&amp;Location:</source>
        <translation>&amp;Lagerort:</translation>
    </message>
    <message>
        <source>Posted</source>
        <translation>Gebucht</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>%1 before it.</source>
        <translation>Zuvor: %1.</translation>
    </message>
    <message>
        <source>%n document behind it waits to be posted.</source>
        <translation>%n Beleg dahinter ist noch zu buchen.</translation>
    </message>
    <message>
        <source>%n documents behind it wait to be posted.</source>
        <translation>%n Belege dahinter sind noch zu buchen.</translation>
    </message>
    <message>
        <source>The document had been saved before the connection was lost. Close this screen with Cancel and open the document anew.</source>
        <translation>Der Beleg war gespeichert, bevor die Verbindung verloren ging. Schließen Sie dieses Fenster mit „Abbrechen“, und öffnen Sie den Beleg neu.</translation>
    </message>
    <message>
        <source>Another user has changed the lines of this document while the connection was lost. Cancel, and make your changes again.</source>
        <translation>Ein anderer Benutzer hat die Positionen dieses Belegs geändert, während die Verbindung unterbrochen war. Brechen Sie ab, und nehmen Sie Ihre Änderungen erneut vor.</translation>
    </message>
    <message>
        <source>Another document with the key of this new one has been stored meanwhile. Close this screen with Cancel and enter the document anew.</source>
        <translation>Inzwischen wurde ein anderer Beleg mit dem Schlüssel dieses neuen gespeichert. Schließen Sie dieses Fenster mit „Abbrechen“, und erfassen Sie den Beleg neu.</translation>
    </message>
    <message>
        <source>%1

Your changes to the lines stay in the file that was in use. %2</source>
        <translation>%1

Ihre Änderungen an den Positionen bleiben in der Datei, die in Gebrauch war. %2</translation>
    </message>
    <message>
        <source>Your changes to the lines could not be taken back:
%1

Unless that is tried again, they stay stored. %2</source>
        <translation>Ihre Änderungen an den Positionen konnten nicht zurückgenommen werden:
%1

Wird das nicht erneut versucht, bleiben sie gespeichert. %2</translation>
    </message>
    <message>
        <source>The document had been saved before the connection was lost. It stays.</source>
        <translation>Der Beleg war gespeichert, bevor die Verbindung verloren ging. Er bleibt erhalten.</translation>
    </message>
    <message>
        <source>Another user has changed, posted or deleted the document while the connection was lost. What that user has saved is stored; nothing of it was taken back. Your own changes were: %1</source>
        <translation>Ein anderer Benutzer hat den Beleg geändert, gebucht oder gelöscht, während die Verbindung unterbrochen war. Was dieser Benutzer gespeichert hat, bleibt gespeichert; nichts davon wurde zurückgenommen. Ihre eigenen Änderungen waren: %1</translation>
    </message>
    <message>
        <source>%n line of it is stored.</source>
        <translation>%n Position davon ist gespeichert.</translation>
    </message>
    <message>
        <source>%n lines of it are stored.</source>
        <translation>%n Positionen davon sind gespeichert.</translation>
    </message>
    <message>
        <source>%1 was begun and not saved (%2, %3). %4

Go on with it, or take that out? Cancel leaves it as it is; you will be asked again.</source>
        <translation>%1 wurde angefangen und nicht gespeichert (%2, %3). %4

Damit fortfahren oder entfernen? „Abbrechen“ lässt alles, wie es ist; Sie werden dann wieder gefragt.</translation>
    </message>
    <message>
        <source>&amp;Go On</source>
        <translation>&amp;Fortfahren</translation>
    </message>
    <message>
        <source>&amp;Take Out</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Item not found...
Press Esc or enter a different item no</source>
        <translation>Artikel nicht gefunden...
Drücken Sie Esc, oder geben Sie eine andere Artikelnr. ein</translation>
    </message>
    <message>
        <source>Item has been suspended</source>
        <translation>Der Artikel ist gesperrt</translation>
    </message>
    <message>
        <source>Item &apos;%1: %2&apos; has been suspended</source>
        <translation>Der Artikel „%1: %2“ ist gesperrt</translation>
    </message>
    <message>
        <source>%1...
Make changes or press Esc to undo</source>
        <translation>%1...
Ändern Sie die Eingabe, oder drücken Sie Esc, um sie rückgängig zu machen</translation>
    </message>
    <message>
        <source>Item not found</source>
        <translation>Artikel nicht gefunden</translation>
    </message>
    <message>
        <source>Lines changed: %1. Lines added: %2. Lines deleted: %3.</source>
        <translation>Positionen geändert: %1. Positionen hinzugefügt: %2. Positionen gelöscht: %3.</translation>
    </message>
    <message>
        <source>There are no rows to paste. Copy the cells in the spreadsheet first, then paste them here.</source>
        <translation>Es gibt keine Zeilen zum Einfügen. Kopieren Sie zuerst die Zellen in der Tabellenkalkulation, und fügen Sie sie dann hier ein.</translation>
    </message>
    <message>
        <source>These are %1 rows. A document takes %2 at a time.</source>
        <translation>Das sind %1 Zeilen. Ein Beleg nimmt höchstens %2 auf einmal auf.</translation>
    </message>
    <message>
        <source>These are %1 columns. Copy %2 at most, with those that a line needs.</source>
        <translation>Das sind %1 Spalten. Kopieren Sie höchstens %2, darunter die, die eine Position benötigt.</translation>
    </message>
    <message>
        <source>Column %1</source>
        <translation>Spalte %1</translation>
    </message>
    <message>
        <source>Row %1 cannot be taken: %2</source>
        <translation>Zeile %1 kann nicht übernommen werden: %2</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>The same is asked of %n further row.</source>
        <translation>Dasselbe wird für %n weitere Zeile gefragt.</translation>
    </message>
    <message>
        <source>The same is asked of %n further rows.</source>
        <translation>Dasselbe wird für %n weitere Zeilen gefragt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be posted. Line %2: %3.
Nothing of it has been written. Correct it and post again.</source>
        <translation>„%1“ kann nicht gebucht werden. Position %2: %3.
Nichts davon wurde geschrieben. Korrigieren Sie den Beleg, und buchen Sie erneut.</translation>
    </message>
    <message>
        <source>an amount of money is too large</source>
        <translation>ein Geldbetrag ist zu groß</translation>
    </message>
    <message>
        <source>In use by %1.</source>
        <translation>Wird von %1 verwendet.</translation>
    </message>
    <message>
        <source>Unable to lock Item Balance table... this table is being updated by another job.</source>
        <translation>Die Tabelle „Artikelbestand“ kann nicht gesperrt werden... Sie wird gerade von einem anderen Vorgang aktualisiert.</translation>
    </message>
    <message>
        <source>its location is gone</source>
        <translation>der Lagerort fehlt</translation>
    </message>
    <message>
        <source>%1 has no cost</source>
        <translation>%1 hat keinen Preis</translation>
    </message>
    <message>
        <source>the average cost of %1 goes from %2 to %3</source>
        <translation>der Durchschnittspreis von %1 ändert sich von %2 auf %3</translation>
    </message>
    <message>
        <source>%1: %2 at %3 goes from %4 to %5</source>
        <translation>%1: %2 in %3 ändert sich von %4 auf %5</translation>
    </message>
    <message>
        <source>an item that is gone</source>
        <translation>ein fehlender Artikel</translation>
    </message>
    <message>
        <source>a location that is gone</source>
        <translation>ein fehlender Lagerort</translation>
    </message>
    <message>
        <source>A quantity of %1 cannot be meant. It may be %2 at most, or %3 at least.</source>
        <translation>Eine Menge von %1 kann nicht gemeint sein. Zulässig sind höchstens %2 oder mindestens %3.</translation>
    </message>
    <message>
        <source>%1 at a cost of %2 each is more than an amount of money can be</source>
        <translation>%1 zum Preis von je %2 ergeben mehr, als ein Geldbetrag sein kann</translation>
    </message>
    <message>
        <source>The quantity is %1. A number may have been scanned into the wrong column.
Do you want to keep this quantity?</source>
        <translation>Die Menge ist %1. Möglicherweise wurde eine Nummer in die falsche Spalte gescannt.
Möchten Sie diese Menge beibehalten?</translation>
    </message>
    <message>
        <source>%1 at a cost of %2 each come to %3. A number may have been scanned into the wrong column.
Do you want to keep these figures?</source>
        <translation>%1 zum Preis von je %2 ergeben %3. Möglicherweise wurde eine Nummer in die falsche Spalte gescannt.
Möchten Sie diese Zahlen beibehalten?</translation>
    </message>
    <message>
        <source>Receipt no.</source>
        <translation>Eingangsnr.</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Lieferant</translation>
    </message>
    <message>
        <source>Vendor no. &apos;%1&apos; has been suspended</source>
        <translation>Die Lieferantennr. „%1“ ist gesperrt</translation>
    </message>
    <message>
        <source>Vendor &apos;%1: %2&apos; has been suspended</source>
        <translation>Der Lieferant „%1: %2“ ist gesperrt</translation>
    </message>
    <message>
        <source>Vendor no longer exists</source>
        <translation>Der Lieferant ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Field &apos;%1&apos; must not be less than zero</source>
        <translation>Das Feld „%1“ darf nicht kleiner als null sein</translation>
    </message>
    <message>
        <source>Last cost from this vendor: %1, on %2</source>
        <translation>Letzter Preis dieses Lieferanten: %1, am %2</translation>
    </message>
    <message>
        <source>Receipt %1</source>
        <translation>Wareneingang %1</translation>
    </message>
    <message>
        <source>New Inventory Receipt</source>
        <translation>Neuer Wareneingang</translation>
    </message>
    <message>
        <source>Posted receipts cannot be changed...

To undo a receipt after posting, you must &quot;reverse&quot; it (enter it again with the opposite amount).</source>
        <translation>Gebuchte Wareneingänge können nicht geändert werden...

Um einen Wareneingang nach dem Buchen rückgängig zu machen, müssen Sie ihn „stornieren“ (mit umgekehrtem Betrag erneut erfassen).</translation>
    </message>
    <message>
        <source>Receipt no. already exists</source>
        <translation>Die Eingangsnr. ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Warehouse no longer exists</source>
        <translation>Der Lagerort ist nicht mehr vorhanden</translation>
    </message>
    <message>
        <source>Amount</source>
        <translation>Betrag</translation>
    </message>
    <message>
        <source>Inventory Receipts</source>
        <translation>Wareneingänge</translation>
    </message>
    <message>
        <source>PO</source>
        <translation>Best.-Nr.</translation>
    </message>
    <message>
        <source>Inventory Receipts Filter</source>
        <translation>Filter für Wareneingänge</translation>
    </message>
    <message>
        <source>Find Receipt</source>
        <translation>Wareneingang suchen</translation>
    </message>
    <message>
        <source>&amp;Receipt no.:</source>
        <translation>&amp;Eingangsnr.:</translation>
    </message>
    <message>
        <source>Receipt &apos;%1&apos; not found</source>
        <translation>Wareneingang „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Delete receipt &apos;%1&apos;?</source>
        <translation>Den Wareneingang „%1“ löschen?</translation>
    </message>
    <message>
        <source>Unable to delete receipt &apos;%1&apos;...
It has already been posted</source>
        <translation>Der Wareneingang „%1“ kann nicht gelöscht werden...
Er wurde bereits gebucht</translation>
    </message>
    <message>
        <source>Vendor no. &apos;%1&apos; not found</source>
        <translation>Lieferantennr. „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Post Inventory Receipts</source>
        <translation>Wareneingänge buchen</translation>
    </message>
    <message>
        <source>Unable to lock Receipts table... this table is being updated by another job.</source>
        <translation>Die Tabelle „Wareneingänge“ kann nicht gesperrt werden... Sie wird gerade von einem anderen Vorgang aktualisiert.</translation>
    </message>
    <message>
        <source>Unable to lock Item table... this table is being updated by another job.</source>
        <translation>Die Tabelle „Artikel“ kann nicht gesperrt werden... Sie wird gerade von einem anderen Vorgang aktualisiert.</translation>
    </message>
    <message>
        <source>A conflicting program is running...
Please close &apos;Inventory Receipt&apos; form</source>
        <translation>Ein damit unverträgliches Fenster ist geöffnet...
Bitte schließen Sie das Fenster „Wareneingang“</translation>
    </message>
    <message>
        <source>Receipts to post</source>
        <translation>Zu buchende Eingänge</translation>
    </message>
    <message>
        <source>%1 receipt(s) to be posted</source>
        <translation>%1 Wareneingang/-eingänge zu buchen</translation>
    </message>
    <message>
        <source>%n receipt posted</source>
        <translation>%n Wareneingang gebucht</translation>
    </message>
    <message>
        <source>%n receipts posted</source>
        <translation>%n Wareneingänge gebucht</translation>
    </message>
    <message>
        <source>Only a posted document can be reversed</source>
        <translation>Nur ein gebuchter Beleg kann storniert werden</translation>
    </message>
    <message>
        <source>Reverses %1</source>
        <translation>Storno zu %1</translation>
    </message>
    <message>
        <source>Line %1 cannot be reversed: %2</source>
        <translation>Position %1 kann nicht storniert werden: %2</translation>
    </message>
    <message>
        <source>the quantity on hand would be too large</source>
        <translation>der Bestand wäre zu groß</translation>
    </message>
    <message>
        <source>Transactions have been posted since this list was read: %n item of this location has another quantity in the books now.</source>
        <translation>Seit diese Liste gelesen wurde, wurden Vorgänge gebucht: %n Artikel dieses Lagerorts hat jetzt eine andere Menge in den Büchern.</translation>
    </message>
    <message>
        <source>Transactions have been posted since this list was read: %n items of this location have another quantity in the books now.</source>
        <translation>Seit diese Liste gelesen wurde, wurden Vorgänge gebucht: %n Artikel dieses Lagerorts haben jetzt eine andere Menge in den Büchern.</translation>
    </message>
    <message>
        <source>The usage is what the list shows as used, whatever has come or gone meanwhile.</source>
        <translation>Der Verbrauch ist das, was die Liste als verbraucht zeigt, gleich, was inzwischen zu- oder abgegangen ist.</translation>
    </message>
    <message>
        <source>&amp;Read again, keep my count</source>
        <translation>&amp;Neu lesen, meine Zählung behalten</translation>
    </message>
    <message>
        <source>Error encountered while deducting uposted usage</source>
        <translation>Fehler beim Abziehen des ungebuchten Verbrauchs</translation>
    </message>
    <message>
        <source>There are unposted transactions for this location.<byte value="xd"/>
You cannot enter the inventory for this location until all<byte value="xd"/>
transactions involving this location have been posted.</source>
        <translation>Für diesen Lagerort gibt es ungebuchte Vorgänge.<byte value="xd"/>
Sie können die Inventur dieses Lagerorts erst erfassen, wenn alle<byte value="xd"/>
Vorgänge, die ihn betreffen, gebucht sind.</translation>
    </message>
    <message>
        <source>The count stays open, so that nothing is lost.</source>
        <translation>Die Zählung bleibt geöffnet, damit nichts verloren geht.</translation>
    </message>
    <message>
        <source>%n item that has been counted is no longer in the list.</source>
        <translation>%n gezählter Artikel ist nicht mehr in der Liste.</translation>
    </message>
    <message>
        <source>%n items that have been counted are no longer in the list.</source>
        <translation>%n gezählte Artikel sind nicht mehr in der Liste.</translation>
    </message>
    <message>
        <source>%n item has been counted above what is recorded now.</source>
        <translation>Bei %n Artikel wurde mehr gezählt, als jetzt verzeichnet ist.</translation>
    </message>
    <message>
        <source>%n items have been counted above what is recorded now.</source>
        <translation>Bei %n Artikeln wurde mehr gezählt, als jetzt verzeichnet ist.</translation>
    </message>
    <message>
        <source>Transactions of this location have been posted since this list was read.</source>
        <translation>Seit diese Liste gelesen wurde, wurden Vorgänge dieses Lagerorts gebucht.</translation>
    </message>
    <message>
        <source>&amp;Calculate nevertheless</source>
        <translation>&amp;Trotzdem berechnen</translation>
    </message>
    <message>
        <source>Somebody has saved transactions for this location since this list was read. They have not been posted yet.</source>
        <translation>Seit diese Liste gelesen wurde, hat jemand Vorgänge für diesen Lagerort gespeichert. Sie wurden noch nicht gebucht.</translation>
    </message>
    <message>
        <source>Do you want to calculate it nevertheless?</source>
        <translation>Möchten Sie trotzdem berechnen?</translation>
    </message>
    <message>
        <source>has no Weighted Average Cost.</source>
        <translation>hat keinen gewichteten Durchschnittspreis.</translation>
    </message>
    <message>
        <source>has no Standard Cost assigned to it.</source>
        <translation>hat keinen Standardpreis.</translation>
    </message>
    <message>
        <source>%1, Item ID: %2<byte value="xd"/>
%3<byte value="xd"/>
The usage will be calculated with a zero cost.<byte value="xd"/>
You should edit the resulting usage record and <byte value="xd"/>
correct the cost, if necessary.</source>
        <translation>%1, Artikel-ID: %2<byte value="xd"/>
%3<byte value="xd"/>
Der Verbrauch wird mit einem Preis von null berechnet.<byte value="xd"/>
Bearbeiten Sie den entstandenen Verbrauchsbeleg, und <byte value="xd"/>
korrigieren Sie nötigenfalls den Preis.</translation>
    </message>
    <message>
        <source>A new usage</source>
        <translation>Ein neuer Verbrauch</translation>
    </message>
    <message>
        <source>There were no unposted usages with an inventory date of %1</source>
        <translation>Es gab keinen ungebuchten Verbrauch mit dem Inventurdatum %1</translation>
    </message>
    <message>
        <source>Delete the %1 usage(s) with an inventory date of %2?
This action can&apos;t be reversed!</source>
        <translation>%1 Verbrauchsbeleg(e) mit dem Inventurdatum %2 löschen?
Dies kann nicht rückgängig gemacht werden!</translation>
    </message>
    <message>
        <source>A usage record with an inventory date of %1 is being edited. Please close its screen.</source>
        <translation>Ein Verbrauchsbeleg mit dem Inventurdatum %1 wird gerade bearbeitet. Bitte schließen Sie sein Fenster.</translation>
    </message>
    <message>
        <source>Usage no.</source>
        <translation>Verbr.-Nr.</translation>
    </message>
    <message>
        <source>The total of the usage would be more than an amount of money can be</source>
        <translation>Die Summe des Verbrauchs wäre größer, als ein Geldbetrag sein kann</translation>
    </message>
    <message>
        <source>Inventory Usage %1</source>
        <translation>Lagerverbrauch %1</translation>
    </message>
    <message>
        <source>New Inventory Usage</source>
        <translation>Neuer Lagerverbrauch</translation>
    </message>
    <message>
        <source>Posted usage records cannot be changed...

To undo usage after posting, you must &quot;reverse&quot; it (enter it again with the opposite amount).</source>
        <translation>Gebuchte Verbrauchsbelege können nicht geändert werden...

Um einen Verbrauch nach dem Buchen rückgängig zu machen, müssen Sie ihn „stornieren“ (mit umgekehrtem Betrag erneut erfassen).</translation>
    </message>
    <message>
        <source>Inventory Usage no. already exists</source>
        <translation>Die Verbrauchsnr. ist bereits vorhanden</translation>
    </message>
    <message>
        <source>Do you want to save your changes?</source>
        <translation>Möchten Sie Ihre Änderungen speichern?</translation>
    </message>
    <message>
        <source>No inventory usage has been entered</source>
        <translation>Es wurde kein Lagerverbrauch erfasst</translation>
    </message>
    <message>
        <source>Item</source>
        <translation>Artikel</translation>
    </message>
    <message>
        <source>Override Description</source>
        <translation>Abweichende Beschreibung</translation>
    </message>
    <message>
        <source>Ext Amount</source>
        <translation>Gesamtbetrag</translation>
    </message>
    <message>
        <source>Inventory Usage</source>
        <translation>Lagerverbrauch</translation>
    </message>
    <message>
        <source>&amp;Date</source>
        <translation>&amp;Datum</translation>
    </message>
    <message>
        <source>&amp;Usage no.</source>
        <translation>&amp;Verbr.-Nr.</translation>
    </message>
    <message>
        <source>Inventory Usage Filter</source>
        <translation>Filter für Lagerverbrauch</translation>
    </message>
    <message>
        <source>C&amp;urrency:</source>
        <translation>Wäh&amp;rung:</translation>
    </message>
    <message>
        <source>Find Usage</source>
        <translation>Verbrauch suchen</translation>
    </message>
    <message>
        <source>&amp;Usage no.:</source>
        <translation>&amp;Verbrauchsnr.:</translation>
    </message>
    <message>
        <source>Usage number &apos;%1&apos; not found</source>
        <translation>Verbrauchsnummer „%1“ nicht gefunden</translation>
    </message>
    <message>
        <source>Delete usage number&apos;%1&apos;?</source>
        <translation>Die Verbrauchsnummer „%1“ löschen?</translation>
    </message>
    <message>
        <source>Unable to delete usage %1....
It has been posted and therefore can&apos;t be deleted.</source>
        <translation>Der Verbrauch %1 kann nicht gelöscht werden....
Er wurde gebucht und kann deshalb nicht gelöscht werden.</translation>
    </message>
    <message>
        <source>A usage record that has been Posted 
can&apos;t be deleted!</source>
        <translation>Ein gebuchter Verbrauchsbeleg 
kann nicht gelöscht werden!</translation>
    </message>
    <message>
        <source>Post Inventory Usage Records</source>
        <translation>Verbrauchsbelege buchen</translation>
    </message>
    <message>
        <source>Unable to lock Usage Records table... this table is being updated by another job.</source>
        <translation>Die Tabelle „Verbrauch“ kann nicht gesperrt werden... Sie wird gerade von einem anderen Vorgang aktualisiert.</translation>
    </message>
    <message>
        <source>A conflicting program is running...
Please close &apos;Usage Record&apos; form</source>
        <translation>Ein damit unverträgliches Fenster ist geöffnet...
Bitte schließen Sie das Fenster „Lagerverbrauch“</translation>
    </message>
    <message>
        <source>Usage to post</source>
        <translation>Zu buchender Verbrauch</translation>
    </message>
    <message>
        <source>%1 usage record(s) to be posted</source>
        <translation>%1 Verbrauchsbeleg(e) zu buchen</translation>
    </message>
    <message>
        <source>%n usage record posted</source>
        <translation>%n Verbrauchsbeleg gebucht</translation>
    </message>
    <message>
        <source>%n usage records posted</source>
        <translation>%n Verbrauchsbelege gebucht</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <source>Current Quantity</source>
        <translation>Aktuelle Menge</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must not be less than %2</source>
        <translation>„%1“ darf nicht kleiner sein als %2</translation>
    </message>
    <message>
        <source>&apos;%1&apos; must not be greater than %2</source>
        <translation>„%1“ darf nicht größer sein als %2</translation>
    </message>
    <message>
        <source>This is more than is recorded. Count the item once more. If it is right, write down what is there, to enter it as an adjustment when the usage of the count has been posted.</source>
        <translation>Das ist mehr, als verzeichnet ist. Zählen Sie den Artikel noch einmal. Stimmt es, so notieren Sie, was da ist, um es als Korrektur zu erfassen, sobald der Verbrauch aus der Zählung gebucht ist.</translation>
    </message>
    <message>
        <source>What is recorded is worth very much more or less than this count.
Do you want to keep this quantity?</source>
        <translation>Das Verzeichnete ist sehr viel mehr oder weniger wert als diese Zählung.
Möchten Sie diese Menge beibehalten?</translation>
    </message>
    <message>
        <source>%1 reverses %2 already. Reverse it once more?</source>
        <translation>%1 storniert %2 bereits. Noch einmal stornieren?</translation>
    </message>
    <message>
        <source>That was at &quot;%1&quot;. A check of the books tells what of it has been written.</source>
        <translation>Das war bei „%1“. Eine Prüfung der Bücher zeigt, was davon geschrieben worden ist.</translation>
    </message>
</context>
</TS>
