<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ButtonsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>[ßûţţöñš åñđ ţéxţš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Take a screenshot</source>
        <translation>[Ţåķé å šçŕééñšĥöţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>[Šţåŕţ ~]</translation>
    </message>
    <message>
        <source>Buttons</source>
        <translation>[ßûţţöñš ~]</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>[Šåvé ~]</translation>
    </message>
    <message>
        <source>Preview</source>
        <translation>[Pŕévîéŵ ~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çåñçéļ ~]</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>[Ðéļéţé ~]</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>[Övéŕŵŕîţé ~]</translation>
    </message>
    <message>
        <source>Not now</source>
        <translation>[Ñöţ ñöŵ ~]</translation>
    </message>
    <message>
        <source>A long text takes a second line</source>
        <translation>[Å ļöñĝ ţéxţ ţåķéš å šéçöñđ ļîñé ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Texts</source>
        <translation>[Ţéxţš ~]</translation>
    </message>
    <message>
        <source>The title of a page</source>
        <translation>[Ţĥé ţîţļé öf å påĝé ~ ~ ~]</translation>
    </message>
    <message>
        <source>The heading of a card</source>
        <translation>[Ţĥé ĥéåđîñĝ öf å çåŕđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A text that people read, which wraps where the line ends.</source>
        <translation>[Å ţéxţ ţĥåţ péöpļé ŕéåđ, ŵĥîçĥ ŵŕåpš ŵĥéŕé ţĥé ļîñé éñđš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A text of less importance.</source>
        <translation>[Å ţéxţ öf ļéšš împöŕţåñçé. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A label, which ends in an ellipsis where there is no room for it</source>
        <translation>[Å ļåbéļ, ŵĥîçĥ éñđš îñ åñ éļļîpšîš ŵĥéŕé ţĥéŕé îš ñö ŕööm föŕ îţ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Icons</source>
        <translation>[Îçöñš ~]</translation>
    </message>
</context>
<context>
    <name>CablePage</name>
    <message>
        <source>Cable test</source>
        <translation>[Çåbļé ţéšţ ~]</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>[Šéţ-ûp ~]</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>[Ŕévéŕţ ~]</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>[Åppļý ~]</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>[Ŕépöŕţ ~]</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>[Šåvé ~]</translation>
    </message>
    <message>
        <source>Cable test, %1</source>
        <translation>[Çåbļé ţéšţ, %1 ~ ~]</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>[Ŕéšûļţš ~]</translation>
    </message>
    <message>
        <source>Saved: %1</source>
        <translation>[Šåvéđ: %1 ~]</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>[Çĥåñĝéš ~]</translation>
    </message>
</context>
<context>
    <name>ChangesPage</name>
    <message>
        <source>Changes that wait</source>
        <translation>[Çĥåñĝéš ţĥåţ ŵåîţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Nothing is sent before Apply</source>
        <translation>[Ñöţĥîñĝ îš šéñţ béföŕé Åppļý ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>[Ŕévéŕţ åļļ ~]</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>[Åppļý ~]</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>[Šéţţîñĝš ~]</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>[Ŕévîéŵ ~]</translation>
    </message>
</context>
<context>
    <name>DatesPage</name>
    <message>
        <source>Date and time</source>
        <translation>[Ðåţé åñđ ţîmé ~ ~]</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked; passed on as ISO 8601</source>
        <translation>[Ţýpéđ åš ţĥé ļöçåļé ŵŕîţéš ţĥém, öŕ pîçķéđ; påššéđ öñ åš ÎŠÖ 8601 ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>[Îţémš öf ţĥîš påĝé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Due</source>
        <translation>[Ðûé ~]</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>[ßéĝîñ ~]</translation>
    </message>
    <message>
        <source>Values of this page</source>
        <translation>[Våļûéš öf ţĥîš påĝé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Next calibration</source>
        <translation>[Ñéxţ çåļîbŕåţîöñ ~ ~]</translation>
    </message>
    <message>
        <source>In this year</source>
        <translation>[Îñ ţĥîš ýéåŕ ~ ~]</translation>
    </message>
    <message>
        <source>Passed on: %1</source>
        <translation>[Påššéđ öñ: %1 ~ ~]</translation>
    </message>
</context>
<context>
    <name>EntriesPage</name>
    <message>
        <source>Entries</source>
        <translation>[Éñţŕîéš ~]</translation>
    </message>
    <message>
        <source>ItemEntry over items of the optical service</source>
        <translation>[ÎţémÉñţŕý övéŕ îţémš öf ţĥé öpţîçåļ šéŕvîçé ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Gallery</name>
    <message>
        <source>Gallery</source>
        <translation>[Ĝåļļéŕý ~]</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>[ßåţţéŕý ~]</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>[Ļåñĝûåĝé ~]</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>[Ţĥémé ~]</translation>
    </message>
    <message>
        <source>light</source>
        <translation>[ļîĝĥţ ~]</translation>
    </message>
    <message>
        <source>dark</source>
        <translation>[đåŕķ ~]</translation>
    </message>
    <message>
        <source>sunlight</source>
        <translation>[šûñļîĝĥţ ~]</translation>
    </message>
</context>
<context>
    <name>GroupsPage</name>
    <message>
        <source>Buttons and texts</source>
        <translation>[ßûţţöñš åñđ ţéxţš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Buttons, icons, cards and the sizes of texts</source>
        <translation>[ßûţţöñš, îçöñš, çåŕđš åñđ ţĥé šîžéš öf ţéxţš ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Lists</source>
        <translation>[Ļîšţš ~]</translation>
    </message>
    <message>
        <source>Rows, sections and what stands there when a list is empty</source>
        <translation>[Ŕöŵš, šéçţîöñš åñđ ŵĥåţ šţåñđš ţĥéŕé ŵĥéñ å ļîšţ îš émpţý ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Entries</source>
        <translation>[Éñţŕîéš ~]</translation>
    </message>
    <message>
        <source>The entry for every kind of item</source>
        <translation>[Ţĥé éñţŕý föŕ évéŕý ķîñđ öf îţém ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Choices and numbers</source>
        <translation>[Çĥöîçéš åñđ ñûmbéŕš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Segments, steppers and sliders that keep an item's limits</source>
        <translation>[Šéĝméñţš, šţéppéŕš åñđ šļîđéŕš ţĥåţ ķéép åñ îţém'š ļîmîţš ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Date and time</source>
        <translation>[Ðåţé åñđ ţîmé ~ ~]</translation>
    </message>
    <message>
        <source>Typed as the locale writes them, or picked</source>
        <translation>[Ţýpéđ åš ţĥé ļöçåļé ŵŕîţéš ţĥém, öŕ pîçķéđ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Status and messages</source>
        <translation>[Šţåţûš åñđ méššåĝéš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Verdicts, progress, problems and services that are away</source>
        <translation>[Véŕđîçţš, pŕöĝŕéšš, pŕöbļémš åñđ šéŕvîçéš ţĥåţ åŕé åŵåý ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>[Påĝéš ~]</translation>
    </message>
    <message>
        <source>The stack of pages, tabs and the line at the top</source>
        <translation>[Ţĥé šţåçķ öf påĝéš, ţåbš åñđ ţĥé ļîñé åţ ţĥé ţöp ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>[Çömpöñéñţš ~]</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>[Çĥåñĝéš ţĥåţ ŵåîţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>What is applied together, each change with what became of it</source>
        <translation>[Ŵĥåţ îš åppļîéđ ţöĝéţĥéŕ, éåçĥ çĥåñĝé ŵîţĥ ŵĥåţ béçåmé öf îţ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ListsPage</name>
    <message>
        <source>Lists</source>
        <translation>[Ļîšţš ~]</translation>
    </message>
    <message>
        <source>Rows of 11 mm and more, which may touch</source>
        <translation>[Ŕöŵš öf 11 mm åñđ möŕé, ŵĥîçĥ måý ţöûçĥ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>JOB-4711, 3 tests</source>
        <translation>[ĴÖß-4711, 3 ţéšţš ~ ~ ~]</translation>
    </message>
    <message>
        <source>JOB-4712, 1 test</source>
        <translation>[ĴÖß-4712, 1 ţéšţ ~ ~]</translation>
    </message>
    <message>
        <source>JOB-4713, 8 tests</source>
        <translation>[ĴÖß-4713, 8 ţéšţš ~ ~ ~]</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>[ýéšţéŕđåý ~]</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>[Fîļéš ~]</translation>
    </message>
    <message>
        <source>A section whose contents fold away</source>
        <translation>[Å šéçţîöñ ŵĥöšé çöñţéñţš föļđ åŵåý ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>[Öpéñ ~]</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>[Ðéļéţé ~]</translation>
    </message>
    <message>
        <source>being copied</source>
        <translation>[béîñĝ çöpîéđ ~ ~]</translation>
    </message>
    <message>
        <source>No screenshots</source>
        <translation>[Ñö šçŕééñšĥöţš ~ ~]</translation>
    </message>
    <message>
        <source>Tap the camera at the top of a page to keep what it shows.</source>
        <translation>[Ţåp ţĥé çåméŕå åţ ţĥé ţöp öf å påĝé ţö ķéép ŵĥåţ îţ šĥöŵš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Take one</source>
        <translation>[Ţåķé öñé ~]</translation>
    </message>
</context>
<context>
    <name>NumbersPage</name>
    <message>
        <source>Choices and numbers</source>
        <translation>[Çĥöîçéš åñđ ñûmbéŕš ~ ~ ~]</translation>
    </message>
    <message>
        <source>A gesture writes one value, within the limits of the item</source>
        <translation>[Å ĝéšţûŕé ŵŕîţéš öñé våļûé, ŵîţĥîñ ţĥé ļîmîţš öf ţĥé îţém ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>[Îţémš öf å šéŕvîçé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>[Îţémš öf ţĥîš påĝé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>[Ŕépéţîţîöñš ~]</translation>
    </message>
    <message>
        <source>Brightness in per cent</source>
        <translation>[ßŕîĝĥţñéšš îñ péŕ çéñţ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>All</source>
        <translation>[Åļļ ~]</translation>
    </message>
    <message>
        <source>Only failures</source>
        <translation>[Öñļý fåîļûŕéš ~ ~]</translation>
    </message>
    <message>
        <source>Chosen: %1</source>
        <translation>[Çĥöšéñ: %1 ~]</translation>
    </message>
</context>
<context>
    <name>PagesPage</name>
    <message>
        <source>Pages</source>
        <translation>[Påĝéš ~]</translation>
    </message>
    <message>
        <source>Page %1 of the stack</source>
        <translation>[Påĝé %1 öf ţĥé šţåçķ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The footer stays where it is.</source>
        <translation>[Ţĥé fööţéŕ šţåýš ŵĥéŕé îţ îš. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>[Ĥömé ~]</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>[Ñéxţ påĝé ~]</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>[Övéŕvîéŵ ~]</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>[Évéñţš ~]</translation>
    </message>
    <message>
        <source>Curve</source>
        <translation>[Çûŕvé ~]</translation>
    </message>
    <message>
        <source>Tabs above the contents. The arrow keys go from tab to tab.</source>
        <translation>[Ţåbš åbövé ţĥé çöñţéñţš. Ţĥé åŕŕöŵ ķéýš ĝö fŕöm ţåb ţö ţåb. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Tabs below the contents are the navigation of a program.</source>
        <translation>[Ţåbš béļöŵ ţĥé çöñţéñţš åŕé ţĥé ñåvîĝåţîöñ öf å pŕöĝŕåm. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>[Šéţ-ûp ~]</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>[Ŕûñ ~]</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>[Ŕéšûļţš ~]</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>[Ŕépöŕţ ~]</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>[Fîļéš ~]</translation>
    </message>
</context>
<context>
    <name>StatusPage</name>
    <message>
        <source>Status and messages</source>
        <translation>[Šţåţûš åñđ méššåĝéš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>[Ŕöûñđ-ţŕîp ţîmé ~ ~]</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>[Ţĥŕöûĝĥpûţ ~]</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>[Åţţéñûåţîöñ ~]</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>[Ļéñĝţĥ ~]</translation>
    </message>
    <message>
        <source>Let the service return</source>
        <translation>[Ļéţ ţĥé šéŕvîçé ŕéţûŕñ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Let the service vanish</source>
        <translation>[Ļéţ ţĥé šéŕvîçé våñîšĥ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>[Pŕöĝŕéšš ~]</translation>
    </message>
    <message>
        <source>42 of 100 samples, 12 s left</source>
        <translation>[42 öf 100 šåmpļéš, 12 š ļéfţ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Waiting for the far end</source>
        <translation>[Ŵåîţîñĝ föŕ ţĥé fåŕ éñđ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Problems, where they are</source>
        <translation>[Pŕöbļémš, ŵĥéŕé ţĥéý åŕé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name may have 50 characters, it has 86.</source>
        <translation>[Ţĥé ñåmé måý ĥåvé 50 çĥåŕåçţéŕš, îţ ĥåš 86. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The drive is full. Delete files, or save to the USB drive; what was measured is kept as a draft until then.</source>
        <translation>[Ţĥé đŕîvé îš fûļļ. Ðéļéţé fîļéš, öŕ šåvé ţö ţĥé ÛŠß đŕîvé; ŵĥåţ ŵåš méåšûŕéđ îš ķépţ åš å đŕåfţ ûñţîļ ţĥéñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>gallery</name>
    <message>
        <source>Site</source>
        <translation>[Šîţé ~]</translation>
    </message>
    <message>
        <source>Attenuation</source>
        <translation>[Åţţéñûåţîöñ ~]</translation>
    </message>
    <message>
        <source>Repetitions</source>
        <translation>[Ŕépéţîţîöñš ~]</translation>
    </message>
    <message>
        <source>Server (either version)</source>
        <translation>[Šéŕvéŕ (éîţĥéŕ véŕšîöñ) ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Unit address</source>
        <translation>[Ûñîţ åđđŕéšš ~ ~]</translation>
    </message>
    <message>
        <source>Unit address, version 6</source>
        <translation>[Ûñîţ åđđŕéšš, véŕšîöñ 6 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Port</source>
        <translation>[Pöŕţ ~]</translation>
    </message>
    <message>
        <source>Upload to</source>
        <translation>[Ûpļöåđ ţö ~]</translation>
    </message>
    <message>
        <source>Report file</source>
        <translation>[Ŕépöŕţ fîļé ~]</translation>
    </message>
    <message>
        <source>Upload password</source>
        <translation>[Ûpļöåđ påššŵöŕđ ~ ~]</translation>
    </message>
    <message>
        <source>Call back</source>
        <translation>[Çåļļ båçķ ~]</translation>
    </message>
    <message>
        <source>Cabinet code</source>
        <translation>[Çåbîñéţ çöđé ~ ~]</translation>
    </message>
    <message>
        <source>Test pattern (hexadecimal)</source>
        <translation>[Ţéšţ påţţéŕñ (ĥéxåđéçîmåļ) ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>File mode (octal)</source>
        <translation>[Fîļé möđé (öçţåļ) ~ ~ ~]</translation>
    </message>
    <message>
        <source>Alarm lines (binary)</source>
        <translation>[Åļåŕm ļîñéš (bîñåŕý) ~ ~ ~]</translation>
    </message>
    <message>
        <source>Test time</source>
        <translation>[Ţéšţ ţîmé ~]</translation>
    </message>
    <message>
        <source>Buzzer</source>
        <translation>[ßûžžéŕ ~]</translation>
    </message>
    <message>
        <source>Connector</source>
        <translation>[Çöññéçţöŕ ~]</translation>
    </message>
    <message>
        <source>Straight</source>
        <translation>[Šţŕåîĝĥţ ~]</translation>
    </message>
    <message>
        <source>Angled</source>
        <translation>[Åñĝļéđ ~]</translation>
    </message>
    <message>
        <source>Bare fiber</source>
        <translation>[ßåŕé fîbéŕ ~]</translation>
    </message>
    <message>
        <source>Landmarks</source>
        <translation>[Ļåñđmåŕķš ~]</translation>
    </message>
    <message>
        <source>Reference</source>
        <translation>[Ŕéféŕéñçé ~]</translation>
    </message>
    <message>
        <source>Sensor</source>
        <translation>[Šéñšöŕ ~]</translation>
    </message>
    <message>
        <source>Serial number</source>
        <translation>[Šéŕîåļ ñûmbéŕ ~ ~]</translation>
    </message>
    <message>
        <source>Items of a service</source>
        <translation>[Îţémš öf å šéŕvîçé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Items of this page</source>
        <translation>[Îţémš öf ţĥîš påĝé ~ ~ ~]</translation>
    </message>
</context>
</TS>
