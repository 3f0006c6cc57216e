<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE" sourcelanguage="en">
<context>
    <name>ServiceItem</name>
    <message>
        <source>Automatic</source>
        <extracomment>Choice of :config:powermeter:setup:mode:</extracomment>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Average</source>
        <extracomment>Label of :config:powermeter:setup:average:</extracomment>
        <translation>Mittelung</translation>
    </message>
    <message>
        <source>Level</source>
        <extracomment>Label of :result:powermeter:test:level:</extracomment>
        <translation>Pegel</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Choice of :config:powermeter:setup:mode:</extracomment>
        <translation>Manuell</translation>
    </message>
    <message>
        <source>Mode</source>
        <comment>:result:powermeter:test:wave:</comment>
        <translation>Lichtart</translation>
    </message>
    <message>
        <source>Mode</source>
        <extracomment>Label of :config:powermeter:setup:mode:; Label of :result:powermeter:test:wave:</extracomment>
        <translation>Betriebsart</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Label of :action:powermeter:test:start:</extracomment>
        <translation>Starten</translation>
    </message>
    <message>
        <source>Steady light</source>
        <extracomment>Choice of :result:powermeter:test:wave:</extracomment>
        <translation>Dauerlicht</translation>
    </message>
    <message>
        <source>There is no light on the fiber.</source>
        <extracomment>Error of :action:powermeter:test:start:</extracomment>
        <translation>Auf der Faser ist kein Licht.</translation>
    </message>
    <message>
        <source>dBm</source>
        <extracomment>Unit of :result:powermeter:test:level:</extracomment>
        <translation>dBm</translation>
    </message>
    <message>
        <source>samples</source>
        <extracomment>Unit of :config:powermeter:setup:average:</extracomment>
        <translation>Messwerte</translation>
    </message>
</context>
</TS>
