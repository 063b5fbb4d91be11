"use strict";

// What motions.js and the files in motions/ tell. They are scripts and not data, because a page
// that was opened from a folder may load nothing else.
let gallery = null;
const runs = new Map(); // by motion: for each speed where its pictures begin, see showMotion()

const byId = (id) => document.getElementById(id);
const lessMotion = matchMedia("(prefers-reduced-motion: reduce)");
const state = { speed: 8, paused: lessMotion.matches };
const restAfterEnd = 15; // ticks for which a play's last picture stands before it starts again

function make(name, properties = {}, ...children) {
  const element = Object.assign(document.createElement(name), properties);
  element.append(...children);
  return element;
}

/** "FlyFromLeftEffect" as people say it. */
function readable(motion) {
  const words = motion.id
    .replace(/^ContinueEffect/, "Scroll")
    .replace(/Effect/, "")
    .replace(/([a-z])([A-Z0-9])/g, "$1 $2")
    .replace(/([0-9])([A-Z][a-z])/g, "$1 $2")
    .replace(/^([0-9])D([A-Z])/, "$1D $2");
  return words.charAt(0) + words.slice(1).replace(/\b[A-Z](?=[a-z])/g, (letter) => letter.toLowerCase());
}

const seconds = (ms) => (ms / 1000).toFixed(ms < 99950 ? 2 : 1);
const inSeconds = (ticks) => seconds(ticks * gallery.tick);

// ---------------------------------------------------------------------------- pictures

/** Loads a script once and answers when it has run. */
const scripts = new Map();
function load(source) {
  if (!scripts.has(source))
    scripts.set(source, new Promise((done, failed) => {
      document.head.append(make("script", { src: source, onload: done, onerror: failed }));
    }));
  return scripts.get(source);
}

/** Called by the files in motions/. */
function showMotion(told) {
  runs.set(told.id, told.runs.map((pairs) => {
    const pictures = [];
    const starts = [];
    let tick = 0;
    for (let i = 0; i < pairs.length; i += 2) {
      pictures.push(pairs[i]);
      starts.push(tick);
      tick += pairs[i + 1];
    }
    return { pictures, starts };
  }));
}

/** The picture that is seen at a tick. */
function pictureAt(run, tick) {
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
function sheetOf(motion, number) {
  const name = `motions/${motion.id}-${number}.png`;
  let sheet = sheets.get(name);
  if (sheet) {
    sheets.delete(name);
  } else {
    sheet = make("img", { src: name });
    sheet.ready = false;
    sheet.decode().then(() => { sheet.ready = true; }, () => {});
  }
  sheets.set(name, sheet);
  if (sheets.size > mostSheets) sheets.delete(sheets.keys().next().value);
  return sheet;
}

const posters = make("img", { src: "posters.png" });
const postersReady = posters.decode();

/** A canvas that shows a motion, at first its poster. */
class Screen {
  constructor(canvas, motion, index) {
    this.canvas = canvas;
    this.shown = -1;
    this.show(motion, index);
  }

  show(motion, index) {
    this.motion = motion;
    this.shown = -1;
    this.canvas.width = gallery.width;
    this.canvas.height = gallery.height;
    postersReady.then(() => {
      if (this.shown < 0 && this.motion === motion) this.paint(posters, index);
    });
  }

  paint(sheet, row) {
    this.canvas.getContext("2d").drawImage(sheet, 0, row * gallery.height, gallery.width,
      gallery.height, 0, 0, gallery.width, gallery.height);
  }

  /** Answers false while the picture is still on its way; the old one stays. */
  draw(speed, tick) {
    const known = runs.get(this.motion.id);
    if (!known) {
      load(`motions/${this.motion.id}.js`);
      return false;
    }
    const picture = pictureAt(known[speed], tick);
    const sheet = sheetOf(this.motion, Math.floor(picture / gallery.sheet));
    if (!sheet.ready) return false;
    if (picture !== this.shown) {
      this.paint(sheet, picture % gallery.sheet);
      this.shown = picture;
      this.canvas.dataset.picture = picture;
    }
    return true;
  }
}

// ---------------------------------------------------------------------------- cards

const cards = [];

class Card {
  constructor(motion, index) {
    this.motion = motion;
    const canvas = make("canvas");
    canvas.setAttribute("role", "img");
    canvas.setAttribute("aria-label", `${readable(motion)}: ${motion.summary}`);
    this.ticks = make("p", { className: "ticks" });
    const number = motion.family === "scroll" ? "" : String(motion.number);
    this.element = make("li", { id: `card-${motion.id}` },
      make("div", { className: "screen" }, canvas),
      make("div", { className: "text" },
        make("h3", {}, make("a", { href: `#${motion.id}` },
          make("span", { className: "number", textContent: number }), readable(motion))),
        make("p", { textContent: motion.summary }), this.ticks));
    this.screen = new Screen(canvas, motion, index);
    this.words = [motion.id, readable(motion), motion.summary, motion.family, number].join(" ").toLowerCase();
    this.inSight = false;
    this.tick = 0;
    this.tell();
  }

  tell() {
    const { pages, ticks } = this.motion.speeds[state.speed];
    const page = pages.length ? pages[0][1] - pages[0][0] + 1 : ticks;
    this.ticks.textContent =
      `${page} ticks ${pages.length ? "a page" : "in all"} · ${(page * gallery.tick / 1000).toFixed(1)} s`;
  }

  restart() {
    this.tick = 0;
    this.tell();
  }

  advance() {
    if (!this.inSight || this.element.hidden) return;
    const { ticks } = this.motion.speeds[state.speed];
    if (this.screen.draw(state.speed, Math.min(this.tick, ticks - 1)))
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
    found ? `${found} of ${cards.length} motions` : "No motion is called that. Try a family, or fewer letters.";
}

function setPaused(paused) {
  state.paused = paused;
  byId("pause").setAttribute("aria-pressed", paused);
  byId("pause").textContent = paused ? "Play all" : "Pause all";
}

function setSpeed(speed) {
  state.speed = speed;
  for (const id of ["speed", "view-speed"]) {
    byId(id).value = speed;
    byId(`${id}-shown`).textContent = speed;
  }
  for (const card of cards) card.restart();
  if (view.motion) {
    view.tick = 0;
    view.tell();
    history.replaceState(null, "", `#${view.motion.id}-${speed}`);
  }
}

// ---------------------------------------------------------------------------- one motion at full size

const view = {
  motion: null,
  screen: null,
  tick: 0,
  playing: true,

  open(motion) {
    this.motion = motion;
    this.tick = 0;
    this.playing = !lessMotion.matches;
    const index = gallery.motions.indexOf(motion);
    if (this.screen) this.screen.show(motion, index);
    else this.screen = new Screen(byId("big"), motion, index);
    byId("view-name").textContent = readable(motion);
    byId("view-summary").textContent = motion.summary;
    byId("big").setAttribute("aria-label", motion.summary);
    this.tell();
    if (!byId("view").open) byId("view").showModal();
    this.fit();
    byId("play").focus();
  },

  get play() { return this.motion.speeds[state.speed]; },

  /** The largest whole zoom that there is room for. */
  fit() {
    const room = byId("view").clientWidth - 64;
    const zoom = Math.max(1, Math.floor(room / gallery.width));
    const style = byId("big").style;
    style.width = `${zoom * gallery.width}px`;
    style.height = `${zoom * gallery.height}px`;
    const isLeds = byId("leds").getAttribute("aria-pressed") === "true" && zoom > 2;
    const lamp = `radial-gradient(circle closest-side, #000 55%, #0003 85%, transparent 92%) 0 0 / ${zoom}px ${zoom}px`;
    style.mask = style.webkitMask = isLeds ? lamp : "";
  },

  tell() {
    const { ticks, told, real, pages } = this.play;
    byId("scrub").max = ticks - 1;
    const scale = 100 / Math.max(1, ticks);
    const toldTicks = told / gallery.tick;
    const block = (kind, from, until) => {
      const element = make("i", { className: kind });
      element.style.left = `${from * scale}%`;
      element.style.width = `${Math.max(0, until - from) * scale}%`;
      return element;
    };
    const blocks = pages.length ? pages.flatMap(([from, entered, until]) =>
      [block("in", from, entered), block("held", entered, until)]) : [block("in", 0, ticks)];
    if (real > told) blocks.push(block("cut", toldTicks, ticks));
    byId("blocks").replaceChildren(...blocks);
    const count = pages.length > 1 ? `${pages.length} pages · ` : "";
    byId("facts").textContent = real < 0 ?
      `The host is told ${seconds(told)} s; the device scrolls on for as long as the text is shown. ` +
        `Once through takes ${inSeconds(ticks)} s.` :
      `${count}told ${seconds(told)} s · really ${seconds(real)} s` +
        (real > told ? ` · ${seconds(real - told)} s cut off` :
          real < told ? ` · the last page stands ${seconds(told - real)} s longer` : "");
    byId("command").textContent = `animtext author ${gallery.words} ${this.motion.option} --speed ` +
      `${state.speed} -o sign.json && animtext render sign.json -o sign.gif`;
    this.draw();
  },

  draw() {
    const drawn = this.screen.draw(state.speed, Math.min(this.tick, this.play.ticks - 1));
    const tick = Math.min(this.tick, this.play.ticks - 1);
    byId("scrub").value = tick;
    byId("scrub").setAttribute("aria-valuetext", `${inSeconds(tick)} seconds, tick ${tick}`);
    byId("now").textContent = `${inSeconds(tick)} s · tick ${tick}`;
    byId("play").textContent = this.playing ? "Pause" : "Play";
    return drawn;
  },

  advance() {
    if (this.draw() && this.playing) this.tick = (this.tick + 1) % (this.play.ticks + restAfterEnd);
  },

  go(tick) {
    this.playing = false;
    this.tick = Math.max(0, Math.min(this.play.ticks - 1, tick));
    this.draw();
  },

  /** To the page before or after. */
  turn(direction) {
    const starts = this.play.pages.map((page) => page[0]);
    const target = direction > 0 ? starts.find((start) => start > this.tick) :
      starts.filter((start) => start < this.tick).pop();
    this.go(target ?? (direction > 0 ? this.play.ticks - 1 : 0));
  },
};

const viewKeys = {
  " ": () => byId("play").click(),
  ArrowLeft: (step) => view.go(view.tick - step),
  ArrowRight: (step) => view.go(view.tick + step),
  Home: () => view.go(0),
  End: () => view.go(view.play.ticks - 1),
  "[": () => view.turn(-1),
  "]": () => view.turn(1),
  l: () => byId("leds").click(),
  L: () => byId("leds").click(),
};

/** Where the address leads: a motion, a motion at a speed, or the list. */
function follow() {
  const [, id, speed] = /^#([A-Za-z0-9]+?)(?:-([0-9]))?$/.exec(location.hash) ?? [];
  const motion = gallery.motions.find((candidate) => candidate.id === id);
  if (motion) {
    view.motion = null;
    if (speed) setSpeed(Number(speed));
    view.open(motion);
  } else if (byId("view").open) {
    byId("view").close();
  }
}

// ---------------------------------------------------------------------------- told and real times

function cellColor(told, real) {
  const part = told > 0 ? (real - told) / told : 0;
  const strength = Math.min(1, Math.abs(part) / 0.15);
  if (strength < 0.02) return "";
  const hue = part < 0 ? "var(--short)" : "var(--long)";
  return `color-mix(in srgb, hsl(${hue} 75% var(--cell)) ${Math.round(25 + 75 * strength)}%, var(--card))`;
}

function drawMap() {
  const head = make("tr", {}, make("th", { scope: "col", textContent: "speed" }));
  for (let speed = 0; speed < 10; ++speed)
    head.append(make("th", { scope: "col", textContent: speed }));
  const body = make("tbody");
  for (const motion of gallery.motions) {
    const row = make("tr", {}, make("th", { scope: "row", textContent: readable(motion) }));
    motion.speeds.forEach(({ told, real }, speed) => {
      const difference = real - told;
      const words = real < 0 ? `told ${seconds(told)} s, the device scrolls on` :
        `told ${seconds(told)} s, really ${seconds(real)} s, ` +
          (difference > 0 ? `${seconds(difference)} s cut off` : `${seconds(-difference)} s left over`);
      const link = make("a", { href: `#${motion.id}-${speed}`, title: words,
        textContent: real < 0 ? "on" : (real / 1000).toFixed(1) });
      link.setAttribute("aria-label", `${readable(motion)} at speed ${speed}: ${words}`);
      if (real >= 0) link.style.background = cellColor(told, real);
      row.append(make("td", { className: real < 0 ? "device" : "" }, link));
    });
    body.append(row);
  }
  byId("times").append(make("thead", {}, head), body);
}

// ---------------------------------------------------------------------------- the whole page

/** Called by motions.js. */
function showGallery(told) {
  gallery = told;
  byId("about").textContent = `“${told.text}” in ${told.motions.length} motions, ` +
    `${told.width} × ${told.height} pixels, as the sign paints them: a tick is ${told.tick} ms.`;
  for (const family of new Set(told.motions.map((motion) => motion.family)))
    byId("family").append(make("option", { value: family, textContent: family }));
  told.motions.forEach((motion, index) => {
    const card = new Card(motion, index);
    card.element.card = card;
    cards.push(card);
    byId("motions").append(card.element);
    sight.observe(card.element);
  });
  setPaused(state.paused);
  setSpeed(state.speed);
  listen();
  follow();
  requestAnimationFrame(beat);
  // The map is far down: first the motions.
  setTimeout(drawMap);
}

function listen() {
  byId("controls").addEventListener("submit", (event) => event.preventDefault());
  byId("search").addEventListener("input", filter);
  byId("family").addEventListener("change", filter);
  for (const id of ["speed", "view-speed"])
    byId(id).addEventListener("input", (event) => setSpeed(Number(event.target.value)));
  byId("pause").addEventListener("click", () => setPaused(!state.paused));
  lessMotion.addEventListener("change", () => setPaused(lessMotion.matches));
  addEventListener("hashchange", follow);
  addEventListener("resize", () => view.motion && view.fit());

  byId("close").addEventListener("click", () => byId("view").close());
  byId("view").addEventListener("close", () => {
    const { motion } = view;
    view.motion = null;
    if (motion) {
      history.replaceState(null, "", location.pathname + location.search);
      byId(`card-${motion.id}`).querySelector("a").focus({ preventScroll: true });
    }
  });
  byId("view").addEventListener("click", (event) => {
    if (event.target === byId("view")) byId("view").close(); // beside it
  });
  byId("view").addEventListener("keydown", (event) => {
    const act = viewKeys[event.key];
    const isSpeed = event.target === byId("view-speed") && /Arrow|Home|End/.test(event.key);
    if (!act || isSpeed || event.ctrlKey || event.altKey || event.metaKey) return;
    act(event.shiftKey ? 10 : 1);
    event.preventDefault();
  });
  byId("scrub").addEventListener("input", (event) => view.go(Number(event.target.value)));
  byId("to-start").addEventListener("click", () => view.go(0));
  byId("back").addEventListener("click", () => view.go(view.tick - 1));
  byId("on").addEventListener("click", () => view.go(view.tick + 1));
  byId("to-end").addEventListener("click", () => view.go(view.play.ticks - 1));
  byId("play").addEventListener("click", () => {
    view.playing = !view.playing;
    if (view.playing && view.tick >= view.play.ticks - 1) view.tick = 0;
    view.draw();
  });
  byId("leds").addEventListener("click", () => {
    byId("leds").setAttribute("aria-pressed", byId("leds").getAttribute("aria-pressed") !== "true");
    view.fit();
  });
  byId("copy").addEventListener("click", copyCommand);
}

async function copyCommand() {
  const tell = (words) => {
    byId("copy").textContent = words;
    setTimeout(() => { byId("copy").textContent = "Copy"; }, 1500);
  };
  try {
    await navigator.clipboard.writeText(byId("command").textContent);
    tell("Copied");
  } catch {
    getSelection().selectAllChildren(byId("command"));
    tell("Ctrl+C");
  }
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
