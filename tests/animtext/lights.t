Playing on LED controllers; what is refused sends nothing.

  $ . "$TESTDIR/prelude.sh"

Words that are wrong:

  $ fresh
  $ animtext play
  ! animtext: expected SCENE.json (see animtext help play)
  [2]
  $ animtext play one.json --brightness 50
  ! animtext: --brightness needs --to (see animtext help play)
  [2]
  $ animtext play one.json --to ddp://127.0.0.1 --layout columns,snake
  ! animtext: --layout: "snake" is not a layout; expected rows, columns, straight, serpentine, top-left, top-right, bottom-left, bottom-right, rotate-0, rotate-90, rotate-180, rotate-270 (see animtext help play)
  [2]
  $ animtext play one.json --to ddp://127.0.0.1 --color-order RGBW
  ! animtext: --color-order is "RGBW"; expected the letters R, G and B in any order (see animtext help play)
  [2]
  $ animtext play one.json --to ddp://127.0.0.1 --to artnet://127.0.0.1/99x1
  ! animtext: artnet://127.0.0.1/99x1: 99x1 at 0,0 is not inside the display, which is 64x32
  [2]
  $ animtext play --to ddp://127.0.0.1 --test-pattern
  ! animtext: ddp://127.0.0.1: expected the size of the matrix, such as ddp://127.0.0.1/16x16 (see animtext help play)
  [2]
  $ animtext play one.json --to ddp://127.0.0.1/8x8 --test-pattern
  ! animtext: --test-pattern shows no scene; unexpected argument "one.json" (see animtext help play)
  [2]
  $ animtext play --to ddp://127.0.0.1/8x8 --test-pattern=stripes
  ! animtext: --test-pattern is "stripes"; expected corners, order, colors, levels or all (see animtext help play)
  [2]
  $ animtext play one.json --to ddp://127.0.0.1 --zoom 4
  ! animtext: --zoom with --to needs --window (see animtext help play)
  [2]
