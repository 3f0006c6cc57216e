<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>FilesPage</name>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>%n screenshot</numerusform>
            <numerusform>%n screenshots</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reports</source>
        <translation>
            <numerusform>%n report</numerusform>
            <numerusform>%n reports</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>%n element</numerusform>
            <numerusform>%n elements</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n members</source>
        <translation>
            <numerusform>%n member</numerusform>
            <numerusform>%n members</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n job</numerusform>
            <numerusform>%n jobs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>%n job</numerusform>
            <numerusform>%n jobs</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ServiceCard</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>%n item</numerusform>
            <numerusform>%n items</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message numerus="yes">
        <source>%n changes are not applied yet.</source>
        <translation>
            <numerusform>%n change is not applied yet.</numerusform>
            <numerusform>%n changes are not applied yet.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n settings were changed meanwhile.</source>
        <translation>
            <numerusform>%n setting was changed meanwhile.</numerusform>
            <numerusform>%n settings were changed meanwhile.</numerusform>
        </translation>
    </message>
</context>
</TS>
