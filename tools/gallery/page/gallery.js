"use strict";

// What motions.js and the files in motions/ say. They are scripts and not data, and hold their pictures,
// because a page that was opened from a folder may read nothing else.
let gallery = null;
const plays = new Map(); // by motion: its sheets, and for each speed where its pictures begin

const byId = (id) => document.getElementById(id);
const lessMotion = matchMedia("(prefers-reduced-motion: reduce)");
const state = { speed: 8, paused: lessMotion.matches };

function make(name, properties = {}, ...children) {
  const element = Object.assign(document.createElement(name), properties);
  element.append(...children);
  return element;
}

const inSeconds = (ticks) => (ticks * gallery.tick / 1000).toFixed(2);

// ---------------------------------------------------------------------------- pictures

/** Loads a motion's pictures, once. */
const loading = new Map();
function loadMotion({ id }) {
  if (!loading.has(id))
    loading.set(id, new Promise((done, failed) => {
      document.head.append(make("script", { src: `motions/${id}.js`, onload: done, onerror: failed }));
    }));
  return loading.get(id);
}

/** Called by the files in motions/. */
function showMotion({ id, sheets, runs }) {
  plays.set(id, {
    sheets,
    runs: runs.map((pairs) => {
      const pictures = [];
      const starts = [];
      let tick = 0;
      for (let i = 0; i < pairs.length; i += 2) {
        pictures.push(pairs[i]);
        starts.push(tick);
        tick += pairs[i + 1];
      }
      return { pictures, starts };
    }),
  });
}

/** The picture of a loaded motion that is seen at a tick; after the end, the last one. */
function pictureAt(motion, speed, tick) {
  const run = plays.get(motion.id).runs[speed];
  let low = 0;
  let high = run.starts.length - 1;
  while (low < high) {
    const middle = (low + high + 1) >> 1;
    if (run.starts[middle] <= tick) low = middle;
    else high = middle - 1;
  }
  return run.pictures[low];
}

// Decoded sheets, the least recently used first: what is out of sight is given back.
const sheets = new Map();
const mostSheets = 96;

/** The sheet with a picture; its whenReady becomes the sheet itself. */
function sheetOf({ id }, picture) {
  const number = Math.floor(picture / gallery.sheet);
  const name = `${id}-${number}`;
  let sheet = sheets.get(name);
  if (sheet) {
    sheets.delete(name);
  } else {
    sheet = make("img", { src: `data:image/png;base64,${plays.get(id).sheets[number]}` });
    sheet.ready = false;
    sheet.whenReady = sheet.decode().then(() => {
      sheet.ready = true;
      return sheet;
    });
  }
  sheets.set(name, sheet);
  if (sheets.size > mostSheets) sheets.delete(sheets.keys().next().value);
  return sheet;
}

function paintPicture(painter, sheet, picture, y) {
  const { width, height } = gallery;
  painter.drawImage(sheet, 0, picture % gallery.sheet * height, width, height, 0, y, width, height);
}

/** A canvas that shows a motion. */
class Screen {
  constructor(canvas) {
    this.canvas = canvas;
    canvas.width = gallery.width;
    canvas.height = gallery.height;
  }

  show(motion) {
    if (motion !== this.motion) this.canvas.width = gallery.width; // clears it
    this.motion = motion;
    this.shown = -1;
  }

  /** Returns false while the picture is still on its way; the old one stays. */
  draw(speed, tick) {
    if (!plays.has(this.motion.id)) {
      loadMotion(this.motion);
      return false;
    }
    const picture = pictureAt(this.motion, speed, tick);
    const sheet = sheetOf(this.motion, picture);
    if (!sheet.ready) return false;
    if (picture !== this.shown) {
      paintPicture(this.canvas.getContext("2d"), sheet, picture, 0);
      this.shown = picture;
      this.canvas.dataset.picture = picture;
    }
    return true;
  }
}

// ---------------------------------------------------------------------------- cards

const cards = [];

/** A card of the page, whose poster gives way to what moves. */
class Card {
  constructor(motion) {
    this.motion = motion;
    this.element = byId(`card-${motion.id}`);
    this.element.card = this;
    const heading = this.element.querySelector("h2");
    heading.append(make("a", { href: `#${motion.slug}` }, ...heading.childNodes));
    this.ticks = make("p", { className: "ticks" });
    this.element.querySelector(".text").append(this.ticks);
    const poster = this.element.querySelector("svg");
    const canvas = make("canvas");
    canvas.setAttribute("role", "img");
    canvas.setAttribute("aria-label", poster.getAttribute("aria-label"));
    this.screen = new Screen(canvas);
    this.screen.show(motion);
    this.showFirst = () => poster.replaceWith(canvas);
    this.words = [this.element.textContent, motion.family, motion.synonyms].join(" ").toLowerCase();
    this.inSight = false;
    this.tick = 0;
  }

  restart() {
    this.tick = 0;
    const { pages, ticks } = this.motion.speeds[state.speed];
    const page = pages.length ? pages[0][1] - pages[0][0] + 1 : ticks;
    this.ticks.textContent =
      `${page} ticks ${pages.length ? "a page" : "in all"} · ${(page * gallery.tick / 1000).toFixed(1)} s`;
  }

  advance() {
    if (!this.inSight || this.element.hidden) return;
    const { ticks } = this.motion.speeds[state.speed];
    if (!this.screen.draw(state.speed, Math.min(this.tick, ticks - 1))) return;
    if (!this.screen.canvas.isConnected) this.showFirst();
    this.tick = (this.tick + 1) % (ticks + restAfterEnd);
  }
}

const sight = new IntersectionObserver((entries) => {
  for (const entry of entries) entry.target.card.inSight = entry.isIntersecting;
}, { rootMargin: "40px" });

function filter() {
  const words = byId("search").value.toLowerCase().split(/\s+/).filter(Boolean);
  const family = byId("family").value;
  let found = 0;
  for (const card of cards) {
    const fits = (!family || card.motion.family === family) &&
      words.every((word) => card.words.includes(word));
    card.element.hidden = !fits;
    found += fits;
  }
  byId("found").textContent = found === cards.length ? "" :
    found ? `${found} of ${cards.length} motions` : "No motion has these words. Try a family, or fewer letters.";
}

function setPaused(paused) {
  state.paused = paused;
  byId("pause").textContent = paused ? "Play all" : "Pause all";
}

function setSpeed(speed) {
  state.speed = speed;
  for (const id of ["speed", "view-speed"]) {
    byId(id).value = speed;
    byId(`${id}-shown`).textContent = speed;
  }
  for (const card of cards) card.restart();
}

// ---------------------------------------------------------------------------- the whole page

/** Makes every time of the table lead to its motion at that speed. */
function linkTimes() {
  const rows = byId("times").tBodies[0].rows;
  gallery.motions.forEach(({ title, slug }, row) => {
    [...rows[row].cells].slice(1).forEach((cell, speed) => {
      const link = make("a", { href: `#${slug}-${speed}` }, ...cell.childNodes);
      link.setAttribute("aria-label", `${title} at speed ${speed}: ${link.textContent}; ${cell.title}`);
      cell.append(link);
    });
  });
}

function follow() {
  const target = readAddress(location.hash);
  if (target) {
    // Closing then leads back, so that views do not pile up behind the Back button.
    if (!byId("view").open) history.replaceState("from the list", "");
    view.open(target);
  } else {
    byId("view").close();
  }
}

/** Called by motions.js. */
function showGallery(given) {
  gallery = given;
  for (const motion of gallery.motions)
    motion.slug = motion.title.toLowerCase().replace(/\W+/g, "-");
  for (const family of new Set(gallery.motions.map((motion) => motion.family)))
    byId("family").append(make("option", { value: family, textContent: family }));
  for (const motion of gallery.motions) {
    const card = new Card(motion);
    cards.push(card);
    sight.observe(card.element);
    byId("other").append(make("option", { value: motion.id, textContent: motion.title }));
  }
  setPaused(state.paused);
  setSpeed(state.speed);
  listen();
  listenInView();
  const target = readAddress(location.hash);
  if (target) view.open(target);
  else byId(location.hash.slice(1))?.scrollIntoView(); // again, with all that stands above it
  requestAnimationFrame(beat);
  setTimeout(linkTimes); // the table is far down: first the motions
}

function listen() {
  const controls = byId("controls");
  controls.hidden = false;
  controls.addEventListener("submit", (event) => event.preventDefault());
  // What a link leads to is not hidden below the bar, however many rows that has.
  const measureBar = () =>
    document.documentElement.style.setProperty("--bar", `${controls.offsetHeight}px`);
  measureBar();
  new ResizeObserver(measureBar).observe(controls);
  byId("search").addEventListener("input", filter);
  byId("family").addEventListener("change", filter);
  for (const id of ["speed", "view-speed"])
    byId(id).addEventListener("input", (event) => {
      setSpeed(Number(event.target.value));
      if (!view.motion) return;
      view.tick = 0;
      view.describe();
      view.keepAddress();
    });
  byId("pause").addEventListener("click", () => setPaused(!state.paused));
  lessMotion.addEventListener("change", () => setPaused(lessMotion.matches));
  addEventListener("hashchange", follow);
}

let lastTick = 0;
function beat(now) {
  requestAnimationFrame(beat);
  const tick = Math.floor(now / gallery.tick);
  if (tick === lastTick) return;
  lastTick = tick;
  if (view.motion) view.advance();
  else if (!state.paused) for (const card of cards) card.advance();
}
