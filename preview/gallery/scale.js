// How large symbols are shown: bars that tell, and one scale for all pictures of a kind.

const kPictureWidth = 300; // of a card's markup
const kPictureHeight = 220;
const kPictureShape = kPictureHeight / kPictureWidth;
const kLongestBar = 90;

// The greatest of 1, 2, 5, 10, 20 … and their tenths that is no longer than `most`.
function roundLength(most) {
  const power = 10 ** Math.floor(Math.log10(most));
  return [5, 2, 1].find((digit) => digit * power <= most * (1 + 1e-9)) * power;
}

// Lets a bar tell a round length, in units of the symbol, of a picture with so many pixels for each unit. Gives
// the pixels that the bar is long; 0 where the picture has no scale.
function tellScale(bar, pixelsPerUnit) {
  bar.hidden = !(pixelsPerUnit > 0);
  if (bar.hidden) {
    return 0;
  }
  const length = roundLength(kLongestBar / pixelsPerUnit);
  bar.textContent = String(Number(length.toPrecision(1)));
  bar.title = `${bar.textContent} units of the symbol`;
  return length * pixelsPerUnit;
}

// The bar of a card, which grows with it. The card shows the symbol at a share of its scale.
function scaleBar(symbol, share) {
  const bar = document.createElement("span");
  bar.className = "scale-bar";
  bar.style.width = `${(100 * tellScale(bar, symbol.scale * share)) / kPictureWidth}%`;
  return bar;
}

const scales = {
  isCommon: false,

  set(isCommon) {
    this.isCommon = isCommon;
    for (const symbol of symbols) {
      symbol.refresh();
    }
  },
};
