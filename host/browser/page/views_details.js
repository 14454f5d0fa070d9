// What is known of the view that is selected.

import { element, written } from "./views_words.js";

export function showFacts(section, row, isNew) {
  const facts = [
    ["Frame", written(row.frameX, row.frameY, row.frameWidth, row.frameHeight)],
    ["On the screen", written(row.x, row.y, row.width, row.height)],
    ["Hidden", row.isHidden ? "yes" : "no"],
    ["Alpha", String(Number(row.alpha.toFixed(3)))],
    ["Clips", row.clips ? "yes" : "no"],
    ["Gestures", row.gestures || "none"],
  ];
  if (row.text) facts.unshift(["Text", row.text]);
  const list = element("dl", "facts");
  for (const [name, value] of facts) list.append(element("dt", "", name), element("dd", "", value));
  const description = isNew ? null : section.querySelector(".description");
  section.replaceChildren(element("h3", "", row.className), list);
  if (description) section.append(description);
  else section.scrollTop = 0;
}

export function isDescribed(section) {
  return Boolean(section.querySelector(".description"));
}

const GROUPS = [
  ["Instance variables", "ivar "],
  ["Class methods", "+ "],
  ["Methods", "- "],
  ["Inherited methods", "inherited methods: "],
];

/** Adds what the view's class consists of: lines, the first of which is what it inherits from. */
export function describe(section, text) {
  const [classes, ...lines] = text.trimEnd().split("\n");
  const all = element("div", "description");
  all.append(element("p", "chain", classes));
  for (const [title, start] of GROUPS) {
    const own = lines.filter((line) => line.startsWith(start)).map((line) => line.slice(start.length));
    const items = start.endsWith(": ") ? own.flatMap((line) => line.split(", ")) : own;
    if (!items.length) continue;
    const list = element("ul", "");
    list.append(...items.map((one) => element("li", "", one)));
    all.append(element("h4", "", title), list);
  }
  section.querySelector(".description")?.remove();
  section.append(all);
}
