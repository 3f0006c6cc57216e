<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>ActionForm</name>
    <message>
        <source>Argument</source>
        <translation>[Åŕĝûméñţ ~]</translation>
    </message>
    <message>
        <source>Carry out</source>
        <translation>[Çåŕŕý öûţ ~]</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>The name of the folder %1, given by --root or UIUTILS_ROOT, is not written in the encoding of file names. Name another folder.</source>
        <translation>[Ţĥé ñåmé öf ţĥé föļđéŕ %1, ĝîvéñ bý --root öŕ UIUTILS_ROOT, îš ñöţ ŵŕîţţéñ îñ ţĥé éñçöđîñĝ öf fîļé ñåméš. Ñåmé åñöţĥéŕ föļđéŕ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Show this help.</source>
        <translation>[Šĥöŵ ţĥîš ĥéļp. ~ ~]</translation>
    </message>
    <message>
        <source>Try --help for the options.</source>
        <translation>[Ţŕý --help föŕ ţĥé öpţîöñš. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>folder</source>
        <translation>[föļđéŕ ~]</translation>
    </message>
    <message>
        <source>Publish the services described in &lt;folder&gt;; may be given more than once (default: %1).</source>
        <translation>[Pûbļîšĥ ţĥé šéŕvîçéš đéšçŕîbéđ îñ &lt;föļđéŕ&gt;; måý bé ĝîvéñ möŕé ţĥåñ öñçé (đéfåûļţ: %1). ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>--%1 needs a name.</source>
        <translation>[--%1 ñééđš å ñåmé. ~ ~ ~]</translation>
    </message>
    <message>
        <source>Show what a screen of that size and density shows, &lt;width&gt;x&lt;height&gt;@&lt;dots per inch&gt;, such as 800x480@133 (default: %1).</source>
        <translation>[Šĥöŵ ŵĥåţ å šçŕééñ öf ţĥåţ šîžé åñđ đéñšîţý šĥöŵš, &lt;ŵîđţĥ&gt;x&lt;ĥéîĝĥţ&gt;@&lt;đöţš péŕ îñçĥ&gt;, šûçĥ åš 800x480@133 (đéfåûļţ: %1). ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>screen</source>
        <translation>[šçŕééñ ~]</translation>
    </message>
    <message>
        <source>--screen needs a size of %1 to %2 pixels and a density of %3 to %4 dots per inch, such as 1024x600@170.</source>
        <translation>[--screen ñééđš å šîžé öf %1 ţö %2 pîxéļš åñđ å đéñšîţý öf %3 ţö %4 đöţš péŕ îñçĥ, šûçĥ åš 1024x600@170. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>--from needs a number of seconds.</source>
        <translation>[--from ñééđš å ñûmbéŕ öf šéçöñđš. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>--speed needs a number from 0.001 to 1000000.</source>
        <translation>[--speed ñééđš å ñûmbéŕ fŕöm 0.001 ţö 1000000. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ControlsStyle</name>
    <message>
        <source>Pass</source>
        <translation>[Påšš ~]</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>[Ŵåŕñîñĝ ~]</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>[Fåîļ ~]</translation>
    </message>
</context>
<context>
    <name>Demo</name>
    <message>
        <source>Measures TCP over this machine's loopback interface and saves a report of it, the way a test application of the instrument does.
With a display a window opens. Without one, or with --tour, the program runs by itself.

Exit status: 0 done, 1 failed, 2 wrong command line.</source>
        <translation>[Méåšûŕéš ŢÇP övéŕ ţĥîš måçĥîñé'š ļööpbåçķ îñţéŕfåçé åñđ šåvéš å ŕépöŕţ öf îţ, ţĥé ŵåý å ţéšţ åppļîçåţîöñ öf ţĥé îñšţŕûméñţ đöéš.
Ŵîţĥ å đîšpļåý å ŵîñđöŵ öpéñš. Ŵîţĥöûţ öñé, öŕ ŵîţĥ --tour, ţĥé pŕöĝŕåm ŕûñš bý îţšéļf.

Éxîţ šţåţûš: 0 đöñé, 1 fåîļéđ, 2 ŵŕöñĝ çömmåñđ ļîñé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Keep everything that is written below &lt;folder&gt; (default: %1).</source>
        <translation>[Ķéép évéŕýţĥîñĝ ţĥåţ îš ŵŕîţţéñ béļöŵ &lt;föļđéŕ&gt; (đéfåûļţ: %1). ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Take &lt;number&gt; samples of each quantity, %1 to %2 (default: as the settings say).</source>
        <translation>[Ţåķé &lt;ñûmbéŕ&gt; šåmpļéš öf éåçĥ qûåñţîţý, %1 ţö %2 (đéfåûļţ: åš ţĥé šéţţîñĝš šåý). ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>number</source>
        <translation>[ñûmbéŕ ~]</translation>
    </message>
    <message>
        <source>Measure, save a report, take a picture of each page and quit.</source>
        <translation>[Méåšûŕé, šåvé å ŕépöŕţ, ţåķé å pîçţûŕé öf éåçĥ påĝé åñđ qûîţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Wait until another application changes the user's name, the services end and return; take a picture of each and quit. Needs KIV_PLATFORM=bus.</source>
        <translation>[Ŵåîţ ûñţîļ åñöţĥéŕ åppļîçåţîöñ çĥåñĝéš ţĥé ûšéŕ'š ñåmé, ţĥé šéŕvîçéš éñđ åñđ ŕéţûŕñ; ţåķé å pîçţûŕé öf éåçĥ åñđ qûîţ. Ñééđš KIV_PLATFORM=bûš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Unexpected argument "%1".</source>
        <translation>[Ûñéxpéçţéđ åŕĝûméñţ "%1". ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>--samples needs a number from %1 to %2.</source>
        <translation>[--samples ñééđš å ñûmbéŕ fŕöm %1 ţö %2. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created, because %2 is a file. Name another folder with --root.</source>
        <translation>[Ţĥé föļđéŕ %1 çåññöţ bé çŕéåţéđ, béçåûšé %2 îš å fîļé. Ñåmé åñöţĥéŕ föļđéŕ ŵîţĥ --root. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The folder %1 cannot be created in %2. Check that you may write there, or name another folder with --root.</source>
        <translation>[Ţĥé föļđéŕ %1 çåññöţ bé çŕéåţéđ îñ %2. Çĥéçķ ţĥåţ ýöû måý ŵŕîţé ţĥéŕé, öŕ ñåmé åñöţĥéŕ föļđéŕ ŵîţĥ --root. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Everything is written below %1</source>
        <translation>[Évéŕýţĥîñĝ îš ŵŕîţţéñ béļöŵ %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The main page could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>[Ţĥé måîñ påĝé çöûļđ ñöţ bé ļöåđéđ, föŕ ţĥé ŕéåšöñ ĝîvéñ åbövé. Çĥéçķ ţĥåţ ţĥé QMĻ möđûļéš QţQûîçķ, QţQûîçķ.Çöñţŕöļš, QţQûîçķ.Ļåýöûţš åñđ QţQûîçķ.Ŵîñđöŵ åŕé îñšţåļļéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Pictures:</source>
        <translation>[Pîçţûŕéš: ~]</translation>
    </message>
    <message>
        <source>Reports:</source>
        <translation>[Ŕépöŕţš: ~]</translation>
    </message>
    <message>
        <source>Screenshots:</source>
        <translation>[Šçŕééñšĥöţš: ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>[%1 çåññöţ bé ŵŕîţţéñ: %2. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Texts were typed on the on-screen keyboard.</source>
        <translation>[Ţéxţš ŵéŕé ţýpéđ öñ ţĥé öñ-šçŕééñ ķéýböåŕđ. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>DeskDrawer</name>
    <message>
        <source>Desk</source>
        <translation>[Ðéšķ ~]</translation>
    </message>
    <message>
        <source>What happens to an instrument in the field, at the press of a button.</source>
        <translation>[Ŵĥåţ ĥåppéñš ţö åñ îñšţŕûméñţ îñ ţĥé fîéļđ, åţ ţĥé pŕéšš öf å bûţţöñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>[ÛŠß đŕîvé ~]</translation>
    </message>
    <message>
        <source>Unplug</source>
        <translation>[Ûñpļûĝ ~]</translation>
    </message>
    <message>
        <source>Plug in</source>
        <translation>[Pļûĝ îñ ~]</translation>
    </message>
    <message>
        <source>Pull unnoticed</source>
        <translation>[Pûļļ ûññöţîçéđ ~ ~]</translation>
    </message>
    <message>
        <source>Disk</source>
        <translation>[Ðîšķ ~]</translation>
    </message>
    <message>
        <source>Make space</source>
        <translation>[Måķé špåçé ~]</translation>
    </message>
    <message>
        <source>Fill the disk</source>
        <translation>[Fîļļ ţĥé đîšķ ~ ~]</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>[Ûñîţ ~]</translation>
    </message>
    <message>
        <source>Drain the battery</source>
        <translation>[Ðŕåîñ ţĥé båţţéŕý ~ ~ ~]</translation>
    </message>
    <message>
        <source>Charge the battery</source>
        <translation>[Çĥåŕĝé ţĥé båţţéŕý ~ ~ ~]</translation>
    </message>
    <message>
        <source>Cut the link</source>
        <translation>[Çûţ ţĥé ļîñķ ~ ~]</translation>
    </message>
    <message>
        <source>Restore the link</source>
        <translation>[Ŕéšţöŕé ţĥé ļîñķ ~ ~]</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>[Šéŕvîçéš ~]</translation>
    </message>
    <message>
        <source>They live in another process.</source>
        <translation>[Ţĥéý ļîvé îñ åñöţĥéŕ pŕöçéšš. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>[Fåšţ ~]</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>[Šļöŵ ~]</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>[Ŕéţûŕñ ~]</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>[Våñîšĥ ~]</translation>
    </message>
    <message>
        <source>Inspector (F12)</source>
        <translation>[Îñšpéçţöŕ (F12) ~ ~]</translation>
    </message>
</context>
<context>
    <name>DigitsEntry</name>
    <message>
        <source>Only digits can be used here</source>
        <translation>[Öñļý đîĝîţš çåñ bé ûšéđ ĥéŕé ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>DurableFile</name>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>[Çåññöţ ŵŕîţé %1: %2 ~ ~ ~]</translation>
    </message>
    <message>
        <source>The path holds a NUL character</source>
        <translation>[Ţĥé påţĥ ĥöļđš å ÑÛĻ çĥåŕåçţéŕ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Cannot create a file in the folder of %1: %2</source>
        <translation>[Çåññöţ çŕéåţé å fîļé îñ ţĥé föļđéŕ öf %1: %2 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Cannot replace %1: %2</source>
        <translation>[Çåññöţ ŕépļåçé %1: %2 ~ ~ ~]</translation>
    </message>
    <message>
        <source>Cannot make sure that %1 survives a power cut: %2</source>
        <translation>[Çåññöţ måķé šûŕé ţĥåţ %1 šûŕvîvéš å pöŵéŕ çûţ: %2 ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>DurationEntry</name>
    <message>
        <source>Hours, minutes and seconds, such as 1:30:00</source>
        <translation>[Ĥöûŕš, mîñûţéš åñđ šéçöñđš, šûçĥ åš 1:30:00 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This is too long</source>
        <translation>[Ţĥîš îš ţöö ļöñĝ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Entry</name>
    <message>
        <source>Not available</source>
        <translation>[Ñöţ åvåîļåbļé ~ ~]</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>[Ñöţ ŕéåđý ~]</translation>
    </message>
    <message>
        <source>Must be filled in</source>
        <translation>[Mûšţ bé fîļļéđ îñ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>FieldEntry</name>
    <message>
        <source>chars</source>
        <translation>[çĥåŕš ~]</translation>
    </message>
    <message>
        <source>This must be filled in</source>
        <translation>[Ţĥîš mûšţ bé fîļļéđ îñ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This does not have the required form</source>
        <translation>[Ţĥîš đöéš ñöţ ĥåvé ţĥé ŕéqûîŕéđ föŕm ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Changed meanwhile to %1</source>
        <translation>[Çĥåñĝéđ méåñŵĥîļé ţö %1 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>another value</source>
        <translation>[åñöţĥéŕ våļûé ~ ~]</translation>
    </message>
    <message>
        <source>Hide %1</source>
        <translation>[Ĥîđé %1 ~]</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>[Šĥöŵ %1 ~]</translation>
    </message>
    <message>
        <source>Number pad for %1</source>
        <translation>[Ñûmbéŕ påđ föŕ %1 ~ ~ ~]</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>[Ñöţ ŕéåđý ~]</translation>
    </message>
</context>
<context>
    <name>FileDetailsPage</name>
    <message>
        <source>Deleted</source>
        <translation>[Ðéļéţéđ ~]</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>[Ðéļéţé ~]</translation>
    </message>
    <message>
        <source>Copy to USB</source>
        <translation>[Çöpý ţö ÛŠß ~]</translation>
    </message>
    <message>
        <source>Read</source>
        <translation>[Ŕéåđ ~]</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>[Öpéñ ~]</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>[Föŕmåţ ~]</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>[%1, çömpŕéššéđ ~ ~]</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>[Šåvéđ ~]</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>[Šîžé ~]</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>[Šýñç ~]</translation>
    </message>
    <message>
        <source>The list of reports that stay here cannot be used.</source>
        <translation>[Ţĥé ļîšţ öf ŕépöŕţš ţĥåţ šţåý ĥéŕé çåññöţ bé ûšéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The cloud may take it.</source>
        <translation>[Ţĥé çļöûđ måý ţåķé îţ. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>It stays on the unit.</source>
        <translation>[Îţ šţåýš öñ ţĥé ûñîţ. ~ ~ ~]</translation>
    </message>
    <message>
        <source>Keep here</source>
        <translation>[Ķéép ĥéŕé ~]</translation>
    </message>
    <message>
        <source>Record</source>
        <translation>[Ŕéçöŕđ ~]</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>[Ţýpé ~]</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>[Ţîmé ~]</translation>
    </message>
</context>
<context>
    <name>FileSystemUsage</name>
    <message>
        <source>Not Enough Space</source>
        <translation>[Ñöţ Éñöûĝĥ Špåçé ~ ~]</translation>
    </message>
</context>
<context>
    <name>FileUtils</name>
    <message>
        <source>Directory</source>
        <translation>[Ðîŕéçţöŕý ~]</translation>
    </message>
    <message>
        <source>File</source>
        <translation>[Fîļé ~]</translation>
    </message>
    <message>
        <source>I/O Error</source>
        <translation>[Î/Ö Éŕŕöŕ ~]</translation>
    </message>
    <message>
        <source>Drive %1 is full</source>
        <translation>[Ðŕîvé %1 îš fûļļ ~ ~]</translation>
    </message>
    <message>
        <source>Read Error</source>
        <translation>[Ŕéåđ Éŕŕöŕ ~]</translation>
    </message>
    <message>
        <source>There was an error reading %1</source>
        <translation>[Ţĥéŕé ŵåš åñ éŕŕöŕ ŕéåđîñĝ %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>[Ŵŕîţé Éŕŕöŕ ~]</translation>
    </message>
    <message>
        <source>There was an error writing to %1</source>
        <translation>[Ţĥéŕé ŵåš åñ éŕŕöŕ ŵŕîţîñĝ ţö %1 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Not enough disk space for %1 - would need %2</source>
        <translation>[Ñöţ éñöûĝĥ đîšķ špåçé föŕ %1 - ŵöûļđ ñééđ %2 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Not Enough Space</source>
        <translation>[Ñöţ Éñöûĝĥ Špåçé ~ ~]</translation>
    </message>
    <message>
        <source>Do you want to overwrite all files/directories?</source>
        <translation>[Ðö ýöû ŵåñţ ţö övéŕŵŕîţé åļļ fîļéš/đîŕéçţöŕîéš? ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Do you want to overwrite %1 %2?</source>
        <translation>[Ðö ýöû ŵåñţ ţö övéŕŵŕîţé %1 %2? ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>File Exists</source>
        <translation>[Fîļé Éxîšţš ~]</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>[Fîļéš ~]</translation>
    </message>
    <message>
        <source>Do you want to delete these %1 files?</source>
        <translation>[Ðö ýöû ŵåñţ ţö đéļéţé ţĥéšé %1 fîļéš? ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Do you want to delete the %1 %2?</source>
        <translation>[Ðö ýöû ŵåñţ ţö đéļéţé ţĥé %1 %2? ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Delete %1</source>
        <translation>[Ðéļéţé %1 ~]</translation>
    </message>
    <message>
        <source>Report Exists</source>
        <translation>[Ŕépöŕţ Éxîšţš ~ ~]</translation>
    </message>
    <message>
        <source>Do you want to overwrite report %1?</source>
        <translation>[Ðö ýöû ŵåñţ ţö övéŕŵŕîţé ŕépöŕţ %1? ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Do you want to overwrite screenshot %1?</source>
        <translation>[Ðö ýöû ŵåñţ ţö övéŕŵŕîţé šçŕééñšĥöţ %1? ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Internal:</source>
        <translation>[Îñţéŕñåļ: ~]</translation>
    </message>
    <message>
        <source>USB:</source>
        <translation>[ÛŠß: ~]</translation>
    </message>
    <message>
        <source>Overwrite</source>
        <translation>[Övéŕŵŕîţé ~]</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>[Ķéép ~]</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>[åñđ %1 möŕé ~]</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>[Ðéļéţé ~]</translation>
    </message>
    <message>
        <source>control characters</source>
        <translation>[çöñţŕöļ çĥåŕåçţéŕš ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name may have %1 characters, it has %2</source>
        <translation>[Ţĥé ñåmé måý ĥåvé %1 çĥåŕåçţéŕš, îţ ĥåš %2 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name must not contain %1</source>
        <translation>[Ţĥé ñåmé mûšţ ñöţ çöñţåîñ %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>"%1" is not a file name</source>
        <translation>["%1" îš ñöţ å fîļé ñåmé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name is empty</source>
        <translation>[Ţĥé ñåmé îš émpţý ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name must not begin with a space</source>
        <translation>[Ţĥé ñåmé mûšţ ñöţ béĝîñ ŵîţĥ å špåçé ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name must not end with a space</source>
        <translation>[Ţĥé ñåmé mûšţ ñöţ éñđ ŵîţĥ å špåçé ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name must not end with a point</source>
        <translation>[Ţĥé ñåmé mûšţ ñöţ éñđ ŵîţĥ å pöîñţ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Computers do not allow the name "%1"</source>
        <translation>[Çömpûţéŕš đö ñöţ åļļöŵ ţĥé ñåmé "%1" ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>FilesPage</name>
    <message>
        <source>Files</source>
        <translation>[Fîļéš ~]</translation>
    </message>
    <message numerus="yes">
        <source>%n screenshots</source>
        <translation>
            <numerusform>[%n šçŕééñšĥöţš ~ ~]</numerusform>
            <numerusform>[%n šçŕééñšĥöţš ~ ~]</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n reports</source>
        <translation>
            <numerusform>[%n ŕépöŕţš ~]</numerusform>
            <numerusform>[%n ŕépöŕţš ~]</numerusform>
        </translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>[Ûñîţ ~]</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>[ÛŠß ~]</translation>
    </message>
    <message>
        <source>Name or format</source>
        <translation>[Ñåmé öŕ föŕmåţ ~ ~]</translation>
    </message>
    <message>
        <source>Newest</source>
        <translation>[Ñéŵéšţ ~]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>[Ñåmé ~]</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>[Šîžé ~]</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1, compressed</source>
        <translation>[%1, çömpŕéššéđ ~ ~]</translation>
    </message>
    <message>
        <source>No report is found</source>
        <translation>[Ñö ŕépöŕţ îš föûñđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no USB drive</source>
        <translation>[Ţĥéŕé îš ñö ÛŠß đŕîvé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Nothing is saved yet</source>
        <translation>[Ñöţĥîñĝ îš šåvéđ ýéţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There are no screenshots</source>
        <translation>[Ţĥéŕé åŕé ñö šçŕééñšĥöţš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Pictures</source>
        <translation>[Pîçţûŕéš ~]</translation>
    </message>
    <message>
        <source>%1, %2 % of the drive in use</source>
        <translation>[%1, %2 % öf ţĥé đŕîvé îñ ûšé ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>FontTexts</name>
    <message>
        <source>The font is broken</source>
        <translation>[Ţĥé föñţ îš bŕöķéñ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>HomePage</name>
    <message>
        <source>Choose a job.</source>
        <translation>[Çĥööšé å ĵöb. ~ ~]</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>[Çĥööšé ~]</translation>
    </message>
    <message>
        <source>Look</source>
        <translation>[Ļööķ ~]</translation>
    </message>
    <message>
        <source>Measure. The set-up is ready.</source>
        <translation>[Méåšûŕé. Ţĥé šéţ-ûp îš ŕéåđý. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Measure</source>
        <translation>[Méåšûŕé ~]</translation>
    </message>
    <message>
        <source>Save the report of this run.</source>
        <translation>[Šåvé ţĥé ŕépöŕţ öf ţĥîš ŕûñ. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>[Ŕépöŕţ ~]</translation>
    </message>
    <message>
        <source>The report is saved. Take the next job.</source>
        <translation>[Ţĥé ŕépöŕţ îš šåvéđ. Ţåķé ţĥé ñéxţ ĵöb. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>[Ĵöbš ~]</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>[Ĥömé ~]</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>[Ñö ĵöb ~]</translation>
    </message>
    <message>
        <source>No job is open. Results are saved without one.</source>
        <translation>[Ñö ĵöb îš öpéñ. Ŕéšûļţš åŕé šåvéđ ŵîţĥöûţ öñé. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>People</source>
        <translation>[Péöpļé ~]</translation>
    </message>
    <message>
        <source>Not saved</source>
        <translation>[Ñöţ šåvéđ ~]</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>[Ñéxţ ~]</translation>
    </message>
    <message>
        <source>Results of %1 were not saved.</source>
        <translation>[Ŕéšûļţš öf %1 ŵéŕé ñöţ šåvéđ. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>[Ðîšçåŕđ ~]</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>[Öpéñ ~]</translation>
    </message>
    <message>
        <source>Set-up</source>
        <translation>[Šéţ-ûp ~]</translation>
    </message>
    <message>
        <source>Not applied yet</source>
        <translation>[Ñöţ åppļîéđ ýéţ ~ ~]</translation>
    </message>
    <message>
        <source>Applied</source>
        <translation>[Åppļîéđ ~]</translation>
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
        <source>%1 samples</source>
        <translation>[%1 šåmpļéš ~]</translation>
    </message>
    <message>
        <source>None yet</source>
        <translation>[Ñöñé ýéţ ~]</translation>
    </message>
    <message>
        <source>Nothing to save</source>
        <translation>[Ñöţĥîñĝ ţö šåvé ~ ~]</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>[Šåvéđ ~]</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>[Fîļéš ~]</translation>
    </message>
    <message>
        <source>All that is saved</source>
        <translation>[Åļļ ţĥåţ îš šåvéđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>[Šéţţîñĝš ~]</translation>
    </message>
    <message>
        <source>Of the unit</source>
        <translation>[Öf ţĥé ûñîţ ~]</translation>
    </message>
</context>
<context>
    <name>Host</name>
    <message>
        <source>KIV_PLATFORM is "%1". Set it to "embedded" or "bus", or leave it out.</source>
        <translation>[KIV_PLATFORM îš "%1". Šéţ îţ ţö "émbéđđéđ" öŕ "bûš", öŕ ļéåvé îţ öûţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>No service could be loaded from %1. Name a folder with service files, with --services where the program has that option, or with KIV_SERVICES.</source>
        <translation>[Ñö šéŕvîçé çöûļđ bé ļöåđéđ fŕöm %1. Ñåmé å föļđéŕ ŵîţĥ šéŕvîçé fîļéš, ŵîţĥ --services ŵĥéŕé ţĥé pŕöĝŕåm ĥåš ţĥåţ öpţîöñ, öŕ ŵîţĥ KIV_SERVICES. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>[%1 çåññöţ bé ŕéåđ: %2. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Reports have no icons: the folder %1 cannot be created. Check that you may write there.</source>
        <translation>[Ŕépöŕţš ĥåvé ñö îçöñš: ţĥé föļđéŕ %1 çåññöţ bé çŕéåţéđ. Çĥéçķ ţĥåţ ýöû måý ŵŕîţé ţĥéŕé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Reports have no icons: those of the library are not installed.</source>
        <translation>[Ŕépöŕţš ĥåvé ñö îçöñš: ţĥöšé öf ţĥé ļîbŕåŕý åŕé ñöţ îñšţåļļéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>An image of reports is missing. %1</source>
        <translation>[Åñ îmåĝé öf ŕépöŕţš îš mîššîñĝ. %1 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no service %1.</source>
        <translation>[Ţĥéŕé îš ñö šéŕvîçé %1. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no service on the bus yet. Start kivd; its services are shown when they come.</source>
        <translation>[Ţĥéŕé îš ñö šéŕvîçé öñ ţĥé bûš ýéţ. Šţåŕţ ķîvđ; îţš šéŕvîçéš åŕé šĥöŵñ ŵĥéñ ţĥéý çömé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Saved reports cannot be shown: the link %1 to the viewer of PDF files cannot be created. Check that you may write there.</source>
        <translation>[Šåvéđ ŕépöŕţš çåññöţ bé šĥöŵñ: ţĥé ļîñķ %1 ţö ţĥé vîéŵéŕ öf PÐF fîļéš çåññöţ bé çŕéåţéđ. Çĥéçķ ţĥåţ ýöû måý ŵŕîţé ţĥéŕé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>KIV_SIMULATION is "%1". Set it to "on" or "off", or leave it out.</source>
        <translation>[KIV_SIMULATION îš "%1". Šéţ îţ ţö "öñ" öŕ "öff", öŕ ļéåvé îţ öûţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Inspector</name>
    <message>
        <source>Passing</source>
        <translation>[Påššîñĝ ~]</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>[Ŵåŕñîñĝ ~]</translation>
    </message>
    <message>
        <source>Failing</source>
        <translation>[Fåîļîñĝ ~]</translation>
    </message>
    <message>
        <source>None</source>
        <translation>[Ñöñé ~]</translation>
    </message>
    <message>
        <source>The service has come</source>
        <translation>[Ţĥé šéŕvîçé ĥåš çömé ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service has gone</source>
        <translation>[Ţĥé šéŕvîçé ĥåš ĝöñé ~ ~ ~]</translation>
    </message>
    <message>
        <source>The item has come</source>
        <translation>[Ţĥé îţém ĥåš çömé ~ ~ ~]</translation>
    </message>
    <message>
        <source>The item has gone</source>
        <translation>[Ţĥé îţém ĥåš ĝöñé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>[Ŕéåđý ~]</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>[Ñöţ ŕéåđý ~]</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>[Åppļîçåbļé ~]</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>[Ñöţ åppļîçåbļé ~ ~]</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>[Våļûé ~]</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>[Ûñîţ ~]</translation>
    </message>
    <message>
        <source>Readiness</source>
        <translation>[Ŕéåđîñéšš ~]</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>[Qûåļîţý ~]</translation>
    </message>
    <message>
        <source>Applicability</source>
        <translation>[Åppļîçåbîļîţý ~ ~]</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>[Éŕŕöŕ ~]</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>[Šéŕvîçé ~]</translation>
    </message>
    <message>
        <source>Rejected by hand</source>
        <translation>[Ŕéĵéçţéđ bý ĥåñđ ~ ~]</translation>
    </message>
    <message>
        <source>The service does not live here.</source>
        <translation>[Ţĥé šéŕvîçé đöéš ñöţ ļîvé ĥéŕé. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The item cannot have this value.</source>
        <translation>[Ţĥé îţém çåññöţ ĥåvé ţĥîš våļûé. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The item cannot have these limits.</source>
        <translation>[Ţĥé îţém çåññöţ ĥåvé ţĥéšé ļîmîţš. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Inspector</source>
        <translation>[Îñšpéçţöŕ ~]</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>[Ñöţ åvåîļåbļé ~ ~]</translation>
    </message>
    <message numerus="yes">
        <source>%n elements</source>
        <translation>
            <numerusform>[%n éļéméñţš ~]</numerusform>
            <numerusform>[%n éļéméñţš ~]</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n members</source>
        <translation>
            <numerusform>[%n mémbéŕš ~]</numerusform>
            <numerusform>[%n mémbéŕš ~]</numerusform>
        </translation>
    </message>
    <message>
        <source>%1: %2 changes in %3 s</source>
        <translation>[%1: %2 çĥåñĝéš îñ %3 š ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>InspectorPanel</name>
    <message>
        <source>Inspector</source>
        <translation>[Îñšpéçţöŕ ~]</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>[Îţémš ~]</translation>
    </message>
    <message>
        <source>Services</source>
        <translation>[Šéŕvîçéš ~]</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>[Çĥåñĝéš ~]</translation>
    </message>
</context>
<context>
    <name>Instrument</name>
    <message>
        <source>Home</source>
        <translation>[Ĥömé ~]</translation>
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
    <name>InstrumentBar</name>
    <message>
        <source>Job</source>
        <translation>[Ĵöb ~]</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>[Ñö ĵöb ~]</translation>
    </message>
    <message>
        <source>User</source>
        <translation>[Ûšéŕ ~]</translation>
    </message>
    <message>
        <source>USB drive</source>
        <translation>[ÛŠß đŕîvé ~]</translation>
    </message>
    <message>
        <source>No USB drive</source>
        <translation>[Ñö ÛŠß đŕîvé ~ ~]</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>[Ļîñķ ~]</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>[Ðöŵñ ~]</translation>
    </message>
    <message>
        <source>%1 G</source>
        <translation>%1 G</translation>
    </message>
    <message>
        <source>%1 M</source>
        <translation>%1 M</translation>
    </message>
    <message>
        <source>Battery, charging</source>
        <translation>[ßåţţéŕý, çĥåŕĝîñĝ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>[ßåţţéŕý ~]</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>[Ñöţîfîçåţîöñš ~ ~]</translation>
    </message>
</context>
<context>
    <name>ItemDetails</name>
    <message>
        <source>No item chosen</source>
        <translation>[Ñö îţém çĥöšéñ ~ ~]</translation>
    </message>
    <message>
        <source>Choose one in the list.</source>
        <translation>[Çĥööšé öñé îñ ţĥé ļîšţ. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>[ßåçķ ~]</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>[Šéţţîñĝ ~]</translation>
    </message>
</context>
<context>
    <name>ItemFace</name>
    <message>
        <source>The entry was rejected.</source>
        <translation>[Ţĥé éñţŕý ŵåš ŕéĵéçţéđ. ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ItemHands</name>
    <message>
        <source>By hand</source>
        <translation>[ßý ĥåñđ ~]</translation>
    </message>
    <message>
        <source>What a service reports can be set by hand where the service lives in this process. This one lives in another.</source>
        <translation>[Ŵĥåţ å šéŕvîçé ŕépöŕţš çåñ bé šéţ bý ĥåñđ ŵĥéŕé ţĥé šéŕvîçé ļîvéš îñ ţĥîš pŕöçéšš. Ţĥîš öñé ļîvéš îñ åñöţĥéŕ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Quality</source>
        <translation>[Qûåļîţý ~]</translation>
    </message>
    <message>
        <source>None</source>
        <translation>[Ñöñé ~]</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>[Påšš ~]</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>[Ŵåŕñîñĝ ~]</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>[Fåîļ ~]</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>[Ŕéåđý ~]</translation>
    </message>
    <message>
        <source>Applicable</source>
        <translation>[Åppļîçåbļé ~]</translation>
    </message>
    <message>
        <source>The service decides by an expression.</source>
        <translation>[Ţĥé šéŕvîçé đéçîđéš bý åñ éxpŕéššîöñ. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Value that the service reports</source>
        <translation>[Våļûé ţĥåţ ţĥé šéŕvîçé ŕépöŕţš ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Shortest</source>
        <translation>[Šĥöŕţéšţ ~]</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>[Mîñîmûm ~]</translation>
    </message>
    <message>
        <source>Longest</source>
        <translation>[Ļöñĝéšţ ~]</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>[Måxîmûm ~]</translation>
    </message>
</context>
<context>
    <name>ItemHistory</name>
    <message>
        <source>No values yet</source>
        <translation>[Ñö våļûéš ýéţ ~ ~]</translation>
    </message>
    <message>
        <source>History of %1</source>
        <translation>[Ĥîšţöŕý öf %1 ~ ~]</translation>
    </message>
</context>
<context>
    <name>ItemStepper</name>
    <message>
        <source>Less: %1</source>
        <translation>[Ļéšš: %1 ~]</translation>
    </message>
    <message>
        <source>More: %1</source>
        <translation>[Möŕé: %1 ~]</translation>
    </message>
</context>
<context>
    <name>ItemsPage</name>
    <message>
        <source>Search items</source>
        <translation>[Šéåŕçĥ îţémš ~ ~]</translation>
    </message>
    <message>
        <source>Favourites only</source>
        <translation>[Fåvöûŕîţéš öñļý ~ ~]</translation>
    </message>
    <message>
        <source>%1 of %2 items</source>
        <translation>[%1 öf %2 îţémš ~ ~]</translation>
    </message>
    <message>
        <source>Items</source>
        <translation>[Îţémš ~]</translation>
    </message>
    <message>
        <source>Remove %1 from the favourites</source>
        <translation>[Ŕémövé %1 fŕöm ţĥé fåvöûŕîţéš ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Add %1 to the favourites</source>
        <translation>[Åđđ %1 ţö ţĥé fåvöûŕîţéš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>No items</source>
        <translation>[Ñö îţémš ~]</translation>
    </message>
    <message>
        <source>The items are shown when their services come.</source>
        <translation>[Ţĥé îţémš åŕé šĥöŵñ ŵĥéñ ţĥéîŕ šéŕvîçéš çömé. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>No item matches the search.</source>
        <translation>[Ñö îţém måţçĥéš ţĥé šéåŕçĥ. ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>JobsPage</name>
    <message>
        <source>Planned</source>
        <translation>[Pļåññéđ ~]</translation>
    </message>
    <message>
        <source>In progress</source>
        <translation>[Îñ pŕöĝŕéšš ~]</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>[Ðöñé ~]</translation>
    </message>
    <message>
        <source>Apply or revert the set-up first: it would be applied with the job.</source>
        <translation>[Åppļý öŕ ŕévéŕţ ţĥé šéţ-ûp fîŕšţ: îţ ŵöûļđ bé åppļîéđ ŵîţĥ ţĥé ĵöb. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>[Ĵöbš ~]</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>[%n ĵöbš ~]</numerusform>
            <numerusform>[%n ĵöbš ~]</numerusform>
        </translation>
    </message>
    <message>
        <source>People</source>
        <translation>[Péöpļé ~]</translation>
    </message>
    <message>
        <source>Job, customer or circuit</source>
        <translation>[Ĵöb, çûšţöméŕ öŕ çîŕçûîţ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>[Öpéñ ~]</translation>
    </message>
    <message>
        <source>All</source>
        <translation>[Åļļ ~]</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1
%2</source>
        <translation>%1
%2</translation>
    </message>
    <message>
        <source>No job is found</source>
        <translation>[Ñö ĵöb îš föûñđ ~ ~]</translation>
    </message>
    <message>
        <source>There are no jobs</source>
        <translation>[Ţĥéŕé åŕé ñö ĵöbš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Other words, or all jobs, may find one.</source>
        <translation>[Öţĥéŕ ŵöŕđš, öŕ åļļ ĵöbš, måý fîñđ öñé. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The services of jobs and of the unit are not published.</source>
        <translation>[Ţĥé šéŕvîçéš öf ĵöbš åñđ öf ţĥé ûñîţ åŕé ñöţ pûbļîšĥéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>KitPage</name>
    <message>
        <source>Back</source>
        <translation>[ßåçķ ~]</translation>
    </message>
</context>
<context>
    <name>KivAggregateData</name>
    <message>
        <source>%1 has no member %2.</source>
        <translation>[%1 ĥåš ñö mémbéŕ %2. ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>KivData</name>
    <message>
        <source>%1 max chars</source>
        <translation>[%1 måx çĥåŕš ~ ~]</translation>
    </message>
    <message>
        <source>%1 chars</source>
        <translation>[%1 çĥåŕš ~]</translation>
    </message>
    <message>
        <source>%1 - %2 chars</source>
        <translation>[%1 - %2 çĥåŕš ~ ~]</translation>
    </message>
    <message>
        <source>%1 max digits</source>
        <translation>[%1 måx đîĝîţš ~ ~]</translation>
    </message>
    <message>
        <source>%1 digits</source>
        <translation>[%1 đîĝîţš ~]</translation>
    </message>
    <message>
        <source>%1 - %2 digits</source>
        <translation>[%1 - %2 đîĝîţš ~ ~]</translation>
    </message>
    <message>
        <source>%1 only</source>
        <translation>[%1 öñļý ~]</translation>
    </message>
    <message>
        <source>Please enter IP address</source>
        <translation>[Pļéåšé éñţéŕ ÎP åđđŕéšš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Please enter IPv6 address</source>
        <translation>[Pļéåšé éñţéŕ ÎPv6 åđđŕéšš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Please enter URL</source>
        <translation>[Pļéåšé éñţéŕ ÛŔĻ ~ ~]</translation>
    </message>
    <message>
        <source>Please enter DNS name</source>
        <translation>[Pļéåšé éñţéŕ ÐÑŠ ñåmé ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>LanguagePage</name>
    <message>
        <source>Language</source>
        <translation>[Ļåñĝûåĝé ~]</translation>
    </message>
</context>
<context>
    <name>Languages</name>
    <message>
        <source>No native speaker has checked this translation.</source>
        <translation>[Ñö ñåţîvé špéåķéŕ ĥåš çĥéçķéđ ţĥîš ţŕåñšļåţîöñ. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>English</source>
        <extracomment>The name of the language of this translation, in that language.</extracomment>
        <translation>[Éñĝļîšĥ ~]</translation>
    </message>
</context>
<context>
    <name>ListEntry</name>
    <message>
        <source>New element of %1</source>
        <translation>[Ñéŵ éļéméñţ öf %1 ~ ~ ~]</translation>
    </message>
    <message>
        <source>Element %1 of %2</source>
        <translation>[Éļéméñţ %1 öf %2 ~ ~]</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>[Ñöţ ŕéåđý ~]</translation>
    </message>
    <message>
        <source>chars</source>
        <translation>[çĥåŕš ~]</translation>
    </message>
    <message>
        <source>Remove element %1 of %2</source>
        <translation>[Ŕémövé éļéméñţ %1 öf %2 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Add to %1</source>
        <translation>[Åđđ ţö %1 ~]</translation>
    </message>
</context>
<context>
    <name>LivePlot</name>
    <message>
        <source>%1: no data</source>
        <translation>[%1: ñö đåţå ~]</translation>
    </message>
    <message>
        <source>%1: %2 to %3, from %4 to %5</source>
        <translation>[%1: %2 ţö %3, fŕöm %4 ţö %5 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>[Fåîļ ~]</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>[Måŕĝîñåļ ~]</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>[Påšš ~]</translation>
    </message>
    <message>
        <source>%1.</source>
        <translation>%1.</translation>
    </message>
    <message>
        <source>At the cursor: %1.</source>
        <translation>[Åţ ţĥé çûŕšöŕ: %1. ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>LogPage</name>
    <message>
        <source>Go on</source>
        <translation>[Ĝö öñ ~]</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>[Påûšé ~]</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>[Çļéåŕ ~]</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>[Çĥåñĝéš ~]</translation>
    </message>
    <message>
        <source>No changes yet</source>
        <translation>[Ñö çĥåñĝéš ýéţ ~ ~]</translation>
    </message>
    <message>
        <source>What services report is shown as it comes.</source>
        <translation>[Ŵĥåţ šéŕvîçéš ŕépöŕţ îš šĥöŵñ åš îţ çöméš. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Changes: %L1</source>
        <translation>[Çĥåñĝéš: %L1 ~ ~]</translation>
    </message>
    <message>
        <source>fallen out: %L1</source>
        <translation>[fåļļéñ öûţ: %L1 ~ ~]</translation>
    </message>
    <message>
        <source>missed while paused: %L1</source>
        <translation>[mîššéđ ŵĥîļé påûšéđ: %L1 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Save as recording</source>
        <translation>[Šåvé åš ŕéçöŕđîñĝ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Main</name>
    <message>
        <source>TCP loopback test</source>
        <translation>[ŢÇP ļööpbåçķ ţéšţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file is damaged. What could be read of it is shown; something may be missing.</source>
        <translation>[Ţĥé fîļé îš đåmåĝéđ. Ŵĥåţ çöûļđ bé ŕéåđ öf îţ îš šĥöŵñ; šöméţĥîñĝ måý bé mîššîñĝ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Opening the file …</source>
        <translation>[Öpéñîñĝ ţĥé fîļé … ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>MomentEntry</name>
    <message>
        <source>Not before %1</source>
        <translation>[Ñöţ béföŕé %1 ~ ~]</translation>
    </message>
    <message>
        <source>Not after %1</source>
        <translation>[Ñöţ åfţéŕ %1 ~ ~]</translation>
    </message>
    <message>
        <source>This is not a date, such as %1</source>
        <translation>[Ţĥîš îš ñöţ å đåţé, šûçĥ åš %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This is not a time, such as %1</source>
        <translation>[Ţĥîš îš ñöţ å ţîmé, šûçĥ åš %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This is not a date and time, such as %1</source>
        <translation>[Ţĥîš îš ñöţ å đåţé åñđ ţîmé, šûçĥ åš %1 ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>[Çĥööšé: %1 ~]</translation>
    </message>
    <message>
        <source>such as %1</source>
        <translation>[šûçĥ åš %1 ~]</translation>
    </message>
</context>
<context>
    <name>MomentPicker</name>
    <message>
        <source>Year</source>
        <translation>[Ýéåŕ ~]</translation>
    </message>
    <message>
        <source>Month</source>
        <translation>[Möñţĥ ~]</translation>
    </message>
    <message>
        <source>Hour</source>
        <translation>[Ĥöûŕ ~]</translation>
    </message>
    <message>
        <source>Minute</source>
        <translation>[Mîñûţé ~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çåñçéļ ~]</translation>
    </message>
    <message>
        <source>Choose</source>
        <translation>[Çĥööšé ~]</translation>
    </message>
</context>
<context>
    <name>NotificationDialog</name>
    <message>
        <source>%1 more</source>
        <translation>[%1 möŕé ~]</translation>
    </message>
    <message>
        <source>No</source>
        <translation>[Ñö ~]</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>[Ýéš ~]</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>[ÖĶ ~]</translation>
    </message>
</context>
<context>
    <name>NotificationMark</name>
    <message>
        <source>Error</source>
        <translation>[Éŕŕöŕ ~]</translation>
    </message>
    <message>
        <source>Question</source>
        <translation>[Qûéšţîöñ ~]</translation>
    </message>
    <message>
        <source>Notice</source>
        <translation>[Ñöţîçé ~]</translation>
    </message>
</context>
<context>
    <name>NotificationTray</name>
    <message>
        <source>Notifications (%1)</source>
        <translation>[Ñöţîfîçåţîöñš (%1) ~ ~ ~]</translation>
    </message>
    <message>
        <source>Notifications</source>
        <translation>[Ñöţîfîçåţîöñš ~ ~]</translation>
    </message>
    <message>
        <source>Clear all</source>
        <translation>[Çļéåŕ åļļ ~]</translation>
    </message>
    <message>
        <source>Dismiss %1</source>
        <translation>[Ðîšmîšš %1 ~]</translation>
    </message>
    <message>
        <source>No notifications</source>
        <translation>[Ñö ñöţîfîçåţîöñš ~ ~]</translation>
    </message>
</context>
<context>
    <name>NotificationsPage</name>
    <message>
        <source>Notifications</source>
        <translation>[Ñöţîfîçåţîöñš ~ ~]</translation>
    </message>
</context>
<context>
    <name>NumberEntry</name>
    <message>
        <source>Use "%1" as the decimal separator</source>
        <translation>[Ûšé "%1" åš ţĥé đéçîmåļ šépåŕåţöŕ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This is not a number</source>
        <translation>[Ţĥîš îš ñöţ å ñûmbéŕ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A whole number is required</source>
        <translation>[Å ŵĥöļé ñûmbéŕ îš ŕéqûîŕéđ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Decimals: at most %1</source>
        <translation>[Ðéçîmåļš: åţ möšţ %1 ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>NumberPad</name>
    <message>
        <source>Clear</source>
        <translation>[Çļéåŕ ~]</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çåñçéļ ~]</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>[ÖĶ ~]</translation>
    </message>
    <message>
        <source>Change the sign</source>
        <translation>[Çĥåñĝé ţĥé šîĝñ ~ ~]</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>[Ðéļéţé ~]</translation>
    </message>
    <message>
        <source>e, exponent of ten</source>
        <translation>[é, éxpöñéñţ öf ţéñ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Overlays</name>
    <message>
        <source>Desk</source>
        <translation>[Ðéšķ ~]</translation>
    </message>
</context>
<context>
    <name>OwnLibrary</name>
    <message>
        <source>%1 is not installed</source>
        <translation>[%1 îš ñöţ îñšţåļļéđ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>PDFFile</name>
    <message>
        <source>Unknown error</source>
        <translation>[Ûñķñöŵñ éŕŕöŕ ~ ~]</translation>
    </message>
    <message>
        <source>The path contains a NUL character</source>
        <translation>[Ţĥé påţĥ çöñţåîñš å ÑÛĻ çĥåŕåçţéŕ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>It is not a regular file</source>
        <translation>[Îţ îš ñöţ å ŕéĝûļåŕ fîļé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>It has more than 64 MiB</source>
        <translation>[Îţ ĥåš möŕé ţĥåñ 64 Mîß ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Reading the file takes too long</source>
        <translation>[Ŕéåđîñĝ ţĥé fîļé ţåķéš ţöö ļöñĝ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file cannot be tried first: %1</source>
        <translation>[Ţĥé fîļé çåññöţ bé ţŕîéđ fîŕšţ: %1 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file is empty</source>
        <translation>[Ţĥé fîļé îš émpţý ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file is not safe to read</source>
        <translation>[Ţĥé fîļé îš ñöţ šåfé ţö ŕéåđ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 gives no answer</source>
        <translation>[%1 ĝîvéš ñö åñšŵéŕ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file is encrypted, and writing it would damage it</source>
        <translation>[Ţĥé fîļé îš éñçŕýpţéđ, åñđ ŵŕîţîñĝ îţ ŵöûļđ đåmåĝé îţ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file does not begin like a PDF file</source>
        <translation>[Ţĥé fîļé đöéš ñöţ béĝîñ ļîķé å PÐF fîļé ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The PDF file has no end</source>
        <translation>[Ţĥé PÐF fîļé ĥåš ñö éñđ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The PDF file has no table of its objects</source>
        <translation>[Ţĥé PÐF fîļé ĥåš ñö ţåbļé öf îţš öbĵéçţš ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>PageList</name>
    <message>
        <source>Pages</source>
        <translation>[Påĝéš ~]</translation>
    </message>
</context>
<context>
    <name>Paths</name>
    <message>
        <source>UIUTILS_ROOT names a folder that is not written in the encoding of file names (%1). None of the instrument's files are read or written. Name another folder.</source>
        <translation>[UIUTILS_ROOT ñåméš å föļđéŕ ţĥåţ îš ñöţ ŵŕîţţéñ îñ ţĥé éñçöđîñĝ öf fîļé ñåméš (%1). Ñöñé öf ţĥé îñšţŕûméñţ'š fîļéš åŕé ŕéåđ öŕ ŵŕîţţéñ. Ñåmé åñöţĥéŕ föļđéŕ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>PdfViewer</name>
    <message>
        <source>The screen could not be loaded, for the reason given above. Check that the QML modules QtQuick, QtQuick.Controls, QtQuick.Layouts and QtQuick.Window are installed.</source>
        <translation>[Ţĥé šçŕééñ çöûļđ ñöţ bé ļöåđéđ, föŕ ţĥé ŕéåšöñ ĝîvéñ åbövé. Çĥéçķ ţĥåţ ţĥé QMĻ möđûļéš QţQûîçķ, QţQûîçķ.Çöñţŕöļš, QţQûîçķ.Ļåýöûţš åñđ QţQûîçķ.Ŵîñđöŵ åŕé îñšţåļļéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no display to show %1 on. Set DISPLAY or WAYLAND_DISPLAY, or QT_QPA_PLATFORM to what draws on this screen, such as eglfs or linuxfb.</source>
        <translation>[Ţĥéŕé îš ñö đîšpļåý ţö šĥöŵ %1 öñ. Šéţ ÐÎŠPĻÅÝ öŕ WAYLAND_DISPLAY, öŕ QT_QPA_PLATFORM ţö ŵĥåţ đŕåŵš öñ ţĥîš šçŕééñ, šûçĥ åš éĝļfš öŕ ļîñûxfb. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Shows a PDF file, also one that is compressed (.pdf.gz), on a touch screen or in a window.

Exit status: 0 done, 1 the file could not be shown, 2 wrong command line.</source>
        <translation>[Šĥöŵš å PÐF fîļé, åļšö öñé ţĥåţ îš çömpŕéššéđ (.pđf.ĝž), öñ å ţöûçĥ šçŕééñ öŕ îñ å ŵîñđöŵ.

Éxîţ šţåţûš: 0 đöñé, 1 ţĥé fîļé çöûļđ ñöţ bé šĥöŵñ, 2 ŵŕöñĝ çömmåñđ ļîñé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The PDF file to show.</source>
        <translation>[Ţĥé PÐF fîļé ţö šĥöŵ. ~ ~ ~]</translation>
    </message>
    <message>
        <source>The screen has &lt;number&gt; dots per inch, 1 to %1 (default: %2). At 100 % a page has its natural size there.</source>
        <translation>[Ţĥé šçŕééñ ĥåš &lt;ñûmbéŕ&gt; đöţš péŕ îñçĥ, 1 ţö %1 (đéfåûļţ: %2). Åţ 100 % å påĝé ĥåš îţš ñåţûŕåļ šîžé ţĥéŕé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>number</source>
        <translation>[ñûmbéŕ ~]</translation>
    </message>
    <message>
        <source>Fill the screen, without a frame. Under a window system that arranges windows itself, the window is one among others.</source>
        <translation>[Fîļļ ţĥé šçŕééñ, ŵîţĥöûţ å fŕåmé. Ûñđéŕ å ŵîñđöŵ šýšţém ţĥåţ åŕŕåñĝéš ŵîñđöŵš îţšéļf, ţĥé ŵîñđöŵ îš öñé åmöñĝ öţĥéŕš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Call the window &lt;title&gt; (default: the file's name).</source>
        <translation>[Çåļļ ţĥé ŵîñđöŵ &lt;ţîţļé&gt; (đéfåûļţ: ţĥé fîļé'š ñåmé). ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>title</source>
        <translation>[ţîţļé ~]</translation>
    </message>
    <message>
        <source>Use the input plug-in &lt;name:device&gt;; may be given more than once. Has no effect if a window system provides the input or the device does not exist.</source>
        <translation>[Ûšé ţĥé îñpûţ pļûĝ-îñ &lt;ñåmé:đévîçé&gt;; måý bé ĝîvéñ möŕé ţĥåñ öñçé. Ĥåš ñö éfféçţ îf å ŵîñđöŵ šýšţém pŕövîđéš ţĥé îñpûţ öŕ ţĥé đévîçé đöéš ñöţ éxîšţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>name:device</source>
        <translation>[ñåmé:đévîçé ~]</translation>
    </message>
    <message>
        <source>Name one PDF file to show.</source>
        <translation>[Ñåmé öñé PÐF fîļé ţö šĥöŵ. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>--dpy needs a number from 1 to %1.</source>
        <translation>[--dpy ñééđš å ñûmbéŕ fŕöm 1 ţö %1. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no such file.</source>
        <translation>[Ţĥéŕé îš ñö šûçĥ fîļé. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This is not a file.</source>
        <translation>[Ţĥîš îš ñöţ å fîļé. ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file cannot be read.</source>
        <translation>[Ţĥé fîļé çåññöţ bé ŕéåđ. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file holds more than %1 MiB, which is more than this unit can show.</source>
        <translation>[Ţĥé fîļé ĥöļđš möŕé ţĥåñ %1 Mîß, ŵĥîçĥ îš möŕé ţĥåñ ţĥîš ûñîţ çåñ šĥöŵ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This is not a PDF file.</source>
        <translation>[Ţĥîš îš ñöţ å PÐF fîļé. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file is damaged or incomplete.</source>
        <translation>[Ţĥé fîļé îš đåmåĝéđ öŕ îñçömpļéţé. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file is encrypted and can only be opened with a password.</source>
        <translation>[Ţĥé fîļé îš éñçŕýpţéđ åñđ çåñ öñļý bé öpéñéđ ŵîţĥ å påššŵöŕđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file has no pages.</source>
        <translation>[Ţĥé fîļé ĥåš ñö påĝéš. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The file has more than %1 pages, which is more than this unit can show.</source>
        <translation>[Ţĥé fîļé ĥåš möŕé ţĥåñ %1 påĝéš, ŵĥîçĥ îš möŕé ţĥåñ ţĥîš ûñîţ çåñ šĥöŵ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>It may have been deleted or moved, or be on a USB drive that was removed. Choose another file, or save the report again.</source>
        <translation>[Îţ måý ĥåvé bééñ đéļéţéđ öŕ mövéđ, öŕ bé öñ å ÛŠß đŕîvé ţĥåţ ŵåš ŕémövéđ. Çĥööšé åñöţĥéŕ fîļé, öŕ šåvé ţĥé ŕépöŕţ åĝåîñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Check that the drive is in place and that you may read the file.</source>
        <translation>[Çĥéçķ ţĥåţ ţĥé đŕîvé îš îñ pļåçé åñđ ţĥåţ ýöû måý ŕéåđ ţĥé fîļé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Copy it to a computer and open it there.</source>
        <translation>[Çöpý îţ ţö å çömpûţéŕ åñđ öpéñ îţ ţĥéŕé. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Choose a file that was saved as PDF.</source>
        <translation>[Çĥööšé å fîļé ţĥåţ ŵåš šåvéđ åš PÐF. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Save the report again, or copy the file again from where it came.</source>
        <translation>[Šåvé ţĥé ŕépöŕţ åĝåîñ, öŕ çöpý ţĥé fîļé åĝåîñ fŕöm ŵĥéŕé îţ çåmé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Open it on a computer, or ask whoever made it for a file without a password.</source>
        <translation>[Öpéñ îţ öñ å çömpûţéŕ, öŕ åšķ ŵĥöévéŕ måđé îţ föŕ å fîļé ŵîţĥöûţ å påššŵöŕđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no language "%1".</source>
        <translation>[Ţĥéŕé îš ñö ļåñĝûåĝé "%1". ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Speak the language of that code, such as "de" (default: that of the environment).</source>
        <translation>[Špéåķ ţĥé ļåñĝûåĝé öf ţĥåţ çöđé, šûçĥ åš "đé" (đéfåûļţ: ţĥåţ öf ţĥé éñvîŕöñméñţ). ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>code</source>
        <translation>[çöđé ~]</translation>
    </message>
</context>
<context>
    <name>PendingChangeRow</name>
    <message>
        <source>Changed meanwhile</source>
        <translation>[Çĥåñĝéđ méåñŵĥîļé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>[Ñöŵ: %1 ~]</translation>
    </message>
    <message>
        <source>You have set: %1</source>
        <translation>[Ýöû ĥåvé šéţ: %1 ~ ~]</translation>
    </message>
    <message>
        <source>Dismiss</source>
        <translation>[Ðîšmîšš ~]</translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>[Ŕévéŕţ ~]</translation>
    </message>
    <message>
        <source>Set again</source>
        <translation>[Šéţ åĝåîñ ~]</translation>
    </message>
</context>
<context>
    <name>PendingChangesView</name>
    <message>
        <source>Nothing waits</source>
        <translation>[Ñöţĥîñĝ ŵåîţš ~ ~]</translation>
    </message>
    <message>
        <source>Settings that you change are listed here until they are applied.</source>
        <translation>[Šéţţîñĝš ţĥåţ ýöû çĥåñĝé åŕé ļîšţéđ ĥéŕé ûñţîļ ţĥéý åŕé åppļîéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Changes that wait</source>
        <translation>[Çĥåñĝéš ţĥåţ ŵåîţ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>PeoplePage</name>
    <message>
        <source>People</source>
        <translation>[Péöpļé ~]</translation>
    </message>
    <message>
        <source>Technician</source>
        <translation>[Ţéçĥñîçîåñ ~]</translation>
    </message>
    <message>
        <source>Customer</source>
        <translation>[Çûšţöméŕ ~]</translation>
    </message>
    <message>
        <source>Known customers</source>
        <translation>[Ķñöŵñ çûšţöméŕš ~ ~]</translation>
    </message>
    <message>
        <source>not set</source>
        <translation>[ñöţ šéţ ~]</translation>
    </message>
    <message>
        <source>Name, address or circuit</source>
        <translation>[Ñåmé, åđđŕéšš öŕ çîŕçûîţ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message numerus="yes">
        <source>%n jobs</source>
        <translation>
            <numerusform>[%n ĵöbš ~]</numerusform>
            <numerusform>[%n ĵöbš ~]</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>PicturePage</name>
    <message>
        <source>Delete</source>
        <translation>[Ðéļéţé ~]</translation>
    </message>
</context>
<context>
    <name>PlotImage</name>
    <message>
        <source>at least %1 %2</source>
        <translation>[åţ ļéåšţ %1 %2 ~ ~]</translation>
    </message>
    <message>
        <source>at most %1 %2</source>
        <translation>[åţ möšţ %1 %2 ~ ~]</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>[åñđ %1 möŕé ~]</translation>
    </message>
    <message>
        <source>No data</source>
        <translation>[Ñö đåţå ~]</translation>
    </message>
    <message>
        <source>%1 d</source>
        <translation>%1 d</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 h</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>[%1 mîñ ~]</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>[%1 ţö %2 ~]</translation>
    </message>
    <message>
        <source>beyond a limit</source>
        <translation>[béýöñđ å ļîmîţ ~ ~]</translation>
    </message>
    <message>
        <source>beyond a warning level</source>
        <translation>[béýöñđ å ŵåŕñîñĝ ļévéļ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>PlovJsonDocument</name>
    <message>
        <source>%1: not a regular file</source>
        <translation>[%1: ñöţ å ŕéĝûļåŕ fîļé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>[%1: çåññöţ bé öpéñéđ: %2 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: larger than the %2 MiB that a document may have</source>
        <translation>[%1: ļåŕĝéŕ ţĥåñ ţĥé %2 Mîß ţĥåţ å đöçûméñţ måý ĥåvé ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: cannot be read: %2</source>
        <translation>[%1: çåññöţ bé ŕéåđ: %2 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: holds more than the %2 objects and lists that a document may have</source>
        <translation>[%1: ĥöļđš möŕé ţĥåñ ţĥé %2 öbĵéçţš åñđ ļîšţš ţĥåţ å đöçûméñţ måý ĥåvé ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1:1:1: the root of the document is not an object</source>
        <translation>[%1:1:1: ţĥé ŕööţ öf ţĥé đöçûméñţ îš ñöţ åñ öbĵéçţ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>PreviewDialog</name>
    <message>
        <source>The pages are being made</source>
        <translation>[Ţĥé påĝéš åŕé béîñĝ måđé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There are no pages</source>
        <translation>[Ţĥéŕé åŕé ñö påĝéš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>[Påĝé %1 öf %2 ~ ~]</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>[Žööm öûţ ~]</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>[Žööm îñ ~]</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>[Çļöšé ~]</translation>
    </message>
</context>
<context>
    <name>PreviewPages</name>
    <message>
        <source>Pages</source>
        <translation>[Påĝéš ~]</translation>
    </message>
    <message>
        <source>Page %1</source>
        <translation>[Påĝé %1 ~]</translation>
    </message>
</context>
<context>
    <name>QuantityCard</name>
    <message>
        <source>%1, median: %2</source>
        <translation>[%1, méđîåñ: %2 ~ ~]</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>[Šåmpļé ~]</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>[Ñö šåmpļéš ýéţ ~ ~]</translation>
    </message>
    <message>
        <source>%1 to %2, jitter %3</source>
        <translation>[%1 ţö %2, ĵîţţéŕ %3 ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>RadixEntry</name>
    <message>
        <source>Only the digits %1 can be used here</source>
        <translation>[Öñļý ţĥé đîĝîţš %1 çåñ bé ûšéđ ĥéŕé ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Recording</name>
    <message>
        <source>%1 is not a file.</source>
        <translation>[%1 îš ñöţ å fîļé. ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2.</source>
        <translation>[%1 çåññöţ bé ŕéåđ: %2. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 has no service that can be replayed.</source>
        <translation>[%1 ĥåš ñö šéŕvîçé ţĥåţ çåñ bé ŕépļåýéđ. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>broken lines: %1</source>
        <translation>[bŕöķéñ ļîñéš: %1 ~ ~]</translation>
    </message>
    <message>
        <source>lines whose time goes backwards: %1</source>
        <translation>[ļîñéš ŵĥöšé ţîmé ĝöéš båçķŵåŕđš: %1 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>lines about items or services that are not there: %1</source>
        <translation>[ļîñéš åböûţ îţémš öŕ šéŕvîçéš ţĥåţ åŕé ñöţ ţĥéŕé: %1 ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>lines that do not fit their item: %1</source>
        <translation>[ļîñéš ţĥåţ đö ñöţ fîţ ţĥéîŕ îţém: %1 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>lines beyond the limits: %1</source>
        <translation>[ļîñéš béýöñđ ţĥé ļîmîţš: %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>it ends in the middle</source>
        <translation>[îţ éñđš îñ ţĥé mîđđļé ~ ~ ~]</translation>
    </message>
    <message>
        <source>The recording is not sound and was played as far as it can be: %1.</source>
        <translation>[Ţĥé ŕéçöŕđîñĝ îš ñöţ šöûñđ åñđ ŵåš pļåýéđ åš fåŕ åš îţ çåñ bé: %1. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 exists. Name another file, or remove that one.</source>
        <translation>[%1 éxîšţš. Ñåmé åñöţĥéŕ fîļé, öŕ ŕémövé ţĥåţ öñé. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2.</source>
        <translation>[%1 çåññöţ bé ŵŕîţţéñ: %2. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 is written too slowly. The recording ends here.</source>
        <translation>[%1 îš ŵŕîţţéñ ţöö šļöŵļý. Ţĥé ŕéçöŕđîñĝ éñđš ĥéŕé. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2. The recording ends here.</source>
        <translation>[%1 çåññöţ bé ŵŕîţţéñ: %2. Ţĥé ŕéçöŕđîñĝ éñđš ĥéŕé. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 is not a recording of services.</source>
        <translation>[%1 îš ñöţ å ŕéçöŕđîñĝ öf šéŕvîçéš. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 was recorded by a newer program, which writes another form. Use that one.</source>
        <translation>[%1 ŵåš ŕéçöŕđéđ bý å ñéŵéŕ pŕöĝŕåm, ŵĥîçĥ ŵŕîţéš åñöţĥéŕ föŕm. Ûšé ţĥåţ öñé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>This is a recording: nothing can be started or stopped in it.</source>
        <translation>[Ţĥîš îš å ŕéçöŕđîñĝ: ñöţĥîñĝ çåñ bé šţåŕţéđ öŕ šţöppéđ îñ îţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Report</name>
    <message>
        <source>ID: </source>
        <translation>[ÎÐ: ~] </translation>
    </message>
    <message>
        <source>Tech: </source>
        <translation>[Ţéçĥ: ~] </translation>
    </message>
    <message>
        <source>BAN: </source>
        <translation>[ßÅÑ: ~] </translation>
    </message>
    <message>
        <source>The schema %1 cannot be used: %2</source>
        <translation>[Ţĥé šçĥémå %1 çåññöţ bé ûšéđ: %2 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The report does not match the job schema: %1</source>
        <translation>[Ţĥé ŕépöŕţ đöéš ñöţ måţçĥ ţĥé ĵöb šçĥémå: %1 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no active job</source>
        <translation>[Ţĥéŕé îš ñö åçţîvé ĵöb ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The job has rejected the report: %1</source>
        <translation>[Ţĥé ĵöb ĥåš ŕéĵéçţéđ ţĥé ŕépöŕţ: %1 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The list of reports that are not synced was not changed.</source>
        <translation>[Ţĥé ļîšţ öf ŕépöŕţš ţĥåţ åŕé ñöţ šýñçéđ ŵåš ñöţ çĥåñĝéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The data of the job is not complete: it has no ID</source>
        <translation>[Ţĥé đåţå öf ţĥé ĵöb îš ñöţ çömpļéţé: îţ ĥåš ñö ÎÐ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Job Manager</source>
        <translation>[Ĵöb Måñåĝéŕ ~]</translation>
    </message>
    <message>
        <source>View Report</source>
        <translation>[Vîéŵ Ŕépöŕţ ~]</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>[PÐF ~]</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>[XMĻ ~]</translation>
    </message>
    <message>
        <source>HTML</source>
        <translation>[ĤŢMĻ ~]</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>[ŢÉXŢ ~]</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>[ĴŠÖÑ ~]</translation>
    </message>
    <message>
        <source>ALL</source>
        <translation>[ÅĻĻ ~]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>[Ñåmé ~]</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>[Föŕmåţ ~]</translation>
    </message>
    <message>
        <source>Sync with Meridex</source>
        <translation>[Šýñç ŵîţĥ Méŕîđéx ~ ~ ~]</translation>
    </message>
    <message>
        <source>Report Copied</source>
        <translation>[Ŕépöŕţ Çöpîéđ ~ ~]</translation>
    </message>
    <message>
        <source>Cannot write %1: %2</source>
        <translation>[Çåññöţ ŵŕîţé %1: %2 ~ ~ ~]</translation>
    </message>
    <message>
        <source>the USB drive is not there</source>
        <translation>[ţĥé ÛŠß đŕîvé îš ñöţ ţĥéŕé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Cannot read %1: %2</source>
        <translation>[Çåññöţ ŕéåđ %1: %2 ~ ~ ~]</translation>
    </message>
    <message>
        <source>it has more than 1 MiB</source>
        <translation>[îţ ĥåš möŕé ţĥåñ 1 Mîß ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>it would have more than 1 MiB</source>
        <translation>[îţ ŵöûļđ ĥåvé möŕé ţĥåñ 1 Mîß ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Cannot lock %1: %2</source>
        <translation>[Çåññöţ ļöçķ %1: %2 ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 contains a line feed</source>
        <translation>[%1 çöñţåîñš å ļîñé fééđ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Cannot compress %1: %2</source>
        <translation>[Çåññöţ çömpŕéšš %1: %2 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>gzip is missing or has failed</source>
        <translation>[ĝžîp îš mîššîñĝ öŕ ĥåš fåîļéđ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Sync</source>
        <translation>[Šýñç ~]</translation>
    </message>
    <message>
        <source>%1 is still on the list of reports that are not synced.</source>
        <translation>[%1 îš šţîļļ öñ ţĥé ļîšţ öf ŕépöŕţš ţĥåţ åŕé ñöţ šýñçéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The cloud may take %1, although it is not to be synced.</source>
        <translation>[Ţĥé çļöûđ måý ţåķé %1, åļţĥöûĝĥ îţ îš ñöţ ţö bé šýñçéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Report Saved</source>
        <translation>[Ŕépöŕţ Šåvéđ ~ ~]</translation>
    </message>
    <message>
        <source>Report %1 saved
Folder: %2</source>
        <translation>[Ŕépöŕţ %1 šåvéđ
Föļđéŕ: %2 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>No format is chosen to save the report in.</source>
        <translation>[Ñö föŕmåţ îš çĥöšéñ ţö šåvé ţĥé ŕépöŕţ îñ. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no format "%1" to save the report in.</source>
        <translation>[Ţĥéŕé îš ñö föŕmåţ "%1" ţö šåvé ţĥé ŕépöŕţ îñ. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Write Error</source>
        <translation>[Ŵŕîţé Éŕŕöŕ ~]</translation>
    </message>
    <message>
        <source>There is not enough space to save the report.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ špåçé ţö šåvé ţĥé ŕépöŕţ. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The results are too large to be kept before they are saved</source>
        <translation>[Ţĥé ŕéšûļţš åŕé ţöö ļåŕĝé ţö bé ķépţ béföŕé ţĥéý åŕé šåvéđ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is not enough space to keep the results until they are saved</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ špåçé ţö ķéép ţĥé ŕéšûļţš ûñţîļ ţĥéý åŕé šåvéđ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The results cannot be kept until they are saved: the disk does not take them</source>
        <translation>[Ţĥé ŕéšûļţš çåññöţ bé ķépţ ûñţîļ ţĥéý åŕé šåvéđ: ţĥé đîšķ đöéš ñöţ ţåķé ţĥém ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 files would be overwritten:</source>
        <translation>[%1 fîļéš ŵöûļđ bé övéŕŵŕîţţéñ: ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name does not have the required form</source>
        <translation>[Ţĥé ñåmé đöéš ñöţ ĥåvé ţĥé ŕéqûîŕéđ föŕm ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a NUL character</source>
        <translation>[å ÑÛĻ çĥåŕåçţéŕ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ReportBuilder</name>
    <message>
        <source>Loopback TCP</source>
        <translation>[Ļööpbåçķ ŢÇP ~ ~]</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>[Šûmmåŕý ~]</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>[Šţåŕţéđ ~]</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>[Šéŕvéŕ ~]</translation>
    </message>
    <message>
        <source>%1, median</source>
        <translation>[%1, méđîåñ ~]</translation>
    </message>
    <message>
        <source>%1, minimum</source>
        <translation>[%1, mîñîmûm ~]</translation>
    </message>
    <message>
        <source>%1, maximum</source>
        <translation>[%1, måxîmûm ~]</translation>
    </message>
    <message>
        <source>%1, jitter</source>
        <translation>[%1, ĵîţţéŕ ~]</translation>
    </message>
    <message>
        <source>%1, limit</source>
        <translation>[%1, ļîmîţ ~]</translation>
    </message>
    <message>
        <source>%1 of each sample</source>
        <translation>[%1 öf éåçĥ šåmpļé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Samples</source>
        <translation>[Šåmpļéš ~]</translation>
    </message>
    <message>
        <source>Sample %1</source>
        <translation>[Šåmpļé %1 ~]</translation>
    </message>
</context>
<context>
    <name>ReportPDF</name>
    <message>
        <source>there is not enough memory for its pages</source>
        <translation>[ţĥéŕé îš ñöţ éñöûĝĥ mémöŕý föŕ îţš påĝéš ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Unit ID: %1</source>
        <translation>[Ûñîţ ÎÐ: %1 ~]</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>[Påĝé %1 öf %2 ~ ~]</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>Drawing</source>
        <translation>[Ðŕåŵîñĝ ~]</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>[Pļöţ ~]</translation>
    </message>
    <message>
        <source>Cannot print %1: %2</source>
        <translation>[Çåññöţ pŕîñţ %1: %2 ~ ~ ~]</translation>
    </message>
    <message>
        <source>another file is being printed</source>
        <translation>[åñöţĥéŕ fîļé îš béîñĝ pŕîñţéđ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>[ţĥé pŕöĝŕåm ĥåš ñö föñţš, béçåûšé îţ îš ñöţ å QĜûîÅppļîçåţîöñ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Solvant Report</source>
        <translation>[Šöļvåñţ Ŕépöŕţ ~ ~]</translation>
    </message>
    <message>
        <source>%1 - Continued</source>
        <translation>[%1 - Çöñţîñûéđ ~ ~]</translation>
    </message>
    <message>
        <source>Logo</source>
        <translation>[Ļöĝö ~]</translation>
    </message>
</context>
<context>
    <name>ReportPage</name>
    <message>
        <source>Preview</source>
        <translation>[Pŕévîéŵ ~]</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>[Šåvé ~]</translation>
    </message>
    <message>
        <source>Saved in %1</source>
        <translation>[Šåvéđ îñ %1 ~]</translation>
    </message>
    <message>
        <source>Will be saved in %1</source>
        <translation>[Ŵîļļ bé šåvéđ îñ %1 ~ ~ ~]</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>[Ŕépöŕţ ~]</translation>
    </message>
    <message>
        <source>There is no USB drive: files stay on the unit.</source>
        <translation>[Ţĥéŕé îš ñö ÛŠß đŕîvé: fîļéš šţåý öñ ţĥé ûñîţ. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>On the report</source>
        <translation>[Öñ ţĥé ŕépöŕţ ~ ~]</translation>
    </message>
    <message>
        <source>No job</source>
        <translation>[Ñö ĵöb ~]</translation>
    </message>
</context>
<context>
    <name>ReportTemplate</name>
    <message>
        <source>Value</source>
        <translation>[Våļûé ~]</translation>
    </message>
</context>
<context>
    <name>ResultsPage</name>
    <message>
        <source>Median %1, limit %2</source>
        <translation>[Méđîåñ %1, ļîmîţ %2 ~ ~ ~]</translation>
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
        <source>Sample %1</source>
        <translation>[Šåmpļé %1 ~]</translation>
    </message>
    <message>
        <source>No samples yet</source>
        <translation>[Ñö šåmpļéš ýéţ ~ ~]</translation>
    </message>
    <message>
        <source>Nothing failed</source>
        <translation>[Ñöţĥîñĝ fåîļéđ ~ ~]</translation>
    </message>
    <message>
        <source>All samples meet the limit.</source>
        <translation>[Åļļ šåmpļéš mééţ ţĥé ļîmîţ. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Go to Run</source>
        <translation>[Ĝö ţö Ŕûñ ~]</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>[Ŕéšûļţš ~]</translation>
    </message>
    <message>
        <source>In order</source>
        <translation>[Îñ öŕđéŕ ~]</translation>
    </message>
    <message>
        <source>Smallest</source>
        <translation>[Šmåļļéšţ ~]</translation>
    </message>
    <message>
        <source>Largest</source>
        <translation>[Ļåŕĝéšţ ~]</translation>
    </message>
</context>
<context>
    <name>ReviewPage</name>
    <message>
        <source>Review</source>
        <translation>[Ŕévîéŵ ~]</translation>
    </message>
    <message>
        <source>All of it is applied together, or nothing.</source>
        <translation>[Åļļ öf îţ îš åppļîéđ ţöĝéţĥéŕ, öŕ ñöţĥîñĝ. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Revert all</source>
        <translation>[Ŕévéŕţ åļļ ~]</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>[Åppļý ~]</translation>
    </message>
</context>
<context>
    <name>RunPage</name>
    <message>
        <source>Run</source>
        <translation>[Ŕûñ ~]</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>[Šţöp ~]</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>[Šţåŕţ ~]</translation>
    </message>
    <message>
        <source>%1, server at %2</source>
        <translation>[%1, šéŕvéŕ åţ %2 ~ ~]</translation>
    </message>
</context>
<context>
    <name>SaveProgress</name>
    <message>
        <source>Cancelling the save</source>
        <translation>[Çåñçéļļîñĝ ţĥé šåvé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Saving the report</source>
        <translation>[Šåvîñĝ ţĥé ŕépöŕţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>[Çåñçéļ ~]</translation>
    </message>
</context>
<context>
    <name>SchemaValidator</name>
    <message>
        <source>line %1: %2</source>
        <translation>[ļîñé %1: %2 ~]</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>[åñđ %1 möŕé ~]</translation>
    </message>
    <message>
        <source>%1 is not a file in the folder of the schema</source>
        <translation>[%1 îš ñöţ å fîļé îñ ţĥé föļđéŕ öf ţĥé šçĥémå ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>document type declarations are not accepted</source>
        <translation>[đöçûméñţ ţýpé đéçļåŕåţîöñš åŕé ñöţ åççépţéđ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be read</source>
        <translation>[%1 çåññöţ bé ŕéåđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 is not an XML schema</source>
        <translation>[%1 îš ñöţ åñ XMĻ šçĥémå ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>there is no schema to check against</source>
        <translation>[ţĥéŕé îš ñö šçĥémå ţö çĥéçķ åĝåîñšţ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the text cannot be read as XML</source>
        <translation>[ţĥé ţéxţ çåññöţ bé ŕéåđ åš XMĻ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>SearchField</name>
    <message>
        <source>Search</source>
        <translation>[Šéåŕçĥ ~]</translation>
    </message>
    <message>
        <source>Clear the search</source>
        <translation>[Çļéåŕ ţĥé šéåŕçĥ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Section</name>
    <message>
        <source>Expanded</source>
        <translation>[Éxpåñđéđ ~]</translation>
    </message>
    <message>
        <source>Collapsed</source>
        <translation>[Çöļļåpšéđ ~]</translation>
    </message>
</context>
<context>
    <name>ServiceBanner</name>
    <message>
        <source>"%1" does not answer. What is shown may be old; the page goes on by itself when the service is back.</source>
        <translation>["%1" đöéš ñöţ åñšŵéŕ. Ŵĥåţ îš šĥöŵñ måý bé öļđ; ţĥé påĝé ĝöéš öñ bý îţšéļf ŵĥéñ ţĥé šéŕvîçé îš båçķ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ServiceBus</name>
    <message>
        <source>The service %1 is run by another user and is not used.</source>
        <translation>[Ţĥé šéŕvîçé %1 îš ŕûñ bý åñöţĥéŕ ûšéŕ åñđ îš ñöţ ûšéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>[Ţĥé šéŕvîçé %1 çåññöţ bé ŕéåçĥéđ. Ţŕý åĝåîñ ŵĥéñ îţ ŕûñš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no object %1.</source>
        <translation>[Ţĥéŕé îš ñö öbĵéçţ %1. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The name of the service %1 is too long for a bus.</source>
        <translation>[Ţĥé ñåmé öf ţĥé šéŕvîçé %1 îš ţöö ļöñĝ föŕ å bûš. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A service %1 is published already.</source>
        <translation>[Å šéŕvîçé %1 îš pûbļîšĥéđ åļŕéåđý. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the connection was closed</source>
        <translation>[ţĥé çöññéçţîöñ ŵåš çļöšéđ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>it does not take the connection</source>
        <translation>[îţ đöéš ñöţ ţåķé ţĥé çöññéçţîöñ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The system bus cannot be reached: %1.</source>
        <translation>[Ţĥé šýšţém bûš çåññöţ bé ŕéåçĥéđ: %1. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The session bus cannot be reached: %1.</source>
        <translation>[Ţĥé šéššîöñ bûš çåññöţ bé ŕéåçĥéđ: %1. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 does not say which version of the interface it has: %2</source>
        <translation>[Ţĥé šéŕvîçé %1 đöéš ñöţ šåý ŵĥîçĥ véŕšîöñ öf ţĥé îñţéŕfåçé îţ ĥåš: %2 ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 has version %2 of the interface, and this program knows version %3. Use programs of one release.</source>
        <translation>[Ţĥé šéŕvîçé %1 ĥåš véŕšîöñ %2 öf ţĥé îñţéŕfåçé, åñđ ţĥîš pŕöĝŕåm ķñöŵš véŕšîöñ %3. Ûšé pŕöĝŕåmš öf öñé ŕéļéåšé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 takes no more clients: %2</source>
        <translation>[Ţĥé šéŕvîçé %1 ţåķéš ñö möŕé çļîéñţš: %2 ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: %2</source>
        <translation>[Ţĥé îţémš öf ţĥé šéŕvîçé %1 çåññöţ bé ŕéåđ: %2 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The items of the service %1 cannot be read: they are not what the interface says.</source>
        <translation>[Ţĥé îţémš öf ţĥé šéŕvîçé %1 çåññöţ bé ŕéåđ: ţĥéý åŕé ñöţ ŵĥåţ ţĥé îñţéŕfåçé šåýš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be set: the value is too large, or a text of it holds a NUL.</source>
        <translation>[%1 çåññöţ bé šéţ: ţĥé våļûé îš ţöö ļåŕĝé, öŕ å ţéxţ öf îţ ĥöļđš å ÑÛĻ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 was not sent: its argument is too large, or holds a NUL.</source>
        <translation>[%1 ŵåš ñöţ šéñţ: îţš åŕĝûméñţ îš ţöö ļåŕĝé, öŕ ĥöļđš å ÑÛĻ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 has not answered an earlier request yet. Try again when it does.</source>
        <translation>[Ţĥé šéŕvîçé %1 ĥåš ñöţ åñšŵéŕéđ åñ éåŕļîéŕ ŕéqûéšţ ýéţ. Ţŕý åĝåîñ ŵĥéñ îţ đöéš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 ended before it answered. Try again when it runs.</source>
        <translation>[Ţĥé šéŕvîçé %1 éñđéđ béföŕé îţ åñšŵéŕéđ. Ţŕý åĝåîñ ŵĥéñ îţ ŕûñš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>[Ţĥé šéŕvîçé %1 đîđ ñöţ åñšŵéŕ ŵîţĥîñ %2 mš. Îţ måý šţîļļ çåŕŕý öûţ ţĥé ŕéqûéšţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There are no properties of %1.</source>
        <translation>[Ţĥéŕé åŕé ñö pŕöpéŕţîéš öf %1. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no property %1.</source>
        <translation>[Ţĥéŕé îš ñö pŕöpéŕţý %1. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The properties of a service are read-only.</source>
        <translation>[Ţĥé pŕöpéŕţîéš öf å šéŕvîçé åŕé ŕéåđ-öñļý. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no method %1.%2.</source>
        <translation>[Ţĥéŕé îš ñö méţĥöđ %1.%2. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 takes arguments of the signature "%2", not "%3".</source>
        <translation>[%1 ţåķéš åŕĝûméñţš öf ţĥé šîĝñåţûŕé "%2", ñöţ "%3". ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The items of the service are too large for a message.</source>
        <translation>[Ţĥé îţémš öf ţĥé šéŕvîçé åŕé ţöö ļåŕĝé föŕ å méššåĝé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service has as many clients as it can serve.</source>
        <translation>[Ţĥé šéŕvîçé ĥåš åš måñý çļîéñţš åš îţ çåñ šéŕvé. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The value cannot be read.</source>
        <translation>[Ţĥé våļûé çåññöţ bé ŕéåđ. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service has too much to do. Try again later.</source>
        <translation>[Ţĥé šéŕvîçé ĥåš ţöö mûçĥ ţö đö. Ţŕý åĝåîñ ļåţéŕ. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 was withdrawn before it could answer.</source>
        <translation>[Ţĥé šéŕvîçé %1 ŵåš ŵîţĥđŕåŵñ béföŕé îţ çöûļđ åñšŵéŕ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 answered something that the interface does not know.</source>
        <translation>[Ţĥé šéŕvîçé %1 åñšŵéŕéđ šöméţĥîñĝ ţĥåţ ţĥé îñţéŕfåçé đöéš ñöţ ķñöŵ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ServiceCard</name>
    <message numerus="yes">
        <source>%n items</source>
        <translation>
            <numerusform>[%n îţémš ~]</numerusform>
            <numerusform>[%n îţémš ~]</numerusform>
        </translation>
    </message>
    <message>
        <source>Cannot be reached</source>
        <translation>[Çåññöţ bé ŕéåçĥéđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>answers slowly</source>
        <translation>[åñšŵéŕš šļöŵļý ~ ~]</translation>
    </message>
    <message>
        <source>rejects every change</source>
        <translation>[ŕéĵéçţš évéŕý çĥåñĝé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Fast</source>
        <translation>[Fåšţ ~]</translation>
    </message>
    <message>
        <source>Slow</source>
        <translation>[Šļöŵ ~]</translation>
    </message>
    <message>
        <source>Accept</source>
        <translation>[Åççépţ ~]</translation>
    </message>
    <message>
        <source>Refuse</source>
        <translation>[Ŕéfûšé ~]</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>[Ŕéţûŕñ ~]</translation>
    </message>
    <message>
        <source>Vanish</source>
        <translation>[Våñîšĥ ~]</translation>
    </message>
    <message>
        <source>The service lives in another process. It can be watched and edited, not disturbed.</source>
        <translation>[Ţĥé šéŕvîçé ļîvéš îñ åñöţĥéŕ pŕöçéšš. Îţ çåñ bé ŵåţçĥéđ åñđ éđîţéđ, ñöţ đîšţûŕbéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A transaction runs</source>
        <translation>[Å ţŕåñšåçţîöñ ŕûñš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Not sent</source>
        <translation>[Ñöţ šéñţ ~]</translation>
    </message>
    <message>
        <source>Now: %1</source>
        <translation>[Ñöŵ: %1 ~]</translation>
    </message>
    <message>
        <source>Nothing is changed yet.</source>
        <translation>[Ñöţĥîñĝ îš çĥåñĝéđ ýéţ. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Pending changes</source>
        <translation>[Péñđîñĝ çĥåñĝéš ~ ~]</translation>
    </message>
</context>
<context>
    <name>ServiceFile</name>
    <message>
        <source>the id %1 stands twice</source>
        <translation>[ţĥé îđ %1 šţåñđš ţŵîçé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the id %1 lacks its category or the colon at its end, or has more than %2 characters</source>
        <translation>[ţĥé îđ %1 ļåçķš îţš çåţéĝöŕý öŕ ţĥé çöļöñ åţ îţš éñđ, öŕ ĥåš möŕé ţĥåñ %2 çĥåŕåçţéŕš ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the type %1 of %2 is unknown</source>
        <translation>[ţĥé ţýpé %1 öf %2 îš ûñķñöŵñ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an array</source>
        <translation>[ţĥé ţýpé %1 åñđ ţĥé îđ %2 đîšåĝŕéé öñ ŵĥéţĥéŕ îţ îš åñ åŕŕåý ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the type %1 and the id %2 disagree on whether it is an action</source>
        <translation>[ţĥé ţýpé %1 åñđ ţĥé îđ %2 đîšåĝŕéé öñ ŵĥéţĥéŕ îţ îš åñ åçţîöñ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>an aggregate or table without members</source>
        <translation>[åñ åĝĝŕéĝåţé öŕ ţåbļé ŵîţĥöûţ mémbéŕš ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the type %1 has no members</source>
        <translation>[ţĥé ţýpé %1 ĥåš ñö mémbéŕš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the name "%1" is empty or appears twice</source>
        <translation>[ţĥé ñåmé "%1" îš émpţý öŕ åppéåŕš ţŵîçé ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a member cannot have the type %1</source>
        <translation>[å mémbéŕ çåññöţ ĥåvé ţĥé ţýpé %1 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the type %1 has no choices</source>
        <translation>[ţĥé ţýpé %1 ĥåš ñö çĥöîçéš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>only an action can have "does", not the type %1</source>
        <translation>[öñļý åñ åçţîöñ çåñ ĥåvé "đöéš", ñöţ ţĥé ţýpé %1 ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a negative delay</source>
        <translation>[å ñéĝåţîvé đéļåý ~ ~]</translation>
    </message>
    <message>
        <source>only a text that is a result can be clearable</source>
        <translation>[öñļý å ţéxţ ţĥåţ îš å ŕéšûļţ çåñ bé çļéåŕåbļé ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a precision outside 0 to %1</source>
        <translation>[å pŕéçîšîöñ öûţšîđé 0 ţö %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>/does/set: there is no item %1</source>
        <translation>[/đöéš/šéţ: ţĥéŕé îš ñö îţém %1 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>/does/set: the value of %1: %2</source>
        <translation>[/đöéš/šéţ: ţĥé våļûé öf %1: %2 ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a mount point begins with a slash</source>
        <translation>[å möûñţ pöîñţ béĝîñš ŵîţĥ å šļåšĥ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>/service: a name has 1 to %1 characters</source>
        <translation>[/šéŕvîçé: å ñåmé ĥåš 1 ţö %1 çĥåŕåçţéŕš ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the id %1 appears twice</source>
        <translation>[ţĥé îđ %1 åppéåŕš ţŵîçé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the value %1 appears twice or is negative</source>
        <translation>[ţĥé våļûé %1 åppéåŕš ţŵîçé öŕ îš ñéĝåţîvé ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a value of this type has no limits</source>
        <translation>[å våļûé öf ţĥîš ţýpé ĥåš ñö ļîmîţš ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>[ñöţ å ñûmbéŕ ~ ~]</translation>
    </message>
    <message>
        <source>the minimum is above the maximum</source>
        <translation>[ţĥé mîñîmûm îš åbövé ţĥé måxîmûm ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: not a folder of service files, or not readable</source>
        <translation>[%1: ñöţ å föļđéŕ öf šéŕvîçé fîļéš, öŕ ñöţ ŕéåđåbļé ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the program</source>
        <translation>[ţĥé pŕöĝŕåm ~]</translation>
    </message>
    <message>
        <source>/service: "%1" is published already by %2</source>
        <translation>[/šéŕvîçé: "%1" îš pûbļîšĥéđ åļŕéåđý bý %2 ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the service %1 has an item %2 already</source>
        <translation>[ţĥé šéŕvîçé %1 ĥåš åñ îţém %2 åļŕéåđý ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not of the type %1</source>
        <translation>[ñöţ öf ţĥé ţýpé %1 ~ ~ ~]</translation>
    </message>
    <message>
        <source>a service file may not say this here; uiutils-check tells what it may</source>
        <translation>[å šéŕvîçé fîļé måý ñöţ šåý ţĥîš ĥéŕé; ûîûţîļš-çĥéçķ ţéļļš ŵĥåţ îţ måý ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ServiceItem</name>
    <message>
        <source>Account ID</source>
        <translation>[Åççöûñţ ÎÐ ~]</translation>
    </message>
    <message>
        <source>Active Work Order</source>
        <translation>[Åçţîvé Ŵöŕķ Öŕđéŕ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Address</source>
        <translation>[Åđđŕéšš ~]</translation>
    </message>
    <message>
        <source>Attach Report</source>
        <translation>[Åţţåçĥ Ŕépöŕţ ~ ~]</translation>
    </message>
    <message>
        <source>Automatic</source>
        <translation>[Åûţömåţîç ~]</translation>
    </message>
    <message>
        <source>Backscatter</source>
        <translation>[ßåçķšçåţţéŕ ~]</translation>
    </message>
    <message>
        <source>Base Unit</source>
        <translation>[ßåšé Ûñîţ ~]</translation>
    </message>
    <message>
        <source>Battery</source>
        <translation>[ßåţţéŕý ~]</translation>
    </message>
    <message>
        <source>Cable</source>
        <translation>[Çåbļé ~]</translation>
    </message>
    <message>
        <source>Calibrate</source>
        <translation>[Çåļîbŕåţé ~]</translation>
    </message>
    <message>
        <source>Calibration</source>
        <translation>[Çåļîbŕåţîöñ ~]</translation>
    </message>
    <message>
        <source>Circuit ID</source>
        <translation>[Çîŕçûîţ ÎÐ ~]</translation>
    </message>
    <message>
        <source>Collector</source>
        <translation>[Çöļļéçţöŕ ~]</translation>
    </message>
    <message>
        <source>Components</source>
        <translation>[Çömpöñéñţš ~]</translation>
    </message>
    <message>
        <source>Contact</source>
        <translation>[Çöñţåçţ ~]</translation>
    </message>
    <message>
        <source>Customer Fields in Reports</source>
        <translation>[Çûšţöméŕ Fîéļđš îñ Ŕépöŕţš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Customer Name</source>
        <translation>[Çûšţöméŕ Ñåmé ~ ~]</translation>
    </message>
    <message>
        <source>Display</source>
        <translation>[Ðîšpļåý ~]</translation>
    </message>
    <message>
        <source>Duration</source>
        <translation>[Ðûŕåţîöñ ~]</translation>
    </message>
    <message>
        <source>Ethernet Module</source>
        <translation>[Éţĥéŕñéţ Möđûļé ~ ~]</translation>
    </message>
    <message>
        <source>Events</source>
        <translation>[Évéñţš ~]</translation>
    </message>
    <message>
        <source>First Name</source>
        <translation>[Fîŕšţ Ñåmé ~]</translation>
    </message>
    <message>
        <source>Internal</source>
        <translation>[Îñţéŕñåļ ~]</translation>
    </message>
    <message>
        <source>Internal and USB</source>
        <translation>[Îñţéŕñåļ åñđ ÛŠß ~ ~]</translation>
    </message>
    <message>
        <source>Job Active</source>
        <translation>[Ĵöb Åçţîvé ~]</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>[Ĵöb ßÅÑ ~]</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>[Ĵöb ÎÐ ~]</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>[Ĵöb Ţéçĥñîçîåñ ~ ~]</translation>
    </message>
    <message>
        <source>Keep Report Name</source>
        <translation>[Ķéép Ŕépöŕţ Ñåmé ~ ~]</translation>
    </message>
    <message>
        <source>Laser Power</source>
        <translation>[Ļåšéŕ Pöŵéŕ ~]</translation>
    </message>
    <message>
        <source>Last Name</source>
        <translation>[Ļåšţ Ñåmé ~]</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>[Ļéñĝţĥ ~]</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>[Ļîmîţš ~]</translation>
    </message>
    <message>
        <source>Link Loss</source>
        <translation>[Ļîñķ Ļöšš ~]</translation>
    </message>
    <message>
        <source>Manifest</source>
        <translation>[Måñîféšţ ~]</translation>
    </message>
    <message>
        <source>Manual</source>
        <translation>[Måñûåļ ~]</translation>
    </message>
    <message>
        <source>Maximum Round-Trip Time</source>
        <translation>[Måxîmûm Ŕöûñđ-Ţŕîp Ţîmé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Message Size</source>
        <translation>[Méššåĝé Šîžé ~ ~]</translation>
    </message>
    <message>
        <source>Minimum Throughput</source>
        <translation>[Mîñîmûm Ţĥŕöûĝĥpûţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Mode</source>
        <translation>[Möđé ~]</translation>
    </message>
    <message>
        <source>Offset</source>
        <translation>[Öffšéţ ~]</translation>
    </message>
    <message>
        <source>Phone</source>
        <translation>[Pĥöñé ~]</translation>
    </message>
    <message>
        <source>Proposed Report Name</source>
        <translation>[Pŕöpöšéđ Ŕépöŕţ Ñåmé ~ ~ ~]</translation>
    </message>
    <message>
        <source>Pulse Width</source>
        <translation>[Pûļšé Ŵîđţĥ ~]</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>[Ŕåñĝé ~]</translation>
    </message>
    <message>
        <source>Real time</source>
        <translation>[Ŕéåļ ţîmé ~]</translation>
    </message>
    <message>
        <source>Reports Not Synced</source>
        <translation>[Ŕépöŕţš Ñöţ Šýñçéđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Return Loss</source>
        <translation>[Ŕéţûŕñ Ļöšš ~]</translation>
    </message>
    <message>
        <source>Round-Trip Samples</source>
        <translation>[Ŕöûñđ-Ţŕîp Šåmpļéš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>[Ŕöûñđ-ţŕîp ţîmé ~ ~]</translation>
    </message>
    <message>
        <source>Sample</source>
        <translation>[Šåmpļé ~]</translation>
    </message>
    <message>
        <source>Save Location</source>
        <translation>[Šåvé Ļöçåţîöñ ~ ~]</translation>
    </message>
    <message>
        <source>Session</source>
        <translation>[Šéššîöñ ~]</translation>
    </message>
    <message>
        <source>Splitter Stages</source>
        <translation>[Špļîţţéŕ Šţåĝéš ~ ~]</translation>
    </message>
    <message>
        <source>Start</source>
        <translation>[Šţåŕţ ~]</translation>
    </message>
    <message>
        <source>State</source>
        <translation>[Šţåţé ~]</translation>
    </message>
    <message>
        <source>Stop</source>
        <translation>[Šţöp ~]</translation>
    </message>
    <message>
        <source>Store Traces</source>
        <translation>[Šţöŕé Ţŕåçéš ~ ~]</translation>
    </message>
    <message>
        <source>Tech ID</source>
        <translation>[Ţéçĥ ÎÐ ~]</translation>
    </message>
    <message>
        <source>Technician Fields in Reports</source>
        <translation>[Ţéçĥñîçîåñ Fîéļđš îñ Ŕépöŕţš ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Test Label</source>
        <translation>[Ţéšţ Ļåbéļ ~]</translation>
    </message>
    <message>
        <source>Test Type</source>
        <translation>[Ţéšţ Ţýpé ~]</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>[Ţĥŕöûĝĥpûţ ~]</translation>
    </message>
    <message>
        <source>Throughput Samples</source>
        <translation>[Ţĥŕöûĝĥpûţ Šåmpļéš ~ ~ ~]</translation>
    </message>
    <message>
        <source>USB</source>
        <translation>[ÛŠß ~]</translation>
    </message>
    <message>
        <source>USB Attached</source>
        <translation>[ÛŠß Åţţåçĥéđ ~ ~]</translation>
    </message>
    <message>
        <source>Versions</source>
        <translation>[Véŕšîöñš ~]</translation>
    </message>
    <message>
        <source>Wavelength</source>
        <translation>[Ŵåvéļéñĝţĥ ~]</translation>
    </message>
    <message>
        <source>Workflow</source>
        <translation>[Ŵöŕķfļöŵ ~]</translation>
    </message>
    <message>
        <source>Worst Event</source>
        <translation>[Ŵöŕšţ Évéñţ ~]</translation>
    </message>
    <message>
        <source>Charging</source>
        <translation>[Çĥåŕĝîñĝ ~]</translation>
    </message>
    <message>
        <source>Close Job</source>
        <translation>[Çļöšé Ĵöb ~]</translation>
    </message>
    <message>
        <source>Customers</source>
        <translation>[Çûšţöméŕš ~]</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>[Ðåŕķ ~]</translation>
    </message>
    <message>
        <source>Jobs</source>
        <translation>[Ĵöbš ~]</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>[Ļåñĝûåĝé ~]</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>[Ļîĝĥţ ~]</translation>
    </message>
    <message>
        <source>Link</source>
        <translation>[Ļîñķ ~]</translation>
    </message>
    <message>
        <source>Link Speed</source>
        <translation>[Ļîñķ Špééđ ~]</translation>
    </message>
    <message>
        <source>Open Job</source>
        <translation>[Öpéñ Ĵöb ~]</translation>
    </message>
    <message>
        <source>Sound</source>
        <translation>[Šöûñđ ~]</translation>
    </message>
    <message>
        <source>Sunlight</source>
        <translation>[Šûñļîĝĥţ ~]</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>[Ţĥémé ~]</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>[Pŕöĝŕéšš ~]</translation>
    </message>
    <message>
        <source>Received Power</source>
        <translation>[Ŕéçéîvéđ Pöŵéŕ ~ ~]</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Mbit/s</source>
        <translation>[Mbîţ/š ~]</translation>
    </message>
    <message>
        <source>The calibration can only be set at the factory.</source>
        <translation>[Ţĥé çåļîbŕåţîöñ çåñ öñļý bé šéţ åţ ţĥé fåçţöŕý. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The calibration needs a reference fiber. Connect one and try again.</source>
        <translation>[Ţĥé çåļîbŕåţîöñ ñééđš å ŕéféŕéñçé fîbéŕ. Çöññéçţ öñé åñđ ţŕý åĝåîñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no light on the fiber. Check the connector, and start again.</source>
        <translation>[Ţĥéŕé îš ñö ļîĝĥţ öñ ţĥé fîbéŕ. Çĥéçķ ţĥé çöññéçţöŕ, åñđ šţåŕţ åĝåîñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>dB</source>
        <translation>[đß ~]</translation>
    </message>
    <message>
        <source>dBm</source>
        <translation>[đßm ~]</translation>
    </message>
    <message>
        <source>km</source>
        <translation>[ķm ~]</translation>
    </message>
    <message>
        <source>m</source>
        <translation>m</translation>
    </message>
    <message>
        <source>ms</source>
        <translation>[mš ~]</translation>
    </message>
    <message>
        <source>nm</source>
        <translation>[ñm ~]</translation>
    </message>
    <message>
        <source>ns</source>
        <translation>[ñš ~]</translation>
    </message>
</context>
<context>
    <name>ServiceRequest</name>
    <message>
        <source>Nothing was set. %1</source>
        <translation>[Ñöţĥîñĝ ŵåš šéţ. %1 ~ ~ ~]</translation>
    </message>
    <message>
        <source>not an object</source>
        <translation>[ñöţ åñ öbĵéçţ ~ ~]</translation>
    </message>
    <message>
        <source>The settings for the service %1 are not a JSON object of values by name: %2.</source>
        <translation>[Ţĥé šéţţîñĝš föŕ ţĥé šéŕvîçé %1 åŕé ñöţ å ĴŠÖÑ öbĵéçţ öf våļûéš bý ñåmé: %2. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no setting "%1".</source>
        <translation>[Ţĥéŕé îš ñö šéţţîñĝ "%1". ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 is named twice.</source>
        <translation>[%1 îš ñåméđ ţŵîçé. ~ ~ ~]</translation>
    </message>
    <message>
        <source>Settings applied: %1.</source>
        <translation>[Šéţţîñĝš åppļîéđ: %1. ~ ~ ~]</translation>
    </message>
    <message>
        <source>The configuration of %1 was not saved: it needs a name, as in "My settings,1".</source>
        <translation>[Ţĥé çöñfîĝûŕåţîöñ öf %1 ŵåš ñöţ šåvéđ: îţ ñééđš å ñåmé, åš îñ "Mý šéţţîñĝš,1". ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The configuration "%1" was not saved: there is no folder to store it in.</source>
        <translation>[Ţĥé çöñfîĝûŕåţîöñ "%1" ŵåš ñöţ šåvéđ: ţĥéŕé îš ñö föļđéŕ ţö šţöŕé îţ îñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The configuration was saved as "%1".</source>
        <translation>[Ţĥé çöñfîĝûŕåţîöñ ŵåš šåvéđ åš "%1". ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 cannot be reached. Try again when it runs.</source>
        <translation>[Ţĥé šéŕvîçé %1 çåññöţ bé ŕéåçĥéđ. Ţŕý åĝåîñ ŵĥéñ îţ ŕûñš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be set to %2: %3. Allowed: %4.</source>
        <translation>[%1 çåññöţ bé šéţ ţö %2: %3. Åļļöŵéđ: %4. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be set now: it is not ready. Try again later.</source>
        <translation>[%1 çåññöţ bé šéţ ñöŵ: îţ îš ñöţ ŕéåđý. Ţŕý åĝåîñ ļåţéŕ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not available now</source>
        <translation>[ñöţ åvåîļåbļé ñöŵ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 has no item %2 any more.</source>
        <translation>[Ţĥé šéŕvîçé %1 ĥåš ñö îţém %2 åñý möŕé. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The action failed.</source>
        <translation>[Ţĥé åçţîöñ fåîļéđ. ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be set: it is not a setting.</source>
        <translation>[%1 çåññöţ bé šéţ: îţ îš ñöţ å šéţţîñĝ. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be set: it can only be emptied.</source>
        <translation>[%1 çåññöţ bé šéţ: îţ çåñ öñļý bé émpţîéđ. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 has no item %2.</source>
        <translation>[Ţĥé šéŕvîçé %1 ĥåš ñö îţém %2. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 cannot be carried out: the service %2 has no handler for it.</source>
        <translation>[%1 çåññöţ bé çåŕŕîéđ öûţ: ţĥé šéŕvîçé %2 ĥåš ñö ĥåñđļéŕ föŕ îţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 has no action %2.</source>
        <translation>[Ţĥé šéŕvîçé %1 ĥåš ñö åçţîöñ %2. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service %1 did not answer within %2 ms. It may still carry out the request.</source>
        <translation>[Ţĥé šéŕvîçé %1 đîđ ñöţ åñšŵéŕ ŵîţĥîñ %2 mš. Îţ måý šţîļļ çåŕŕý öûţ ţĥé ŕéqûéšţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ServiceState</name>
    <message>
        <source>It could not be renamed, so changed settings will be lost when the program ends.</source>
        <translation>[Îţ çöûļđ ñöţ bé ŕéñåméđ, šö çĥåñĝéđ šéţţîñĝš ŵîļļ bé ļöšţ ŵĥéñ ţĥé pŕöĝŕåm éñđš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>It was renamed to %1, and the settings are those of the service file.</source>
        <translation>[Îţ ŵåš ŕéñåméđ ţö %1, åñđ ţĥé šéţţîñĝš åŕé ţĥöšé öf ţĥé šéŕvîçé fîļé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: /values: the object with the values by item id is missing.</source>
        <translation>[%1: /våļûéš: ţĥé öbĵéçţ ŵîţĥ ţĥé våļûéš bý îţém îđ îš mîššîñĝ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The settings of %1 could not be stored in %2: %3.</source>
        <translation>[Ţĥé šéţţîñĝš öf %1 çöûļđ ñöţ bé šţöŕéđ îñ %2: %3. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the folder cannot be created</source>
        <translation>[ţĥé föļđéŕ çåññöţ bé çŕéåţéđ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the service %1 has no such setting</source>
        <translation>[ţĥé šéŕvîçé %1 ĥåš ñö šûçĥ šéţţîñĝ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: %2: %3. The value stays in the file.</source>
        <translation>[%1: %2: %3. Ţĥé våļûé šţåýš îñ ţĥé fîļé. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>this is not a setting</source>
        <translation>[ţĥîš îš ñöţ å šéţţîñĝ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 is %2, allowed: %3</source>
        <translation>[%1 îš %2, åļļöŵéđ: %3 ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ServiceValue</name>
    <message>
        <source>%1 or more</source>
        <translation>[%1 öŕ möŕé ~]</translation>
    </message>
    <message>
        <source>%1 or less</source>
        <translation>[%1 öŕ ļéšš ~]</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>[%1 ţö %2 ~]</translation>
    </message>
    <message>
        <source>a text</source>
        <translation>[å ţéxţ ~]</translation>
    </message>
    <message>
        <source>%1 characters</source>
        <translation>[%1 çĥåŕåçţéŕš ~ ~]</translation>
    </message>
    <message>
        <source>any number</source>
        <translation>[åñý ñûmbéŕ ~]</translation>
    </message>
    <message>
        <source>the members %1</source>
        <translation>[ţĥé mémbéŕš %1 ~ ~]</translation>
    </message>
    <message>
        <source>nothing</source>
        <translation>[ñöţĥîñĝ ~]</translation>
    </message>
    <message>
        <source>a list</source>
        <translation>[å ļîšţ ~]</translation>
    </message>
    <message>
        <source>an aggregate</source>
        <translation>[åñ åĝĝŕéĝåţé ~ ~]</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>[ţŕûé öŕ fåļšé ~ ~]</translation>
    </message>
    <message>
        <source>not a number</source>
        <translation>[ñöţ å ñûmbéŕ ~ ~]</translation>
    </message>
    <message>
        <source>not a finite number</source>
        <translation>[ñöţ å fîñîţé ñûmbéŕ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not a whole number</source>
        <translation>[ñöţ å ŵĥöļé ñûmbéŕ ~ ~ ~]</translation>
    </message>
    <message>
        <source>out of range</source>
        <translation>[öûţ öf ŕåñĝé ~ ~]</translation>
    </message>
    <message>
        <source>neither true nor false</source>
        <translation>[ñéîţĥéŕ ţŕûé ñöŕ fåļšé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not a text</source>
        <translation>[ñöţ å ţéxţ ~]</translation>
    </message>
    <message>
        <source>not a value that an item of this type can have</source>
        <translation>[ñöţ å våļûé ţĥåţ åñ îţém öf ţĥîš ţýpé çåñ ĥåvé ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not a list</source>
        <translation>[ñöţ å ļîšţ ~]</translation>
    </message>
    <message>
        <source>not an aggregate</source>
        <translation>[ñöţ åñ åĝĝŕéĝåţé ~ ~]</translation>
    </message>
    <message>
        <source>the member "%1" is missing</source>
        <translation>[ţĥé mémbéŕ "%1" îš mîššîñĝ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>member "%1": %2</source>
        <translation>[mémbéŕ "%1": %2 ~ ~]</translation>
    </message>
    <message>
        <source>there is no member "%1"</source>
        <translation>[ţĥéŕé îš ñö mémbéŕ "%1" ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not a list of aggregates</source>
        <translation>[ñöţ å ļîšţ öf åĝĝŕéĝåţéš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>element %1: %2</source>
        <translation>[éļéméñţ %1: %2 ~ ~]</translation>
    </message>
    <message>
        <source>too short</source>
        <translation>[ţöö šĥöŕţ ~]</translation>
    </message>
    <message>
        <source>too long</source>
        <translation>[ţöö ļöñĝ ~]</translation>
    </message>
    <message>
        <source>not of the expected form</source>
        <translation>[ñöţ öf ţĥé éxpéçţéđ föŕm ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>not one of the choices</source>
        <translation>[ñöţ öñé öf ţĥé çĥöîçéš ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>ServicesPage</name>
    <message>
        <source>No services yet</source>
        <translation>[Ñö šéŕvîçéš ýéţ ~ ~]</translation>
    </message>
    <message>
        <source>They are shown when they come.</source>
        <translation>[Ţĥéý åŕé šĥöŵñ ŵĥéñ ţĥéý çömé. ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>kB</source>
        <translation>[ķß ~]</translation>
    </message>
    <message>
        <source>MB</source>
        <translation>[Mß ~]</translation>
    </message>
    <message>
        <source>GB</source>
        <translation>[Ĝß ~]</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>SettingsPage</name>
    <message>
        <source>Settings</source>
        <translation>[Šéţţîñĝš ~]</translation>
    </message>
    <message>
        <source>Screenshot</source>
        <translation>[Šçŕééñšĥöţ ~]</translation>
    </message>
    <message>
        <source>Screen</source>
        <translation>[Šçŕééñ ~]</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>[Fîļéš ~]</translation>
    </message>
    <message>
        <source>More</source>
        <translation>[Möŕé ~]</translation>
    </message>
    <message>
        <source>User</source>
        <translation>[Ûšéŕ ~]</translation>
    </message>
    <message>
        <source>Gallery of the kit</source>
        <translation>[Ĝåļļéŕý öf ţĥé ķîţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Everything that pages are made of</source>
        <translation>[Évéŕýţĥîñĝ ţĥåţ påĝéš åŕé måđé öf ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>[Ûñîţ ~]</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>[Ļåñĝûåĝé ~]</translation>
    </message>
</context>
<context>
    <name>SetupPage</name>
    <message>
        <source>Set-up</source>
        <translation>[Šéţ-ûp ~]</translation>
    </message>
    <message>
        <source>Everything is applied.</source>
        <translation>[Évéŕýţĥîñĝ îš åppļîéđ. ~ ~ ~ ~]</translation>
    </message>
    <message numerus="yes">
        <source>%n changes are not applied yet.</source>
        <translation>
            <numerusform>[%n çĥåñĝéš åŕé ñöţ åppļîéđ ýéţ. ~ ~ ~ ~ ~]</numerusform>
            <numerusform>[%n çĥåñĝéš åŕé ñöţ åppļîéđ ýéţ. ~ ~ ~ ~ ~]</numerusform>
        </translation>
    </message>
    <message>
        <source>Revert</source>
        <translation>[Ŕévéŕţ ~]</translation>
    </message>
    <message>
        <source>Review</source>
        <translation>[Ŕévîéŵ ~]</translation>
    </message>
    <message>
        <source>There is no set-up</source>
        <translation>[Ţĥéŕé îš ñö šéţ-ûp ~ ~ ~]</translation>
    </message>
    <message>
        <source>The service loopback is not published.</source>
        <translation>[Ţĥé šéŕvîçé ļööpbåçķ îš ñöţ pûbļîšĥéđ. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Limits</source>
        <translation>[Ļîmîţš ~]</translation>
    </message>
    <message>
        <source>What passes, and what fails.</source>
        <translation>[Ŵĥåţ påššéš, åñđ ŵĥåţ fåîļš. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>[Ŕûñ ~]</translation>
    </message>
    <message numerus="yes">
        <source>%n settings were changed meanwhile.</source>
        <translation>
            <numerusform>[%n šéţţîñĝš ŵéŕé çĥåñĝéđ méåñŵĥîļé. ~ ~ ~ ~ ~ ~]</numerusform>
            <numerusform>[%n šéţţîñĝš ŵéŕé çĥåñĝéđ méåñŵĥîļé. ~ ~ ~ ~ ~ ~]</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>Sheet</name>
    <message>
        <source>Page %1</source>
        <translation>[Påĝé %1 ~]</translation>
    </message>
    <message>
        <source>Page %1 cannot be drawn. The file may be damaged.</source>
        <translation>[Påĝé %1 çåññöţ bé đŕåŵñ. Ţĥé fîļé måý bé đåmåĝéđ. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>Simulation</name>
    <message>
        <source>%1 is running already. Stop it, or wait until it is done.</source>
        <translation>[%1 îš ŕûññîñĝ åļŕéåđý. Šţöp îţ, öŕ ŵåîţ ûñţîļ îţ îš đöñé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the value of %1: %2</source>
        <translation>[ţĥé våļûé öf %1: %2 ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: not a regular file</source>
        <translation>[%1: ñöţ å ŕéĝûļåŕ fîļé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: cannot be opened: %2</source>
        <translation>[%1: çåññöţ bé öpéñéđ: %2 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: larger than %2 MiB</source>
        <translation>[%1: ļåŕĝéŕ ţĥåñ %2 Mîß ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: the first line names no column "%2"</source>
        <translation>[%1: ţĥé fîŕšţ ļîñé ñåméš ñö çöļûmñ "%2" ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: no line has a value of the item's type in the column</source>
        <translation>[%1: ñö ļîñé ĥåš å våļûé öf ţĥé îţém'š ţýpé îñ ţĥé çöļûmñ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>only a result can move: settings are set by clients</source>
        <translation>[öñļý å ŕéšûļţ çåñ mövé: šéţţîñĝš åŕé šéţ bý çļîéñţš ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>an item of the type %1 cannot move as "%2"</source>
        <translation>[åñ îţém öf ţĥé ţýpé %1 çåññöţ mövé åš "%2" ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>has no meaning for "%1"</source>
        <translation>[ĥåš ñö méåñîñĝ föŕ "%1" ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>must be greater than "from"</source>
        <translation>[mûšţ bé ĝŕéåţéŕ ţĥåñ "fŕöm" ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>only numbers have "noise", "from" and "to"</source>
        <translation>[öñļý ñûmbéŕš ĥåvé "ñöîšé", "fŕöm" åñđ "ţö" ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1. The item %2 stands still.</source>
        <translation>[%1. Ţĥé îţém %2 šţåñđš šţîļļ. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: %2 of %3 lines have no value for %4 and are left out.</source>
        <translation>[%1: %2 öf %3 ļîñéš ĥåvé ñö våļûé föŕ %4 åñđ åŕé ļéfţ öûţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>only numbers and Booleans can be judged by their value</source>
        <translation>[öñļý ñûmbéŕš åñđ ßööļéåñš çåñ bé ĵûđĝéđ bý ţĥéîŕ våļûé ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>"to" is less than "from"</source>
        <translation>["ţö" îš ļéšš ţĥåñ "fŕöm" ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>there is no item %1 that is a number</source>
        <translation>[ţĥéŕé îš ñö îţém %1 ţĥåţ îš å ñûmbéŕ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>there is no item %1 that has a value</source>
        <translation>[ţĥéŕé îš ñö îţém %1 ţĥåţ ĥåš å våļûé ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a value of %1 is drawn from the numbers between "from" and "to"</source>
        <translation>[å våļûé öf %1 îš đŕåŵñ fŕöm ţĥé ñûmbéŕš béţŵééñ "fŕöm" åñđ "ţö" ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>must be greater than "for"</source>
        <translation>[mûšţ bé ĝŕéåţéŕ ţĥåñ "föŕ" ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>no id begins with "%1"</source>
        <translation>[ñö îđ béĝîñš ŵîţĥ "%1" ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>there is no action %1 that "runs"</source>
        <translation>[ţĥéŕé îš ñö åçţîöñ %1 ţĥåţ "ŕûñš" ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>nothing happens: say what, such as "vanish": true</source>
        <translation>[ñöţĥîñĝ ĥåppéñš: šåý ŵĥåţ, šûçĥ åš "våñîšĥ": ţŕûé ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 The item %2 stands still.</source>
        <translation>[%1 Ţĥé îţém %2 šţåñđš šţîļļ. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: lines that cannot be read are left out: %2</source>
        <translation>[%1: ļîñéš ţĥåţ çåññöţ bé ŕéåđ åŕé ļéfţ öûţ: %2 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1: the recording has no value of %2.</source>
        <translation>[%1: ţĥé ŕéçöŕđîñĝ ĥåš ñö våļûé öf %2. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>SwitchEntry</name>
    <message>
        <source>On</source>
        <translation>[Öñ ~]</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>[Öff ~]</translation>
    </message>
</context>
<context>
    <name>TemplateToHtmlWriter</name>
    <message>
        <source>Pass</source>
        <translation>[Påšš ~]</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>[Måŕĝîñåļ ~]</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>[Fåîļ ~]</translation>
    </message>
    <message>
        <source>Job ID</source>
        <translation>[Ĵöb ÎÐ ~]</translation>
    </message>
    <message>
        <source>Job BAN</source>
        <translation>[Ĵöb ßÅÑ ~]</translation>
    </message>
    <message>
        <source>Job Technician</source>
        <translation>[Ĵöb Ţéçĥñîçîåñ ~ ~]</translation>
    </message>
    <message>
        <source>Lower limit</source>
        <translation>[Ļöŵéŕ ļîmîţ ~]</translation>
    </message>
    <message>
        <source>Upper limit</source>
        <translation>[Ûppéŕ ļîmîţ ~]</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>[Ñåmé ~]</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>[Våļûé ~]</translation>
    </message>
    <message>
        <source>Timestamp</source>
        <translation>[Ţîméšţåmp ~]</translation>
    </message>
    <message>
        <source>Overall Status</source>
        <translation>[Övéŕåļļ Šţåţûš ~ ~]</translation>
    </message>
    <message>
        <source>Assembly</source>
        <translation>[Åššémbļý ~]</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>[ÎÐ ~]</translation>
    </message>
    <message>
        <source>Hardware</source>
        <translation>[Ĥåŕđŵåŕé ~]</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>[Šéçţîöñ ~]</translation>
    </message>
    <message>
        <source>Entry</source>
        <translation>[Éñţŕý ~]</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>[Ļöĝ ~]</translation>
    </message>
    <message>
        <source>Unit</source>
        <translation>[Ûñîţ ~]</translation>
    </message>
    <message>
        <source>%1 unit</source>
        <translation>[%1 ûñîţ ~]</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>[Šţåţûš ~]</translation>
    </message>
    <message>
        <source>%1 status</source>
        <translation>[%1 šţåţûš ~]</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message>
        <source>Plot</source>
        <translation>[Pļöţ ~]</translation>
    </message>
    <message>
        <source>Legend of the plot</source>
        <translation>[Ļéĝéñđ öf ţĥé pļöţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Test Information</source>
        <translation>[Ţéšţ Îñföŕmåţîöñ ~ ~]</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>[Ţîţļé ~]</translation>
    </message>
    <message>
        <source>Solvant System Information</source>
        <translation>[Šöļvåñţ Šýšţém Îñföŕmåţîöñ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>[Ŕépöŕţ ~]</translation>
    </message>
    <message>
        <source>Table %1</source>
        <translation>[Ţåbļé %1 ~]</translation>
    </message>
    <message>
        <source>%1: %2 to %3</source>
        <translation>[%1: %2 ţö %3 ~ ~]</translation>
    </message>
    <message>
        <source>%1 more</source>
        <translation>[%1 möŕé ~]</translation>
    </message>
    <message>
        <source>There are no curves.</source>
        <translation>[Ţĥéŕé åŕé ñö çûŕvéš. ~ ~ ~]</translation>
    </message>
    <message>
        <source>Job Manager Information</source>
        <translation>[Ĵöb Måñåĝéŕ Îñföŕmåţîöñ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Customer Information</source>
        <translation>[Çûšţöméŕ Îñföŕmåţîöñ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Technician Information</source>
        <translation>[Ţéçĥñîçîåñ Îñföŕmåţîöñ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Software Revisions</source>
        <translation>[Šöfţŵåŕé Ŕévîšîöñš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>[Véŕšîöñ ~]</translation>
    </message>
    <message>
        <source>Configuration Values</source>
        <translation>[Çöñfîĝûŕåţîöñ Våļûéš ~ ~ ~]</translation>
    </message>
    <message>
        <source>Not Completed</source>
        <translation>[Ñöţ Çömpļéţéđ ~ ~]</translation>
    </message>
    <message>
        <source>Points</source>
        <translation>[Pöîñţš ~]</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>[Mîñîmûm ~]</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>[Måxîmûm ~]</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>[%1 ţö %2 ~]</translation>
    </message>
    <message>
        <source>The curves are drawn in the HTML and PDF reports.</source>
        <translation>[Ţĥé çûŕvéš åŕé đŕåŵñ îñ ţĥé ĤŢMĻ åñđ PÐF ŕépöŕţš. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>TextEntry</name>
    <message>
        <source>"%1" cannot be used here</source>
        <translation>["%1" çåññöţ bé ûšéđ ĥéŕé ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>TouchTab</name>
    <message>
        <source>Needs attention</source>
        <translation>[Ñééđš åţţéñţîöñ ~ ~]</translation>
    </message>
</context>
<context>
    <name>TouchTabs</name>
    <message>
        <source>Pages</source>
        <translation>[Påĝéš ~]</translation>
    </message>
</context>
<context>
    <name>TurnLine</name>
    <message>
        <source>%1 before</source>
        <translation>[%1 béföŕé ~]</translation>
    </message>
    <message>
        <source>%1 after</source>
        <translation>[%1 åfţéŕ ~]</translation>
    </message>
</context>
<context>
    <name>UiData</name>
    <message>
        <source>False</source>
        <translation>[Fåļšé ~]</translation>
    </message>
    <message>
        <source>True</source>
        <translation>[Ţŕûé ~]</translation>
    </message>
</context>
<context>
    <name>ViewerBar</name>
    <message>
        <source>Previous page</source>
        <translation>[Pŕévîöûš påĝé ~ ~]</translation>
    </message>
    <message>
        <source>Page %1 of %2</source>
        <translation>[Påĝé %1 öf %2 ~ ~]</translation>
    </message>
    <message>
        <source>Next page</source>
        <translation>[Ñéxţ påĝé ~]</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>[Šmåļļéŕ ~]</translation>
    </message>
    <message>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <source>Zoom %1</source>
        <translation>[Žööm %1 ~]</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>[Ļåŕĝéŕ ~]</translation>
    </message>
    <message>
        <source>Width</source>
        <translation>[Ŵîđţĥ ~]</translation>
    </message>
    <message>
        <source>Fit the width</source>
        <translation>[Fîţ ţĥé ŵîđţĥ ~ ~]</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>[Påĝé ~]</translation>
    </message>
    <message>
        <source>Fit the page</source>
        <translation>[Fîţ ţĥé påĝé ~ ~]</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>[Çļöšé ~]</translation>
    </message>
</context>
<context>
    <name>formats</name>
    <message>
        <source>Four numbers separated by points, such as 192.0.2.1</source>
        <translation>[Föûŕ ñûmbéŕš šépåŕåţéđ bý pöîñţš, šûçĥ åš 192.0.2.1 ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Each part is a number from 0 to 255</source>
        <translation>[Éåçĥ påŕţ îš å ñûmbéŕ fŕöm 0 ţö 255 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>No part can begin with 0</source>
        <translation>[Ñö påŕţ çåñ béĝîñ ŵîţĥ 0 ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Up to eight groups separated by colons, such as 2001:db8::1</source>
        <translation>[Ûp ţö éîĝĥţ ĝŕöûpš šépåŕåţéđ bý çöļöñš, šûçĥ åš 2001:đb8::1 ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>"::" can appear only once</source>
        <translation>["::" çåñ åppéåŕ öñļý öñçé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Each group is one to four hexadecimal digits</source>
        <translation>[Éåçĥ ĝŕöûp îš öñé ţö föûŕ ĥéxåđéçîmåļ đîĝîţš ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Six pairs of hexadecimal digits, such as 00:1A:2B:3C:4D:5E</source>
        <translation>[Šîx påîŕš öf ĥéxåđéçîmåļ đîĝîţš, šûçĥ åš 00:1Å:2ß:3Ç:4Ð:5É ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A URL cannot contain blanks</source>
        <translation>[Å ÛŔĻ çåññöţ çöñţåîñ bļåñķš ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Scheme and host, such as https://host/path</source>
        <translation>[Šçĥémé åñđ ĥöšţ, šûçĥ åš ĥţţpš://ĥöšţ/påţĥ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>At most %1 characters; this text has %2</source>
        <translation>[Åţ möšţ %1 çĥåŕåçţéŕš; ţĥîš ţéxţ ĥåš %2 ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Digits, + at the beginning, blanks and ( ) / - * #</source>
        <translation>[Ðîĝîţš, + åţ ţĥé béĝîññîñĝ, bļåñķš åñđ ( ) / - * # ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>[Åţ ļéåšţ %1 ~]</translation>
    </message>
    <message>
        <source>At most %1</source>
        <translation>[Åţ möšţ %1 ~]</translation>
    </message>
    <message>
        <source>At least %1 characters; this text has %2</source>
        <translation>[Åţ ļéåšţ %1 çĥåŕåçţéŕš; ţĥîš ţéxţ ĥåš %2 ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::PendingChanges</name>
    <message>
        <source>The service %1 cannot be reached. The change waits until it returns.</source>
        <translation>[Ţĥé šéŕvîçé %1 çåññöţ bé ŕéåçĥéđ. Ţĥé çĥåñĝé ŵåîţš ûñţîļ îţ ŕéţûŕñš. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The entry was rejected.</source>
        <translation>[Ţĥé éñţŕý ŵåš ŕéĵéçţéđ. ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>On</source>
        <translation>[Öñ ~]</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>[Öff ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportDraft</name>
    <message>
        <source>Another page or program keeps results of this kind</source>
        <translation>[Åñöţĥéŕ påĝé öŕ pŕöĝŕåm ķéépš ŕéšûļţš öf ţĥîš ķîñđ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no folder to keep the results in until they are saved</source>
        <translation>[Ţĥéŕé îš ñö föļđéŕ ţö ķéép ţĥé ŕéšûļţš îñ ûñţîļ ţĥéý åŕé šåvéđ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::ReportPaper</name>
    <message>
        <source>the printer takes no further page</source>
        <translation>[ţĥé pŕîñţéŕ ţåķéš ñö fûŕţĥéŕ påĝé ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the program has no fonts, because it is not a QGuiApplication</source>
        <translation>[ţĥé pŕöĝŕåm ĥåš ñö föñţš, béçåûšé îţ îš ñöţ å QĜûîÅppļîçåţîöñ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the report has no page %1, only %2</source>
        <translation>[ţĥé ŕépöŕţ ĥåš ñö påĝé %1, öñļý %2 ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the printer cannot be used</source>
        <translation>[ţĥé pŕîñţéŕ çåññöţ bé ûšéđ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>another report is being printed</source>
        <translation>[åñöţĥéŕ ŕépöŕţ îš béîñĝ pŕîñţéđ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Follower</name>
    <message>
        <source>Following the user's name, "%1".</source>
        <translation>[Föļļöŵîñĝ ţĥé ûšéŕ'š ñåmé, "%1". ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is no setting %1 to follow. Start kivd with the service that has it.</source>
        <translation>[Ţĥéŕé îš ñö šéţţîñĝ %1 ţö föļļöŵ. Šţåŕţ ķîvđ ŵîţĥ ţĥé šéŕvîçé ţĥåţ ĥåš îţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Another application has changed it to "%1".</source>
        <translation>[Åñöţĥéŕ åppļîçåţîöñ ĥåš çĥåñĝéđ îţ ţö "%1". ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The services have ended; it stays "%1".</source>
        <translation>[Ţĥé šéŕvîçéš ĥåvé éñđéđ; îţ šţåýš "%1". ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The services have returned, and nothing is lost.</source>
        <translation>[Ţĥé šéŕvîçéš ĥåvé ŕéţûŕñéđ, åñđ ñöţĥîñĝ îš ļöšţ. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The services have returned with "%1" instead of "%2".</source>
        <translation>[Ţĥé šéŕvîçéš ĥåvé ŕéţûŕñéđ ŵîţĥ "%1" îñšţéåđ öf "%2". ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The window gives no picture.</source>
        <translation>[Ţĥé ŵîñđöŵ ĝîvéš ñö pîçţûŕé. ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>[%1 ŵåš ñöţ ŵŕîţţéñ: %2 ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackMeasurement</name>
    <message>
        <source>Ready to measure</source>
        <translation>[Ŕéåđý ţö méåšûŕé ~ ~]</translation>
    </message>
    <message>
        <source>Connecting to the server</source>
        <translation>[Çöññéçţîñĝ ţö ţĥé šéŕvéŕ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Measuring round-trip time</source>
        <translation>[Méåšûŕîñĝ ŕöûñđ-ţŕîp ţîmé ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Measuring throughput</source>
        <translation>[Méåšûŕîñĝ ţĥŕöûĝĥpûţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Finished</source>
        <translation>[Fîñîšĥéđ ~]</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>[Çåñçéļļéđ ~]</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>[Fåîļéđ ~]</translation>
    </message>
    <message>
        <source>Measured with a TCP client and a TCP server of this program over the loopback interface of this unit. Round-trip time: %1 samples, each the time from sending a message of %2 bytes until all of its echo had arrived. Throughput: %6 samples, each the time for sending %3 MiB until the server had acknowledged the last byte; 1 Mbit/s is 1,000,000 bits a second. Between samples there is a pause of %4 ms, and one exchange of each kind before the first sample is not counted. Jitter is the mean difference between neighbouring samples. A value passes when it meets its limit with a margin of at least %5 %, is marginal when it meets it with less, and fails when it does not meet it; the overall status is that of the worse median.</source>
        <translation>[Méåšûŕéđ ŵîţĥ å ŢÇP çļîéñţ åñđ å ŢÇP šéŕvéŕ öf ţĥîš pŕöĝŕåm övéŕ ţĥé ļööpbåçķ îñţéŕfåçé öf ţĥîš ûñîţ. Ŕöûñđ-ţŕîp ţîmé: %1 šåmpļéš, éåçĥ ţĥé ţîmé fŕöm šéñđîñĝ å méššåĝé öf %2 býţéš ûñţîļ åļļ öf îţš éçĥö ĥåđ åŕŕîvéđ. Ţĥŕöûĝĥpûţ: %6 šåmpļéš, éåçĥ ţĥé ţîmé föŕ šéñđîñĝ %3 Mîß ûñţîļ ţĥé šéŕvéŕ ĥåđ åçķñöŵļéđĝéđ ţĥé ļåšţ býţé; 1 Mbîţ/š îš 1,000,000 bîţš å šéçöñđ. ßéţŵééñ šåmpļéš ţĥéŕé îš å påûšé öf %4 mš, åñđ öñé éxçĥåñĝé öf éåçĥ ķîñđ béföŕé ţĥé fîŕšţ šåmpļé îš ñöţ çöûñţéđ. Ĵîţţéŕ îš ţĥé méåñ đîfféŕéñçé béţŵééñ ñéîĝĥböûŕîñĝ šåmpļéš. Å våļûé påššéš ŵĥéñ îţ mééţš îţš ļîmîţ ŵîţĥ å måŕĝîñ öf åţ ļéåšţ %5 %, îš måŕĝîñåļ ŵĥéñ îţ mééţš îţ ŵîţĥ ļéšš, åñđ fåîļš ŵĥéñ îţ đöéš ñöţ mééţ îţ; ţĥé övéŕåļļ šţåţûš îš ţĥåţ öf ţĥé ŵöŕšé méđîåñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>A run takes %1 to %2 samples of each and messages of %3 B or more; other values are changed to the nearest permitted one.</source>
        <translation>[Å ŕûñ ţåķéš %1 ţö %2 šåmpļéš öf éåçĥ åñđ méššåĝéš öf %3 ß öŕ möŕé; öţĥéŕ våļûéš åŕé çĥåñĝéđ ţö ţĥé ñéåŕéšţ péŕmîţţéđ öñé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackProbe</name>
    <message>
        <source>No server could be opened on the loopback address (%1). Check that the loopback interface is up, then start again.</source>
        <translation>[Ñö šéŕvéŕ çöûļđ bé öpéñéđ öñ ţĥé ļööpbåçķ åđđŕéšš (%1). Çĥéçķ ţĥåţ ţĥé ļööpbåçķ îñţéŕfåçé îš ûp, ţĥéñ šţåŕţ åĝåîñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The server at %1 sent an answer that does not match the request while %2. Another program may be listening there; start again.</source>
        <translation>[Ţĥé šéŕvéŕ åţ %1 šéñţ åñ åñšŵéŕ ţĥåţ đöéš ñöţ måţçĥ ţĥé ŕéqûéšţ ŵĥîļé %2. Åñöţĥéŕ pŕöĝŕåm måý bé ļîšţéñîñĝ ţĥéŕé; šţåŕţ åĝåîñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The connection to the server at %1 broke while %2 (%3). Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>[Ţĥé çöññéçţîöñ ţö ţĥé šéŕvéŕ åţ %1 bŕöķé ŵĥîļé %2 (%3). Çĥéçķ ţĥåţ ţĥé ļööpbåçķ îñţéŕfåçé îš ûp åñđ ţĥåţ ñö fîŕéŵåļļ bļöçķš îţ, ţĥéñ šţåŕţ åĝåîñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The server at %1 was silent for %2 s while %3. Check that the loopback interface is up and that no firewall blocks it, then start again.</source>
        <translation>[Ţĥé šéŕvéŕ åţ %1 ŵåš šîļéñţ föŕ %2 š ŵĥîļé %3. Çĥéçķ ţĥåţ ţĥé ļööpbåçķ îñţéŕfåçé îš ûp åñđ ţĥåţ ñö fîŕéŵåļļ bļöçķš îţ, ţĥéñ šţåŕţ åĝåîñ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>connecting</source>
        <translation>[çöññéçţîñĝ ~]</translation>
    </message>
    <message>
        <source>measuring round-trip time, sample %1 of %2</source>
        <translation>[méåšûŕîñĝ ŕöûñđ-ţŕîp ţîmé, šåmpļé %1 öf %2 ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>measuring throughput, sample %1 of %2</source>
        <translation>[méåšûŕîñĝ ţĥŕöûĝĥpûţ, šåmpļé %1 öf %2 ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::LoopbackReport</name>
    <message>
        <source>Title on the report</source>
        <translation>[Ţîţļé öñ ţĥé ŕépöŕţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>TCP loopback test</source>
        <translation>[ŢÇP ļööpbåçķ ţéšţ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Compressed</source>
        <translation>[Çömpŕéššéđ ~]</translation>
    </message>
    <message>
        <source>Finish a measurement on the Measure page first.</source>
        <translation>[Fîñîšĥ å méåšûŕéméñţ öñ ţĥé Méåšûŕé påĝé fîŕšţ. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::SampleModel</name>
    <message>
        <source>at most %1</source>
        <translation>[åţ möšţ %1 ~]</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>[åţ ļéåšţ %1 ~]</translation>
    </message>
    <message>
        <source>Pass</source>
        <translation>[Påšš ~]</translation>
    </message>
    <message>
        <source>Marginal</source>
        <translation>[Måŕĝîñåļ ~]</translation>
    </message>
    <message>
        <source>Fail</source>
        <translation>[Fåîļ ~]</translation>
    </message>
    <message>
        <source>Round-trip time</source>
        <translation>[Ŕöûñđ-ţŕîp ţîmé ~ ~]</translation>
    </message>
    <message>
        <source>Throughput</source>
        <translation>[Ţĥŕöûĝĥpûţ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::ScreenCamera</name>
    <message>
        <source>Screenshot Saved</source>
        <translation>[Šçŕééñšĥöţ Šåvéđ ~ ~]</translation>
    </message>
    <message>
        <source>No picture of the window could be taken.</source>
        <translation>[Ñö pîçţûŕé öf ţĥé ŵîñđöŵ çöûļđ bé ţåķéñ. ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The window was not drawn for %1 s.</source>
        <translation>[Ţĥé ŵîñđöŵ ŵåš ñöţ đŕåŵñ föŕ %1 š. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The picture of the window is empty.</source>
        <translation>[Ţĥé pîçţûŕé öf ţĥé ŵîñđöŵ îš émpţý. ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>There is not enough space for the picture.</source>
        <translation>[Ţĥéŕé îš ñöţ éñöûĝĥ špåçé föŕ ţĥé pîçţûŕé. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::Tour</name>
    <message>
        <source>The picture of the window for %1 is empty. Run the demo without a display, with DISPLAY and WAYLAND_DISPLAY unset.</source>
        <translation>[Ţĥé pîçţûŕé öf ţĥé ŵîñđöŵ föŕ %1 îš émpţý. Ŕûñ ţĥé đémö ŵîţĥöûţ å đîšpļåý, ŵîţĥ ÐÎŠPĻÅÝ åñđ WAYLAND_DISPLAY ûñšéţ. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>Check the free space and that you may write there, or name another folder with --root.</source>
        <translation>[Çĥéçķ ţĥé fŕéé špåçé åñđ ţĥåţ ýöû måý ŵŕîţé ţĥéŕé, öŕ ñåmé åñöţĥéŕ föļđéŕ ŵîţĥ --root. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>The tour waited for %1 s in vain: %2. Keep the window in sight, and leave it alone.</source>
        <translation>[Ţĥé ţöûŕ ŵåîţéđ föŕ %1 š îñ våîñ: %2. Ķéép ţĥé ŵîñđöŵ îñ šîĝĥţ, åñđ ļéåvé îţ åļöñé. ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the job is open</source>
        <translation>[ţĥé ĵöb îš öpéñ ~ ~]</translation>
    </message>
    <message>
        <source>half of the run</source>
        <translation>[ĥåļf öf ţĥé ŕûñ ~ ~]</translation>
    </message>
    <message>
        <source>the end of the run</source>
        <translation>[ţĥé éñđ öf ţĥé ŕûñ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the format of all files</source>
        <translation>[ţĥé föŕmåţ öf åļļ fîļéš ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the report is saved</source>
        <translation>[ţĥé ŕépöŕţ îš šåvéđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>a question before files are overwritten</source>
        <translation>[å qûéšţîöñ béföŕé fîļéš åŕé övéŕŵŕîţţéñ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the answer</source>
        <translation>[ţĥé åñšŵéŕ ~]</translation>
    </message>
    <message>
        <source>the screenshot</source>
        <translation>[ţĥé šçŕééñšĥöţ ~ ~]</translation>
    </message>
    <message>
        <source>"%1" can be pressed</source>
        <translation>["%1" çåñ bé pŕéššéđ ~ ~ ~]</translation>
    </message>
    <message>
        <source>"%1" is typed</source>
        <translation>["%1" îš ţýpéđ ~ ~]</translation>
    </message>
    <message>
        <source>a picture of the window can be taken</source>
        <translation>[å pîçţûŕé öf ţĥé ŵîñđöŵ çåñ bé ţåķéñ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the picture %1</source>
        <translation>[ţĥé pîçţûŕé %1 ~ ~]</translation>
    </message>
    <message>
        <source>the pages of the preview</source>
        <translation>[ţĥé påĝéš öf ţĥé pŕévîéŵ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>the drawer of the desk</source>
        <translation>[ţĥé đŕåŵéŕ öf ţĥé đéšķ ~ ~ ~ ~]</translation>
    </message>
</context>
<context>
    <name>uiutils::demo::UsbStick</name>
    <message>
        <source>The files in %1 cannot be moved to %2: %3.</source>
        <translation>[Ţĥé fîļéš îñ %1 çåññöţ bé mövéđ ţö %2: %3. ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>No service of this instrument knows of USB drives.</source>
        <translation>[Ñö šéŕvîçé öf ţĥîš îñšţŕûméñţ ķñöŵš öf ÛŠß đŕîvéš. ~ ~ ~ ~ ~ ~ ~ ~ ~]</translation>
    </message>
    <message>
        <source>USB Drive</source>
        <translation>[ÛŠß Ðŕîvé ~]</translation>
    </message>
</context>
</TS>
