"use strict";

// Animated PNGs: the browser compresses each picture, and this joins the chunks of its files.
// Colors and times are exact, and a browser plays them like a GIF.

const crcTable = Uint32Array.from({ length: 256 }, (_, byte) => {
  let crc = byte;
  for (let bit = 0; bit < 8; ++bit) crc = crc & 1 ? 0xedb88320 ^ (crc >>> 1) : crc >>> 1;
  return crc;
});

/** Big-endian bytes of pairs of a size (1, 2 or 4) and a number. */
function bytesOf(...pairs) {
  return pairs.flatMap(([size, number]) =>
    Array.from({ length: size }, (_, i) => (number >>> (8 * (size - 1 - i))) & 255));
}

function pngChunk(type, ...data) {
  const body = [...type].map((letter) => letter.charCodeAt(0)).concat(...data.map((part) => [...part]));
  const crc = ~body.reduce((crc, byte) => crcTable[(crc ^ byte) & 255] ^ (crc >>> 8), -1);
  return Uint8Array.from([...bytesOf([4, body.length - 4]), ...body, ...bytesOf([4, crc])]);
}

/** The contents of a PNG's chunks of one type. */
function pngParts(png, type) {
  const numbers = new DataView(png.buffer);
  const parts = [];
  for (let at = 8; at < png.length; at += 12 + numbers.getUint32(at)) {
    if (String.fromCharCode(...png.subarray(at + 4, at + 8)) === type)
      parts.push(png.subarray(at + 8, at + 8 + numbers.getUint32(at)));
  }
  return parts;
}

/** PNGs of one size, each shown for its number of milliseconds, over and over. */
function animatedPng(frames) {
  const [header] = pngParts(frames[0].png, "IHDR");
  const size = [...header.subarray(0, 8)];
  const file = [frames[0].png.subarray(0, 8), pngChunk("IHDR", header),
    pngChunk("acTL", bytesOf([4, frames.length], [4, 0]))];
  let sequence = 0;
  frames.forEach(({ png, milliseconds }, number) => {
    const noOffset = [4, 0];
    file.push(pngChunk("fcTL", bytesOf([4, sequence++]), size, bytesOf(noOffset, noOffset,
      [2, milliseconds], [2, 1000], [1, 0], [1, 0]))); // replaces the whole picture
    for (const data of pngParts(png, "IDAT"))
      file.push(number ? pngChunk("fdAT", bytesOf([4, sequence++]), data) : pngChunk("IDAT", data));
  });
  file.push(pngChunk("IEND"));
  return new Blob(file, { type: "image/apng" });
}

/** Motions at one speed, one below another, from their start until the last one ends. */
async function filmOf(motions, speed) {
  const gap = 8;
  const { width, height } = gallery;
  const canvas = make("canvas", { width, height: motions.length * (height + gap) - gap });
  const painter = canvas.getContext("2d", { alpha: false });
  const ticks = Math.max(...motions.map((motion) => motion.speeds[speed].ticks));
  await Promise.all(motions.map(loadMotion));

  const frames = [];
  let shown = "";
  for (let tick = 0; tick < ticks; ++tick) {
    const pictures = motions.map((motion) => pictureAt(motion, speed, tick));
    let last = frames.at(-1);
    if (String(pictures) !== shown) {
      for (const [row, picture] of pictures.entries())
        paintPicture(painter, await sheetOf(motions[row], picture).whenReady, picture, row * (height + gap));
      const blob = await new Promise((done) => canvas.toBlob(done));
      frames.push({ png: new Uint8Array(await blob.arrayBuffer()), milliseconds: 0 });
      shown = String(pictures);
    } else if (last.milliseconds + gallery.tick > 0xffff) {
      frames.push({ png: last.png, milliseconds: 0 }); // no frame can stand longer
    }
    last = frames.at(-1);
    last.milliseconds += gallery.tick;
  }
  return animatedPng(frames);
}
