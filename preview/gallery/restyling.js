// Values for all symbols at once: a colour, a weight, an angle, a text. A symbol's own values go before them.

const restyling = {
  color: undefined,
  weight: undefined,
  angle: undefined,
  text: undefined,

  // The quantity that a parameter's type stands for.
  quantityOf(parameter) {
    if (kColors.includes(parameter.type)) {
      return "color";
    }
    return { [kAngle]: "angle", [kWeight]: "weight" }[parameter.type] ?? "text";
  },

  valueFor(parameter) {
    return this[this.quantityOf(parameter)];
  },

  set(quantity, value) {
    this[quantity] = value;
    for (const symbol of symbols) {
      symbol.refresh();
    }
  },
};

// What a control holds as a value of its quantity; undefined where it holds none.
function readControl(input) {
  if (input.type === "number") {
    return Number.isFinite(input.valueAsNumber) ? input.valueAsNumber : undefined;
  }
  return input.value === "" ? undefined : input.value;
}

const allControls = document.querySelectorAll("[data-all]");

function showRestyling() {
  for (const input of allControls) {
    const value = restyling[input.dataset.all];
    input.value = value ?? (input.type === "color" ? "#000000" : "");
  }
}

for (const input of allControls) {
  input.addEventListener("input", () => {
    restyling.set(input.dataset.all, readControl(input));
    link.keep();
  });
}

document.getElementById("all-defaults").addEventListener("click", () => {
  for (const quantity of ["color", "weight", "angle", "text"]) {
    restyling[quantity] = undefined;
  }
  for (const symbol of symbols) {
    symbol.reset();
    showValues(symbol);
  }
  showRestyling();
  link.keep();
});
