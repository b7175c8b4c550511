// The style, the script and the elements of a page for which HtmlFuncs has no tags.
#include <VyrHost/reports/PageParts.h>

namespace VyrHost::Reports::PageParts {

const std::string_view headElements =
    "\t<meta name=\"viewport\" content=\"width=device-width, initial-scale=1\">\r\n"
    "\t<meta name=\"referrer\" content=\"no-referrer\">\r\n"
    "\t<meta http-equiv=\"Content-Security-Policy\" content=\"default-src 'none'; style-src 'unsafe-inline'; "
    "script-src 'unsafe-inline'; img-src data: file:\">\r\n";

const std::string_view styleBeginning = "\t<style>\r\n";
const std::string_view styleEnd = "\t</style>\r\n";
const std::string_view style =
    R"(:root { color-scheme: light dark; --text: #1b1b1b; --page: #ffffff; --line: #c8c8c8; --band: #f4f4f4;
  --link: #0b57d0; --faint: #5f5f5f; --notable: #7a4f00; --bad: #b00020; }
@media (prefers-color-scheme: dark) { :root { --text: #e8e8e8; --page: #1b1b1b; --line: #4a4a4a; --band: #262626;
  --link: #a8c7fa; --faint: #b0b0b0; --notable: #ffcf70; --bad: #ff9c9c; } }
body { margin: 1rem; color: var(--text); background: var(--page); font: 1rem/1.5 system-ui, sans-serif; }
h1 { font-size: 1.5rem; margin: 0; }
a { color: var(--link); }
.list { overflow-x: auto; }
.records { border-collapse: collapse; min-width: 50%; }
.records th, .records td { padding: 0.25rem 0.75rem; border-bottom: 1px solid var(--line); text-align: start;
  vertical-align: top; unicode-bidi: plaintext; white-space: pre-wrap; }
.records td.number, .records td.size, .records th.number, .records th.size { text-align: end; }
.records th, .records td.date { white-space: nowrap; }
.records tr.faint { color: var(--faint); }
.records tr.notable { color: var(--notable); }
.records tr.bad { color: var(--bad); }
.records tr[hidden] { display: none !important; }
.records th button { all: unset; cursor: pointer; }
.records th button:focus-visible { outline: 2px solid var(--link); }
.records th[aria-sort=ascending] button::after { content: " \25B2"; }
.records th[aria-sort=descending] button::after { content: " \25BC"; }
.tools input { font: inherit; padding: 0.25rem 0.5rem; margin: 0.5rem 0; max-width: 100%; }
footer { color: var(--faint); margin-top: 1rem; }
@media print { body { margin: 0; } .tools { display: none; } thead { display: table-header-group; }
  tr { break-inside: avoid; } .list { overflow: visible; } }
)";

const std::string_view mainBeginning = "<main>\r\n";
const std::string_view mainEnd = "</main>\r\n";

const std::string_view script = R"(<script>
"use strict";
(function () {
  const table = document.getElementById("records");
  const body = table.tBodies[0];
  const rows = Array.from(body.rows);
  const box = document.createElement("input");
  box.type = "search";
  box.placeholder = "Search";
  box.setAttribute("aria-label", "Search in the list");
  document.getElementById("tools").append(box);
  box.addEventListener("input", function () {
    const wanted = box.value.toLocaleLowerCase();
    for (const row of rows)
      row.hidden = !row.textContent.toLocaleLowerCase().includes(wanted);
  });
  const collator = new Intl.Collator(undefined, { numeric: true, sensitivity: "base" });
  const valueOf = function (row, column) {
    const cell = row.cells[column];
    return cell.dataset.value ?? cell.textContent;
  };
  const compare = function (left, right) {
    const difference = Number(left) - Number(right);
    return Number.isNaN(difference) ? collator.compare(left, right) : difference;
  };
  Array.from(table.tHead.rows[0].cells).forEach(function (head, column) {
    const button = document.createElement("button");
    button.type = "button";
    button.append(...head.childNodes);
    head.append(button);
    button.addEventListener("click", function () {
      const isDescending = head.getAttribute("aria-sort") === "ascending";
      for (const other of head.parentNode.cells)
        other.removeAttribute("aria-sort");
      head.setAttribute("aria-sort", isDescending ? "descending" : "ascending");
      const valued = rows.map(function (row) { return [valueOf(row, column), row]; });
      // What has no value comes last in either direction.
      valued.sort(function (left, right) {
        if (left[0] === "" || right[0] === "")
          return (left[0] === "") - (right[0] === "");
        return isDescending ? compare(right[0], left[0]) : compare(left[0], right[0]);
      });
      body.append(...valued.map(function (pair) { return pair[1]; }));
    });
  });
})();
</script>
)";

} // namespace VyrHost::Reports::PageParts
