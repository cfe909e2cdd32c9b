<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
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
