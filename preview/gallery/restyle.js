"use strict";
// Lets a picture follow the values of its symbol's parameters.

// "constant;factor*parameter;..." with the values of the parameters put in.
function sumOf(text, values) {
  return text.split(";").reduce((sum, term) => {
    const [factor, parameter] = term.split("*");
    return sum + Number(factor) * (parameter === undefined ? 1 : values[Number(parameter)]);
  }, 0);
}

// Lets every element of a picture that follows parameters follow them.
function restyle(svg, values) {
  for (const property of ["stroke", "fill"]) {
    for (const element of svg.querySelectorAll(`[data-${property}]`)) {
      element.setAttribute(property, values[Number(element.dataset[property])]);
    }
  }
  weigh(svg, values, 1);
  for (const element of svg.querySelectorAll("[data-angle]")) {
    element.setAttribute("transform", `rotate(${-sumOf(element.dataset.angle, values)})`);
  }
  for (const element of svg.querySelectorAll("[data-text]")) {
    element.textContent = values[Number(element.dataset.text)];
  }
  fit(svg);
}

// Lets lines have their weights in a picture that is shown `zoom` times as large. What would be too thin to be seen is
// a line that no enlarging thickens.
function weigh(svg, values, zoom) {
  for (const element of svg.querySelectorAll("[data-weight]")) {
    const { weight, pixels, thinnest } = element.dataset;
    const width = sumOf(weight, values) * Number(pixels);
    if (width * zoom > Number(thinnest)) {
      element.setAttribute("stroke-width", width);
      element.removeAttribute("vector-effect");
    } else {
      element.setAttribute("stroke-width", thinnest);
      element.setAttribute("vector-effect", "non-scaling-stroke");
    }
  }
}

// Keeps a point symbol that was turned, or got a longer text, inside its picture.
function fit(svg) {
  const group = svg.querySelector(".fit");
  const box = group && group.getBBox();
  if (!box || (box.width === 0 && box.height === 0)) {
    return;
  }
  const { width, height } = svg.viewBox.baseVal;
  const margin = 20;
  const scale = Math.min(1, (width - 2 * margin) / box.width, (height - 2 * margin) / box.height);
  const x = width / 2 - scale * (box.x + box.width / 2);
  const y = height / 2 - scale * (box.y + box.height / 2);
  group.setAttribute("transform", `translate(${x} ${y}) scale(${scale})`);
}
