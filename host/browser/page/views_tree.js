// A list of views as a tree, by the rules for trees in pages (ARIA).

import { chip, element, shortGestures, written } from "./views_words.js";

export class Tree {
  constructor(list, { selected, pointed }) {
    Object.assign(this, { list, selected, pointed, key: null });
    Object.assign(this, { rows: [], items: new Map(), closed: new Set() });
    // Until there are rows to be reached, it has the keyboard itself.
    list.tabIndex = -1;
    list.addEventListener("click", (event) => this.clicked(event));
    list.addEventListener("keydown", (event) => this.pressed(event));
    list.addEventListener("pointerover", (event) => pointed(this.rowAt(event)));
    list.addEventListener("pointerleave", () => pointed(null));
  }

  rowAt(event) {
    return this.items.get(event.target.closest("[role=treeitem]")?.dataset.key)?.row;
  }

  /** Shows other rows; what was selected, closed and in sight stays so. */
  show(rows) {
    this.rows = rows;
    const path = [];
    rows.forEach((row, i) => {
      path[row.depth] = row;
      row.parent = path[row.depth - 1];
      row.hasChildren = rows[i + 1]?.depth > row.depth;
      row.isSeen = !row.isHidden && row.alpha > 0 && row.parent?.isSeen !== false;
    });
    const hadFocus = this.list.contains(document.activeElement);
    const { scrollTop, scrollLeft } = this.list;
    this.items = new Map(rows.map((row) => [row.key, { row, item: this.itemOf(row) }]));
    this.list.replaceChildren(...[...this.items.values()].map(({ item }) => item));
    this.unfold();
    Object.assign(this.list, { scrollTop, scrollLeft });
    const row = this.items.get(this.key)?.row;
    this.mark(row ?? rows[0], Boolean(row));
    if (hadFocus) this.focus();
    this.selected(row);
  }

  itemOf(row) {
    const item = element("div", "row");
    item.setAttribute("role", "treeitem");
    item.setAttribute("aria-level", row.depth + 1);
    item.dataset.key = row.key;
    item.tabIndex = -1;
    item.style.setProperty("--depth", row.depth);
    if (row.hasChildren) item.setAttribute("aria-expanded", !this.closed.has(row.key));
    item.classList.toggle("unseen-view", !row.isSeen);
    item.append(element("span", "twisty"), element("span", "class", row.className));
    if (row.text) item.append(element("span", "says", `“${row.text}”`));
    item.append(element("span", "frame", written(row.frameX, row.frameY, row.frameWidth, row.frameHeight)));
    if (row.isHidden) item.append(chip("hidden"));
    if (row.alpha !== 1) item.append(chip(`alpha ${Number(row.alpha.toFixed(3))}`));
    if (row.gestures) item.append(chip(shortGestures(row.gestures), "gesture", row.gestures));
    return item;
  }

  /** Hides the rows below those that are closed. */
  unfold() {
    for (const { row: { parent }, item } of this.items.values())
      item.hidden = Boolean(parent) && (this.closed.has(parent.key) || this.items.get(parent.key).item.hidden);
  }

  /** Only one row can be reached by Tab. */
  mark(row, isSelected = true) {
    this.list.querySelector("[tabindex='0']")?.setAttribute("tabindex", -1);
    this.list.querySelector("[aria-selected=true]")?.removeAttribute("aria-selected");
    const item = this.items.get(row?.key)?.item;
    if (!item) return;
    item.tabIndex = 0;
    if (isSelected) item.setAttribute("aria-selected", true);
  }

  focus() {
    (this.list.querySelector("[tabindex='0']") ?? this.list).focus({ preventScroll: true });
  }

  select(key) {
    const found = this.items.get(key);
    if (!found) return;
    this.key = key;
    for (let row = found.row.parent; row; row = row.parent) this.setClosed(row, false);
    this.mark(found.row);
    // First, since what is then shown takes room from the list.
    this.selected(found.row);
    this.reveal(found.item);
  }

  reveal(item) {
    const { list } = this;
    const edge = item.offsetHeight;
    const top = item.offsetTop - list.offsetTop;
    const least = top + 2 * edge - list.clientHeight;
    list.scrollTop = Math.min(Math.max(list.scrollTop, least), top - edge);
    list.scrollLeft = item.querySelector(".class").offsetLeft - item.offsetLeft - list.clientWidth / 3;
  }

  setClosed(row, isClosed) {
    if (!row.hasChildren || this.closed.has(row.key) === isClosed) return;
    if (isClosed) this.closed.add(row.key);
    else this.closed.delete(row.key);
    this.items.get(row.key).item.setAttribute("aria-expanded", !isClosed);
    this.unfold();
  }

  clicked(event) {
    const row = this.rowAt(event);
    if (!row) return;
    if (event.target.matches(".twisty")) this.setClosed(row, !this.closed.has(row.key));
    else this.select(row.key);
    this.focus();
  }

  pressed(event) {
    const inSight = this.rows.filter((row) => !this.items.get(row.key).item.hidden);
    const current = this.items.get(document.activeElement?.dataset.key)?.row;
    const at = inSight.indexOf(current);
    if (event.ctrlKey || event.altKey || event.metaKey || at < 0) return;
    const isOpen = current.hasChildren && !this.closed.has(current.key);
    const next = {
      ArrowDown: () => inSight[at + 1],
      ArrowUp: () => inSight[at - 1],
      Home: () => inSight[0],
      End: () => inSight.at(-1),
      ArrowRight: () => (isOpen ? inSight[at + 1] : this.setClosed(current, false)),
      ArrowLeft: () => (isOpen ? this.setClosed(current, true) : current.parent),
      Enter: () => current,
      " ": () => current,
    }[event.key];
    if (!next) return;
    event.preventDefault();
    const row = next();
    if (!row) return;
    this.select(row.key);
    this.focus();
  }
}
