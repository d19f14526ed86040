// The page's address keeps what the reader did: "#NAME" opens a symbol, and behind a "?" stand the values that
// were changed, for all symbols ("color=…", "weight=…", "angle=…", "text=…") and for single ones
// ("set=NAME/IDENTIFIER/VALUE", each written as in an address), the line of text that was typed ("sample=…"), and what
// is shown in which order ("search=…", "kind=…", "tag=…", "group=…", "sort=…").

const kQuantityNames = ["color", "weight", "angle", "text"];

// The controls of what is shown, and what they hold where an address says nothing.
const kArranging = [
  [search, ""],
  [kind, ""],
  [tag, ""],
  [groupBy, "none"],
  [sortBy, "place"],
];

// A name that stood before is followed by a number: "NAME~2".
function uniqueNames(names) {
  const used = new Set();
  const next = new Map();
  return names.map((name) => {
    let unique = name;
    while (used.has(unique)) {
      const number = next.get(name) ?? 2;
      next.set(name, number + 1);
      unique = `${name}~${number}`;
    }
    used.add(unique);
    return unique;
  });
}

const linkNames = new Map();
const symbolNamed = new Map();
uniqueNames(symbols.map((symbol) => symbol.name)).forEach((name, place) => {
  linkNames.set(symbols[place], name);
  symbolNamed.set(name, symbols[place]);
});

const link = {
  isReading: false,

  keep() {
    // A page inside another has no address of its own.
    if (this.isReading || location.protocol === "about:") {
      return;
    }
    const values = new URLSearchParams();
    for (const quantity of kQuantityNames) {
      if (restyling[quantity] !== undefined) {
        values.set(quantity, restyling[quantity]);
      }
    }
    if (sample.text !== undefined) {
      values.set("sample", sample.text);
    }
    for (const [control, usual] of kArranging) {
      if (control.value !== usual) {
        values.set(control.id, control.value);
      }
    }
    for (const symbol of symbols) {
      for (const [identifier, value] of symbol.own) {
        values.append("set", [linkNames.get(symbol), identifier, value].map(encodeURIComponent).join("/"));
      }
    }
    const name = closeup.symbol ? encodeURIComponent(linkNames.get(closeup.symbol)) : "";
    const behind = String(values) && `?${values}`;
    history.replaceState(null, "", name || behind ? `#${name}${behind}` : location.pathname + location.search);
  },

  read() {
    this.isReading = true;
    const [name, behind = ""] = location.hash.slice(1).split("?");
    const values = new URLSearchParams(behind);
    for (const quantity of kQuantityNames) {
      const isNumber = quantity === "weight" || quantity === "angle";
      restyling[quantity] = valueOf(values.get(quantity), isNumber);
    }
    for (const text of values.getAll("set")) {
      const [of, identifier, value] = text.split("/").map(decoded);
      const symbol = symbolNamed.get(of);
      const parameter = symbol?.data.parameters.find((each) => each.identifier === identifier);
      const kept = parameter && valueOf(value, typeof parameter.value === "number");
      if (kept !== undefined) {
        symbol.own.set(identifier, kept);
      }
    }
    readArranging(values);
    sample.text = values.get("sample") ?? undefined;
    sample.draw();
    showRestyling();
    for (const symbol of symbols) {
      symbol.refresh();
    }
    const opened = symbolNamed.get(decoded(name));
    if (opened && name) {
      closeup.open(opened);
    } else if (closeup.dialog.open) {
      closeup.dialog.close();
    }
    this.isReading = false;
  },
};

// Shows what an address says. A choice that is not offered is left out.
function readArranging(values) {
  for (const [control, usual] of kArranging) {
    const wanted = values.get(control.id) ?? usual;
    const isOffered = [...(control.options ?? [])].some((option) => option.value === wanted && !option.disabled);
    control.value = isOffered || control === search ? wanted : usual;
  }
  arrangement.arrange();
}

// A value as an address holds it; undefined for none.
function valueOf(text, isNumber) {
  if (text === null || text === undefined) {
    return undefined;
  }
  const number = Number(text);
  return isNumber ? (Number.isFinite(number) ? number : undefined) : text;
}

// A text of an address; what is not well written there is left as it stands.
function decoded(text) {
  try {
    return decodeURIComponent(text);
  } catch {
    return text;
  }
}

search.addEventListener("input", () => link.keep());
[kind, tag, groupBy, sortBy].forEach((control) => control.addEventListener("change", () => link.keep()));
window.addEventListener("hashchange", () => link.read());
