<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>CoverageWords</name>
    <message numerus="yes">
        <source>%1 of %2 days</source>
        <translation>
            <numerusform>%1 of %2 day</numerusform>
            <numerusform>%1 of %2 days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 months</source>
        <translation>
            <numerusform>%1 of %2 month</numerusform>
            <numerusform>%1 of %2 months</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 years</source>
        <translation>
            <numerusform>%1 year</numerusform>
            <numerusform>%1 years</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 payout periods</source>
        <translation>
            <numerusform>%1 payout period</numerusform>
            <numerusform>%1 payout periods</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days failed</source>
        <translation>
            <numerusform>%1 day failed</numerusform>
            <numerusform>%1 days failed</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 days not fetched</source>
        <translation>
            <numerusform>%1 day not fetched</numerusform>
            <numerusform>%1 days not fetched</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PayoutRow</name>
    <message numerus="yes">
        <source>%1 units</source>
        <translation>
            <numerusform>%1 units</numerusform>
            <numerusform>%1 units</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 returns</source>
        <translation>
            <numerusform>%1 returns</numerusform>
            <numerusform>%1 returns</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SalesWords</name>
    <message numerus="yes">
        <source>%1 days</source>
        <translation>
            <numerusform>%1 days</numerusform>
            <numerusform>%1 days</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 of %2 days fetched</source>
        <translation>
            <numerusform>%1 of %2 days fetched</numerusform>
            <numerusform>%1 of %2 days fetched</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>From daily reports · %1 of %2 days</source>
        <translation>
            <numerusform>From daily reports · %1 of %2 days</numerusform>
            <numerusform>From daily reports · %1 of %2 days</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>UnitsCaption</name>
    <message numerus="yes">
        <source>%1 app</source>
        <translation>
            <numerusform>%1 app</numerusform>
            <numerusform>%1 app</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 in-app</source>
        <translation>
            <numerusform>%1 in-app</numerusform>
            <numerusform>%1 in-app</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 refunded</source>
        <translation>
            <numerusform>%1 refunded</numerusform>
            <numerusform>%1 refunded</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 updates</source>
        <translation>
            <numerusform>%1 updates</numerusform>
            <numerusform>%1 updates</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantrell::AppFilterPicker</name>
    <message numerus="yes">
        <source>%1 App(s)</source>
        <translation>
            <numerusform>%1 App</numerusform>
            <numerusform>%1 Apps</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantrell::RunWords</name>
    <message numerus="yes">
        <source>Authentication failed — %1. The clock of this computer is %n minutes ahead of the service&apos;s, which refuses every key then.</source>
        <translation>
            <numerusform>Authentication failed — %1. The clock of this computer is %n minute ahead of the service&apos;s, which refuses every key then.</numerusform>
            <numerusform>Authentication failed — %1. The clock of this computer is %n minutes ahead of the service&apos;s, which refuses every key then.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>Authentication failed — %1. The clock of this computer is %n minutes behind the service&apos;s, which refuses every key then.</source>
        <translation>
            <numerusform>Authentication failed — %1. The clock of this computer is %n minute behind the service&apos;s, which refuses every key then.</numerusform>
            <numerusform>Authentication failed — %1. The clock of this computer is %n minutes behind the service&apos;s, which refuses every key then.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%1 · %n failed: %2</source>
        <comment>the end of a run and why reports failed</comment>
        <translation>
            <numerusform>%1 · %n failed: %2</numerusform>
            <numerusform>%1 · %n failed: %2</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantrell::SyncSettings</name>
    <message numerus="yes">
        <source>Apple keeps daily and monthly reports for a year. The %1 lines that are stored of %2 may be the only copy; what nothing comes in place of is kept in the folder “backup”.</source>
        <translation>
            <numerusform>Apple keeps daily and monthly reports for a year. The %1 line that is stored of %2 may be the only copy; if nothing comes in its place it is kept in the folder “backup”.</numerusform>
            <numerusform>Apple keeps daily and monthly reports for a year. The %1 lines that are stored of %2 may be the only copy; what nothing comes in place of is kept in the folder “backup”.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>vantrell::TrendChart</name>
    <message numerus="yes">
        <source>%1 more app(s)</source>
        <translation>
            <numerusform>%1 more app</numerusform>
            <numerusform>%1 more apps</numerusform>
        </translation>
    </message>
</context>
</TS>
