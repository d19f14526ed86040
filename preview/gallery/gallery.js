"use strict";

// ---- Values of parameters ---------------------------------------------------------------------------------

// The data types of the symbol model.
const kText = 0;
const kAngle = 5;
const kWeight = 8;
const kColors = [6, 7, 23];

// "constant;factor*parameter;..." with the values of the parameters put in.
function sumOf(text, values) {
  return text.split(";").reduce((sum, term) => {
    const [factor, parameter] = term.split("*");
    return sum + Number(factor) * (parameter === undefined ? 1 : values[Number(parameter)]);
  }, 0);
}

// Lets every element of a picture that follows parameters follow them.
function restyle(svg, values) {
  for (const property of ["stroke", "fill"]) {
    for (const element of svg.querySelectorAll(`[data-${property}]`)) {
      element.setAttribute(property, values[Number(element.dataset[property])]);
    }
  }
  for (const element of svg.querySelectorAll("[data-weight]")) {
    const { weight, pixels, thinnest } = element.dataset;
    element.setAttribute("stroke-width", Math.max(Number(thinnest), sumOf(weight, values) * Number(pixels)));
  }
  for (const element of svg.querySelectorAll("[data-angle]")) {
    element.setAttribute("transform", `rotate(${-sumOf(element.dataset.angle, values)})`);
  }
  for (const element of svg.querySelectorAll("[data-text]")) {
    element.textContent = values[Number(element.dataset.text)];
  }
  fit(svg);
}

// Keeps a point symbol that was turned, or got a longer text, inside its picture.
function fit(svg) {
  const group = svg.querySelector(".fit");
  const box = group && group.getBBox();
  if (!box || (box.width === 0 && box.height === 0)) {
    return;
  }
  const { width, height } = svg.viewBox.baseVal;
  const margin = 20;
  const scale = Math.min(1, (width - 2 * margin) / box.width, (height - 2 * margin) / box.height);
  const x = width / 2 - scale * (box.x + box.width / 2);
  const y = height / 2 - scale * (box.y + box.height / 2);
  group.setAttribute("transform", `translate(${x} ${y}) scale(${scale})`);
}

// ---- Paper ------------------------------------------------------------------------------------------------

// A theme's own paper, used where every line has enough contrast on it, and the others to choose from.
const kPapers = {
  light: { enough: 1.5, colors: ["#ffffff", "#23272e", "#6b737d", "#8c949e", "#b4bac2"] },
  dark: { enough: 2.5, colors: ["#1b1f24", "#e8eaed", "#b4bac2", "#8c949e", "#6b737d"] },
};

function luminance(color) {
  const linear = [1, 3, 5].map((start) => {
    const channel = parseInt(color.slice(start, start + 2), 16) / 255;
    return channel <= 0.04045 ? channel / 12.92 : ((channel + 0.055) / 1.055) ** 2.4;
  });
  return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2];
}

function contrast(one, other) {
  return (Math.max(one, other) + 0.05) / (Math.min(one, other) + 0.05);
}

// Puts a picture on paper on which all of its colours can be seen.
function layPaper(picture, svg) {
  const inks = new Set();
  for (const property of ["stroke", "fill"]) {
    for (const element of svg.querySelectorAll(`[${property}]:not(.frame)`)) {
      const color = element.getAttribute(property);
      if (/^#[0-9a-f]{6}$/i.test(color)) {
        inks.add(color);
      }
    }
  }
  const { enough, colors } = kPapers[document.documentElement.dataset.theme];
  const worst = colors.map((paper) =>
    Math.min(21, ...[...inks].map((ink) => contrast(luminance(ink), luminance(paper)))),
  );
  picture.style.background = worst[0] >= enough ? colors[0] : colors[worst.indexOf(Math.max(...worst))];
}

// ---- Symbols ----------------------------------------------------------------------------------------------

// One card of the gallery: its data, read when it is first needed, and the values that the user gave.
class SymbolCard {
  constructor(card) {
    this.card = card;
    this.picture = card.querySelector(".picture");
    this.name = card.querySelector(".name").textContent;
    const words = [this.name, card.querySelector(".description").textContent];
    this.words = words.join("\n").toLocaleLowerCase();
    this.changed = false;
    this.svg = null;
  }

  get data() {
    this.cachedData ??= JSON.parse(this.card.querySelector("script").textContent);
    return this.cachedData;
  }

  get values() {
    this.cachedValues ??= this.data.parameters.map((parameter) => parameter.value);
    return this.cachedValues;
  }

  // A new picture with the values in force.
  draw() {
    const parsed = new DOMParser().parseFromString(this.data.svg, "image/svg+xml");
    const svg = document.importNode(parsed.documentElement, true);
    return svg;
  }

  // A picture is in the page while its card is near the window.
  show() {
    if (!this.svg) {
      this.svg = this.draw();
      this.picture.replaceChildren(this.svg);
      this.refresh(this.picture, this.svg);
    }
  }

  hide() {
    this.svg = null;
    this.picture.replaceChildren();
  }

  refresh(picture, svg) {
    if (this.changed) {
      restyle(svg, this.values);
    }
    layPaper(picture, svg);
  }

  set(index, value) {
    this.values[index] = value;
    this.changed = true;
    if (this.svg) {
      this.refresh(this.picture, this.svg);
    }
    closeup.refresh(this);
  }

  reset() {
    this.cachedValues = undefined;
    this.changed = false;
    if (this.svg) {
      this.hide();
      this.show();
    }
    closeup.redraw(this);
  }
}

const symbols = [...document.querySelectorAll(".card")].map((card) => new SymbolCard(card));
const symbolOf = new Map(symbols.map((symbol) => [symbol.card, symbol]));

// ---- Controls of parameters -------------------------------------------------------------------------------

// "Line &Color" is "Line Color"; "&&" stands for "&".
function plainLabel(text) {
  return text.replace(/&(.?)/g, "$1");
}

function inputFor(parameter, value) {
  const input = document.createElement("input");
  if (kColors.includes(parameter.type)) {
    input.type = "color";
  } else if (parameter.type === kAngle || parameter.type === kWeight) {
    input.type = "number";
    input.step = parameter.type === kAngle ? 5 : 0.05;
    if (parameter.type === kWeight) {
      input.min = 0;
    }
  } else {
    input.type = "text";
  }
  input.value = value;
  return input;
}

// What the user put in, or the default where that is nothing.
function readInput(input, parameter) {
  if (input.type !== "number") {
    return input.value;
  }
  return Number.isFinite(input.valueAsNumber) ? input.valueAsNumber : parameter.value;
}

let controlCount = 0;

function buildControls(container, symbol) {
  container.replaceChildren();
  symbol.data.parameters.forEach((parameter, index) => {
    const row = document.createElement("div");
    row.className = "control";
    const input = inputFor(parameter, symbol.values[index]);
    input.id = `control-${controlCount++}`;
    input.dataset.identifier = parameter.identifier;
    input.title = parameter.description;
    input.addEventListener("input", () => {
      symbol.set(index, readInput(input, parameter));
      twins(symbol, container, index, input.value);
    });
    const label = document.createElement("label");
    label.htmlFor = input.id;
    const identifier = document.createElement("small");
    identifier.textContent = parameter.identifier;
    label.append(plainLabel(parameter.label) || parameter.identifier, identifier);
    row.append(label, input);
    container.append(row);
  });
  if (symbol.data.parameters.length > 0) {
    container.append(resetButton(symbol));
  }
}

function resetButton(symbol) {
  const button = document.createElement("button");
  button.type = "button";
  button.className = "button";
  button.textContent = "Defaults";
  button.addEventListener("click", () => {
    symbol.reset();
    for (const container of containersOf(symbol)) {
      const inputs = container.querySelectorAll("input");
      inputs.forEach((input, index) => (input.value = symbol.values[index]));
    }
  });
  return button;
}

// A symbol's controls may be seen twice: in its card and in the close-up.
function containersOf(symbol) {
  const containers = [symbol.card.querySelector(".controls")];
  if (closeup.symbol === symbol) {
    containers.push(closeup.controls);
  }
  return containers;
}

function twins(symbol, source, index, value) {
  for (const container of containersOf(symbol)) {
    const input = container.querySelectorAll("input")[index];
    if (container !== source && input) {
      input.value = value;
    }
  }
}

// ---- Close-up ---------------------------------------------------------------------------------------------

const closeup = {
  dialog: document.getElementById("closeup"),
  picture: document.getElementById("closeup-picture"),
  controls: document.getElementById("closeup-controls"),
  zoom: document.getElementById("closeup-zoom"),
  symbol: null,
  svg: null,

  open(symbol) {
    this.symbol = symbol;
    document.getElementById("closeup-name").textContent = symbol.name;
    this.zoom.value = 100;
    this.dialog.showModal();
    this.redraw(symbol);
    buildControls(this.controls, symbol);
  },

  redraw(symbol) {
    if (this.symbol !== symbol) {
      return;
    }
    this.svg = symbol.draw();
    renameIds(this.svg);
    this.picture.replaceChildren(this.svg);
    this.applyZoom();
    symbol.refresh(this.picture, this.svg);
  },

  refresh(symbol) {
    if (this.symbol === symbol) {
      symbol.refresh(this.picture, this.svg);
    }
  },

  // What is in the middle stays there.
  applyZoom() {
    const view = this.picture;
    const x = (view.scrollLeft + view.clientWidth / 2) / view.scrollWidth;
    const y = (view.scrollTop + view.clientHeight / 2) / view.scrollHeight;
    this.svg.style.width = `${this.zoom.value}%`;
    view.scrollLeft = x * view.scrollWidth - view.clientWidth / 2;
    view.scrollTop = y * view.scrollHeight - view.clientHeight / 2;
  },

  closed() {
    this.symbol = null;
    this.svg = null;
    this.picture.replaceChildren();
    this.controls.replaceChildren();
  },
};

// Two pictures of one symbol must not refer to each other's parts.
function renameIds(svg) {
  for (const element of svg.querySelectorAll("[id]")) {
    element.id = `closeup-${element.id}`;
  }
  for (const element of svg.querySelectorAll("[href]")) {
    element.setAttribute("href", element.getAttribute("href").replace("#", "#closeup-"));
  }
  for (const element of svg.querySelectorAll("[clip-path]")) {
    element.setAttribute("clip-path", element.getAttribute("clip-path").replace("#", "#closeup-"));
  }
}

closeup.zoom.addEventListener("input", () => closeup.applyZoom());
closeup.dialog.addEventListener("close", () => closeup.closed());
document.getElementById("closeup-close").addEventListener("click", () => closeup.dialog.close());

// ---- Drawing what is in view ------------------------------------------------------------------------------

const kFrameBudget = 8; // milliseconds
const waiting = new Set();
let scheduled = false;

// Draws as many pictures as a frame has time for, so that scrolling goes on.
function drawSome() {
  const end = performance.now() + kFrameBudget;
  for (const symbol of waiting) {
    waiting.delete(symbol);
    symbol.show();
    if (performance.now() > end) {
      break;
    }
  }
  scheduled = waiting.size > 0;
  if (scheduled) {
    requestAnimationFrame(drawSome);
  }
}

const observer = new IntersectionObserver(
  (entries) => {
    for (const entry of entries) {
      const symbol = symbolOf.get(entry.target);
      if (entry.isIntersecting) {
        waiting.add(symbol);
      } else {
        waiting.delete(symbol);
        symbol.hide();
      }
    }
    if (waiting.size > 0 && !scheduled) {
      scheduled = true;
      requestAnimationFrame(drawSome);
    }
  },
  { rootMargin: "400px" },
);
symbols.forEach((symbol) => observer.observe(symbol.card));
window.addEventListener("beforeprint", () => symbols.forEach((symbol) => symbol.show()));

const grid = document.getElementById("symbols");
grid.addEventListener("click", (event) => {
  const picture = event.target.closest(".picture");
  if (picture) {
    closeup.open(symbolOf.get(picture.closest(".card")));
  }
});
// Controls are made when they are first unfolded. Toggling does not bubble.
grid.addEventListener(
  "toggle",
  (event) => {
    const container = event.target.querySelector(".controls");
    if (event.target.open && container.childElementCount === 0) {
      buildControls(container, symbolOf.get(event.target.closest(".card")));
    }
  },
  true,
);

// ---- The bar ----------------------------------------------------------------------------------------------

const search = document.getElementById("search");
const kind = document.getElementById("kind");
const zoom = document.getElementById("zoom");
const theme = document.getElementById("theme");

function filter() {
  const words = search.value.toLocaleLowerCase().split(/\s+/).filter(Boolean);
  let found = 0;
  for (const symbol of symbols) {
    const matches =
      words.every((word) => symbol.words.includes(word)) &&
      (kind.value === "" || symbol.card.dataset.kind === kind.value);
    symbol.card.hidden = !matches;
    found += matches ? 1 : 0;
  }
  const all = `${symbols.length} symbol${symbols.length === 1 ? "" : "s"}`;
  document.getElementById("count").textContent = found === symbols.length ? all : `${found} of ${all}`;
  document.getElementById("empty").hidden = found > 0;
}

search.addEventListener("input", filter);
kind.addEventListener("change", filter);
zoom.addEventListener("input", () => {
  document.documentElement.style.setProperty("--card", `${zoom.value}px`);
});

function setTheme(dark) {
  document.documentElement.dataset.theme = dark ? "dark" : "light";
  theme.setAttribute("aria-pressed", String(dark));
  for (const symbol of symbols) {
    if (symbol.svg) {
      layPaper(symbol.picture, symbol.svg);
    }
  }
}

theme.addEventListener("click", () => setTheme(document.documentElement.dataset.theme !== "dark"));
setTheme(matchMedia("(prefers-color-scheme: dark)").matches);

// "/" goes to the search, as on many pages that are searched.
document.addEventListener("keydown", (event) => {
  const typing = event.target.matches?.("input, select, textarea");
  if (event.key === "/" && !typing && !closeup.dialog.open) {
    event.preventDefault();
    search.focus();
  }
});
