// The panel beside the phone: which views are on its screen. It only asks and looks.

import { Outline } from "./views_outline.js";
import { Tree } from "./views_tree.js";
import { describe, isDescribed, showFacts } from "./views_details.js";
import { decodeRows } from "./wire.js";

const SETTLED = 300;
const LEAST_PAUSE = 1000;

const panel = document.getElementById("views");
const button = document.getElementById("views-button");
const pick = document.getElementById("views-pick");
const count = document.getElementById("views-count");
const details = document.getElementById("views-details");

const counted = new Intl.NumberFormat("en");

/** Places in the tree that survive a new list: classes, and which one of its class each is. */
function nameRows(rows) {
  const path = [];
  for (const row of rows) {
    const parent = path[row.depth - 1];
    const siblings = (parent ?? path).named ??= {};
    const number = siblings[row.className] = (siblings[row.className] ?? 0) + 1;
    row.key = `${parent?.row.key ?? ""}/${row.className} ${number}`;
    path[row.depth] = { row };
    path.length = row.depth + 1;
  }
  return rows;
}

export class Views {
  /** `ask` sends a message to the phone; `resized` is called when there is more or less room. */
  constructor({ ask, resized, leave }) {
    Object.assign(this, { ask, resized, leave, askedAt: -LEAST_PAUSE, timer: 0, list: "" });
    this.outline = new Outline(document.getElementById("glass"), (row) => this.tree.select(row.key));
    this.tree = new Tree(document.getElementById("views-tree"), {
      selected: (row) => this.showSelected(row),
      pointed: (row) => this.outline.point(row),
    });
    button.addEventListener("click", () => this.toggle());
    pick.addEventListener("click", () => this.pick(!this.outline.picks));
    document.getElementById("views-refresh").addEventListener("click", () => this.refresh());
    document.getElementById("views-close").addEventListener("click", () => this.toggle(false));
    panel.addEventListener("keydown", (event) => {
      if (event.key === "Escape") this.toggle(false);
    });
  }

  get isOpen() {
    return !panel.hidden;
  }

  /** What the panel takes of the page, in its pixels. */
  get taken() {
    if (!this.isOpen) return { right: 0, bottom: 0 };
    const { width, left, top } = panel.getBoundingClientRect();
    const isBeside = width < innerWidth;
    return { right: isBeside ? innerWidth - left : 0, bottom: isBeside ? 0 : innerHeight - top };
  }

  toggle(opens = !this.isOpen) {
    panel.hidden = !opens;
    button.setAttribute("aria-expanded", opens);
    document.documentElement.classList.toggle("inspected", opens);
    this.resized();
    if (opens) {
      this.refresh();
      this.tree.focus();
      return;
    }
    clearTimeout(this.timer);
    this.pick(false);
    this.outline.show(null);
    this.leave();
  }

  pick(picks) {
    this.outline.picks = picks;
    pick.setAttribute("aria-pressed", picks);
  }

  refresh() {
    this.askedAt = performance.now();
    this.ask("askViews");
  }

  /** The phone shows something else; it is asked when it has settled. */
  pictureChanged() {
    if (!this.isOpen) return;
    clearTimeout(this.timer);
    const pause = this.askedAt + LEAST_PAUSE - performance.now();
    this.timer = setTimeout(() => this.refresh(), Math.max(SETTLED, pause));
  }

  /** The phone's screen, in points. */
  set screen({ screenWidth, screenHeight }) {
    this.outline.size = { width: screenWidth, height: screenHeight };
    this.list = "";
    if (this.isOpen) this.refresh();
  }

  takeViews(message) {
    if (!this.isOpen) return;
    const rows = nameRows(decodeRows(message));
    const list = JSON.stringify(rows);
    if (list === this.list) return;
    this.list = list;
    const leftOut = message.leftOut ? `, ${counted.format(message.leftOut)} more are left out` : "";
    count.textContent = `${counted.format(rows.length)} views${leftOut}`;
    rows.forEach((row, i) => { row.index = i; });
    this.outline.rows = rows;
    this.tree.show(rows);
  }

  showSelected(row) {
    const isNew = row?.key !== this.shown?.key;
    this.shown = row;
    this.outline.show(row);
    details.hidden = !row;
    if (!row) return;
    showFacts(details, row, isNew);
    if (isNew || !isDescribed(details)) this.ask("askDescription", row.index);
  }

  takeDescription({ view, text }) {
    // The answer may be about a list that has gone.
    const isMeant = this.isOpen && view === this.shown?.index && text.startsWith(this.shown.className);
    if (isMeant) describe(details, text);
  }
}
