// Shows more of a hatch: its tiles again and again over a plane that is larger than the one it was drawn on.

const kWholePicture = 100; // percent: as it was drawn
const kAreaMargin = 20; // of a hatch's frame in its picture
const kMostCopies = 40000; // pieces of lines that a browser still draws at once

// The lines of a tile, each with what it covers. A path's data is as pictures have it: absolute moves, and after them
// relative lines and curves.
function piecesOf(tile) {
  return tile.split("M").slice(1).map((text) => {
    const [, x, y, rest] = /^(-?[\d.]+) ?(-?[\d.]+)(.*)$/.exec(text);
    const box = { left: 0, right: 0, top: 0, bottom: 0 };
    let at = [0, 0];
    const include = ([dx, dy]) => {
      box.left = Math.min(box.left, dx);
      box.right = Math.max(box.right, dx);
      box.top = Math.min(box.top, dy);
      box.bottom = Math.max(box.bottom, dy);
    };
    for (const [, letter, list] of rest.matchAll(/([hvlc])([^hvlc]*)/g)) {
      const numbers = list.match(/-?[\d.]+/g).map(Number);
      const pairs = { h: () => [numbers[0], 0], v: () => [0, numbers[0]] }[letter]?.() ?? numbers;
      for (let i = 0; i < pairs.length; i += 2) {
        include([at[0] + pairs[i], at[1] + pairs[i + 1]]);
      }
      at = [at[0] + pairs.at(-2), at[1] + pairs.at(-1)];
    }
    return { x: Number(x), y: Number(y), rest, box };
  });
}

// The first and the last copy of what lies between `low` and `high` that reaches into a circle about the origin.
function copiesOver(step, low, high, radius) {
  return step > 0 ? [Math.ceil((-radius - high) / step), Math.floor((radius - low) / step)] : [0, 0];
}

// Calls `draw` with the place of each copy; counts them alone where there is none.
function forEachCopy([stepX, stepY], piece, radius, draw) {
  const { x, y, box } = piece;
  const [firstX, lastX] = copiesOver(stepX, x + box.left, x + box.right, radius);
  const [firstY, lastY] = copiesOver(stepY, y + box.top, y + box.bottom, radius);
  for (let column = firstX; draw && column <= lastX; ++column) {
    for (let row = firstY; row <= lastY; ++row) {
      draw(column * stepX, row * stepY);
    }
  }
  return Math.max(0, lastX - firstX + 1) * Math.max(0, lastY - firstY + 1);
}

const tileOf = new WeakMap(); // of elements: what they repeat, and what they drew before

function tilesIn(svg) {
  return [...svg.querySelectorAll("[data-step]")].map((group) => ({
    step: group.dataset.step.split(" ").map(Number),
    paths: [...group.querySelectorAll(":scope > [data-tile]")].map((path) => {
      if (!tileOf.has(path)) {
        tileOf.set(path, { pieces: piecesOf(path.dataset.tile), drawn: path.getAttribute("d") });
      }
      return { path, ...tileOf.get(path) };
    }),
  }));
}

// A circle round the sample, whatever the hatch's angle.
function radiusAt(share) {
  return Math.hypot(kPictureWidth - 2 * kAreaMargin, kPictureHeight - 2 * kAreaMargin) / 2 / share;
}

// Whether all of a picture repeats, and can be shown at so small a share of its size.
function canSpread(svg, share) {
  const tiles = tilesIn(svg);
  const whole = svg.querySelectorAll("[data-step] > :is(path:not([data-tile]), use, defs)").length === 0;
  let count = 0;
  for (const { step, paths } of tiles) {
    for (const { pieces } of paths) {
      for (const piece of pieces) {
        count += forEachCopy(step, piece, radiusAt(share));
      }
    }
  }
  return tiles.length > 0 && whole && count <= kMostCopies;
}

// Lets a picture of a hatch show the hatch at a share of its size, and so much more of it. 1 is as it was drawn.
function spread(svg, share) {
  const width = kPictureWidth / share;
  const height = kPictureHeight / share;
  const left = (kPictureWidth - width) / 2;
  const top = (kPictureHeight - height) / 2;
  svg.setAttribute("viewBox", [left, top, width, height].join(" "));
  if (share > 1) {
    return;
  }
  const margin = kAreaMargin / share;
  for (const frame of svg.querySelectorAll("clipPath > rect, .frame")) {
    const sides = { x: left + margin, y: top + margin, width: width - 2 * margin, height: height - 2 * margin };
    for (const [name, value] of Object.entries(sides)) {
      frame.setAttribute(name, value);
    }
  }
  for (const { step, paths } of tilesIn(svg)) {
    for (const { path, pieces, drawn } of paths) {
      path.setAttribute("d", share < 1 ? copiesOf(step, pieces, radiusAt(share)) : drawn);
    }
  }
}

function copiesOf(step, pieces, radius) {
  let data = "";
  for (const piece of pieces) {
    forEachCopy(step, piece, radius, (x, y) => {
      data += `M${(piece.x + x).toFixed(2)} ${(piece.y + y).toFixed(2)}${piece.rest}`;
    });
  }
  return data;
}
