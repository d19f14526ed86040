// Which cards are shown, in which order and under which headings.

const grid = document.getElementById("symbols");
const search = document.getElementById("search");
const kind = document.getElementById("kind");
const groupBy = document.getElementById("group");
const sortBy = document.getElementById("sort");

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

const arrangement = {
  // The symbols whose cards are shown, in the order of the page.
  shown() {
    return [...grid.querySelectorAll(".card:not([hidden])")].map((card) => symbolOf.get(card));
  },

  // Puts all cards in order, below their headings. What is equal stays in the order of the file.
  arrange() {
    headings = [];
    const heading = kGroups[groupBy.value];
    const order = kOrders[sortBy.value];
    const groups = new Map();
    for (const symbol of [...symbols].sort((one, other) => order(one, other) || one.place - other.place)) {
      const text = heading(symbol);
      if (!groups.has(text)) {
        groups.set(text, []);
      }
      groups.get(text).push(symbol);
    }
    const items = [];
    for (const [text, members] of [...groups].sort(([one], [other]) => compareTexts(one, other))) {
      if (groupBy.value !== "none") {
        items.push(headingFor(text, members));
      }
      items.push(...members.map((symbol) => symbol.card));
    }
    grid.replaceChildren(...items);
    this.filter();
  },

  // Shows the cards that have all words of the search, and counts them.
  filter() {
    const words = search.value.toLocaleLowerCase().split(/\s+/).filter(Boolean);
    let found = 0;
    for (const symbol of symbols) {
      const matches =
        words.every((word) => symbol.words.includes(word)) && (kind.value === "" || symbol.kind === kind.value);
      symbol.card.hidden = !matches;
      found += matches ? 1 : 0;
    }
    const all = `${symbols.length} symbol${symbols.length === 1 ? "" : "s"}`;
    document.getElementById("count").textContent = found === symbols.length ? all : `${found} of ${all}`;
    document.getElementById("empty").hidden = found > 0;
    for (const { item, count, members } of headings) {
      const shown = members.filter((symbol) => !symbol.card.hidden).length;
      item.hidden = shown === 0;
      count.textContent = ` ${shown}`;
    }
    keepOneTabStop();
  },
};

let headings = [];

function headingFor(text, members) {
  const item = document.createElement("li");
  item.className = "group";
  const title = document.createElement("h2");
  const count = document.createElement("span");
  count.className = "count";
  title.append(text, count);
  item.append(title);
  headings.push({ item, count, members });
  return item;
}

// A choice that would make one group is not offered.
function offerGroups() {
  for (const option of [...groupBy.options]) {
    const texts = new Set(symbols.map(kGroups[option.value]));
    option.hidden = option.disabled = option.value !== "none" && texts.size < 2;
  }
}

search.addEventListener("input", () => arrangement.filter());
kind.addEventListener("change", () => arrangement.filter());
groupBy.addEventListener("change", () => arrangement.arrange());
sortBy.addEventListener("change", () => arrangement.arrange());
