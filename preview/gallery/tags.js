// What symbols have in common besides their kind: the folders and the file that they come from, and whether they lose
// something. A tag that all of them have tells none apart, and is not offered.

const kLossTag = "differs from the drawing";
const tag = document.getElementById("tag");

function pathParts(path) {
  return path.split(/[\\/]/).filter((part) => part !== "" && part !== "." && part !== "..");
}

// Of the folders of all files, how many are the same.
function countAbove(paths) {
  const [first = [], ...others] = paths.map((path) => path.slice(0, -1));
  const differs = (at) => others.some((folders) => folders[at] !== first[at]);
  let count = 0;
  while (count < first.length && !differs(count)) {
    ++count;
  }
  return count;
}

function readTags() {
  const paths = symbols.map((symbol) => pathParts(symbol.source));
  const above = countAbove(paths.filter((path) => path.length > 0));
  symbols.forEach((symbol, place) => {
    const parts = paths[place].slice(above);
    const file = parts.pop()?.replace(/(.)\.[^.]*$/, "$1");
    symbol.tags = new Set([...parts, file, symbol.card.querySelector(".loss") && kLossTag].filter(Boolean));
    symbol.words += `\n${[...symbol.tags].join("\n").toLocaleLowerCase()}`;
  });
}

function offerTags() {
  const counts = new Map();
  for (const symbol of symbols) {
    symbol.tags.forEach((name) => counts.set(name, (counts.get(name) ?? 0) + 1));
  }
  const offered = [...counts].filter(([, count]) => count < symbols.length);
  offered.sort(([one], [other]) => compareTexts(one, other));
  tag.append(...offered.map(([name, count]) => new Option(`${name} (${count})`, name)));
  tag.closest("label").hidden = offered.length === 0;
}

// Buttons that show all symbols with a tag of this one.
function tagButtons(symbol) {
  const offered = [...tag.options].filter((option) => symbol.tags.has(option.value));
  return offered.map((option) => {
    const button = document.createElement("button");
    button.type = "button";
    button.className = "button tag";
    button.textContent = option.value;
    button.title = `Show all with this tag: ${option.text}`;
    button.addEventListener("click", () => {
      tag.value = option.value;
      closeup.dialog.close();
      arrangement.arrange();
      link.keep();
    });
    return button;
  });
}

tag.addEventListener("change", () => arrangement.arrange());
readTags();
offerTags();
