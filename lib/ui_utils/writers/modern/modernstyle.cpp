#include "writers/modern/modernstyle_p.h"

#include "core/status.h"
#include "writers/pages/statusicons_p.h"

namespace uiutils {

namespace {

// Each colour on its ground has a contrast of at least 4.5 to 1, also beside the lines of tables.
const QLatin1String colors(R"css(
:root { color-scheme: light dark; --paper: #fff; --ink: #1a1f24; --quiet: #4d565e; --line: #c3ccd4;
  --head: #e6eef4; --accent: #00527a; --pass: #14632f; --marginal: #7a4b00; --fail: #a8201a; }
@media screen and (prefers-color-scheme: dark) {
  :root { --paper: #14181c; --ink: #e6eaee; --quiet: #aab4bd; --line: #47525b;
    --head: #222c34; --accent: #86c9ee; --pass: #7fd89d; --marginal: #f3c65a; --fail: #ffa69e; }
}
)css");

const QLatin1String texts(R"css(
* { box-sizing: border-box; }
html { -webkit-text-size-adjust: 100%; text-size-adjust: 100%; }
body { margin: 0 auto; padding: 1rem; max-width: 90rem; overflow-wrap: anywhere;
  background: var(--paper); color: var(--ink); font: 1rem/1.45 system-ui, sans-serif; }
h1, h2, h3, h4, h5, h6 { margin: 1.5em 0 .4em; line-height: 1.25; white-space: pre-wrap; color: var(--accent); }
h1 { margin-top: .5em; font-size: 1.7rem; }
h2 { font-size: 1.4rem; border-block-end: 2px solid var(--accent); padding-block-end: .15em; }
h3 { font-size: 1.2rem; }
h4 { font-size: 1.08rem; color: var(--ink); }
h5 { font-size: 1rem; color: var(--quiet); }
h6 { font-size: .95rem; font-style: italic; color: var(--quiet); }
:is(h1, h2, h3, h4, h5, h6).long { font-size: 1rem; font-weight: 400; }
section section { padding-inline-start: .7rem; border-inline-start: 3px solid var(--line); }
section section section section section section { padding-inline-start: 0; border-inline-start: 0; }
p { margin: .3em 0; white-space: pre-wrap; }
.logo { display: block; max-width: 12rem; max-height: 4rem; background: #fff; padding: .3rem; border-radius: .3rem; }
figure { margin: 1rem 0; }
figure img { display: block; max-width: 100%; height: auto; background: #fff; border: 1px solid var(--line); }
figcaption { margin-block-start: .3rem; color: var(--quiet); white-space: pre-wrap; }
.hidden { position: absolute; width: 1px; height: 1px; overflow: hidden; clip-path: inset(50%); white-space: nowrap; }
)css");

// A table of two columns always fits: its words break before it grows. A wider one is scrolled inside its own frame,
// and the labels of its rows stay in sight.
const QLatin1String tables(R"css(
.scroll { position: relative; margin: 1rem 0; max-width: 100%; overflow-x: auto; }
.scroll:focus-visible { outline: 3px solid var(--accent); outline-offset: 2px; }
table { margin: 1rem 0; border-collapse: collapse; font-size: .95rem; }
.scroll table { margin: 0; overflow-wrap: normal; }
caption { padding: .2rem 0; text-align: start; font-weight: 600; white-space: pre-wrap; overflow-wrap: break-word; }
caption bdi { display: inline-block; position: sticky; inset-inline-start: 0; max-width: min(84rem, 100vw - 3rem); }
th, td { padding: .35rem .6rem; border-block-end: 1px solid var(--line); text-align: start; vertical-align: top;
  white-space: pre-wrap; }
thead th, thead td { background: var(--head); vertical-align: bottom; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
.pair th, .pair td { min-width: 7em; }
.scroll tbody th { position: sticky; inset-inline-start: 0; background: var(--paper); overflow-wrap: break-word; }
@media (max-width: 40rem) { .scroll tbody th { max-width: 9rem; } section section { padding-inline-start: .35rem; } }
td.long { min-width: 16rem; }
.l { text-align: left; }
.c { text-align: center; }
.r { text-align: right; }
.n { white-space: nowrap; font-variant-numeric: tabular-nums; }
.verdict { display: inline-block; white-space: nowrap; font-weight: 600; }
.r .verdict { min-width: 7em; text-align: start; }
.pass .verdict { color: var(--pass); }
.marginal .verdict { color: var(--marginal); }
.fail .verdict { color: var(--fail); }
.verdict::before { content: ""; display: inline-block; width: 1em; height: 1em; margin-inline: .3em .35em; vertical-align: -.12em;
  background: center / contain no-repeat; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
)css");

// On paper nothing can be scrolled: up to a dozen columns get a sheet on its side, and a row of more becomes a list of
// its cells, each under the label of its column.
const QLatin1String paper(R"css(
@page { margin: 14mm 12mm; @bottom-right { content: counter(page) " / " counter(pages); font: 8pt sans-serif; } }
@page wide { size: landscape; }
@media print {
  :root { color-scheme: light; }
  body { padding: 0; max-width: none; font-size: 10pt; }
  h1, h2, h3, h4, h5, h6, caption { break-after: avoid; }
  p, th, td { orphans: 3; widows: 3; }
  figure, img { break-inside: avoid; }
  .scroll { overflow: visible; }
  .scroll tbody th { position: static; max-width: none; }
  caption bdi { position: static; max-width: 100%; }
  table { font-size: 9pt; }
  thead { display: table-header-group; break-inside: avoid; break-after: avoid; }
  tr:not(:has(> .long)) { break-inside: avoid; }
  tbody tr:first-child { break-before: avoid; }
  tbody tr:first-child:not(:last-child) { break-after: avoid; }
  tbody tr:last-child:not(:first-child) { break-before: avoid; }
  td.long { min-width: 12em; }
  .side, :is(h2, h3, h4, h5, h6):has(+ .side) { page: wide; }
  .side table { font-size: 7.5pt; }
  .side th, .side td { padding: .2rem .3rem; }
  .cards thead { display: none; }
  .cards, .cards caption, .cards tbody { display: block; }
  .cards tr { display: grid; grid-template-columns: repeat(auto-fill, minmax(34mm, 1fr)); gap: 0 3mm; padding: 1.5mm 0;
    border-block-end: 1px solid var(--ink); }
  .cards th, .cards td { border: 0; padding: .1rem 0; text-align: start; }
  .cards th, .cards .long { grid-column: 1 / -1; min-width: 0; }
  .cards td:empty { display: none; }
  .cards td::before { content: attr(data-label); display: block; font-size: 6.5pt; color: var(--quiet); }
}
)css");

/// In the order of the classes that cells have.
const struct
{
    int status;
    QLatin1String name;
} icons[] = {{Status::Pass, QLatin1String("pass")}, {Status::Marginal, QLatin1String("marginal")},
        {Status::Fail, QLatin1String("fail")}};

QString iconRules()
{
    QString rules;
    for (const auto& icon : icons) {
        const QByteArray png = readIcon(statusIconPath(icon.status));
        const QString image = png.isEmpty()
                ? QStringLiteral("display: none")
                : QStringLiteral("background-image: url(data:image/png;base64,%1)").arg(QLatin1String(png.toBase64()));
        rules += QStringLiteral(".%1 .verdict::before { %2; }\n").arg(icon.name, image);
    }
    return rules;
}

} // namespace

QString modernStyleSheet(bool isLandscape)
{
    const QString sheets = QLatin1String(colors) + QString(texts) + tables + iconRules() + paper;
    return isLandscape ? sheets + QLatin1String("@page { size: landscape; }\n") : sheets;
}

} // namespace uiutils
