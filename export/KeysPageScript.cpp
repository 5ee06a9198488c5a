// The script reads what it shows from the tables, so that each text is there once.
#include "export/KeysPageScript.h"

namespace tessera {
namespace {

constexpr std::string_view Script = R"js(
"use strict";
(() => {
  const all = (selector, root = document) => [...root.querySelectorAll(selector)];
  const fold = (text) => text.toUpperCase().replace(/ *\+ */g, "+");
  const commandOf = (link) => document.getElementById(link.hash.slice(1));
  const commandsOf = (element) => all("a", element).map(commandOf);
  const keys = all(".key");

  const texts = new Map();
  const rowOf = new Map();
  const cells = (row) => [...row.cells].map((cell) => fold(cell.textContent));
  for (const row of all("#by-command tr[id]")) texts.set(row, cells(row).join("\n"));
  for (const row of all("#by-key tr[data-key]")) {
    const commands = commandsOf(row).map((command) => texts.get(command));
    texts.set(row, [...cells(row), ...commands].join("\n"));
    rowOf.set(row.dataset.key, row);
  }

  const search = document.getElementById("search");
  const narrow = () => {
    const words = fold(search.value).split(/\s+/).filter(Boolean);
    const found = new Set();
    for (const [row, text] of texts) {
      row.hidden = !words.every((word) => text.includes(word));
      if (!row.hidden && words.length > 0) found.add(row.dataset.key);
    }
    for (const block of all("#by-command tbody")) {
      block.hidden = words.length > 0 && !block.querySelector("tr[id]:not([hidden])");
    }
    for (const key of keys) key.classList.toggle("found", found.has(key.dataset.key));
    document.body.classList.toggle("searching", words.length > 0);
  };
  search.addEventListener("input", narrow);
  narrow();  // a browser may have kept what was typed
  document.getElementById("finder").hidden = false;

  const tip = document.getElementById("tip");
  const add = (name, text, style = "") => {
    const line = document.createElement(name);
    line.textContent = text;
    line.className = style;
    tip.append(line);
  };
  const tell = (key) => {
    tip.replaceChildren();
    const row = rowOf.get(key.dataset.key);
    if (!row) return add("p", key.getAttribute("aria-label"));
    add("b", key.dataset.key);
    for (const holder of all("div", row)) {
      add("p", holder.textContent);
      for (const command of commandsOf(holder)) add("p", command.cells[0].textContent, "about");
    }
  };
  const hide = () => { tip.hidden = true; };
  const show = (key) => {
    tell(key);
    tip.hidden = false;
    const box = key.getBoundingClientRect();
    const fits = box.bottom + 8 + tip.offsetHeight <= innerHeight;
    const top = fits ? box.bottom + 8 : box.top - 8 - tip.offsetHeight;
    tip.style.top = Math.max(8, top) + "px";
    tip.style.left = Math.max(8, Math.min(box.left, innerWidth - tip.offsetWidth - 8)) + "px";
  };
  for (const key of keys) {
    // A title would show a second tip.
    const title = key.querySelector("title");
    if (key.dataset.use !== "free") key.setAttribute("tabindex", "0");
    key.setAttribute("role", "img");
    key.setAttribute("aria-label", (title || key).textContent);
    if (title) title.remove();
    key.addEventListener("pointerenter", () => show(key));
    key.addEventListener("pointerleave", hide);
    key.addEventListener("focus", () => show(key));
    key.addEventListener("blur", hide);
  }
  document.addEventListener("click", (event) => {
    const key = event.target.closest(".key");
    if (key) show(key); else hide();
    // A search may have hidden the command that a name leads to.
    const link = event.target.closest("#by-key a");
    if (link) commandOf(link).hidden = commandOf(link).closest("tbody").hidden = false;
  });
  document.addEventListener("keydown", (event) => { if (event.key === "Escape") hide(); });
  document.addEventListener("scroll", () => {
    // The browser brings a key that Tab leads to into view after it has told so.
    const key = document.activeElement.closest(".key");
    const box = key && key.getBoundingClientRect();
    const isSeen = box && box.bottom > 0 && box.top < innerHeight;
    if (isSeen && !tip.hidden) show(key); else hide();
  }, true);
})();
)js";

}  // namespace

std::string_view KeysPageScript() { return Script; }

}  // namespace tessera
