"use strict";

// One motion, or two, at full size; the address leads back to them: #sway-7@4.29s&rock is "Sway" at speed 7
// after 4.29 seconds, beside "Rock".

const restAfterEnd = 15; // ticks for which a play's last picture stands before it starts again

/** Where an address leads; null where it is none of a motion. */
function readAddress(hash) {
  const [, name, speed, time, other] =
    /^#([\w-]+?)(?:-(\d))?(?:@(\d+(?:\.\d+)?)s)?(?:&([\w-]+))?$/.exec(hash) ?? [];
  const named = (word) => word && gallery.motions.find(({ id, slug }) => word === id || word === slug);
  return named(name) ? {
    motion: named(name),
    other: named(other),
    speed: speed && Number(speed),
    tick: time && Math.round(time * 1000 / gallery.tick),
  } : null;
}

/** Shows words in place of a button's own for a moment. */
function say(button, words) {
  const own = button.dataset.own ??= button.textContent;
  button.textContent = words;
  byId("done").textContent = words;
  setTimeout(() => { button.textContent = own; }, 1500);
}

async function copy(button, text) {
  try {
    await navigator.clipboard.writeText(text);
    say(button, "Copied");
  } catch {
    prompt("Copy it with Ctrl+C:", text);
  }
}

/** A motion in the view: its picture, and below the controls its details. */
class Display {
  constructor() {
    [this.figure, this.details] = byId("display").content.cloneNode(true).children;
    this.canvas = this.figure.querySelector("canvas");
    this.screen = new Screen(this.canvas);
    this.command = this.details.querySelector("code");
    const button = this.details.querySelector("button");
    button.addEventListener("click", () => copy(button, this.command.textContent));
  }

  show(motion) {
    this.motion = motion;
    this.screen.show(motion);
    this.canvas.setAttribute("aria-label", motion.title);
    this.figure.querySelector(".summary").textContent = motion.summary;
  }

  get play() { return this.motion.speeds[state.speed]; }

  describe() {
    const { pages, times } = this.play;
    this.details.querySelector(".facts").textContent = (pages.length > 1 ? `${pages.length} pages · ` : "") + times;
    this.command.textContent = `animtext author ${gallery.words} ${this.motion.option} --speed ` +
      `${state.speed} -o sign.json && animtext render sign.json -o sign.gif`;
  }

  /** What happens when, as a bar: entrances, holds, and what the host cuts off. */
  bar(length) {
    const { ticks, planned, actual, pages } = this.play;
    const block = (kind, from, until) => {
      const element = make("i", { className: kind });
      element.style.left = `${from * 100 / length}%`;
      element.style.width = `${Math.max(0, until - from) * 100 / length}%`;
      return element;
    };
    const blocks = pages.length ? pages.flatMap(([from, entered, until]) =>
      [block("in", from, entered), block("held", entered, until)]) : [block("in", 0, ticks)];
    if (actual > planned + gallery.tick) blocks.push(block("cut", planned / gallery.tick, ticks));
    return make("div", {}, ...blocks);
  }
}

const view = {
  displays: [], // in sight: one or two
  tick: 0,
  playing: true,
  addressTimer: 0,

  get motion() { return this.displays[0]?.motion ?? null; },
  get ticks() { return Math.max(...this.displays.map(({ play }) => play.ticks)); },

  /** Shows what an address leads to. */
  open({ motion, other, speed, tick }) {
    if (speed !== undefined) setSpeed(speed);
    this.playing = tick === undefined && !lessMotion.matches;
    this.tick = tick ?? 0;
    this.show([motion, other].filter(Boolean));
    if (!byId("view").open) {
      byId("view").showModal();
      byId("play").focus();
    }
    this.fit();
  },

  show(motions) {
    this.displays = motions.map((motion, i) => {
      const display = this.displays[i] ?? new Display();
      display.show(motion);
      return display;
    });
    byId("stage").replaceChildren(...this.displays.map(({ figure }) => figure));
    byId("details").replaceChildren(...this.displays.map(({ details }) => details));
    byId("view-name").textContent = motions.map(({ title }) => title).join(" and ");
    byId("other").value = motions[1]?.id ?? "";
    this.describe();
  },

  compare(id) {
    this.show([this.motion, gallery.motions.find((motion) => motion.id === id)].filter(Boolean));
    this.fit();
    this.keepAddress();
  },

  close() {
    clearTimeout(this.addressTimer);
    // Where the address is no longer that of a motion, the way here has been gone back already.
    if (readAddress(location.hash)) {
      if (history.state === "from the list") history.back();
      else history.replaceState(null, "", location.pathname + location.search);
    }
    if (document.activeElement === document.body)
      byId(`card-${this.motion.id}`).querySelector("a").focus({ preventScroll: true });
    this.displays = [];
  },

  address(tick) {
    return `#${this.motion.slug}-${state.speed}` +
      (tick === undefined ? "" : `@${(tick * gallery.tick / 1000).toFixed(2)}s`) +
      (this.displays[1] ? `&${this.displays[1].motion.slug}` : "");
  },

  /** Writes down what is shown; not at once, for browsers allow only so many new addresses a minute. */
  keepAddress() {
    clearTimeout(this.addressTimer);
    this.addressTimer = setTimeout(() =>
      history.replaceState(history.state, "", this.address(this.playing ? undefined : this.tick)), 300);
  },

  /** The largest whole zoom that there is room for, side by side where that still magnifies. */
  fit() {
    const room = (columns) => (byId("stage").clientWidth - 16 * (columns - 1)) / columns - 32;
    const columns = this.displays.length === 2 && room(2) >= 2 * gallery.width ? 2 : 1;
    byId("view").style.setProperty("--columns", columns);
    const fitting = room(columns) / gallery.width;
    const zoom = fitting < 1 ? fitting : Math.floor(fitting);
    const isLeds = byId("leds").getAttribute("aria-pressed") === "true" && zoom > 2;
    const lamp = `radial-gradient(circle closest-side, #000 55%, #0003 85%, transparent 92%) 0 0 / ${zoom}px ${zoom}px`;
    for (const display of this.displays) {
      const { style } = display.canvas;
      style.width = `${zoom * gallery.width}px`;
      style.height = `${zoom * gallery.height}px`;
      style.mask = style.webkitMask = isLeds ? lamp : "";
    }
  },

  /** Everything that the speed or another motion changes. */
  describe() {
    for (const display of this.displays) display.describe();
    this.tick = Math.min(this.tick, this.ticks - 1);
    byId("scrub").max = this.ticks - 1;
    byId("blocks").replaceChildren(...this.displays.map((display) => display.bar(this.ticks)));
    this.draw();
  },

  draw() {
    const tick = Math.min(this.tick, this.ticks - 1);
    const drawn = this.displays.map(({ screen }) => screen.draw(state.speed, tick));
    byId("scrub").value = tick;
    byId("scrub").setAttribute("aria-valuetext", `${inSeconds(tick)} seconds, tick ${tick}`);
    byId("now").textContent = `${inSeconds(tick)} s · tick ${tick}`;
    byId("play").textContent = this.playing ? "Pause" : "Play";
    return drawn.every(Boolean);
  },

  advance() {
    if (this.draw() && this.playing) this.tick = (this.tick + 1) % (this.ticks + restAfterEnd);
  },

  go(tick) {
    this.playing = false;
    this.tick = Math.max(0, Math.min(this.ticks - 1, tick));
    this.draw();
    this.keepAddress();
  },

  /** To the page before or after. */
  turn(direction) {
    const starts = this.displays[0].play.pages.map((page) => page[0]);
    const target = direction > 0 ? starts.find((start) => start > this.tick) :
      starts.filter((start) => start < this.tick).pop();
    this.go(target ?? (direction > 0 ? this.ticks - 1 : 0));
  },

  playOrPause() {
    this.playing = !this.playing;
    if (this.playing && this.tick >= this.ticks - 1) this.tick = 0;
    this.draw();
    this.keepAddress();
  },

  async saveFilm() {
    const button = byId("film");
    const motions = this.displays.map(({ motion }) => motion);
    const name = `${motions.map(({ slug }) => slug).join("-and-")}-speed-${state.speed}.apng`;
    button.disabled = true;
    const link = make("a", { download: name });
    try {
      link.href = URL.createObjectURL(await filmOf(motions, state.speed));
      link.click();
      say(button, "Saved");
    } catch (error) {
      say(button, "Not saved");
      throw error;
    } finally {
      button.disabled = false;
      setTimeout(() => URL.revokeObjectURL(link.href), 60000);
    }
  },
};

const viewKeys = {
  ArrowLeft: (step) => view.go(view.tick - step),
  ArrowRight: (step) => view.go(view.tick + step),
  Home: () => view.go(0),
  End: () => view.go(view.ticks - 1),
  "[": () => view.turn(-1),
  "]": () => view.turn(1),
  " ": () => view.playOrPause(),
  l: () => byId("leds").click(),
  L: () => byId("leds").click(),
};

function listenInView() {
  const dialog = byId("view");
  dialog.addEventListener("close", () => view.close());
  dialog.addEventListener("click", (event) => {
    if (event.target === dialog) dialog.close(); // beside it
  });
  dialog.addEventListener("keydown", (event) => {
    const act = viewKeys[event.key];
    const hasOwnUse = event.target.matches("select, #view-speed") || (event.key === " " && event.target.matches("button"));
    if (!act || hasOwnUse || event.ctrlKey || event.altKey || event.metaKey) return;
    act(event.shiftKey ? 10 : 1);
    event.preventDefault();
  });
  addEventListener("resize", () => view.motion && view.fit());

  const onClick = {
    close: () => dialog.close(),
    "to-start": () => view.go(0),
    back: () => view.go(view.tick - 1),
    play: () => view.playOrPause(),
    on: () => view.go(view.tick + 1),
    "to-end": () => view.go(view.ticks - 1),
    link: () => copy(byId("link"), location.href.split("#")[0] + view.address(view.tick)),
    film: () => view.saveFilm(),
    leds: () => {
      byId("leds").setAttribute("aria-pressed", byId("leds").getAttribute("aria-pressed") !== "true");
      view.fit();
    },
  };
  for (const [id, act] of Object.entries(onClick)) byId(id).addEventListener("click", act);
  byId("scrub").addEventListener("input", (event) => view.go(Number(event.target.value)));
  byId("other").addEventListener("change", (event) => view.compare(event.target.value));
}
