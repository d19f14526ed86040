// A line of text in each font of the page, which the reader types. It is drawn from the paths of the glyphs, each as
// far behind the last as that one says. What a font lacks is a box.

const kUsualSample = "The quick brown fox jumps over the lazy dog 0123456789";
const kBox = { left: 0.1, right: 0.6, advance: 0.7 }; // as shares of the height of capitals

// The symbols of each font by their characters' numbers, by the name of the file.
function fontsOf(all) {
  const fonts = new Map();
  for (const symbol of all) {
    const number = symbol.card.dataset.glyph;
    if (number !== undefined) {
      fonts.set(symbol.source, fonts.get(symbol.source) ?? new Map());
      fonts.get(symbol.source).set(Number(number), symbol);
    }
  }
  return fonts;
}

// The usual text, or, where the font has few letters of it, its own characters in their order.
function usualSample(fonts) {
  const [glyphs] = fonts.values();
  const has = (character) => glyphs.has(character.codePointAt(0));
  const letters = [...kUsualSample].filter((character) => character !== " ");
  if (letters.filter(has).length > letters.length / 2) {
    return kUsualSample;
  }
  const own = [...glyphs.keys()].filter((number) => number > 32).sort((one, other) => one - other);
  return String.fromCodePoint(...own.slice(0, 40));
}

// The path of a glyph, in units of the symbol, y up.
function glyphPath(symbol) {
  return symbol.data.symbol.graphics?.[0]?.geometry ?? "";
}

const sample = {
  panel: document.getElementById("sample"),
  field: document.getElementById("sample-text"),
  lines: document.getElementById("sample-lines"),
  fonts: fontsOf(symbols),
  text: undefined, // what the reader typed

  draw() {
    if (this.fonts.size === 0 || !this.panel.open) {
      return;
    }
    const text = this.text ?? usualSample(this.fonts);
    if (this.field.value !== text) {
      this.field.value = text;
    }
    this.lines.replaceChildren();
    for (const [source, glyphs] of this.fonts) {
      this.drawLine(source, glyphs, text);
    }
  },

  drawLine(source, glyphs, text) {
    const figure = document.createElement("figure");
    const caption = document.createElement("figcaption");
    caption.textContent = this.fonts.size > 1 ? source : "";
    const view = document.createElement("div");
    view.className = "sample-view";
    view.tabIndex = 0;
    const { svg, lacking } = lineOf(glyphs, text);
    svg.setAttribute("aria-label", `${text} in ${source || document.title}`);
    view.append(svg);
    figure.append(caption, view);
    if (lacking.size > 0) {
      const note = document.createElement("p");
      note.className = "notes";
      note.textContent = `Not in the font: ${[...lacking].join(" ")}`;
      figure.append(note);
    }
    this.lines.append(figure);
    frameLine(svg);
  },
};

// The glyphs of a text beside each other, and the characters that the font lacks.
function lineOf(glyphs, text) {
  const namespace = "http://www.w3.org/2000/svg";
  const svg = document.createElementNS(namespace, "svg");
  svg.setAttribute("role", "img");
  const group = document.createElementNS(namespace, "g");
  group.setAttribute("transform", "scale(1 -1)");
  svg.append(group);
  const [first] = glyphs.values();
  const { above, below } = first.data.glyph;
  const height = above > 0 ? above : 1;
  const lacking = new Set();
  let x = 0;
  for (const character of text) {
    const symbol = glyphs.get(character.codePointAt(0));
    const path = document.createElementNS(namespace, "path");
    path.setAttribute("transform", `translate(${x} 0)`);
    path.dataset.character = character;
    if (symbol) {
      path.setAttribute("d", glyphPath(symbol));
      x += symbol.data.glyph.advance ?? 0;
    } else {
      path.setAttribute("d", `M${kBox.left * height} 0V${height}H${kBox.right * height}V0Z`);
      path.setAttribute("class", "lacking");
      x += kBox.advance * height;
      lacking.add(character);
    }
    group.append(path);
  }
  // All lines of a font are as high, whatever their letters.
  Object.assign(svg.dataset, { above: height, below: Math.max(below, 0), advance: x });
  return { svg, lacking };
}

// Shows the whole line, its accents and overhangs too. Boxes can only be measured in the page.
function frameLine(svg) {
  const [above, below, advance] = ["above", "below", "advance"].map((name) => Number(svg.dataset[name]));
  const box = svg.getBBox();
  const margin = above / 10;
  const left = Math.min(0, box.x) - margin;
  const top = Math.min(-above, box.y) - margin;
  const width = Math.max(advance, box.x + box.width) + margin - left;
  const height = Math.max(below, box.y + box.height) + margin - top;
  svg.setAttribute("viewBox", [left, top, width, height].join(" "));
  const pixels = 30 / above; // capitals are as high
  svg.setAttribute("width", width * pixels);
  svg.setAttribute("height", height * pixels);
}

sample.panel.hidden = sample.fonts.size === 0;
sample.panel.open = symbols.every((symbol) => symbol.card.dataset.glyph !== undefined);
sample.panel.addEventListener("toggle", () => sample.draw());
sample.field.addEventListener("input", () => {
  sample.text = sample.field.value;
  sample.draw();
  link.keep();
});
