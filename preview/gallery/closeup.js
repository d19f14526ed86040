// One symbol, large: it zooms by a control, a wheel and two fingers, and goes on to the next. Enlarged, it shows more
// detail; made smaller, a hatch shows more of itself.

const kSmallestZoom = 25;
const kLargestZoom = 800;

const closeup = {
  dialog: document.getElementById("closeup"),
  picture: document.getElementById("closeup-picture"),
  controls: document.getElementById("closeup-controls"),
  zoom: document.getElementById("closeup-zoom"),
  compare: document.getElementById("closeup-compare"),
  symbol: null,
  svg: null,

  open(symbol) {
    this.symbol = symbol;
    document.getElementById("closeup-name").textContent = symbol.name;
    document.getElementById("closeup-description").textContent = [
      symbol.textOf(".description"),
      symbol.textOf(".detail"),
      symbol.textOf(".loss"),
    ].filter(Boolean).join(" · ");
    document.getElementById("closeup-tags").replaceChildren(...tagButtons(symbol));
    this.zoom.min = smallestZoomOf(symbol);
    this.zoom.value = kWholePicture;
    this.compare.hidden = symbol.data.faithful === undefined;
    if (!this.dialog.open) {
      this.dialog.showModal();
    }
    buildControls(this.controls, symbol);
    this.refresh(symbol);
    link.keep();
  },

  // The symbol that is shown `step` cards on; the first follows the last.
  go(step) {
    const { shown } = arrangement;
    const place = shown.indexOf(this.symbol);
    this.open(shown[(place + step + shown.length) % shown.length]);
  },

  // Draws the symbol, if it is the one that is open, by the values in force.
  refresh(symbol) {
    if (this.symbol !== symbol) {
      return;
    }
    this.svg = symbol.draw();
    renameIds(this.svg);
    this.picture.replaceChildren(this.svg);
    restyle(this.svg, symbol.values);
    layPaper(this.picture, inksOf(this.svg.outerHTML));
    if (!this.compare.hidden && this.compare.ariaPressed === "true") {
      layFaithful(this.picture, this.svg, symbol);
    }
    this.applyZoom();
  },

  // What is in the middle, or at the place given, stays there.
  applyZoom(atX = this.picture.clientWidth / 2, atY = this.picture.clientHeight / 2) {
    const view = this.picture;
    const x = (view.scrollLeft + atX) / view.scrollWidth;
    const y = (view.scrollTop + atY) / view.scrollHeight;
    const zoom = Number(this.zoom.value);
    const share = Math.min(1, zoom / kWholePicture);
    for (const svg of view.children) {
      svg.style.width = `${Math.max(zoom, kWholePicture)}%`;
    }
    if (this.symbol.kind === "area") {
      spread(this.svg, share);
      view.querySelectorAll(".faithful").forEach((over) => spread(over, share * enlargementOf(this.symbol)));
    }
    view.scrollLeft = x * view.scrollWidth - atX;
    view.scrollTop = y * view.scrollHeight - atY;
    const bar = document.getElementById("closeup-scale");
    const pixels = (share * this.svg.getBoundingClientRect().width) / kPictureWidth;
    weigh(this.svg, this.symbol.values, pixels);
    for (const over of view.querySelectorAll(".faithful")) {
      weigh(over, faithfulValuesOf(this.symbol), pixels * enlargementOf(this.symbol));
    }
    bar.style.width = `${tellScale(bar, this.symbol.scale * pixels)}px`;
  },

  zoomBy(factor, atX, atY) {
    this.zoom.value = Math.min(kLargestZoom, Math.max(Number(this.zoom.min), Number(this.zoom.value) * factor));
    this.applyZoom(atX, atY);
  },

  closed() {
    this.symbol = null;
    this.svg = null;
    this.picture.replaceChildren();
    this.controls.replaceChildren();
    link.keep();
  },
};

// A hatch can be made smaller as long as a browser draws what is then seen.
function smallestZoomOf(symbol) {
  const svg = symbol.kind === "area" ? symbol.draw() : null;
  const zooms = [kSmallestZoom, 2 * kSmallestZoom].filter((zoom) => svg && canSpread(svg, zoom / kWholePicture));
  return zooms[0] ?? kWholePicture;
}

// How many times as large a symbol is shown at the scale in force as at its own.
function enlargementOf(symbol) {
  return symbol.scale / symbol.data.scale;
}

// Two pictures of one symbol must not refer to each other's parts.
function renameIds(svg) {
  for (const element of svg.querySelectorAll("[id]")) {
    element.id = `closeup-${element.id}`;
  }
  for (const attribute of ["href", "clip-path"]) {
    for (const element of svg.querySelectorAll(`[${attribute}]`)) {
      element.setAttribute(attribute, element.getAttribute(attribute).replace("#", "#closeup-"));
    }
  }
}

// The values in force for the faithful drawing, which may have other texts.
function faithfulValuesOf(symbol) {
  return symbol.valuesOf(symbol.data.faithfulParameters);
}

// Lays the faithful drawing of a symbol over the picture of the strict one, in a colour of its own. It follows the same
// values, and moves as the strict one was moved.
function layFaithful(picture, svg, symbol) {
  const over = parsePicture(symbol.data.faithful);
  renameIds(over);
  over.classList.add("faithful");
  picture.append(over);
  restyle(over, faithfulValuesOf(symbol));
  over.querySelector(".fit")?.setAttribute("transform", svg.querySelector(".fit").getAttribute("transform"));
  const { width, height } = over.viewBox.baseVal;
  const enlarged = enlargementOf(symbol);
  const [seenWidth, seenHeight] = [width / enlarged, height / enlarged];
  over.setAttribute("viewBox", [(width - seenWidth) / 2, (height - seenHeight) / 2, seenWidth, seenHeight].join(" "));
}

closeup.compare.addEventListener("click", () => {
  closeup.compare.ariaPressed = String(closeup.compare.ariaPressed !== "true");
  closeup.refresh(closeup.symbol);
});
closeup.zoom.addEventListener("input", () => closeup.applyZoom());
closeup.dialog.addEventListener("close", () => closeup.closed());
document.getElementById("closeup-close").addEventListener("click", () => closeup.dialog.close());
document.getElementById("closeup-previous").addEventListener("click", () => closeup.go(-1));
document.getElementById("closeup-next").addEventListener("click", () => closeup.go(1));

// Where an event is in the picture's window.
function placeIn(view, event) {
  const frame = view.getBoundingClientRect();
  return [event.clientX - frame.left, event.clientY - frame.top];
}

closeup.picture.addEventListener(
  "wheel",
  (event) => {
    event.preventDefault();
    closeup.zoomBy(1.002 ** -event.deltaY, ...placeIn(closeup.picture, event));
  },
  { passive: false },
);

// Two fingers zoom by what their distance changes.
const fingers = new Map();

function fingerDistance() {
  const [one, other] = [...fingers.values()];
  return Math.hypot(one.clientX - other.clientX, one.clientY - other.clientY);
}

closeup.picture.addEventListener("pointerdown", (event) => fingers.set(event.pointerId, event));
closeup.picture.addEventListener("pointermove", (event) => {
  if (!fingers.has(event.pointerId)) {
    return;
  }
  if (fingers.size !== 2) {
    fingers.set(event.pointerId, event);
    return;
  }
  const before = fingerDistance();
  fingers.set(event.pointerId, event);
  closeup.zoomBy(fingerDistance() / Math.max(before, 1), ...placeIn(closeup.picture, event));
});
for (const type of ["pointerup", "pointercancel", "pointerleave"]) {
  closeup.picture.addEventListener(type, (event) => fingers.delete(event.pointerId));
}
