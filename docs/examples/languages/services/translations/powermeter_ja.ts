<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>ServiceItem</name>
    <message>
        <source>Automatic</source>
        <extracomment>Choice of :config:powermeter:setup:mode:</extracomment>
        <translation>自動</translation>
    </message>
    <message>
        <source>Average</source>
        <extracomment>Label of :config:powermeter:setup:average:</extracomment>
        <translation>平均</translation>
    </message>
    <message>
        <source>Level</source>
        <extracomment>Label of :result:powermeter:test:level:</extracomment>
        <translation>レベル</translation>
    </message>
    <message>
        <source>Manual</source>
        <extracomment>Choice of :config:powermeter:setup:mode:</extracomment>
        <translation>手動</translation>
    </message>
    <message>
        <source>Mode</source>
        <extracomment>Label of :config:powermeter:setup:mode:; Label of :result:powermeter:test:wave:</extracomment>
        <translation>モード</translation>
    </message>
    <message>
        <source>Start</source>
        <extracomment>Label of :action:powermeter:test:start:</extracomment>
        <translation>開始</translation>
    </message>
    <message>
        <source>Steady light</source>
        <extracomment>Choice of :result:powermeter:test:wave:</extracomment>
        <translation>連続光</translation>
    </message>
    <message>
        <source>There is no light on the fiber.</source>
        <extracomment>Error of :action:powermeter:test:start:</extracomment>
        <translation>ファイバーに光がありません。</translation>
    </message>
    <message>
        <source>dBm</source>
        <extracomment>Unit of :result:powermeter:test:level:</extracomment>
        <translation>dBm</translation>
    </message>
    <message>
        <source>samples</source>
        <extracomment>Unit of :config:powermeter:setup:average:</extracomment>
        <translation>サンプル</translation>
    </message>
</context>
</TS>
