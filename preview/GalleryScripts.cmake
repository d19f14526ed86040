# The scripts of the gallery's page, in the order in which it runs them.
set(gallery_scripts
  restyle.js
  paper.js
  card.js
  scale.js
  spread.js
  restyling.js
  controls.js
  closeup.js
  drawing.js
  arrangement.js
  tags.js
  taking.js
  sample.js
  link.js
  page.js)
