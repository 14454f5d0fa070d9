// How the panel writes what it knows of a view. Texts of the phone are never more than text.

export function element(name, className, text = "") {
  const made = document.createElement(name);
  made.className = className;
  made.textContent = text;
  return made;
}

export function chip(text, kind = "", title = "") {
  const made = element("span", `chip ${kind}`, text);
  made.title = title;
  return made;
}

const short = (number) => String(Number(number.toFixed(2)));

/** A rectangle: where it is, and how large. */
export function written(x, y, width, height) {
  return `${short(x)}, ${short(y)}  ${short(width)} × ${short(height)}`;
}

export function shortGestures(classes) {
  return classes.replace(/\bUI|GestureRecognizer/g, "");
}
