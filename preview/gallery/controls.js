// Controls for the parameters of one symbol, in its card and in the close-up.

const kUnits = { angle: "°", weight: "mm" };
const kQuantities = { color: "colour", weight: "weight", angle: "angle", text: "text" };

// "Line &Color" is "Line Color"; "&&" stands for "&".
function plainLabel(text) {
  return text.replace(/&(.?)/g, "$1");
}

// What a control is called. Where two have the same name, what they stand for tells them apart.
function labelsOf(parameters) {
  const plain = parameters.map((parameter) => plainLabel(parameter.label) || parameter.identifier);
  return plain.map((label, index) => {
    const isTwice = plain.some((other, place) => place !== index && other === label);
    return isTwice ? `${label} (${kQuantities[restyling.quantityOf(parameters[index])]})` : label;
  });
}

function inputFor(parameter, value) {
  const input = document.createElement("input");
  const quantity = restyling.quantityOf(parameter);
  if (quantity === "color") {
    input.type = "color";
  } else if (quantity === "text") {
    input.type = "text";
  } else {
    input.type = "number";
    input.step = quantity === "angle" ? 5 : 0.05;
    if (quantity === "weight") {
      input.min = 0;
    }
  }
  input.value = value;
  return input;
}

// What the reader put in, or the default where that is nothing.
function readInput(input, parameter) {
  if (input.type !== "number") {
    return input.value;
  }
  return Number.isFinite(input.valueAsNumber) ? input.valueAsNumber : parameter.value;
}

let controlCount = 0;

function buildControls(container, symbol) {
  container.replaceChildren();
  const { parameters } = symbol.data;
  const values = symbol.values;
  const labels = labelsOf(parameters);
  parameters.forEach((parameter, index) => {
    const input = inputFor(parameter, values[index]);
    input.id = `control-${controlCount++}`;
    input.dataset.identifier = parameter.identifier;
    input.title = parameter.description;
    input.addEventListener("input", () => {
      symbol.set(parameter.identifier, readInput(input, parameter));
      showValues(symbol, container);
      link.keep();
    });
    container.append(controlRow(parameter, labels[index], input));
  });
  if (parameters.length > 0) {
    container.append(resetButton(symbol));
  }
}

function controlRow(parameter, text, input) {
  const row = document.createElement("div");
  row.className = "control";
  const label = document.createElement("label");
  label.htmlFor = input.id;
  const identifier = document.createElement("small");
  identifier.textContent = parameter.identifier;
  label.append(text, identifier);
  row.append(label, input);
  const unit = kUnits[restyling.quantityOf(parameter)];
  if (unit) {
    const sign = document.createElement("span");
    sign.className = "unit";
    sign.textContent = unit;
    row.append(sign);
  }
  return row;
}

function resetButton(symbol) {
  const button = document.createElement("button");
  button.type = "button";
  button.className = "button";
  button.textContent = "Defaults";
  button.addEventListener("click", () => {
    symbol.reset();
    showValues(symbol);
    link.keep();
  });
  return button;
}

// A symbol's controls may be seen twice: in its card and in the close-up. All but those in `source`, where the
// reader is typing, show the values in force.
function showValues(symbol, source) {
  const containers = [symbol.card.querySelector(".controls")].filter(Boolean);
  if (closeup.symbol === symbol) {
    containers.push(closeup.controls);
  }
  for (const container of containers) {
    const inputs = container === source ? [] : container.querySelectorAll("input");
    const values = inputs.length > 0 ? symbol.values : [];
    inputs.forEach((input, index) => (input.value = values[index]));
  }
}
