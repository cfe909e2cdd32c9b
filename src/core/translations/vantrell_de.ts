<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AboutWindow</name>
    <message>
        <source>About Vantrell</source>
        <translation>Über Vantrell</translation>
    </message>
    <message>
        <source>Copied</source>
        <translation>Kopiert</translation>
    </message>
    <message>
        <source>Copy Diagnostics</source>
        <translation>Diagnose kopieren</translation>
    </message>
    <message>
        <source>Copies version, system and the state of store and reports, without key, names or amounts.</source>
        <translation>Kopiert Version, System und den Zustand von Datenbank und Berichten, ohne Schlüssel, Namen oder Beträge.</translation>
    </message>
</context>
<context>
    <name>ApplicationMenu</name>
    <message>
        <source>Application menu</source>
        <translation>Anwendungsmenü</translation>
    </message>
    <message>
        <source>About Vantrell</source>
        <translation>Über Vantrell</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Nach Updates suchen …</translation>
    </message>
</context>
<context>
    <name>AppsScreen</name>
    <message>
        <source>Apps Overview</source>
        <translation>Apps</translation>
    </message>
</context>
<context>
    <name>AppsView</name>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>This fiscal year</source>
        <translation>Dieses Geschäftsjahr</translation>
    </message>
    <message>
        <source>All time</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 Tage</translation>
    </message>
    <message>
        <source>365 days</source>
        <translation>365 Tage</translation>
    </message>
    <message>
        <source>YTD</source>
        <translation>Lfd. Jahr</translation>
    </message>
    <message>
        <source>Purchases</source>
        <translation>Käufe</translation>
    </message>
    <message>
        <source>%1 (YTD)</source>
        <translation>%1 (lfd.)</translation>
    </message>
</context>
<context>
    <name>BreakdownPopover</name>
    <message>
        <source>By currency</source>
        <translation>Nach Währung</translation>
    </message>
</context>
<context>
    <name>ChartBlock</name>
    <message>
        <source>Show as Table</source>
        <translation>Als Tabelle zeigen</translation>
    </message>
</context>
<context>
    <name>ChartLegendRow</name>
    <message>
        <source>Proceeds</source>
        <translation>Erlöse</translation>
    </message>
    <message>
        <source>Refunds</source>
        <translation>Erstattungen</translation>
    </message>
    <message>
        <source>Not fetched</source>
        <translation>Nicht abgerufen</translation>
    </message>
</context>
<context>
    <name>CopyMenu</name>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
</context>
<context>
    <name>CoverageStripView</name>
    <message>
        <source>Days of the last year</source>
        <translation>Tage des letzten Jahres</translation>
    </message>
</context>
<context>
    <name>CoverageWords</name>
    <message numerus="yes">
        <source>%1 of %2 days</source>
        <translation>
            <numerusform>%1 von %2 Tag</numerusform>
            <numerusform>%1 von %2 Tagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 months</source>
        <translation>
            <numerusform>%1 von %2 Monat</numerusform>
            <numerusform>%1 von %2 Monaten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 years</source>
        <translation>
            <numerusform>%1 Jahr</numerusform>
            <numerusform>%1 Jahre</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 payout periods</source>
        <translation>
            <numerusform>%1 Auszahlungszeitraum</numerusform>
            <numerusform>%1 Auszahlungszeiträume</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days failed</source>
        <translation>
            <numerusform>%1 Tag fehlgeschlagen</numerusform>
            <numerusform>%1 Tage fehlgeschlagen</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days not fetched</source>
        <translation>
            <numerusform>%1 Tag nicht abgerufen</numerusform>
            <numerusform>%1 Tage nicht abgerufen</numerusform>
        </translation>
    </message>
    <message>
        <source>Sales</source>
        <translation>Verkäufe</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
</context>
<context>
    <name>CredentialsForm</name>
    <message>
        <source>Issuer ID</source>
        <translation>Issuer-ID</translation>
    </message>
    <message>
        <source>The UUID shown at the top of the Integrations → App Store Connect API page.</source>
        <translation>Die UUID oben auf der Seite „Integrationen → App Store Connect API“.</translation>
    </message>
    <message>
        <source>Key ID</source>
        <translation>Schlüssel-ID</translation>
    </message>
    <message>
        <source>10 characters, listed beside the key on the same page. Auto-fills when you import an AuthKey_&lt;Key ID&gt;.p8 file.</source>
        <translation>10 Zeichen, auf derselben Seite neben dem Schlüssel. Wird beim Import einer Datei AuthKey_&lt;Schlüssel-ID&gt;.p8 von selbst eingetragen.</translation>
    </message>
    <message>
        <source>Vendor Number</source>
        <translation>Anbieternummer</translation>
    </message>
    <message>
        <source>The 8-digit number in the top-left corner of Payments and Financial Reports.</source>
        <translation>Die achtstellige Nummer links oben unter „Zahlungen und Finanzberichte“.</translation>
    </message>
    <message>
        <source>Private Key</source>
        <translation>Privater Schlüssel</translation>
    </message>
    <message>
        <source>Replace .p8 Key…</source>
        <translation>.p8-Schlüssel ersetzen …</translation>
    </message>
    <message>
        <source>Import .p8 Key…</source>
        <translation>.p8-Schlüssel importieren …</translation>
    </message>
    <message>
        <source>Key loaded</source>
        <translation>Schlüssel geladen</translation>
    </message>
    <message>
        <source>The AuthKey_….p8 file you downloaded when the key was created — Apple offers that download only once.</source>
        <translation>Die Datei AuthKey_….p8, die Sie beim Erstellen des Schlüssels geladen haben – Apple bietet sie nur einmal an.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Test Connection</source>
        <translation>Verbindung testen</translation>
    </message>
    <message>
        <source>Remove Key</source>
        <translation>Schlüssel entfernen</translation>
    </message>
    <message>
        <source>Private keys (*.p8)</source>
        <translation>Private Schlüssel (*.p8)</translation>
    </message>
    <message>
        <source>Text files (*.txt *.pem)</source>
        <translation>Textdateien (*.txt *.pem)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>CurrencyBreakdownList</name>
    <message>
        <source>no rate</source>
        <translation>kein Kurs</translation>
    </message>
</context>
<context>
    <name>DashboardScreen</name>
    <message>
        <source>Fetch Reports</source>
        <translation>Berichte abrufen</translation>
    </message>
    <message>
        <source>%1 ·</source>
        <translation>%1 ·</translation>
    </message>
    <message>
        <source>Sync Log</source>
        <translation>Abgleichprotokoll</translation>
    </message>
</context>
<context>
    <name>DayDetail</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Line items</source>
        <translation>Einzelposten</translation>
    </message>
</context>
<context>
    <name>DaySummary</name>
    <message>
        <source>Proceeds</source>
        <translation>Erlöse</translation>
    </message>
    <message>
        <source>Line items</source>
        <translation>Einzelposten</translation>
    </message>
</context>
<context>
    <name>DayText</name>
    <message>
        <source>Yesterday</source>
        <translation>Gestern</translation>
    </message>
</context>
<context>
    <name>Destination</name>
    <message>
        <source>Dashboard</source>
        <translation>Übersicht</translation>
    </message>
    <message>
        <source>Apps Overview</source>
        <translation>Apps</translation>
    </message>
    <message>
        <source>Trends Over Time</source>
        <translation>Trends</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Payouts</source>
        <translation>Auszahlungen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
</context>
<context>
    <name>DisplaySection</name>
    <message>
        <source>Display</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Display currency</source>
        <translation>Anzeigewährung</translation>
    </message>
    <message>
        <source>Exchange rates</source>
        <translation>Wechselkurse</translation>
    </message>
    <message>
        <source>Refresh</source>
        <translation>Aktualisieren</translation>
    </message>
</context>
<context>
    <name>ExportSection</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Daten</translation>
    </message>
    <message>
        <source>Export CSV…</source>
        <translation>CSV exportieren …</translation>
    </message>
    <message>
        <source>Exports use the display currency for converted columns; the by-currency column is exact. Days, months and years cover all apps together.</source>
        <translation>Umgerechnete Spalten stehen in der Anzeigewährung; die Spalte nach Währungen ist exakt. Tage, Monate und Jahre umfassen alle Apps zusammen.</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Sichern</translation>
    </message>
    <message>
        <source>Comma-separated values (*.csv)</source>
        <translation>Kommagetrennte Werte (*.csv)</translation>
    </message>
</context>
<context>
    <name>FilterMenu</name>
    <message>
        <source>Choose which apps to include</source>
        <translation>Auswählen, welche Apps zählen</translation>
    </message>
    <message>
        <source>All Apps</source>
        <translation>Alle Apps</translation>
    </message>
</context>
<context>
    <name>HeadlineFigures</name>
    <message>
        <source>Since %1</source>
        <translation>Seit %1</translation>
    </message>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Year to date</source>
        <translation>Laufendes Jahr</translation>
    </message>
    <message>
        <source>Most recent day with data</source>
        <translation>Letzter Tag mit Daten</translation>
    </message>
    <message>
        <source>Last 7 days</source>
        <translation>Letzte 7 Tage</translation>
    </message>
    <message>
        <source>All time</source>
        <translation>Gesamt</translation>
    </message>
    <message>
        <source>Newest day</source>
        <translation>Neuester Tag</translation>
    </message>
</context>
<context>
    <name>HistoryScreen</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Fetch What Is Missing</source>
        <translation>Fehlendes abrufen</translation>
    </message>
</context>
<context>
    <name>MoneyValue</name>
    <message>
        <source>No exchange rate for: %1</source>
        <translation>Kein Wechselkurs für: %1</translation>
    </message>
</context>
<context>
    <name>MonthLeaf</name>
    <message>
        <source>Previous month</source>
        <translation>Voriger Monat</translation>
    </message>
    <message>
        <source>Next month</source>
        <translation>Nächster Monat</translation>
    </message>
</context>
<context>
    <name>PayoutDetail</name>
    <message>
        <source>Re-fetch This Period</source>
        <translation>Diesen Zeitraum neu abrufen</translation>
    </message>
</context>
<context>
    <name>PayoutRow</name>
    <message numerus="yes">
        <source>%1 units</source>
        <translation>
            <numerusform>%1 Einheit</numerusform>
            <numerusform>%1 Einheiten</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 returns</source>
        <translation>
            <numerusform>%1 Rückgabe</numerusform>
            <numerusform>%1 Rückgaben</numerusform>
        </translation>
    </message>
    <message>
        <source>Expanded</source>
        <translation>Aufgeklappt</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>Zugeklappt</translation>
    </message>
    <message>
        <source>Fiscal %1</source>
        <translation>Geschäftsmonat %1</translation>
    </message>
    <message>
        <source>Paid</source>
        <translation>Ausgezahlt</translation>
    </message>
</context>
<context>
    <name>PayoutsScreen</name>
    <message>
        <source>Finance reports</source>
        <translation>Finanzberichte</translation>
    </message>
    <message>
        <source>What Apple actually paid, by fiscal month, in the payout currencies. Fiscal months end on Saturdays; reports appear about a week after close. Sales proceeds and payouts for the same span will be close, never identical.</source>
        <translation>Was Apple tatsächlich gezahlt hat, nach Geschäftsmonat und in den Auszahlungswährungen. Geschäftsmonate enden an Samstagen; die Berichte erscheinen etwa eine Woche später. Erlöse und Auszahlungen desselben Zeitraums liegen nahe beieinander, sind aber nie gleich.</translation>
    </message>
</context>
<context>
    <name>QuestionBox</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>ReportStatus</name>
    <message>
        <source>Fetched</source>
        <translation>Abgerufen</translation>
    </message>
    <message>
        <source>No sales</source>
        <translation>Keine Verkäufe</translation>
    </message>
    <message>
        <source>Not published yet</source>
        <translation>Noch nicht veröffentlicht</translation>
    </message>
    <message>
        <source>Past retention</source>
        <translation>Nicht mehr verfügbar</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Not fetched</source>
        <translation>Nicht abgerufen</translation>
    </message>
</context>
<context>
    <name>SalesWords</name>
    <message>
        <source>Proceeds</source>
        <translation>Erlöse</translation>
    </message>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 Tag</numerusform>
            <numerusform>%1 Tage</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 days fetched</source>
        <translation>
            <numerusform>%1 von %2 Tag abgerufen</numerusform>
            <numerusform>%1 von %2 Tagen abgerufen</numerusform>
        </translation>
    </message>
    <message>
        <source>From daily reports</source>
        <translation>Aus Tagesberichten</translation>
    </message>
    <message>
        <source>From daily reports · MTD</source>
        <translation>Aus Tagesberichten · lfd. Monat</translation>
    </message>
    <message>
        <source>From daily reports · YTD</source>
        <translation>Aus Tagesberichten · lfd. Jahr</translation>
    </message>
    <message>
        <source>Monthly report</source>
        <translation>Monatsbericht</translation>
    </message>
    <message>
        <source>Yearly report</source>
        <translation>Jahresbericht</translation>
    </message>
    <message>
        <source>App</source>
        <translation>App</translation>
    </message>
    <message>
        <source>In-app purchase</source>
        <translation>In-App-Kauf</translation>
    </message>
    <message>
        <source>Subscription</source>
        <translation>Abonnement</translation>
    </message>
    <message>
        <source>App refund</source>
        <translation>App-Erstattung</translation>
    </message>
    <message>
        <source>In-app refund</source>
        <translation>In-App-Erstattung</translation>
    </message>
    <message>
        <source>In-app</source>
        <translation>In-App</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Redownload</source>
        <translation>Erneuter Download</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Other</source>
        <comment>apps</comment>
        <translation>Andere</translation>
    </message>
    <message>
        <source>Daily (last 365 days)</source>
        <translation>Tage (die letzten 365)</translation>
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
        <source>Payouts</source>
        <translation>Auszahlungen</translation>
    </message>
    <message>
        <source>Products</source>
        <translation>Produkte</translation>
    </message>
    <message numerus="yes">
        <source>From daily reports · %1 of %2 days</source>
        <translation>
            <numerusform>Aus Tagesberichten · %1 von %2 Tag</numerusform>
            <numerusform>Aus Tagesberichten · %1 von %2 Tagen</numerusform>
        </translation>
    </message>
    <message>
        <source>Monthly report · differs from its days</source>
        <translation>Monatsbericht · weicht von seinen Tagen ab</translation>
    </message>
</context>
<context>
    <name>SettingsScreen</name>
    <message>
        <source>App Store Connect API</source>
        <translation>App Store Connect API</translation>
    </message>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Privacy &amp; Sync</source>
        <translation>Datenschutz und Abgleich</translation>
    </message>
    <message>
        <source>Generate a team key under Users and Access → Integrations → App Store Connect API with the Finance role. An In-App Purchase key looks identical but is rejected by the reports endpoints. Your vendor number is on Payments and Financial Reports. Credentials are stored in your desktop&apos;s keyring — never in the app&apos;s database.</source>
        <translation>Erstellen Sie unter „Benutzer und Zugriff → Integrationen → App Store Connect API“ einen Teamschlüssel mit der Rolle „Finanzen“. Ein Schlüssel für In-App-Käufe sieht genauso aus, wird für Berichte aber abgelehnt. Die Anbieternummer steht unter „Zahlungen und Finanzberichte“. Zugangsdaten liegen im Schlüsselbund des Desktops – nie in der Datenbank des Programms.</translation>
    </message>
    <message>
        <source>Sync between devices</source>
        <translation>Abgleich zwischen Geräten</translation>
    </message>
</context>
<context>
    <name>Sidebar</name>
    <message>
        <source>Screens</source>
        <translation>Ansichten</translation>
    </message>
</context>
<context>
    <name>StartFailureWindow</name>
    <message>
        <source>Nothing was changed. Vantrell ends when you close this window.</source>
        <translation>Es wurde nichts geändert. Vantrell wird beendet, wenn Sie dieses Fenster schließen.</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>StoreWords</name>
    <message>
        <source>The program could not be started once more.</source>
        <translation>Das Programm konnte nicht noch einmal gestartet werden.</translation>
    </message>
    <message>
        <source>Could not save to your desktop&apos;s keyring: %1</source>
        <translation>Konnte nicht im Schlüsselbund des Desktops gesichert werden: %1</translation>
    </message>
</context>
<context>
    <name>SyncBannerRow</name>
    <message>
        <source>Sync progress</source>
        <translation>Fortschritt des Abgleichs</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
</context>
<context>
    <name>SyncLogScreen</name>
    <message>
        <source>Sync Log</source>
        <translation>Abgleichprotokoll</translation>
    </message>
</context>
<context>
    <name>SyncSection</name>
    <message>
        <source>Sync</source>
        <translation>Abgleich</translation>
    </message>
    <message>
        <source>Sync Now</source>
        <translation>Jetzt abgleichen</translation>
    </message>
    <message>
        <source>Full Backfill</source>
        <translation>Alles abrufen</translation>
    </message>
    <message>
        <source>Re-fetch one day</source>
        <translation>Einen Tag neu abrufen</translation>
    </message>
    <message>
        <source>Fetch</source>
        <translation>Abrufen</translation>
    </message>
    <message>
        <source>Re-fetch a month (2026-08)</source>
        <translation>Einen Monat neu abrufen (2026-08)</translation>
    </message>
    <message>
        <source>Sync Log</source>
        <translation>Abgleichprotokoll</translation>
    </message>
    <message>
        <source>Apple restates reports; re-fetching an already-held report replaces its rows and is always safe.</source>
        <translation>Apple berichtigt Berichte mitunter; ein neuer Abruf ersetzt die Zeilen des vorhandenen Berichts und ist immer gefahrlos.</translation>
    </message>
</context>
<context>
    <name>TextMenu</name>
    <message>
        <source>Cut</source>
        <translation>Ausschneiden</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Einfügen</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Alles auswählen</translation>
    </message>
</context>
<context>
    <name>Toolbar</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Sync Now</source>
        <translation>Jetzt abgleichen</translation>
    </message>
    <message>
        <source>Fetch new reports from Apple</source>
        <translation>Neue Berichte von Apple abrufen</translation>
    </message>
</context>
<context>
    <name>TrendBlock</name>
    <message>
        <source>Window</source>
        <translation>Zeitraum</translation>
    </message>
    <message>
        <source>30 days</source>
        <translation>30 Tage</translation>
    </message>
    <message>
        <source>90 days</source>
        <translation>90 Tage</translation>
    </message>
    <message>
        <source>365 days</source>
        <translation>365 Tage</translation>
    </message>
    <message>
        <source>Custom</source>
        <translation>Eigener</translation>
    </message>
    <message>
        <source>Granularity</source>
        <translation>Unterteilung</translation>
    </message>
    <message>
        <source>Daily</source>
        <translation>Täglich</translation>
    </message>
    <message>
        <source>Weekly</source>
        <translation>Wöchentlich</translation>
    </message>
    <message>
        <source>Monthly</source>
        <translation>Monatlich</translation>
    </message>
</context>
<context>
    <name>TrendsScreen</name>
    <message>
        <source>Trends Over Time</source>
        <translation>Trends</translation>
    </message>
</context>
<context>
    <name>UnitsCaption</name>
    <message numerus="yes">
        <source>%1 app</source>
        <translation>
            <numerusform>%1 App</numerusform>
            <numerusform>%1 App</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in-app</source>
        <translation>
            <numerusform>%1 In-App</numerusform>
            <numerusform>%1 In-App</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 refunded</source>
        <translation>
            <numerusform>%1 erstattet</numerusform>
            <numerusform>%1 erstattet</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 updates</source>
        <translation>
            <numerusform>%1 Update</numerusform>
            <numerusform>%1 Updates</numerusform>
        </translation>
    </message>
    <message>
        <source>No paid units</source>
        <translation>Keine bezahlten Einheiten</translation>
    </message>
</context>
<context>
    <name>WelcomeScreen</name>
    <message>
        <source>Your App Store earnings by app, day, month and year — plus what Apple actually paid. Fetched straight from Apple, stored only on your devices.</source>
        <translation>Ihre App-Store-Erlöse nach App, Tag, Monat und Jahr – und was Apple tatsächlich gezahlt hat. Direkt von Apple abgerufen und nur auf Ihren Geräten gespeichert.</translation>
    </message>
    <message>
        <source>Open App Store Connect…</source>
        <translation>App Store Connect öffnen …</translation>
    </message>
    <message>
        <source>Connect</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <source>The first sync fetches about a year of daily reports plus yearly, monthly and finance reports — roughly six minutes. The dashboard fills in as days land.</source>
        <translation>Der erste Abgleich ruft Tagesberichte etwa eines Jahres sowie Jahres-, Monats- und Finanzberichte ab – rund sechs Minuten. Die Übersicht füllt sich währenddessen.</translation>
    </message>
</context>
<context>
    <name>vantrell::AboutView</name>
    <message>
        <source>Version %1 (%2)</source>
        <translation>Version %1 (%2)</translation>
    </message>
</context>
<context>
    <name>vantrell::AppDetailView</name>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>By year</source>
        <translation>Nach Jahr</translation>
    </message>
    <message>
        <source>Nothing here yet.</source>
        <translation>Noch nichts vorhanden.</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Nach Monat</translation>
    </message>
    <message>
        <source>Products · all time</source>
        <translation>Produkte · gesamt</translation>
    </message>
    <message>
        <source>No products yet.</source>
        <translation>Noch keine Produkte.</translation>
    </message>
    <message>
        <source>Top countries · all time</source>
        <translation>Stärkste Länder · gesamt</translation>
    </message>
    <message>
        <source>No sales yet.</source>
        <translation>Noch keine Verkäufe.</translation>
    </message>
</context>
<context>
    <name>vantrell::AppFilterPicker</name>
    <message>
        <source>All Apps</source>
        <translation>Alle Apps</translation>
    </message>
    <message>
        <source>No Apps</source>
        <translation>Keine Apps</translation>
    </message>
    <message numerus="yes">
        <source>%1 App(s)</source>
        <translation>
            <numerusform>%1 App</numerusform>
            <numerusform>%1 Apps</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantrell::AppsView</name>
    <message>
        <source>Proceeds</source>
        <translation>Erlöse</translation>
    </message>
    <message>
        <source>By year</source>
        <translation>Nach Jahr</translation>
    </message>
    <message>
        <source>Converted at today&apos;s rates.</source>
        <translation>Umgerechnet zu heutigen Kursen.</translation>
    </message>
    <message>
        <source>Paid by Apple</source>
        <translation>Von Apple ausgezahlt</translation>
    </message>
    <message>
        <source>From finance reports — what actually settled, attributed by Apple Identifier.</source>
        <translation>Aus Finanzberichten – was tatsächlich abgerechnet wurde, nach Apple-Kennung zugeordnet.</translation>
    </message>
    <message>
        <source>No apps yet</source>
        <translation>Noch keine Apps</translation>
    </message>
    <message>
        <source>Apps appear here once sales reports have been fetched.</source>
        <translation>Apps erscheinen hier, sobald Verkaufsberichte abgerufen sind.</translation>
    </message>
    <message>
        <source>No apps selected</source>
        <translation>Keine Apps ausgewählt</translation>
    </message>
    <message>
        <source>Check some apps in the toolbar filter to see them here.</source>
        <translation>Wählen Sie im Filter der Symbolleiste Apps aus, um sie hier zu sehen.</translation>
    </message>
</context>
<context>
    <name>vantrell::ByDayView</name>
    <message>
        <source>From</source>
        <translation>Von</translation>
    </message>
    <message>
        <source>Through</source>
        <translation>Bis</translation>
    </message>
    <message>
        <source>Trends Over Time</source>
        <translation>Trends</translation>
    </message>
    <message>
        <source>Days</source>
        <translation>Tage</translation>
    </message>
    <message>
        <source>Weeks</source>
        <translation>Wochen</translation>
    </message>
    <message>
        <source>Months</source>
        <translation>Monate</translation>
    </message>
</context>
<context>
    <name>vantrell::Chart</name>
    <message>
        <source>No days</source>
        <translation>Keine Tage</translation>
    </message>
    <message>
        <source>Refunds</source>
        <translation>Erstattungen</translation>
    </message>
</context>
<context>
    <name>vantrell::CredentialsEditor</name>
    <message>
        <source>Only a file on this computer can be read.</source>
        <translation>Nur eine Datei auf diesem Computer kann gelesen werden.</translation>
    </message>
    <message>
        <source>Could not read the key file: %1</source>
        <translation>Die Schlüsseldatei konnte nicht gelesen werden: %1</translation>
    </message>
    <message>
        <source>Key file read. “Save” puts it into your desktop&apos;s keyring and nowhere else; you can delete the download then.</source>
        <translation>Schlüsseldatei gelesen. „Sichern“ legt sie im Schlüsselbund des Desktops ab und nirgends sonst; danach kann der Download gelöscht werden.</translation>
    </message>
    <message>
        <source>Could not remove from your desktop&apos;s keyring: %1</source>
        <translation>Konnte nicht aus dem Schlüsselbund des Desktops entfernt werden: %1</translation>
    </message>
    <message>
        <source>Credentials removed from your desktop&apos;s keyring.</source>
        <translation>Zugangsdaten aus dem Schlüsselbund des Desktops entfernt.</translation>
    </message>
    <message>
        <source>Could not save to your desktop&apos;s keyring: %1</source>
        <translation>Konnte nicht im Schlüsselbund des Desktops gesichert werden: %1</translation>
    </message>
    <message>
        <source>Saved to your desktop&apos;s keyring.</source>
        <translation>Im Schlüsselbund des Desktops gesichert.</translation>
    </message>
    <message>
        <source>What you have entered isn&apos;t saved yet.</source>
        <translation>Ihre Eingaben sind noch nicht gesichert.</translation>
    </message>
    <message>
        <source>Remove the key from your desktop&apos;s keyring? The stored reports stay. Apple offers a key for download only once.</source>
        <translation>Den Schlüssel aus dem Schlüsselbund Ihres Desktops entfernen? Die gespeicherten Berichte bleiben. Apple bietet einen Schlüssel nur einmal zum Laden an.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Count Together</source>
        <translation>Zusammen zählen</translation>
    </message>
    <message>
        <source>Open a Store of Its Own</source>
        <translation>Eigenen Datenbestand öffnen</translation>
    </message>
    <message>
        <source>The other store opens in a window of its own, with the key that you entered.</source>
        <translation>Der andere Datenbestand öffnet sich in einem eigenen Fenster, mit dem eingegebenen Schlüssel.</translation>
    </message>
    <message>
        <source>Open Store %1</source>
        <translation>Datenbestand %1 öffnen</translation>
    </message>
    <message>
        <source>The stored reports came with another vendor number. With %1 the reports of both would count together, and days that are stored would not be fetched again.</source>
        <translation>Die gespeicherten Berichte kamen mit einer anderen Anbieternummer. Mit %1 würden die Berichte beider zusammen gezählt, und gespeicherte Tage würden nicht noch einmal abgerufen.</translation>
    </message>
</context>
<context>
    <name>vantrell::CurrencyBreakdown</name>
    <message>
        <source>Converted at today&apos;s rates · updated %1</source>
        <translation>Umgerechnet zu heutigen Kursen · aktualisiert %1</translation>
    </message>
</context>
<context>
    <name>vantrell::DashboardView</name>
    <message>
        <source>Last 30 days</source>
        <translation>Letzte 30 Tage</translation>
    </message>
    <message>
        <source>Nothing can be read</source>
        <translation>Nichts kann gelesen werden</translation>
    </message>
    <message>
        <source>What this store holds is damaged.</source>
        <translation>Der Inhalt dieser Datenbank ist beschädigt.</translation>
    </message>
    <message>
        <source>No reports yet</source>
        <translation>Noch keine Berichte</translation>
    </message>
    <message>
        <source>Fetch a year of daily reports, plus yearly, monthly and finance reports, from App Store Connect. The dashboard fills in as days land.</source>
        <translation>Rufen Sie Tagesberichte eines Jahres sowie Jahres-, Monats- und Finanzberichte von App Store Connect ab. Die Übersicht füllt sich währenddessen.</translation>
    </message>
</context>
<context>
    <name>vantrell::DayDetailView</name>
    <message>
        <source>No rows for this day.</source>
        <translation>Keine Zeilen für diesen Tag.</translation>
    </message>
</context>
<context>
    <name>vantrell::DisplaySettings</name>
    <message>
        <source>Updated %1</source>
        <translation>Aktualisiert %1</translation>
    </message>
    <message>
        <source>Not fetched yet</source>
        <translation>Noch nicht abgerufen</translation>
    </message>
    <message>
        <source>Headline figures apply today&apos;s rates from %1 to every period; per-currency breakdowns are always exact.</source>
        <translation>Summen sind für jeden Zeitraum zu heutigen Kursen von %1 umgerechnet; Aufteilungen nach Währung sind immer exakt.</translation>
    </message>
</context>
<context>
    <name>vantrell::ExportSettings</name>
    <message>
        <source>The store is damaged: a file would lack what can&apos;t be read, so nothing is exported.</source>
        <translation>Die Datenbank ist beschädigt: Einer Datei würde fehlen, was nicht lesbar ist. Deshalb wird nichts exportiert.</translation>
    </message>
    <message>
        <source>Only a file on this computer can be written.</source>
        <translation>Nur eine Datei auf diesem Computer kann geschrieben werden.</translation>
    </message>
    <message>
        <source>Not exported: %1</source>
        <translation>Nicht exportiert: %1</translation>
    </message>
</context>
<context>
    <name>vantrell::HistoryView</name>
    <message>
        <source>By year</source>
        <translation>Nach Jahr</translation>
    </message>
    <message>
        <source>By month</source>
        <translation>Nach Monat</translation>
    </message>
    <message>
        <source>All time by product</source>
        <translation>Gesamt nach Produkt</translation>
    </message>
    <message>
        <source>Past Apple&apos;s retention and excluded: %1.</source>
        <translation>Von Apple nicht mehr verfügbar und nicht enthalten: %1.</translation>
    </message>
</context>
<context>
    <name>vantrell::HttpWords</name>
    <message>
        <source>The request was cancelled.</source>
        <translation>Die Anfrage wurde abgebrochen.</translation>
    </message>
    <message>
        <source>The request could not be built.</source>
        <translation>Die Anfrage konnte nicht gebildet werden.</translation>
    </message>
    <message>
        <source>The server could not be found. Check the connection to the internet.</source>
        <translation>Der Server wurde nicht gefunden. Prüfen Sie die Verbindung zum Internet.</translation>
    </message>
    <message>
        <source>The server refused the connection.</source>
        <translation>Der Server hat die Verbindung abgelehnt.</translation>
    </message>
    <message>
        <source>The server ended the connection before its answer was complete.</source>
        <translation>Der Server hat die Verbindung beendet, bevor seine Antwort vollständig war.</translation>
    </message>
    <message>
        <source>The request timed out.</source>
        <translation>Die Anfrage hat zu lange gedauert.</translation>
    </message>
    <message>
        <source>The server took too long to send its answer.</source>
        <translation>Der Server hat für seine Antwort zu lange gebraucht.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be set up.</source>
        <translation>Eine sichere Verbindung zum Server konnte nicht aufgebaut werden.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is not trusted.</source>
        <translation>Dem Zertifikat des Servers wird nicht vertraut.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate is for another name.</source>
        <translation>Das Zertifikat des Servers gilt für einen anderen Namen.</translation>
    </message>
    <message>
        <source>The server&apos;s certificate has expired or is not valid yet.</source>
        <translation>Das Zertifikat des Servers ist abgelaufen oder noch nicht gültig.</translation>
    </message>
    <message>
        <source>The proxy server could not be reached.</source>
        <translation>Der Proxy-Server war nicht erreichbar.</translation>
    </message>
    <message>
        <source>The proxy server asks for a password.</source>
        <translation>Der Proxy-Server verlangt ein Passwort.</translation>
    </message>
    <message>
        <source>The server&apos;s answer could not be understood.</source>
        <translation>Die Antwort des Servers war nicht zu verstehen.</translation>
    </message>
    <message>
        <source>The server redirected to an address that can&apos;t be followed.</source>
        <translation>Der Server hat auf eine Adresse verwiesen, der nicht gefolgt werden kann.</translation>
    </message>
    <message>
        <source>The server&apos;s answer is too large.</source>
        <translation>Die Antwort des Servers ist zu groß.</translation>
    </message>
    <message>
        <source>There is not enough memory for the server&apos;s answer.</source>
        <translation>Der Speicher reicht für die Antwort des Servers nicht aus.</translation>
    </message>
    <message>
        <source>The network connection failed.</source>
        <translation>Die Netzwerkverbindung ist fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>vantrell::PayoutsView</name>
    <message>
        <source>No payouts can be read</source>
        <translation>Keine Auszahlung kann gelesen werden</translation>
    </message>
    <message>
        <source>No payouts yet</source>
        <translation>Noch keine Auszahlungen</translation>
    </message>
    <message>
        <source>This store is damaged.</source>
        <translation>Diese Datenbank ist beschädigt.</translation>
    </message>
    <message>
        <source>The selected apps haven&apos;t appeared in a finance report yet.</source>
        <translation>Die ausgewählten Apps kommen noch in keinem Finanzbericht vor.</translation>
    </message>
    <message>
        <source>Finance reports appear here once a sync has fetched them.</source>
        <translation>Finanzberichte erscheinen hier, sobald ein Abgleich sie abgerufen hat.</translation>
    </message>
    <message>
        <source>Payouts go back to %1; those of earlier fiscal months are not fetched.</source>
        <translation>Die Auszahlungen reichen bis zum %1 zurück; frühere Geschäftsmonate werden nicht abgerufen.</translation>
    </message>
    <message>
        <source>Payouts go back to %1.</source>
        <translation>Die Auszahlungen reichen bis zum %1 zurück.</translation>
    </message>
</context>
<context>
    <name>vantrell::RootView</name>
    <message>
        <source>Sync Log</source>
        <translation>Abgleichprotokoll</translation>
    </message>
    <message>
        <source>Store %1</source>
        <translation>Datenbestand %1</translation>
    </message>
</context>
<context>
    <name>vantrell::RunWords</name>
    <message>
        <source>%1 · %2</source>
        <comment>part of a run and its date</comment>
        <translation>%1 · %2</translation>
    </message>
    <message>
        <source>Syncing…</source>
        <translation>Abgleich läuft …</translation>
    </message>
    <message>
        <source>Daily reports</source>
        <translation>Tagesberichte</translation>
    </message>
    <message>
        <source>Monthly reports</source>
        <translation>Monatsberichte</translation>
    </message>
    <message>
        <source>Yearly reports</source>
        <translation>Jahresberichte</translation>
    </message>
    <message>
        <source>Finance reports</source>
        <translation>Finanzberichte</translation>
    </message>
    <message>
        <source>Re-fetching %1</source>
        <translation>%1 wird neu abgerufen</translation>
    </message>
    <message>
        <source>Re-fetching finance %1</source>
        <translation>Finanzbericht %1 wird neu abgerufen</translation>
    </message>
    <message>
        <source>Add your App Store Connect key in Settings first.</source>
        <translation>Tragen Sie zuerst in den Einstellungen Ihren Schlüssel für App Store Connect ein.</translation>
    </message>
    <message>
        <source>The store is damaged, so nothing is fetched into it.</source>
        <translation>Die Datenbank ist beschädigt, deshalb wird nichts in sie abgerufen.</translation>
    </message>
    <message>
        <source>Use a month like 2026-08.</source>
        <translation>Geben Sie einen Monat wie 2026-08 an.</translation>
    </message>
    <message>
        <source>Rate limited by Apple — the run stopped and will resume on the next sync.</source>
        <translation>Von Apple gedrosselt – der Lauf wurde angehalten und geht beim nächsten Abgleich weiter.</translation>
    </message>
    <message>
        <source>Authentication failed — %1. Check that the key was created under Users and Access → Integrations → App Store Connect API with the Finance role (an In-App Purchase key will not work).</source>
        <translation>Anmeldung fehlgeschlagen – %1. Prüfen Sie, ob der Schlüssel unter „Benutzer und Zugriff → Integrationen → App Store Connect API“ mit der Rolle „Finanzen“ erstellt wurde (ein Schlüssel für In-App-Käufe genügt nicht).</translation>
    </message>
    <message>
        <source>Sync finished %1</source>
        <translation>Abgleich beendet: %1</translation>
    </message>
    <message>
        <source>Backfill finished %1</source>
        <translation>Alles abgerufen: %1</translation>
    </message>
    <message>
        <source>Re-fetch finished %1</source>
        <translation>Neu abgerufen: %1</translation>
    </message>
    <message>
        <source>Enter the Issuer ID, Key ID, key file and vendor number first.</source>
        <translation>Geben Sie zuerst Issuer-ID, Schlüssel-ID, Schlüsseldatei und Anbieternummer ein.</translation>
    </message>
    <message>
        <source>OK — report received (%1 data lines)</source>
        <translation>OK – Bericht erhalten (%1 Datenzeilen)</translation>
    </message>
    <message>
        <source>Credentials accepted. Not published yet — %1</source>
        <translation>Zugangsdaten angenommen. Noch nicht veröffentlicht – %1</translation>
    </message>
    <message>
        <source>Credentials accepted. No sales — %1</source>
        <translation>Zugangsdaten angenommen. Keine Verkäufe – %1</translation>
    </message>
    <message>
        <source>Past retention — %1</source>
        <translation>Nicht mehr verfügbar – %1</translation>
    </message>
    <message>
        <source>Version mismatch — %1</source>
        <translation>Falsche Berichtsversion – %1</translation>
    </message>
    <message>
        <source>Rate limited — %1</source>
        <translation>Gedrosselt – %1</translation>
    </message>
    <message>
        <source>Failed — %1</source>
        <translation>Fehlgeschlagen – %1</translation>
    </message>
    <message>
        <source>the network is unreachable</source>
        <translation>das Netz ist nicht erreichbar</translation>
    </message>
    <message numerus="yes">
        <source>Authentication failed — %1. The clock of this computer is %n minutes ahead of the service&apos;s, which refuses every key then.</source>
        <translation>
            <numerusform>Anmeldung fehlgeschlagen – %1. Die Uhr dieses Computers geht gegenüber der des Dienstes %n Minute vor; dann weist er jeden Schlüssel ab.</numerusform>
            <numerusform>Anmeldung fehlgeschlagen – %1. Die Uhr dieses Computers geht gegenüber der des Dienstes %n Minuten vor; dann weist er jeden Schlüssel ab.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Authentication failed — %1. The clock of this computer is %n minutes behind the service&apos;s, which refuses every key then.</source>
        <translation>
            <numerusform>Anmeldung fehlgeschlagen – %1. Die Uhr dieses Computers geht gegenüber der des Dienstes %n Minute nach; dann weist er jeden Schlüssel ab.</numerusform>
            <numerusform>Anmeldung fehlgeschlagen – %1. Die Uhr dieses Computers geht gegenüber der des Dienstes %n Minuten nach; dann weist er jeden Schlüssel ab.</numerusform>
        </translation>
    </message>
    <message>
        <source>No connection — the run stopped and will resume on the next sync. %1</source>
        <translation>Keine Verbindung – der Abgleich wurde beendet und geht mit dem nächsten weiter. %1</translation>
    </message>
    <message>
        <source>Nothing could be fetched. %1</source>
        <translation>Es konnte nichts abgerufen werden. %1</translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n failed: %2</source>
        <comment>the end of a run and why reports failed</comment>
        <translation>
            <numerusform>%1 · %n fehlgeschlagen: %2</numerusform>
            <numerusform>%1 · %n fehlgeschlagen: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantrell::SettingsView</name>
    <message>
        <source>Active</source>
        <translation>Aktiv</translation>
    </message>
    <message>
        <source>Not active — data is stored on this device only</source>
        <translation>Nicht aktiv – Daten liegen nur auf diesem Gerät</translation>
    </message>
    <message>
        <source>Your data never leaves this computer. Vantrell asks %1 for your own reports, %2 for daily exchange rates and %3 for the icons of your apps, whose pictures come from the addresses that it names. There is no server of ours and no analytics.</source>
        <translation>Ihre Daten verlassen diesen Computer nie. Vantrell fragt %1 nach Ihren eigenen Berichten, %2 nach täglichen Wechselkursen und %3 nach den Symbolen Ihrer Apps, deren Bilder von den dort genannten Adressen kommen. Es gibt keinen eigenen Server und keine Auswertung.</translation>
    </message>
</context>
<context>
    <name>vantrell::StoreNotice</name>
    <message>
        <source>Not stored: the disk is full.</source>
        <translation>Nicht gespeichert: Das Laufwerk ist voll.</translation>
    </message>
    <message>
        <source>Not stored: the store&apos;s file or folder can&apos;t be written.</source>
        <translation>Nicht gespeichert: Datei oder Ordner der Datenbank ist schreibgeschützt.</translation>
    </message>
    <message>
        <source>Not stored: the disk reports an error (%1).</source>
        <translation>Nicht gespeichert: Das Laufwerk meldet einen Fehler (%1).</translation>
    </message>
    <message>
        <source>Not stored: the store&apos;s file is damaged (%1).</source>
        <translation>Nicht gespeichert: Die Datei der Datenbank ist beschädigt (%1).</translation>
    </message>
    <message>
        <source>Not stored: another program holds the store.</source>
        <translation>Nicht gespeichert: Ein anderes Programm hält die Datenbank.</translation>
    </message>
    <message>
        <source>Not stored.</source>
        <translation>Nicht gespeichert.</translation>
    </message>
    <message>
        <source>Not stored: %1.</source>
        <translation>Nicht gespeichert: %1.</translation>
    </message>
    <message>
        <source>the finance report of %1 for %2</source>
        <translation>der Finanzbericht von %1 für %2</translation>
    </message>
    <message>
        <source>the daily report of %1</source>
        <translation>der Tagesbericht vom %1</translation>
    </message>
    <message>
        <source>the weekly report of %1</source>
        <translation>der Wochenbericht vom %1</translation>
    </message>
    <message>
        <source>the monthly report of %1</source>
        <translation>der Monatsbericht von %1</translation>
    </message>
    <message>
        <source>the yearly report of %1</source>
        <translation>der Jahresbericht von %1</translation>
    </message>
    <message>
        <source>This store is damaged.</source>
        <translation>Diese Datenbank ist beschädigt.</translation>
    </message>
    <message>
        <source>This store is damaged (%1).</source>
        <translation>Diese Datenbank ist beschädigt (%1).</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>%1 weitere</translation>
    </message>
    <message>
        <source>, </source>
        <comment>between names</comment>
        <translation>, </translation>
    </message>
    <message>
        <source>This store is damaged: %1 can&apos;t be read in full.</source>
        <translation>Diese Datenbank ist beschädigt. Nicht vollständig lesbar: %1.</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>The figures leave out what can&apos;t be read, and nothing is stored or exported.</source>
        <translation>In den Zahlen fehlt, was nicht lesbar ist; gespeichert oder exportiert wird nichts.</translation>
    </message>
    <message>
        <source>Close the program and bring the store&apos;s file back from a backup.</source>
        <translation>Beenden Sie das Programm und holen Sie die Datei der Datenbank aus einer Sicherung zurück.</translation>
    </message>
    <message>
        <source>What was fetched is kept in memory and is stored as soon as it can be.</source>
        <translation>Abgerufenes bleibt im Speicher und wird gesichert, sobald es möglich ist.</translation>
    </message>
</context>
<context>
    <name>vantrell::SyncSettings</name>
    <message>
        <source>Re-fetch one day</source>
        <translation>Einen Tag neu abrufen</translation>
    </message>
    <message numerus="yes">
        <source>Apple keeps daily and monthly reports for a year. The %1 lines that are stored of %2 may be the only copy; what nothing comes in place of is kept in the folder “backup”.</source>
        <translation>
            <numerusform>Apple behält Tages- und Monatsberichte ein Jahr lang. Die %1 gespeicherte Zeile von %2 ist vielleicht die einzige Kopie; tritt nichts an ihre Stelle, bleibt sie im Ordner „backup“ erhalten.</numerusform>
            <numerusform>Apple behält Tages- und Monatsberichte ein Jahr lang. Die %1 gespeicherten Zeilen von %2 sind vielleicht die einzige Kopie; tritt nichts an ihre Stelle, bleiben sie im Ordner „backup“ erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>Fetch Anyway</source>
        <translation>Trotzdem abrufen</translation>
    </message>
</context>
<context>
    <name>vantrell::TrendChart</name>
    <message numerus="yes">
        <source>%1 more app(s)</source>
        <translation>
            <numerusform>%1 weitere App</numerusform>
            <numerusform>%1 weitere Apps</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantrell::WelcomeView</name>
    <message>
        <source>In App Store Connect, open **Users and Access → Integrations → App Store Connect API**.</source>
        <translation>Öffnen Sie in App Store Connect **Benutzer und Zugriff → Integrationen → App Store Connect API**.</translation>
    </message>
    <message>
        <source>Generate a **team key** with the **Finance** role and download its `.p8` file. (An In-App Purchase key won&apos;t work here.)</source>
        <translation>Erstellen Sie einen **Teamschlüssel** mit der Rolle **Finanzen** und laden Sie seine `.p8`-Datei. (Ein Schlüssel für In-App-Käufe genügt hier nicht.)</translation>
    </message>
    <message>
        <source>Copy the **Key ID** and **Issuer ID**, and your **vendor number** from Payments and Financial Reports.</source>
        <translation>Kopieren Sie **Schlüssel-ID** und **Issuer-ID** sowie Ihre **Anbieternummer** aus „Zahlungen und Finanzberichte“.</translation>
    </message>
    <message>
        <source>Your desktop&apos;s keyring could not be read: %1</source>
        <translation>Der Schlüsselbund des Desktops konnte nicht gelesen werden: %1</translation>
    </message>
</context>
</TS>
