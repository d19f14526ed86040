// Which cards are shown, in which order and under which headings.

const grid = document.getElementById("symbols");
const search = document.getElementById("search");
const kind = document.getElementById("kind");
const groupBy = document.getElementById("group");
const sortBy = document.getElementById("sort");
const zoom = document.getElementById("zoom");

const kKinds = { point: "Point symbols", line: "Line symbols", area: "Area symbols" };
const kinds = Object.keys(kKinds);

function folderOf(path) {
  return path.slice(0, Math.max(0, path.lastIndexOf("/")));
}

// The heading that a symbol stands under; cards of one heading come in the order of their keys.
const kGroups = {
  none: () => "",
  kind: (symbol) => kKinds[symbol.kind],
  file: (symbol) => symbol.source,
  folder: (symbol) => folderOf(symbol.source) || "This folder",
};

function compareTexts(one, other) {
  return one.localeCompare(other, undefined, { numeric: true });
}

const kOrders = {
  place: (one, other) => one.place - other.place,
  name: (one, other) => compareTexts(one.name, other.name),
  kind: (one, other) => kinds.indexOf(one.kind) - kinds.indexOf(other.kind),
};

// Cards stand in blocks of whole rows. A browser lays a block out by itself when it comes near the window; a grid of
// thousands of cards it would lay out anew for each card that does.
const kRowsOfBlock = 8;
const kGap = 16; // as in the style sheet
const kUsualCaption = 96;

function columnCount() {
  const width = grid.clientWidth - 2 * Number.parseFloat(getComputedStyle(grid).paddingLeft);
  return Math.max(1, Math.floor((width + kGap) / (Number(zoom.value) + kGap)));
}

function blocksOf(shown, columns) {
  const blocks = [];
  for (let start = 0; start < shown.length; start += columns * kRowsOfBlock) {
    const block = document.createElement("div");
    block.className = "rows";
    const cards = shown.slice(start, start + columns * kRowsOfBlock).map((symbol) => symbol.card);
    const width = (grid.clientWidth + kGap) / columns - kGap;
    const rows = Math.ceil(cards.length / columns);
    const height = rows * (width * kPictureShape + kUsualCaption + kGap) - kGap;
    block.style.containIntrinsicHeight = `auto ${Math.round(height)}px`;
    block.append(...cards);
    blocks.push(block);
  }
  return blocks;
}

function headingFor(text, count) {
  const item = document.createElement("div");
  item.className = "group";
  item.setAttribute("role", "listitem");
  const title = document.createElement("h2");
  const number = document.createElement("span");
  number.className = "count";
  number.textContent = ` ${count}`;
  title.append(text, number);
  item.append(title);
  return item;
}

const arrangement = {
  shown: symbols, // in the order of the page
  columns: 0,

  // Shows the symbols that have all words of the search, the kind and the tag, in order, below their headings. What is equal stays in
  // the order of the file.
  arrange() {
    const words = search.value.toLocaleLowerCase().split(/\s+/).filter(Boolean);
    const order = kOrders[sortBy.value];
    const found = symbols
      .filter((symbol) => words.every((word) => symbol.words.includes(word)))
      .filter((symbol) => kind.value === "" || symbol.kind === kind.value)
      .filter((symbol) => tag.value === "" || symbol.tags.has(tag.value))
      .sort((one, other) => order(one, other) || one.place - other.place);
    const groups = new Map();
    for (const symbol of found) {
      const text = kGroups[groupBy.value](symbol);
      groups.set(text, groups.get(text) ?? []);
      groups.get(text).push(symbol);
    }
    this.columns = columnCount();
    this.shown = [];
    const items = [];
    for (const [text, members] of [...groups].sort(([one], [other]) => compareTexts(one, other))) {
      if (groupBy.value !== "none") {
        items.push(headingFor(text, members.length));
      }
      items.push(...blocksOf(members, this.columns));
      this.shown.push(...members);
    }
    grid.replaceChildren(...items);
    this.count();
    keepOneTabStop();
  },

  count() {
    const all = `${symbols.length} symbol${symbols.length === 1 ? "" : "s"}`;
    const found = this.shown.length;
    document.getElementById("count").textContent = found === symbols.length ? all : `${found} of ${all}`;
    document.getElementById("empty").hidden = found > 0;
  },

  // The rows hold another number of cards.
  resized() {
    if (columnCount() !== this.columns) {
      this.arrange();
    }
  },
};

// A choice that would make one group is not offered.
function offerGroups() {
  for (const option of [...groupBy.options]) {
    const texts = new Set(symbols.map(kGroups[option.value]));
    option.hidden = option.disabled = option.value !== "none" && texts.size < 2;
  }
}

search.addEventListener("input", () => arrangement.arrange());
kind.addEventListener("change", () => arrangement.arrange());
groupBy.addEventListener("change", () => arrangement.arrange());
sortBy.addEventListener("change", () => arrangement.arrange());
new ResizeObserver(() => arrangement.resized()).observe(grid);
