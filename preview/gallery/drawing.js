// Draws pictures as their cards come near the window, as many in a frame as it has time for.

const kFrameBudget = 8; // milliseconds

const drawing = {
  waiting: new Set(),
  near: new Set(),
  isScheduled: false,

  // Draws the symbol soon, if its card is near the window; else when it comes there.
  want(symbol) {
    if (this.near.has(symbol)) {
      this.waiting.add(symbol);
      this.schedule();
    }
  },

  schedule() {
    if (this.waiting.size > 0 && !this.isScheduled) {
      this.isScheduled = true;
      requestAnimationFrame(() => this.drawSome());
    }
  },

  drawSome() {
    const end = performance.now() + kFrameBudget;
    for (const symbol of this.waiting) {
      this.waiting.delete(symbol);
      symbol.show();
      if (performance.now() > end) {
        break;
      }
    }
    this.isScheduled = false;
    this.schedule();
  },

  cameNear(symbol) {
    this.near.add(symbol);
    this.want(symbol);
  },

  wentAway(symbol) {
    this.near.delete(symbol);
    this.waiting.delete(symbol);
  },
};

const observer = new IntersectionObserver(
  (entries) => {
    for (const entry of entries) {
      const symbol = symbolOf.get(entry.target);
      entry.isIntersecting ? drawing.cameNear(symbol) : drawing.wentAway(symbol);
    }
  },
  { rootMargin: "400px" },
);
symbols.forEach((symbol) => observer.observe(symbol.card));
window.addEventListener("beforeprint", () => symbols.forEach((symbol) => symbol.show()));
