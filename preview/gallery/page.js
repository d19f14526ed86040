// The page itself: its bar, the keyboard, and what it begins with.

const theme = document.getElementById("theme");
const paper = document.getElementById("paper");

function setTheme(dark) {
  document.documentElement.dataset.theme = dark ? "dark" : "light";
  theme.textContent = dark ? "Light page" : "Dark page";
  for (const symbol of symbols) {
    symbol.refresh();
  }
}

theme.addEventListener("click", () => setTheme(document.documentElement.dataset.theme !== "dark"));
paper.addEventListener("change", () => {
  document.documentElement.dataset.paper = paper.value;
  for (const symbol of symbols) {
    symbol.refresh();
  }
});
zoom.addEventListener("input", () => {
  document.documentElement.style.setProperty("--card", `${zoom.value}px`);
  arrangement.resized();
  for (const symbol of symbols.filter((each) => each.kind === "area")) {
    symbol.refresh();
  }
});
document.getElementById("one-scale").addEventListener("change", (event) => scales.set(event.target.checked));

// One menu is open at a time, and none once the reader goes on elsewhere.
const menus = document.querySelectorAll(".menu");
document.addEventListener("click", (event) => {
  for (const menu of menus) {
    menu.open = menu.open && menu.contains(event.target);
  }
});

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
    if (event.target.open && container?.childElementCount === 0) {
      buildControls(container, symbolOf.get(event.target.closest(".card")));
    }
  },
  true,
);

// ---- The keyboard -----------------------------------------------------------------------------------------

// Going past the bar leaves the address as it is.
document.querySelector(".skip").addEventListener("click", (event) => {
  event.preventDefault();
  grid.focus();
});

// The cards are one stop of the tabulator key: the picture that had the focus last, or the first one.
let stop = null;

function keepOneTabStop(symbol = stop) {
  const shown = symbol?.card.isConnected ? symbol : arrangement.shown[0];
  for (const each of [stop, shown]) {
    if (each) {
      each.picture.tabIndex = each === shown ? 0 : -1;
    }
  }
  stop = shown;
}

grid.addEventListener("focusin", (event) => {
  if (event.target.matches(".picture")) {
    keepOneTabStop(symbolOf.get(event.target.closest(".card")));
  }
});

// The card above or below: the nearest of the next row that has one.
function inNextRow(shown, place, step) {
  const placeOf = (at) => shown[at].card.getBoundingClientRect();
  const { top, left } = placeOf(place);
  let best = place;
  let row = null;
  for (let i = place + step; i >= 0 && i < shown.length; i += step) {
    const at = placeOf(i);
    if (at.top === top) {
      continue;
    }
    row ??= at.top;
    if (at.top !== row) {
      break;
    }
    const distance = (other) => Math.abs(placeOf(other).left - left);
    best = best === place || distance(i) < distance(best) ? i : best;
  }
  return best;
}

function goBetweenCards(event) {
  const { shown } = arrangement;
  const place = shown.indexOf(symbolOf.get(event.target.closest(".card")));
  const moves = {
    ArrowLeft: () => Math.max(0, place - 1),
    ArrowRight: () => Math.min(shown.length - 1, place + 1),
    ArrowUp: () => inNextRow(shown, place, -1),
    ArrowDown: () => inNextRow(shown, place, 1),
    Home: () => 0,
    End: () => shown.length - 1,
  };
  if (moves[event.key]) {
    event.preventDefault();
    shown[moves[event.key]()].picture.focus();
  }
}

// "/" goes to the search, as on many pages that are searched; arrows go from card to card, in the large view
// from symbol to symbol, but not where a zoomed picture scrolls.
document.addEventListener("keydown", (event) => {
  const isTyping = event.target.matches?.("input, select, textarea");
  if (event.ctrlKey || event.altKey || event.metaKey || isTyping) {
    return;
  }
  if (closeup.dialog.open) {
    const scrolls = event.target === closeup.picture && Number(closeup.zoom.value) > kWholePicture;
    const step = { ArrowLeft: -1, ArrowRight: 1 }[event.key];
    if (step && !scrolls) {
      event.preventDefault();
      closeup.go(step);
    }
  } else if (event.key === "/") {
    event.preventDefault();
    search.focus();
  } else if (event.target.matches?.(".picture")) {
    goBetweenCards(event);
  } else if (event.key === "Escape") {
    menus.forEach((menu) => (menu.open = false));
  }
});

setTheme(matchMedia("(prefers-color-scheme: dark)").matches);
offerGroups();
link.read();
