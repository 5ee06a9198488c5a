// Colours differ in lightness too, for grey printers and for eyes that do not tell them apart.
#include "export/KeysPageStyle.h"

namespace tessera {
namespace {

constexpr std::string_view Style = R"css(
:root {
  color-scheme: light;
  --paper: #fcfbf8; --panel: #ffffff; --ink: #20242a; --soft: #5d636b; --rule: #dcd8d0;
  --accent: #b3261e; --link: #1f558f;
  --free: transparent; --free-ink: #666a70; --free-line: #b9b3a8;
  --default: #d5e3f1; --default-ink: #1d3046; --default-line: #8facc9;
  --user: #2f6cab; --user-ink: #ffffff; --user-line: #2f6cab;
  --over: #7a3206; --over-ink: #ffffff; --over-line: #7a3206; --corner: #ffc48a;
  --menu: #f3e2ac; --menu-stripe: #dfc470; --menu-ink: #38300f; --menu-line: #8f7521;
  --idle: #f4f1ec;
}
@media screen and (prefers-color-scheme: dark) {
  :root {
    color-scheme: dark;
    --paper: #16191d; --panel: #1f2429; --ink: #e7e5e0; --soft: #a3a9b0; --rule: #343a41;
    --accent: #ff8a7a; --link: #8fc1f5;
    --free-ink: #969da5; --free-line: #3f464e;
    --default: #2a3a4c; --default-ink: #d6e4f3; --default-line: #46607c;
    --user: #6fa9e6; --user-ink: #08192b; --user-line: #6fa9e6;
    --over: #ffd3a6; --over-ink: #2c1400; --over-line: #ffd3a6; --corner: #a3480a;
    --menu: #40381d; --menu-stripe: #564b26; --menu-ink: #f5e8bd; --menu-line: #c2a64b;
    --idle: #1d2126;
  }
}
* { box-sizing: border-box; }
[hidden] { display: none !important; }
html { scroll-padding-top: 5rem; }
body {
  margin: 0 auto; padding: 2.5rem clamp(1rem, 3vw, 3rem) 4rem; max-width: 1500px;
  font: 15px/1.5 system-ui, "Segoe UI", "Noto Sans", sans-serif;
  background: var(--paper); color: var(--ink); overflow-wrap: anywhere;
}
h1 { margin: 0; font-size: clamp(1.6rem, 4vw, 2.4rem); font-weight: 300; letter-spacing: -.01em; }
h2 { margin: 0; font-size: 1.15rem; font-weight: 600; }
#path { margin: .25rem 0 0; color: var(--soft); }
#unsaved { margin: 1rem 0 0; padding: .5rem .9rem; border-inline-start: 4px solid var(--accent);
  background: var(--panel); }
#legend { display: flex; flex-wrap: wrap; gap: .4rem 1.6rem; margin: 1.4rem 0 0; padding: 0;
  list-style: none; }
#legend li { display: flex; align-items: center; gap: .5rem; }
#legend svg { width: 1.7rem; height: 1.7rem; }
#finder { position: sticky; top: 0; z-index: 1; margin: 1.2rem 0 0; padding: .6rem 0;
  background: var(--paper); }
#search { width: min(26rem, 100%); padding: .45rem .7rem; font: inherit; color: inherit;
  background: var(--panel); border: 1px solid var(--free-ink); border-radius: 7px; }
section { margin-top: 2rem; }
.keyboard { display: grid; grid-template-columns: 1fr auto; gap: .5rem 1rem;
  align-items: baseline; }
.count { margin: 0; color: var(--soft); font-variant-numeric: tabular-nums; text-align: end; }
.board { grid-column: 1 / -1; overflow-x: auto; direction: ltr; }
.board svg { display: block; width: 100%; min-width: 1080px; font: 500 11px/1 system-ui,
  "Segoe UI", "Noto Sans", sans-serif; }
.shapes { position: absolute; }

[data-use=free] { --fill: var(--free); --line: var(--free-line); --text: var(--free-ink); }
[data-use=default] { --fill: var(--default); --line: var(--default-line);
  --text: var(--default-ink); }
[data-use=user] { --fill: var(--user); --line: var(--user-line); --text: var(--user-ink); }
[data-use=over] { --fill: var(--over); --line: var(--over-line); --text: var(--over-ink); }
[data-use=startmenu] { --fill: var(--menu); --line: var(--menu-line); --text: var(--menu-ink);
  --dash: 5 3; }
.s { fill: var(--fill); stroke: var(--line); stroke-width: var(--weight, 1.5);
  stroke-dasharray: var(--dash, none); }
svg [data-use=startmenu], svg [data-use=startmenu] .s, [data-use=startmenu] > svg {
  --fill: url(#hatch); }
.h0 { fill: var(--menu); }
.h1 { fill: var(--menu-stripe); }
.c { fill: var(--corner); }
.key { cursor: default; outline: none; }
.key text, .n { fill: var(--text); }
.n { font-size: 12px; font-weight: 600; }
.idle { --fill: var(--idle); --line: transparent; --text: var(--soft); }
.held { --fill: var(--paper); --line: var(--ink); --weight: 3; --text: var(--ink); }
.key:hover, .key:focus-visible { --line: var(--ink); --weight: 3; --dash: none; }
.searching .key:not(.found), .searching .idle { opacity: .22; }
.key.found { --line: var(--accent); --weight: 4; --dash: none; }

.chips { display: flex; flex-wrap: wrap; gap: .5rem; margin: .8rem 0 0; padding: 0;
  list-style: none; }
.chips .key { padding: .3rem .7rem; border: 2px solid var(--line); border-radius: 7px;
  background: var(--fill); color: var(--text); }
.chips [data-use=over] { border: 4px double var(--corner); }
.chips .key:hover, .chips .key:focus-visible, .chips .found { border-color: var(--accent); }
.chips b { font-weight: 600; }

table { width: 100%; margin-top: .8rem; border-collapse: collapse; table-layout: fixed; }
th, td { padding: .35rem .8rem .35rem 0; text-align: start; vertical-align: top;
  font-weight: 400; border-bottom: 1px solid var(--rule); }
td, .block th { unicode-bidi: plaintext; }
[dir=rtl] th, [dir=rtl] td { text-align: right; padding: .35rem 0 .35rem .8rem; }
thead th { color: var(--soft); }
tbody th { font-weight: 600; }
#by-key { max-width: 60rem; }
#by-key th:first-child { width: 16rem; }
#by-key tbody th::before { content: ""; display: inline-block; width: .8em; height: .8em;
  margin-inline-end: .6em; border: 1.5px solid var(--line); border-radius: 3px;
  background: var(--fill); vertical-align: -.05em; }
#by-key [data-use=over] th::before { background: linear-gradient(225deg, var(--corner) 45%,
  var(--fill) 0); }
#by-key [data-use=startmenu] th::before { border-style: dashed; }
#by-command th:first-child { width: 38%; }
#by-command th:nth-child(2) { width: 24%; }
.block th { padding-top: 1.4rem; color: var(--soft); letter-spacing: .04em; }
a { color: var(--link); text-decoration: none; unicode-bidi: isolate; }
a:hover, a:focus-visible { text-decoration: underline; }
tr:target td { background: var(--default); color: var(--default-ink); }
s { text-decoration-color: var(--accent); }
#tip { position: fixed; z-index: 2; max-width: min(24rem, calc(100vw - 1rem));
  max-height: 60vh; overflow: hidden; padding: .6rem .9rem; border: 1px solid var(--rule);
  border-radius: 9px; background: var(--panel); color: var(--ink); pointer-events: none;
  box-shadow: 0 6px 24px rgb(0 0 0 / .22); }
#tip p { display: -webkit-box; -webkit-box-orient: vertical; -webkit-line-clamp: 5;
  margin: 0; overflow: hidden; unicode-bidi: plaintext; }
#tip p.about { color: var(--soft); }
#tip b { display: block; direction: ltr; unicode-bidi: isolate; }

@media screen and (max-width: 640px) {
  .keyboard { grid-template-columns: 1fr; }
  .count { text-align: start; }
  table, thead, tbody, tr, th, td { display: block; }
  #by-key thead { display: none; }
  tr { padding: .4rem 0; border-bottom: 1px solid var(--rule); }
  tr th, tr td, [dir=rtl] tr th, [dir=rtl] tr td { padding: 0; border: 0; }
  #by-key th:first-child, #by-command th:nth-child(-n+2) { width: auto; }
  td:nth-child(n+2), #by-key td { color: var(--soft); }
  /* Below each other, default and own keys look alike, and only the headings tell which is which. */
  thead th:first-child, tr > :nth-child(4) { color: var(--ink); }
  tr > :nth-child(4) { font-weight: 600; }
  tr:target td { color: var(--default-ink); }
}
@media (forced-colors: active) {
  .board, .chips, #legend svg { forced-color-adjust: none; background: var(--paper); }
}
@media print {
  @page { size: landscape; margin: 10mm; }
  * { print-color-adjust: exact; -webkit-print-color-adjust: exact; }
  body { max-width: none; padding: 0; font-size: 9pt; background: none; }
  #finder, #tip { display: none; }
  h1 { font-size: 20pt; }
  section { margin-top: 5mm; }
  .keyboard, tr { break-inside: avoid; }
  .board { overflow: visible; }
  .board svg { min-width: 0; }
  h2, .block { break-after: avoid; }
  .tables { break-before: page; }
  .by-key { columns: 2; column-gap: 12mm; }
  #by-key { max-width: none; margin-top: 0; }
  #by-key th:first-child { width: 35%; }
  table { font-size: 8pt; line-height: 1.3; }
  th, td { padding-top: .4mm; padding-bottom: .4mm; }
  .block th { padding-top: 3mm; }
}
)css";

}  // namespace

std::string_view KeysPageStyle() { return Style; }

}  // namespace tessera
