// SPDX-FileCopyrightText: 2026 The Brenica developers
// SPDX-License-Identifier: GPL-3.0-or-later
#include "insight/report/style_sheet.h"

namespace insight {

// The kinds of units have the hues that they have in the program's charts, as dark or light as the ground asks for.
const char* const StyleSheet = R"css(
:root {
  --paper: #fdfcfa; --ink: #20262b; --quiet: #5a626a; --rule: #dcd8d0; --wash: #f3f1ec; --accent: #1d5f50;
  --alarm: #a3320b; --habitat: #14868a; --zone: #501478; --threat: #bf5f08; --empty: #efece6;
  --heat0: #eef3ee; --heat1: #d9e5e1; --heat2: #a9cbc2; --heat3: #3d7a6e; --heat4: #2c6a5f; --heat5: #123f37;
  --on-light: #20262b; --on-dark: #ffffff;
}
@media screen and (prefers-color-scheme: dark) {
  :root {
    --paper: #16191c; --ink: #e6e4df; --quiet: #a5adb4; --rule: #363c41; --wash: #1f2428; --accent: #7cc9b5;
    --alarm: #ff9a73; --habitat: #4bc8c8; --zone: #b78ae0; --threat: #ff9632; --empty: #24292e;
    --heat0: #22282b; --heat1: #28403d; --heat2: #2d5750; --heat3: #6fb3a5; --heat4: #9bd0c4; --heat5: #d3efe8;
    --on-light: #e6e4df; --on-dark: #101416;
  }
}
* { box-sizing: border-box; }
html { background: var(--paper); color: var(--ink); -webkit-text-size-adjust: 100%; }
body {
  margin: 0 auto; padding: 2.5rem 1.25rem 4rem; max-width: 62rem; line-height: 1.55;
  font: 1rem/1.55 system-ui, "Segoe UI", "Noto Sans", "DejaVu Sans", sans-serif; overflow-wrap: anywhere;
}
h1, h2, .verdict, .figures dd { font-family: Charter, "Iowan Old Style", Georgia, "Noto Serif", "DejaVu Serif", serif; }
h1 { font-size: 2rem; font-weight: 600; line-height: 1.2; margin: 0 0 1.5rem; }
h2 { font-size: 1.45rem; font-weight: 600; line-height: 1.25; margin: 0 0 .75rem; }
h3 { font-size: 1rem; font-weight: 600; margin: 1.75rem 0 .5rem; }
p { margin: 0 0 .9rem; max-width: 44rem; }
.kicker { color: var(--quiet); font-size: .85rem; letter-spacing: .06em; margin: 0 0 .4rem; }
.verdict { font-size: 1.6rem; line-height: 1.3; color: var(--accent); margin-bottom: .6rem; }
.lede { font-size: 1.05rem; max-width: 46rem; margin: 0 0 .9rem; padding-left: 1.1rem; }
.lede li { margin-bottom: .25rem; }
.byline { color: var(--quiet); margin: -1rem 0 1.5rem; }
.warning { border-left: 4px solid var(--alarm); background: var(--wash); color: var(--alarm); padding: .7rem 1rem; }
.note { color: var(--quiet); font-size: .92rem; }
.figures { display: flex; flex-wrap: wrap; gap: 1rem 2.75rem; margin: 1.5rem 0; padding: 1rem 0;
  border-top: 1px solid var(--rule); border-bottom: 1px solid var(--rule); }
.figures div { display: flex; flex-direction: column-reverse; }
.figures dd { margin: 0; font-size: 1.75rem; line-height: 1.2; }
.figures dt { color: var(--quiet); font-size: .85rem; }
nav ol { columns: 16rem 3; margin: 0; padding-left: 1.5rem; font-size: .92rem; }
nav li { padding: .1rem 0; break-inside: avoid; }
nav li::marker { color: var(--quiet); }
a { color: var(--accent); text-underline-offset: .15em; }
a:focus-visible, .scroll:focus-visible { outline: 2px solid var(--accent); outline-offset: 2px; }
section { margin-top: 3rem; padding-top: 1.5rem; border-top: 1px solid var(--rule); }
bdi { overflow-wrap: anywhere; }
code { font: .9em ui-monospace, "DejaVu Sans Mono", monospace; }

.scroll { overflow-x: auto; margin: 1rem 0; }
table { border-collapse: collapse; font-size: .875rem; line-height: 1.4; font-variant-numeric: tabular-nums; }
caption { text-align: left; color: var(--quiet); padding: 0 0 .4rem; }
th, td { padding: .3rem 1rem .3rem 0; vertical-align: top; text-align: left; border-bottom: 1px solid var(--rule); }
thead th { vertical-align: bottom; font-weight: 600; color: var(--quiet); border-bottom: 1px solid var(--ink); }
tbody th { font-weight: 600; }
th.number, td.number { text-align: right; }
td.number, td.term, tbody th.number { white-space: nowrap; }
thead th { overflow-wrap: normal; }
.name { min-width: 8rem; max-width: 15rem; }
.names { min-width: 9rem; max-width: 24rem; }
.text { min-width: 10rem; max-width: 20rem; }
.rest { display: inline-block; color: var(--quiet); font-size: .875rem; margin-top: 1rem; }
.rest + .scroll { margin-top: .25rem; }
details:not([open]) > :not(summary) { display: none; }
summary { color: var(--accent); font-size: .92rem; cursor: pointer; }
.references { padding-left: 1.1rem; font-size: .92rem; max-width: 44rem; }
dl.words dt { font-weight: 600; margin-top: .8rem; }
dl.words dd { margin: 0; max-width: 44rem; }

figure { margin: 1.25rem 0; }
figcaption { color: var(--quiet); font-size: .92rem; max-width: 44rem; }
svg { display: block; margin-bottom: 1rem; }
@media screen and (min-width: 46rem) { svg { max-width: 100%; height: auto; } }
svg text { font: 12px system-ui, "Segoe UI", "Noto Sans", "DejaVu Sans", sans-serif; fill: var(--ink);
  direction: ltr; unicode-bidi: isolate; }
svg .tick { font-size: 11px; fill: var(--quiet); }
svg .kind { font-weight: 600; }
svg .open { fill: var(--alarm); font-weight: 600; }
svg .empty { fill: var(--empty); }
svg .habitat { fill: var(--habitat); }
svg .zone { fill: var(--zone); }
svg .threat { fill: var(--threat); }
svg .grid { stroke: var(--rule); }
svg .axis { stroke: var(--ink); }
svg .ceiling { stroke: var(--quiet); stroke-dasharray: 4 3; }
svg polyline { fill: none; stroke-width: 1.5; }
svg polyline.run { stroke: var(--ink); }
svg polyline.best { stroke: var(--accent); }
svg circle.run { fill: var(--ink); }
svg circle.best { fill: var(--paper); stroke: var(--accent); stroke-width: 2; }
svg .bound { stroke: var(--accent); stroke-dasharray: 2 2; }
svg .interval { stroke: var(--accent); stroke-width: 3; }
svg .heat0 { fill: var(--heat0); } svg .heat1 { fill: var(--heat1); } svg .heat2 { fill: var(--heat2); }
svg .heat3 { fill: var(--heat3); } svg .heat4 { fill: var(--heat4); } svg .heat5 { fill: var(--heat5); }
svg .cell { font-size: 14px; font-weight: 600; fill: var(--on-light); }
svg .under { font-size: 10.5px; fill: var(--on-light); }
svg .on-dark { fill: var(--on-dark); }
svg .own { fill: none; stroke: var(--alarm); stroke-width: 2.5; }

@media screen {
  .rest:has(input:not(:checked)) + .scroll tbody tr:nth-child(n + 11) { display: none; }
}
@page { size: A4; margin: 16mm 15mm 18mm; }
@media print {
  html { font-size: 9.5pt; background: none; }
  body { max-width: none; padding: 0; --paper: #ffffff; }
  nav, .rest, details { display: none; }
  section { margin-top: 1.5rem; padding-top: .9rem; }
  h2, h3, caption, p:has(+ figure), p:has(+ .scroll), label:has(+ .scroll) { break-after: avoid; }
  section > h2 + p { break-after: avoid; }
  thead { break-inside: avoid; break-after: avoid; }
  tbody tr:first-child, tbody tr:nth-child(2) { break-before: avoid; }
  p, li, dt { orphans: 3; widows: 3; }
  p, li, tr, svg, figcaption { break-inside: avoid; }
  .scroll { overflow: visible; }
  table { font-size: 7.5pt; width: 100%; }
  th, td { padding: .15rem .35rem .15rem 0; }
  .name, .names, .text { min-width: 6.5em; max-width: none; }
  svg { max-width: 100%; height: auto; max-height: 235mm; print-color-adjust: exact; -webkit-print-color-adjust: exact; }
}
)css";

}  // namespace insight
