// SPDX-License-Identifier: MIT
// Draws every symbol of the table out of the icon sets, or out of the project's own drawings, as an SVG in
// currentColor, and lists the results in a Qt resource file.
//
//   node extract-symbols.mjs --table symbols.tsv --sets node_modules/@iconify-json --drawings drawings --output folder
//
// A picture is "set:icon", "disc:set:icon" (the icon knocked out of a filled disc) or "own:file".
import { existsSync, mkdirSync, readFileSync, readdirSync, rmSync, writeFileSync } from "node:fs";
import { join } from "node:path";
import { parseArgs } from "node:util";

const header = ["symbol", "picture", "licence"];
const ownLicence = "MIT";
const discGlyphShare = 0.62;
const discRadiusShare = 10 / 12;

// QtSvg paints a masked picture as a black square and ignores clips and filters; what is left out here is either
// painted wrongly or carries colours of its own.
const paintable = new Set(["g", "path", "circle", "ellipse", "rect", "line", "polyline", "polygon"]);

class Refusal extends Error {}

function refuse(reason) {
  throw new Refusal(reason);
}

function readTable(path) {
  const [names, ...rows] = readFileSync(path, "utf8").split(/\r?\n/).filter((line) => line !== "");
  if (names !== header.join("\t")) refuse(`the table must begin with the columns ${header.join(", ")}`);
  const seen = new Set();
  return rows.map((line) => {
    const cells = line.split("\t");
    if (cells.length !== header.length || cells.includes("")) refuse(`not three columns: "${line}"`);
    const [symbol, picture, licence] = cells;
    if (!/^[A-Za-z0-9]+([.-][A-Za-z0-9]+)*$/.test(symbol)) refuse(`"${symbol}" cannot be a symbol's name`);
    if (seen.has(symbol)) refuse(`the symbol ${symbol} stands twice in the table`);
    seen.add(symbol);
    return { symbol, picture, licence };
  });
}

function setReader(folder) {
  const sets = new Map();
  return (name) => {
    if (!sets.has(name)) {
      const path = join(folder, name);
      if (!existsSync(path)) refuse(`there is no icon set "${name}" in ${folder}`);
      const icons = JSON.parse(readFileSync(join(path, "icons.json"), "utf8"));
      const { license } = JSON.parse(readFileSync(join(path, "info.json"), "utf8"));
      sets.set(name, { ...icons, name, licence: license.spdx });
    }
    return sets.get(name);
  };
}

// Follows aliases down to a drawing. An alias turns and flips what it stands for, and overrides its other properties.
function findIcon(set, name, visited = []) {
  if (visited.includes(name)) refuse(`the alias ${set.name}:${name} leads back to itself`);
  const drawing = set.icons[name];
  if (drawing) {
    const { width = 16, height = 16, left = 0, top = 0 } = set;
    return { width, height, left, top, ...drawing };
  }
  const alias = set.aliases?.[name];
  if (!alias) refuse(`the set ${set.name} has no icon "${name}"`);
  const parent = findIcon(set, alias.parent, [...visited, name]);
  return {
    ...parent,
    ...alias,
    hFlip: Boolean(parent.hFlip) !== Boolean(alias.hFlip),
    vFlip: Boolean(parent.vFlip) !== Boolean(alias.vFlip),
    rotate: (parent.rotate ?? 0) + (alias.rotate ?? 0),
  };
}

function checkElements(body, picture) {
  for (const [, element] of body.matchAll(/<\s*([A-Za-z][\w:-]*)/g)) {
    if (!paintable.has(element)) refuse(`${picture} contains <${element}>, which cannot be painted as a symbol`);
  }
  if (/\sstyle\s*=/.test(body)) refuse(`${picture} is coloured by a style attribute`);
}

function inCurrentColor(body) {
  return body.replace(/\s(fill|stroke)="([^"]*)"/g, (attribute, name, value) =>
    value === "none" ? attribute : ` ${name}="currentColor"`);
}

const rounded = (value) => Number(value.toFixed(3));

function svg({ left, top, width, height }, body) {
  const box = [left, top, width, height].map(rounded).join(" ");
  return `<svg xmlns="http://www.w3.org/2000/svg" viewBox="${box}" fill="currentColor">${body}</svg>\n`;
}

function upright(icon) {
  const { left, top, width, height, hFlip, vFlip } = icon;
  const quarterTurns = (((icon.rotate ?? 0) % 4) + 4) % 4;
  if (!hFlip && !vFlip && quarterTurns === 0) return { box: icon, body: icon.body };
  // From right to left: to the origin, flipped in its box, turned into its new box.
  const turn = ["", `translate(${height} 0) rotate(90)`, `translate(${width} ${height}) rotate(180)`,
    `translate(0 ${width}) rotate(270)`][quarterTurns];
  const steps = [turn, hFlip && `translate(${width} 0) scale(-1 1)`, vFlip && `translate(0 ${height}) scale(1 -1)`,
    `translate(${-left} ${-top})`].filter(Boolean);
  const lying = quarterTurns % 2 === 1;
  return {
    box: { left: 0, top: 0, width: lying ? height : width, height: lying ? width : height },
    body: `<g transform="${steps.join(" ")}">${icon.body}</g>`,
  };
}

// Even-odd needs one path, so the disc grows around the glyph instead of the glyph shrinking.
function onDisc(icon, picture) {
  const path = /^<path fill="currentColor" d="([^"]+)"\s*\/>$/.exec(icon.body);
  if (!path || icon.hFlip || icon.vFlip || icon.rotate) refuse(`${picture} is not one filled path, so no disc fits it`);
  const centre = { x: icon.left + icon.width / 2, y: icon.top + icon.height / 2 };
  const half = Math.max(icon.width, icon.height) / 2 / discGlyphShare;
  const radius = rounded(half * discRadiusShare);
  const halfTurn = (across) => `a${radius} ${radius} 0 1 0 ${rounded(across)} 0`;
  const disc = `M${rounded(centre.x - radius)} ${centre.y}${halfTurn(2 * radius)}${halfTurn(-2 * radius)}z`;
  const box = { left: centre.x - half, top: centre.y - half, width: 2 * half, height: 2 * half };
  return svg(box, `<path fill-rule="evenodd" d="${path[1]}${disc}"/>`);
}

function ownDrawing(folder, file, picture) {
  const path = join(folder, `${file}.svg`);
  if (!existsSync(path)) refuse(`there is no drawing ${path}`);
  const parts = /<svg\s[^>]*viewBox="([^"]+)"[^>]*>([\s\S]*)<\/svg>/.exec(readFileSync(path, "utf8"));
  if (!parts) refuse(`${path} is not an SVG with a viewBox`);
  const [left, top, width, height] = parts[1].split(/[\s,]+/).map(Number);
  const body = parts[2].replace(/<!--[\s\S]*?-->/g, "").trim();
  checkElements(body, picture);
  return svg({ left, top, width, height }, inCurrentColor(body));
}

function draw({ symbol, picture, licence }, setNamed, drawings) {
  const checkLicence = (actual) => {
    if (licence !== actual) refuse(`${symbol} is under ${actual}, the table says ${licence}`);
  };
  const [, disc, source, name] = /^(disc:)?([a-z0-9-]+):([A-Za-z0-9.-]+)$/.exec(picture) ??
    refuse(`"${picture}" names no picture`);
  if (source === "own") {
    if (disc) refuse(`${picture}: a drawing of one's own brings its own disc`);
    checkLicence(ownLicence);
    return ownDrawing(drawings, name, picture);
  }
  const set = setNamed(source);
  checkLicence(set.licence);
  const icon = findIcon(set, name);
  checkElements(icon.body, picture);
  icon.body = inCurrentColor(icon.body);
  if (disc) return onDisc(icon, picture);
  const { box, body } = upright(icon);
  return svg(box, body);
}

function extract({ table, sets, drawings, output }) {
  const rows = readTable(table);
  const setNamed = setReader(sets);
  const pictures = rows.map((row) => [`${row.symbol}.svg`, draw(row, setNamed, drawings)]);
  mkdirSync(output, { recursive: true });
  for (const old of readdirSync(output).filter((file) => file.endsWith(".svg"))) rmSync(join(output, old));
  for (const [file, text] of pictures) writeFileSync(join(output, file), text);
  const files = pictures.map(([file]) => `    <file>${file}</file>\n`).join("");
  writeFileSync(join(output, "symbols.qrc"), `<RCC>\n  <qresource prefix="/symbols">\n${files}  </qresource>\n</RCC>\n`);
}

const options = { table: { type: "string" }, sets: { type: "string" }, drawings: { type: "string" }, output: { type: "string" } };
try {
  extract(parseArgs({ options }).values);
} catch (error) {
  if (!(error instanceof Refusal)) throw error;
  console.error(`Symbols: ${error.message}.`);
  process.exitCode = 1;
}
