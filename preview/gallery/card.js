// The cards of the gallery: each has a symbol's data, read when it is first needed, and the values that the
// reader gave.

// The data types of the symbol model.
const kAngle = 5;
const kWeight = 8;
const kColors = [6, 7, 23];

const kUsualCard = 280; // pixels, as in the page

function parsePicture(markup) {
  const parsed = new DOMParser().parseFromString(markup, "image/svg+xml");
  return document.importNode(parsed.documentElement, true);
}

class SymbolCard {
  constructor(card, place) {
    this.card = card;
    this.place = place; // in the file
    this.picture = card.querySelector(".picture");
    this.name = card.querySelector(".name").textContent;
    this.kind = card.dataset.kind;
    this.source = card.dataset.source;
    const words = [this.name, this.textOf(".description"), this.source];
    this.words = words.join("\n").toLocaleLowerCase();
    this.own = new Map(); // values of this symbol alone, by identifier
    this.isShown = false;
  }

  // What stands in a part of the card; cards have no empty parts.
  textOf(selector) {
    return this.card.querySelector(selector)?.textContent ?? "";
  }

  get data() {
    this.cachedData ??= JSON.parse(this.card.querySelector("script").textContent);
    return this.cachedData;
  }

  // The value in force: the symbol's own, else that for all symbols, else the default.
  get values() {
    return this.valuesOf(this.data.parameters);
  }

  valuesOf(parameters) {
    return parameters.map(
      (parameter) => this.own.get(parameter.identifier) ?? restyling.valueFor(parameter) ?? parameter.value,
    );
  }

  get isRestyled() {
    return this.own.size > 0 || this.data.parameters.some((parameter) => restyling.valueFor(parameter) !== undefined);
  }

  // The picture's markup with the defaults, at the scale in force.
  get markup() {
    return scales.isCommon && this.data.sameScale ? this.data.sameScale.svg : this.data.svg;
  }

  // Pixels per unit in a picture as wide as its markup says; undefined where nothing tells.
  get scale() {
    return scales.isCommon && this.data.sameScale ? this.data.sameScale.scale : this.data.scale;
  }

  // A new picture, which follows the values in force once it stands in the page.
  draw() {
    return parsePicture(this.markup);
  }

  // Puts a picture into the card. It is kept: to draw it again costs more than to hold it.
  show() {
    if (this.isShown) {
      return;
    }
    this.isShown = true;
    const svg = this.draw();
    const share = this.shareShown(svg);
    if (share < 1) {
      spread(svg, share);
    }
    this.picture.replaceChildren(svg, scaleBar(this, share));
    if (this.isRestyled) {
      restyle(svg, this.values);
    }
    layPaper(this.picture, inksOf(this.isRestyled ? svg.outerHTML : this.markup));
  }

  // A larger card shows a hatch larger, and more of it: the share of its size that remains.
  shareShown(svg) {
    const share = this.kind === "area" ? Math.min(1, Math.sqrt(kUsualCard / Number(zoom.value))) : 1;
    return share < 1 && canSpread(svg, share) ? share : 1;
  }

  // Draws again what is seen, by the values and the scale in force.
  refresh() {
    if (this.isShown) {
      this.isShown = false;
      drawing.want(this);
    }
    closeup.refresh(this);
  }

  set(identifier, value) {
    this.own.set(identifier, value);
    this.refresh();
  }

  reset() {
    this.own.clear();
    this.refresh();
  }
}

const symbols = [...document.querySelectorAll(".card")].map((card, place) => new SymbolCard(card, place));
const symbolOf = new Map(symbols.map((symbol) => [symbol.card, symbol]));
