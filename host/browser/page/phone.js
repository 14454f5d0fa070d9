// The phone's page: shows its pictures and sends what the user does.

import { Views } from "./views.js";
import { button, decode, encode, format, pointerPhase, reason } from "./wire.js";

const phone = document.getElementById("phone");
const body = document.getElementById("body");
const canvas = document.getElementById("screen");
const keyboard = document.getElementById("keyboard");
const notice = document.getElementById("notice");
const song = document.getElementById("song");
const note = document.getElementById("note");
const drawing = canvas.getContext("2d", { alpha: false });

// --- The connection -----------------------------------------------------------------------------

const SECRET = "sonavue";
const FIRST_WAIT = 400;
const LONGEST_WAIT = 3000;

let socket = null;
let isOver = false;
let wait = FIRST_WAIT;
let token = location.hash.slice(1);

function send(name, ...values) {
  if (socket?.readyState === WebSocket.OPEN) socket.send(encode(name, ...values));
}

function say(text) {
  notice.hidden = !text;
  notice.firstElementChild.textContent = text;
}

function connect() {
  const key = token || sessionStorage.getItem(SECRET);
  if (!key) return say("Open the phone by the link that it prints when it starts.");
  socket = new WebSocket(`ws://${location.host}/phone`);
  socket.binaryType = "arraybuffer";
  socket.onopen = () => send("present", key);
  socket.onmessage = (event) => take(decode(event.data));
  socket.onclose = () => {
    if (isOver) return;
    say("Waiting for the phone…");
    setTimeout(connect, wait);
    wait = Math.min(2 * wait, LONGEST_WAIT);
  };
}

const REFUSALS = {
  [reason.usedLink]: "This link has been used, or the phone has been started anew. Open the phone by the link that it printed last.",
  [reason.openElsewhere]: "The phone is open on another page. It prints a new link when that page is closed.",
  [reason.movedAway]: "The phone is shown in another tab now.",
};

function take(message) {
  switch (message.name) {
    case "welcome":
      return begin(message);
    case "refused":
      isOver = true;
      sessionStorage.removeItem(SECRET);
      return say(REFUSALS[message.reason]);
    case "part":
      return takePart(message);
    case "song":
      return tellSong(message);
    case "caret":
      return followCaret(message);
    case "views":
      return views.takeViews(message);
    case "description":
      return views.takeDescription(message);
  }
}

function begin(welcome) {
  sessionStorage.setItem(SECRET, welcome.secret);
  token = "";
  // The token has done its work, and an address is seen by others.
  history.replaceState(null, "", location.pathname);
  wait = FIRST_WAIT;
  pictures = Promise.resolve();
  parts = [];
  layout = welcome;
  if (!body.src) body.src = "body.svg";
  phone.hidden = false;
  say("");
  place();
  views.screen = welcome;
  setTimeout(() => note.classList.add("faded"), 8000);
}

function tellSong({ title, artist, isPlaying }) {
  const name = artist ? `${title} – ${artist}` : title;
  document.title = name || "Sonavue";
  song.textContent = name ? `${isPlaying ? "Playing" : "Paused"}: ${name}` : "";
}

// --- The place of the phone on the page ---------------------------------------------------------

const BAR = 52;
const SMALL = 500;
const glass = document.getElementById("glass");
const views = new Views({
  ask: send,
  resized: () => place(),
  leave: () => keyboard.focus({ preventScroll: true }),
});
const STILL = 150;

let layout = null;
let scale = 1;
let pixelsPerPoint = 0;
let still = 0;

function place() {
  if (!layout) return;
  const isBare = Math.min(innerWidth, innerHeight) < SMALL && matchMedia("(pointer: coarse)").matches;
  document.documentElement.classList.toggle("bare", isBare);
  const margin = isBare ? 0 : 12;
  const { right, bottom } = views.taken;
  const page = { width: innerWidth - right, height: innerHeight - (bottom || (isBare ? BAR : 0)) };
  const room = { width: page.width - 2 * margin, height: page.height - 2 * margin };
  const shown = isBare ? { width: layout.screenWidth, height: layout.screenHeight } : layout;
  const fitting = Math.min(room.width / shown.width, room.height / shown.height);
  // The screen has whole pixels of the display, so that none is between two of the picture.
  const ratio = devicePixelRatio;
  const pixels = Math.max(1, Math.floor(layout.screenWidth * fitting * ratio));
  pixelsPerPoint = pixels / layout.screenWidth;
  scale = pixelsPerPoint / ratio;
  const onPixel = (value) => Math.round(value * ratio) / ratio;
  const screenLeft = onPixel(layout.screenX * scale);
  const screenTop = onPixel(layout.screenY * scale);
  const left = isBare
    ? (page.width - layout.screenWidth * scale) / 2 - screenLeft
    : (page.width - layout.width * scale) / 2;
  const top = isBare
    ? (page.height - layout.screenHeight * scale) / 2 - screenTop
    : (page.height - layout.height * scale) / 2;
  Object.assign(phone.style, {
    left: `${onPixel(left)}px`, top: `${onPixel(top)}px`,
    width: `${layout.width * scale}px`, height: `${layout.height * scale}px`,
  });
  const screen = {
    left: `${screenLeft}px`, top: `${screenTop}px`, width: `${pixels / ratio}px`,
    height: `${Math.round(layout.screenHeight * pixelsPerPoint) / ratio}px`,
  };
  for (const one of [canvas, glass]) Object.assign(one.style, screen);
  tellShape();
}

function tellShape() {
  send("shape", pixelsPerPoint, document.visibilityState === "visible");
}

addEventListener("resize", () => {
  clearTimeout(still);
  still = setTimeout(place, STILL);
});
document.addEventListener("visibilitychange", tellShape);

// --- Pictures -----------------------------------------------------------------------------------

const TYPES = { [format.jpeg]: "image/jpeg", [format.png]: "image/png" };

let pictures = Promise.resolve();
let parts = [];

// Decoding takes its time, and pictures must not overtake one another.
function takePart(part) {
  const bitmap = createImageBitmap(new Blob([part.bytes], { type: TYPES[part.format] }));
  parts.push({ part, bitmap });
  if (!part.isLast) return;
  const picture = parts;
  parts = [];
  pictures = pictures.then(() => draw(picture, part)).catch(() => {});
}

async function draw(picture, { picture: number, width, height }) {
  const bitmaps = await Promise.all(picture.map(({ bitmap }) => bitmap));
  if (canvas.width !== width || canvas.height !== height) {
    canvas.width = width;
    canvas.height = height;
  }
  picture.forEach(({ part }, i) => {
    drawing.drawImage(bitmaps[i], part.x, part.y);
    bitmaps[i].close();
  });
  send("shown", number);
  views.pictureChanged();
}

// --- Mouse and fingers --------------------------------------------------------------------------

const CLICK_TIME = 400;
const CLICK_ROOM = 6;
const NOTCH = 100;
const LINES_PER_NOTCH = 3;

const fingers = new Map();
let lastClick = { time: 0, x: 0, y: 0, count: 0 };

function pointOf(event) {
  const at = phone.getBoundingClientRect();
  return [(event.clientX - at.left) / scale, (event.clientY - at.top) / scale];
}

function fingerOf(event) {
  if (event.pointerType === "mouse") return 0;
  const used = new Set(fingers.values());
  let number = 1;
  while (used.has(number)) ++number;
  return number;
}

function countClicks({ timeStamp, clientX, clientY }) {
  const isQuick = timeStamp - lastClick.time < CLICK_TIME &&
    Math.hypot(clientX - lastClick.x, clientY - lastClick.y) < CLICK_ROOM;
  lastClick = { time: timeStamp, x: clientX, y: clientY, count: isQuick ? lastClick.count + 1 : 1 };
  return lastClick.count;
}

// Focus stays where it is. Firefox forgets a second finger of the same moment when the first one's
// own event is prevented, so this is left to the mouse event that a finger makes.
phone.addEventListener("mousedown", (event) => event.preventDefault());

phone.addEventListener("pointerdown", (event) => {
  if (event.pointerType !== "touch") keyboard.focus({ preventScroll: true });
  if (event.button === 2) return send("otherButton", ...pointOf(event));
  if (event.button !== 0) return;
  phone.setPointerCapture(event.pointerId);
  fingers.set(event.pointerId, fingerOf(event));
  send("pointer", fingers.get(event.pointerId), pointerPhase.down, countClicks(event), ...pointOf(event));
});

phone.addEventListener("pointermove", (event) => {
  if (!fingers.has(event.pointerId)) return;
  send("pointer", fingers.get(event.pointerId), pointerPhase.moved, 1, ...pointOf(event));
});

function lift(event) {
  if (!fingers.has(event.pointerId)) return;
  send("pointer", fingers.get(event.pointerId), pointerPhase.up, 1, ...pointOf(event));
  fingers.delete(event.pointerId);
}
phone.addEventListener("pointerup", lift);
phone.addEventListener("pointercancel", lift);
phone.addEventListener("contextmenu", (event) => event.preventDefault());

phone.addEventListener("wheel", (event) => {
  event.preventDefault();
  const { deltaX, deltaY, deltaMode } = event;
  const inLines = deltaMode !== WheelEvent.DOM_DELTA_PIXEL;
  // A wheel with notches turns by the same large step; a touchpad by any.
  const isPrecise = !inLines && Math.max(Math.abs(deltaX), Math.abs(deltaY)) < NOTCH;
  const unit = isPrecise ? scale : inLines ? LINES_PER_NOTCH : NOTCH;
  const turns = (delta) => (isPrecise ? delta / unit : Math.sign(delta) * Math.ceil(Math.abs(delta) / unit / 1.25));
  send("wheel", isPrecise, ...pointOf(event), turns(deltaX), turns(deltaY));
}, { passive: false });

for (const one of document.querySelectorAll("#bar [data-button]")) {
  const held = (isDown) => () => send("button", button[one.dataset.button], isDown);
  one.addEventListener("pointerdown", held(true));
  for (const end of ["pointerup", "pointercancel"]) one.addEventListener(end, held(false));
}
document.getElementById("type").addEventListener("click", () => keyboard.focus());

// --- The keyboard -------------------------------------------------------------------------------

const KEYS = {
  Enter: "return", Backspace: "delete", Escape: "escape", Tab: "tab", End: "end",
  ArrowLeft: "left", ArrowRight: "right", ArrowUp: "up", ArrowDown: "down",
};
const HELD_BUTTONS = { F1: button.home, Home: button.home, F3: button.lock };
const PRESSES = { F2: button["home-double"], F4: button["home-touch"] };
const CONTROL_KEYS = "acfgvx";
// Keyboards on glass tell of a deletion only if there is something to delete.
const SOMETHING = "\u00a0";

let takesText = false;

function withModifiers(name, event) {
  return (event.ctrlKey ? "control-" : "") + (event.shiftKey ? "shift-" : "") + name;
}

/** The name of a key that types no text; empty for others. */
function nameOf(event) {
  if (KEYS[event.key]) return KEYS[event.key];
  const letter = event.key.toLowerCase();
  return event.ctrlKey && letter.length === 1 && CONTROL_KEYS.includes(letter) ? letter : "";
}

/** Whether a key that is held goes on without a field: the focus moves, and the volume changes. */
function goesOn(name, event) {
  if (name === "up" || name === "down") return true;
  return ["left", "right", "tab"].includes(name) && !event.ctrlKey;
}

addEventListener("keydown", (event) => {
  if (event.key === "F9") {
    event.preventDefault();
    if (!event.repeat) views.toggle();
    return;
  }
  if (event.target.closest?.("#views")) return;
  // A finger does not give it the keyboard, which would cover the page.
  if (document.activeElement !== keyboard) keyboard.focus({ preventScroll: true });
  if (event.isComposing || event.altKey || event.metaKey) return;
  if (event.key in HELD_BUTTONS || event.key in PRESSES || event.key === "F7") {
    event.preventDefault();
    if (event.repeat) return;
    if (event.key === "F7") send("shake");
    else send("button", HELD_BUTTONS[event.key] ?? PRESSES[event.key], true);
    return;
  }
  if (event.key === " " && !event.repeat) send("key", withModifiers("space", event));
  const name = nameOf(event);
  if (!name) return;
  event.preventDefault();
  if (!event.repeat || goesOn(name, event) || takesText) send("key", withModifiers(name, event));
});

addEventListener("keyup", (event) => {
  if (event.key in HELD_BUTTONS) send("button", HELD_BUTTONS[event.key], false);
});

keyboard.addEventListener("compositionupdate", (event) =>
  send("composed", event.data, [...event.data].length));

keyboard.addEventListener("compositionend", (event) => {
  send("composed", "", 0);
  if (event.data) send("typed", event.data);
  forgetText();
});

keyboard.addEventListener("input", (event) => {
  if (event.isComposing) return;
  if (event.inputType.startsWith("delete")) send("key", "delete");
  else if (event.inputType === "insertLineBreak") send("key", "return");
  else if (event.inputType !== "insertCompositionText" && event.data) send("typed", event.data);
  forgetText();
});

function forgetText() {
  keyboard.value = SOMETHING;
  keyboard.setSelectionRange(SOMETHING.length, SOMETHING.length);
}

function followCaret(caret) {
  takesText = caret.takesText;
  Object.assign(keyboard.style, {
    left: `${(layout.screenX + caret.x) * scale}px`,
    top: `${(layout.screenY + caret.y) * scale}px`,
    height: `${Math.max(caret.height * scale, 1)}px`,
  });
  document.getElementById("type").disabled = !takesText;
}

addEventListener("blur", () => {
  for (const held of [button.home, button.lock]) send("button", held, false);
});

forgetText();
if (matchMedia("(pointer: fine)").matches) keyboard.focus({ preventScroll: true });
connect();
