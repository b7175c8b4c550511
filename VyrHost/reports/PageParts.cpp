// The style, the script and the elements of a page for which HtmlFuncs has no tags.
#include <VyrHost/reports/PageParts.h>

namespace VyrHost::Reports::PageParts {

const std::string_view headElements =
    "\t<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\r\n"
    "\t<meta name=\"referrer\" content=\"no-referrer\">\r\n"
    "\t<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
    "script-src 'unsafe-inline'; img-src 'self' data: file:\">\r\n";

const std::string_view styleBeginning = "\t<style>\r\n";
const std::string_view styleEnd = "\t</style>\r\n";
const std::string_view style =
    R"(:root { color-scheme: light dark; --text: #1c1e21; --page: #f4f6f8; --sheet: #ffffff; --line: #d5dae1;
  --band: #f8f9fb; --head: #e9edf2; --link: #0b57d0; --faint: #565d66; --notable: #7a4f00; --bad: #b3261e; }
@media screen and (prefers-color-scheme: dark) { :root { --text: #e6e8eb; --page: #14161a; --sheet: #1c1f24;
  --line: #363b43; --band: #21252b; --head: #2a2f37; --link: #a8c7fa; --faint: #abb2bc; --notable: #ffcf70;
  --bad: #ffb4ab; } }
body { margin: 0; padding: clamp(0.75rem, 3vw, 2rem); color: var(--text); background: var(--page);
  font: 0.9375rem/1.5 system-ui, sans-serif; }
header { display: flex; flex-wrap: wrap; align-items: baseline; gap: 0 1rem; margin-bottom: 0.75rem; }
h1 { font-size: 1.5rem; font-weight: 600; margin: 0; }
.total { color: var(--faint); margin: 0; }
.tools { display: flex; flex-wrap: wrap; align-items: baseline; gap: 0.25rem 0.75rem; margin-inline-start: auto;
  color: var(--faint); }
.tools input { font: inherit; padding: 0.35rem 0.75rem; color: var(--text); background: var(--sheet);
  border: 1px solid var(--faint); border-radius: 0.5rem; width: 16rem; max-width: 100%; box-sizing: border-box; }
a { color: var(--link); }
.list { background: var(--sheet); border: 1px solid var(--line); border-radius: 0.5rem; overflow-x: auto; }
.records { border-collapse: separate; border-spacing: 0; width: 100%; }
.records th, .records td { padding: 0.35rem 0.75rem; border-bottom: 1px solid var(--line); text-align: start;
  vertical-align: top; unicode-bidi: plaintext; white-space: pre-wrap; overflow-wrap: anywhere; }
.records tbody tr:last-child td { border-bottom: 0; }
.records th { background: var(--head); font-weight: 600; white-space: nowrap; overflow-wrap: normal; }
.records td.text { min-width: 6rem; }
.records td.date, .records td.number, .records td.size { white-space: nowrap; font-variant-numeric: tabular-nums; }
.records td.number, .records td.size, .records th.number, .records th.size { text-align: end; }
.records tbody tr:hover td { background: var(--head); }
.records tr.faint { color: var(--faint); }
.records tr.notable { color: var(--notable); }
.records tr.bad { color: var(--bad); }
.records tr[hidden] { display: none !important; }
.records th button { all: unset; cursor: pointer; }
.records th button:hover { text-decoration: underline; }
.records th button:focus-visible, .list:focus-visible { outline: 2px solid var(--link); outline-offset: 2px; }
.records th[aria-sort=ascending] button::after { content: " \25B2"; }
.records th[aria-sort=descending] button::after { content: " \25BC"; }
.thumbnail { display: block; width: 5rem; height: 5rem; object-fit: contain; }
.turned { image-orientation: none; }
.turned2 { transform: scaleX(-1); }
.turned3 { transform: rotate(180deg); }
.turned4 { transform: scaleY(-1); }
.turned5 { transform: rotate(90deg) scaleY(-1); }
.turned6 { transform: rotate(90deg); }
.turned7 { transform: rotate(90deg) scaleX(-1); }
.turned8 { transform: rotate(-90deg); }
footer { color: var(--faint); font-size: 0.875rem; margin-top: 0.75rem; }
@media screen and (min-width: 60rem) { .list { overflow: visible; }
  .records th { position: sticky; top: 0; }
  .records th:first-child { border-start-start-radius: 0.5rem; }
  .records th:last-child { border-start-end-radius: 0.5rem; }
  .records tbody tr:last-child td:first-child { border-end-start-radius: 0.5rem; }
  .records tbody tr:last-child td:last-child { border-end-end-radius: 0.5rem; } }
@media screen and (max-width: 40rem) { .tools, .tools input { width: 100%; }
  .records, .records thead, .records tbody { display: block; }
  .records tr { display: block; padding: 0.5rem 0.75rem; border-bottom: 1px solid var(--line); }
  .records thead tr { display: flex; flex-wrap: wrap; gap: 0.25rem 1rem; background: var(--head); }
  .records th, .records td { display: block; padding: 0; border: 0; background: none !important;
    text-align: start !important; }
  .records td:empty, .records th.picture { display: none; }
  .records td.text:first-child, .records td.picture + td { font-weight: 600; }
  .records td:not(:first-child, .picture + td)::before { content: var(--label) ": "; color: var(--faint); } }
@media print { body { padding: 0; background: none; font-size: 9pt; line-height: 1.3; } .tools { display: none; }
  .list { border: 0; overflow: visible; } .records th, .records td { padding: 0.15rem 0.4rem; }
  thead { display: table-header-group; } tr { break-inside: avoid; } .thumbnail { width: 3rem; height: 3rem; } }
)";

const std::string_view mainBeginning = "<main>\r\n";
const std::string_view mainEnd = "</main>\r\n";
const std::string_view listBeginning = "<section id=\"list\" class=\"list\" aria-label=\"List\" tabindex=\"0\">\r\n";
const std::string_view listEnd = "</section>\r\n";

const std::string_view script = R"(<script>
"use strict";
(function () {
  const table = document.getElementById("records");
  const body = table.tBodies[0];
  const rows = Array.from(body.rows);
  const tools = document.getElementById("tools");
  const box = document.createElement("input");
  const found = document.createElement("span");
  box.type = "search";
  box.placeholder = "Search";
  box.setAttribute("aria-label", "Search in the list");
  found.setAttribute("role", "status");
  tools.append(found, box);
  let texts;
  box.addEventListener("input", function () {
    texts ??= rows.map(function (row) { return row.textContent.toLocaleLowerCase(); });
    const wanted = box.value.toLocaleLowerCase();
    let count = 0;
    rows.forEach(function (row, index) {
      row.hidden = !texts[index].includes(wanted);
      count += row.hidden ? 0 : 1;
    });
    found.textContent = wanted === "" ? "" : count + " of " + rows.length;
  });
  const collator = new Intl.Collator(undefined, { numeric: true, sensitivity: "base" });
  const compareTexts = function (left, right) { return collator.compare(left, right); };
  const compareNumbers = function (left, right) { return Number(left) - Number(right); };
  Array.from(table.tHead.rows[0].cells).forEach(function (head, column) {
    if (head.classList.contains("picture"))
      return;
    const isNumber = head.classList.contains("number") || head.classList.contains("size");
    const compare = isNumber ? compareNumbers : compareTexts;
    const button = document.createElement("button");
    button.type = "button";
    button.append(...head.childNodes);
    head.append(button);
    button.addEventListener("click", function () {
      const isDescending = head.getAttribute("aria-sort") === "ascending";
      for (const other of head.parentNode.cells)
        other.removeAttribute("aria-sort");
      head.setAttribute("aria-sort", isDescending ? "descending" : "ascending");
      const valued = rows.map(function (row) {
        const cell = row.cells[column];
        return [cell.dataset.value ?? cell.textContent, row];
      });
      // Rows without a value come last in both directions.
      valued.sort(function (left, right) {
        if (left[0] === "" || right[0] === "")
          return (left[0] === "") - (right[0] === "");
        return isDescending ? compare(right[0], left[0]) : compare(left[0], right[0]);
      });
      body.append(...valued.map(function (pair) { return pair[1]; }));
    });
  });
})();
)";

} // namespace VyrHost::Reports::PageParts
