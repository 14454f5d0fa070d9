// What the page draws over the phone's screen: where the selected view is. The phone does not know.

import { element } from "./views_words.js";

const INVISIBLE = 0.01;
const SAME_PLACE = 3;

/** The rectangle that two have in common; empty when they do not meet. */
function common(one, other) {
  const x = Math.max(one.x, other.x);
  const y = Math.max(one.y, other.y);
  return {
    x, y,
    width: Math.max(0, Math.min(one.x + one.width, other.x + other.width) - x),
    height: Math.max(0, Math.min(one.y + one.height, other.y + other.height) - y),
  };
}

function contains({ x, y, width, height }, point) {
  return point.x >= x && point.x < x + width && point.y >= y && point.y < y + height;
}

export class Outline {
  constructor(glass, picked) {
    Object.assign(this, { glass, size: { width: 1, height: 1 }, rows: [], last: null });
    this.frame = element("div", "outline");
    this.label = element("div", "outline-label");
    this.pointer = element("div", "outline pointed");
    for (const one of [this.pointer, this.frame, this.label]) {
      one.hidden = true;
      glass.append(one);
    }
    glass.addEventListener("pointerdown", (event) => {
      event.stopPropagation();
      const row = event.button === 0 ? this.pickAt(this.pointOf(event)) : null;
      if (row) picked(row);
    });
    glass.addEventListener("pointermove", (event) => {
      if (event.pointerType === "mouse") this.point(this.rowsAt(this.pointOf(event))[0]);
    });
    glass.addEventListener("pointerleave", () => this.point(null));
  }

  set picks(picks) {
    this.glass.classList.toggle("picks", picks);
    this.point(null);
    this.last = null;
  }

  get picks() {
    return this.glass.classList.contains("picks");
  }

  pointOf({ clientX, clientY }) {
    const at = this.glass.getBoundingClientRect();
    return {
      x: (clientX - at.left) / at.width * this.size.width,
      y: (clientY - at.top) / at.height * this.size.height,
    };
  }

  /** The views that can be seen at a point, the one in front first. */
  rowsAt(point) {
    const around = [{ x: 0, y: 0, ...this.size }];
    const found = [];
    for (const row of this.rows) {
      const space = around[row.depth];
      const isSeen = space && !row.isHidden && row.alpha > INVISIBLE;
      const seen = isSeen && common(space, row);
      around.length = row.depth + 1;
      around.push(isSeen && (row.clips ? seen : space));
      if (seen && contains(seen, point)) found.unshift(row);
    }
    return found;
  }

  /** A further press at the same place goes to the view behind, in the end to the first again. */
  pickAt(point) {
    const rows = this.rowsAt(point);
    const { last } = this;
    const isSame = last && Math.hypot(point.x - last.point.x, point.y - last.point.y) < SAME_PLACE;
    const before = isSame ? rows.findIndex(({ key }) => key === last.key) : -1;
    const row = rows[(before + 1) % rows.length];
    this.last = row && { point, key: row.key };
    return row;
  }

  place(box, { x, y, width, height }) {
    const part = (value, of) => `${100 * value / of}%`;
    Object.assign(box.style, {
      left: part(x, this.size.width), top: part(y, this.size.height),
      width: part(width, this.size.width), height: part(height, this.size.height),
    });
  }

  show(row) {
    this.frame.hidden = this.label.hidden = !row;
    this.point(null);
    if (!row) return;
    this.place(this.frame, row);
    this.label.textContent = `${row.className}  ${Math.round(row.width)} × ${Math.round(row.height)}`;
    // Within the screen, and not over what it names.
    const { width, height } = this.size;
    const inside = (value, most) => Math.min(Math.max(value, 0), most);
    const isAtRight = row.x + row.width / 2 > width / 2 && row.x > width / 4;
    this.label.classList.toggle("above", row.y >= height * 0.04);
    this.label.classList.toggle("leftwards", isAtRight);
    Object.assign(this.label.style, {
      left: `${100 * inside(row.x + (isAtRight ? row.width : 0), width) / width}%`,
      top: `${100 * inside(row.y, height) / height}%`,
    });
  }

  point(row) {
    this.pointer.hidden = !row;
    if (row) this.place(this.pointer, row);
  }
}
