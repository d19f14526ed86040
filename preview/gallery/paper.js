// The paper under a picture: one on which all of its colours can be seen, or the one that the reader chose.

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

// The colours that a picture's markup draws with. Its frame is seen on any paper.
function inksOf(markup) {
  const drawn = markup.replace(/<rect[^>]*class="frame"[^>]*>/g, "");
  return new Set([...drawn.matchAll(/\s(?:stroke|fill)="(#[0-9a-f]{6})"/gi)].map(([, color]) => color));
}

function paperFor(inks) {
  const { enough, colors } = kPapers[document.documentElement.dataset.theme];
  const worst = colors.map((paper) =>
    Math.min(21, ...[...inks].map((ink) => contrast(luminance(ink), luminance(paper)))),
  );
  return worst[0] >= enough ? colors[0] : colors[worst.indexOf(Math.max(...worst))];
}

// Lays paper under a picture. What the reader chose stands in the style sheet.
function layPaper(picture, inks) {
  const chosen = document.documentElement.dataset.paper;
  picture.style.background = chosen ? "" : paperFor(inks);
}
