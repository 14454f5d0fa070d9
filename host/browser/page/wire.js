// The messages between the page and the phone, as in `host/browser/phone/messages.h`: a kind, which
// is the index in one of these lists, and the fields in their order, little-endian.

const FROM_PAGE = {
  present: [0, "text"],
  shape: [1, "double", "bool"],
  pointer: [2, "int", "byte", "int", "double", "double"],
  otherButton: [3, "double", "double"],
  wheel: [4, "bool", "double", "double", "double", "double"],
  typed: [5, "text"],
  composed: [6, "text", "int"],
  key: [7, "text"],
  button: [8, "byte", "bool"],
  shake: [9],
  shown: [10, "unsigned"],
  askViews: [11],
  askDescription: [12, "unsigned"],
};

const TO_PAGE = [
  ["welcome", { secret: "text", width: "double", height: "double", screenX: "double",
    screenY: "double", screenWidth: "double", screenHeight: "double" }],
  ["refused", { reason: "byte" }],
  ["part", { picture: "unsigned", isLast: "bool", width: "int", height: "int", x: "int", y: "int",
    format: "byte", bytes: "bytes" }],
  ["song", { title: "text", artist: "text", isPlaying: "bool" }],
  ["caret", { takesText: "bool", x: "double", y: "double", width: "double", height: "double" }],
  ["views", { leftOut: "unsigned", count: "unsigned", rows: "bytes" }],
  ["description", { view: "unsigned", text: "text" }],
];

const VIEW_ROW = {
  depth: "int", className: "text", text: "text",
  frameX: "double", frameY: "double", frameWidth: "double", frameHeight: "double",
  x: "double", y: "double", width: "double", height: "double",
  clips: "bool", isHidden: "bool", alpha: "double", gestures: "text",
};

const SIZES = { byte: 1, bool: 1, int: 4, unsigned: 4, double: 8 };

export const pointerPhase = { down: 0, moved: 1, up: 2 };
export const button = {
  home: 0, "home-double": 1, lock: 2, "volume-up": 3, "volume-down": 4, "home-touch": 5,
};
export const reason = { usedLink: 0, openElsewhere: 1, movedAway: 2 };
export const format = { jpeg: 0, png: 1 };

// Not more than the phone reads at a time.
const LONGEST_TEXT = 60000;

export function encode(name, ...values) {
  const [kind, ...types] = FROM_PAGE[name];
  const fields = types.map((type, i) =>
    type === "text" ? new TextEncoder().encode(values[i].slice(0, LONGEST_TEXT / 3)) : values[i]);
  const size = types.reduce(
    (sum, type, i) => sum + (type === "text" ? 4 + fields[i].length : SIZES[type]), 2);
  const view = new DataView(new ArrayBuffer(size));
  view.setUint16(0, kind, true);
  let at = 2;
  types.forEach((type, i) => {
    if (type === "text") {
      view.setUint32(at, fields[i].length, true);
      new Uint8Array(view.buffer, at + 4).set(fields[i]);
      at += 4 + fields[i].length;
      return;
    }
    if (type === "double") view.setFloat64(at, fields[i], true);
    else if (type === "int") view.setInt32(at, fields[i], true);
    else if (type === "unsigned") view.setUint32(at, fields[i], true);
    else view.setUint8(at, Number(fields[i]));
    at += SIZES[type];
  });
  return view.buffer;
}

/** Reads fields by their types into the message; returns where the next begin. */
function read(view, at, types, message) {
  for (const [field, type] of Object.entries(types)) {
    if (type === "text" || type === "bytes") {
      const size = view.getUint32(at, true);
      const bytes = new Uint8Array(view.buffer, view.byteOffset + at + 4, size);
      message[field] = type === "text" ? new TextDecoder().decode(bytes) : bytes;
      at += 4 + size;
      continue;
    }
    if (type === "double") message[field] = view.getFloat64(at, true);
    else if (type === "int") message[field] = view.getInt32(at, true);
    else if (type === "unsigned") message[field] = view.getUint32(at, true);
    else if (type === "bool") message[field] = view.getUint8(at) !== 0;
    else message[field] = view.getUint8(at);
    at += SIZES[type];
  }
  return at;
}

export function decode(buffer) {
  const view = new DataView(buffer);
  const [name, types] = TO_PAGE[view.getUint16(0, true)];
  const message = { name };
  read(view, 2, types, message);
  return message;
}

export function decodeRows({ rows, count }) {
  const view = new DataView(rows.buffer, rows.byteOffset, rows.byteLength);
  const made = Array.from({ length: count }, () => ({}));
  made.reduce((at, row) => read(view, at, VIEW_ROW, row), 0);
  return made;
}
