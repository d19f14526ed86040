// Takes things out of the gallery: a name, a picture, the symbols that are shown.

async function copyText(text) {
  try {
    await navigator.clipboard.writeText(text);
  } catch {
    // A browser that keeps the clipboard from the page takes it from a selection.
    const field = document.createElement("textarea");
    field.value = text;
    (closeup.dialog.open ? closeup.dialog : document.body).append(field);
    field.select();
    document.execCommand("copy");
    field.remove();
  }
}

function download(name, type, text) {
  const anchor = document.createElement("a");
  anchor.href = URL.createObjectURL(new Blob([text], { type }));
  anchor.download = name;
  anchor.click();
  setTimeout(() => URL.revokeObjectURL(anchor.href), 60000);
}

// A name of a file that every system takes.
function fileName(name, end) {
  return `${name.replace(/[\\/:*?"<>|\u0000-\u001f]/g, "_").slice(0, 100) || "symbol"}${end}`;
}

// A symbol's picture by the values in force, as a document of its own.
function pictureOf(symbol) {
  const svg = symbol.draw();
  // Boxes can only be measured in the page.
  const room = document.getElementById("measuring");
  room.replaceChildren(svg);
  restyle(svg, symbol.values);
  room.replaceChildren();
  for (const element of [svg, ...svg.querySelectorAll("*")]) {
    for (const attribute of [...element.attributes]) {
      if (attribute.name.startsWith("data-")) {
        element.removeAttribute(attribute.name);
      }
    }
  }
  const { width, height } = svg.viewBox.baseVal;
  svg.setAttribute("width", width);
  svg.setAttribute("height", height);
  return svg;
}

function textOf(svg) {
  return `<?xml version="1.0" encoding="UTF-8"?>\n${new XMLSerializer().serializeToString(svg)}\n`;
}

const kSheetCaption = 24; // pixels below a picture
const kSheetColumns = 4;

// The pictures of symbols in rows, each above its name.
function sheetOf(shown) {
  const namespace = "http://www.w3.org/2000/svg";
  const sheet = document.createElementNS(namespace, "svg");
  const pictures = shown.map(pictureOf);
  const width = kPictureWidth;
  const height = pictures.length > 0 ? pictures[0].viewBox.baseVal.height + kSheetCaption : 0;
  const columns = Math.min(kSheetColumns, pictures.length);
  sheet.setAttribute("width", columns * width);
  sheet.setAttribute("height", Math.ceil(pictures.length / kSheetColumns) * height);
  pictures.forEach((picture, index) => {
    const x = (index % kSheetColumns) * width;
    const y = Math.floor(index / kSheetColumns) * height;
    picture.setAttribute("x", x);
    picture.setAttribute("y", y);
    const caption = document.createElementNS(namespace, "text");
    caption.setAttribute("x", x + width / 2);
    caption.setAttribute("y", y + height - kSheetCaption / 3);
    caption.setAttribute("text-anchor", "middle");
    caption.setAttribute("font-family", "sans-serif");
    caption.setAttribute("font-size", "13");
    caption.textContent = shown[index].name;
    if (shown[index].name.length > 36) {
      caption.setAttribute("textLength", width - 16);
      caption.setAttribute("lengthAdjust", "spacingAndGlyphs");
    }
    sheet.append(picture, caption);
  });
  return sheet;
}

// The symbols document of the symbols, as they were converted.
function documentOf(shown) {
  const { symbols: _, ...head } = JSON.parse(document.getElementById("document").textContent);
  return `${JSON.stringify({ ...head, symbols: shown.map((symbol) => symbol.data.symbol) }, null, 2)}\n`;
}

document.getElementById("closeup-copy").addEventListener("click", () => copyText(closeup.symbol.name));
document.getElementById("closeup-svg").addEventListener("click", () => {
  download(fileName(closeup.symbol.name, ".svg"), "image/svg+xml", textOf(pictureOf(closeup.symbol)));
});
document.getElementById("take-svg").addEventListener("click", () => {
  download("symbols.svg", "image/svg+xml", textOf(sheetOf(arrangement.shown)));
});
document.getElementById("take-json").addEventListener("click", () => {
  download("symbols.json", "application/json", documentOf(arrangement.shown));
});

// Galleries hold styles where they were asked for.
const library = JSON.parse(document.getElementById("library").textContent);
const takeStyle = document.getElementById("take-style");
takeStyle.hidden = library === null;
takeStyle.addEventListener("click", () => {
  const entries = arrangement.shown.map((symbol) => symbol.data.style);
  download("symbols.xml", "application/xml", library.head + entries.join("") + library.tail);
});
