Commands that play scenes.

  $ . "$TESTDIR/prelude.sh"

Trace:

  $ fresh
  $ animtext trace one.json --ticks 3
  {"tick":0,"ms":0,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"0631457264ff7f8d5fb1edc2c0211992a67c73e6","state":1}
  {"tick":1,"ms":66,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"494adc247527fa1ef4d0a868173b8cd205e180dd","state":1}
  {"tick":2,"ms":132,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"c767e11a782783f2a46fb4b9f12448ec6ca66320","state":1}
  {"tick":3,"ms":198,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"25dde442cef4ed6df37532fe123a8d29afb1ec35","state":0}
  $ animtext trace one.json --ticks 1 --calls | cut -d'"' -f 4 | xargs
  CreatePictureSession AddPictureSession GetPicImageLayerPtr SwapPicImageLayerPtr SetPicLayerBlend ms SwapPicImageLayerPtr ms
  $ jq '.pages[0].areas[0].nodes |= [.[0], (.[0] | .attributes.Text = " ")]' one.json >blank.json
  $ animtext trace blank.json --ticks 0; head -c 8192 /dev/zero | sha1sum # no letter shows yet
  {"tick":0,"ms":0,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"0631457264ff7f8d5fb1edc2c0211992a67c73e6","state":1}
  {"tick":0,"ms":0,"node":1,"swap":false,"layer":0,"w":0,"h":0,"sha1":"","state":2}
  0631457264ff7f8d5fb1edc2c0211992a67c73e6  -
  $ jq '.pages[0].areas[0].nodes[0].attributes.CheckDazzle = 1' one.json >dazzle.json
  $ animtext trace dazzle.json --ticks 2 | grep -o '"state".*'
  "state":1,"background":"78386c7558ced9ecb5442fde390b422e90c5ea8b"}
  "state":1,"background":"03ecd8afba3ba0ce6c5cb3e9ceda69b2555923a9"}
  "state":1,"background":"c852dbefa71011de8915baf2f31046c990d64563"}

A trace is the same again:

  $ fresh
  $ odd() { jq --argjson a "{$1}" '.alphaBlend = ('$2' == 0) | .pages[0].areas[0].nodes[0] |= (.attributes += $a + {CheckNeonBg: 1, CheckDazzle: 1, PlayTimes: 2} | del(.lists.TextWidth[3:]) | del(.files.DescentVector))' two.json; }
  $ same() { odd "$@" >t.json; animtext trace t.json --ticks 60 --calls >a 2>/dev/null; animtext trace t.json --ticks 60 --calls 2>/dev/null | cmp - a && [ $(wc -l <a) -gt 61 ]; }
  $ for effect in {0..30}; do same "\"AnimationEffect\": $effect" $((effect % 2)) || echo effect $effect; done # the last is unknown
  $ for style in 0 2; do same "\"EffectType\": 1, \"ContinueStyle\": $style" 0 || echo style $style; done; same '"EffectType": 7' 0

Duration:

  $ fresh
  $ animtext duration two.json --simulate
  Planned: 4.16 s (4164 ms)
  Actual:  4.55 s (60 ticks of animation, 10 ticks of holds)
  The sign cuts off the last 0.39 s (9.4 %).
  $ animtext duration held.json --json --simulate # a picture every tick, and a hold of 300 ms
  {"duration":498,"simulated":{"animationTicks":4,"holdTicks":5,"finishedMs":528}}
  $ animtext duration held.json --table --json | sed -n '27p;$='
  {"effect":6,"name":"SwingEffect","speed":5,"duration":24060,"simulated":{"animationTicks":361,"holdTicks":5,"finishedMs":24090}}
  120

Temporary files:

  $ fresh
  $ TMPDIR=/proc animtext gallery -o g
  ! animtext: cannot create a temporary folder in /proc: *; set TMPDIR to another folder (glob)
  [1]
  $ TMPDIR=/none animtext gallery -o g
  ! animtext: cannot create a temporary folder in /none: No such file or directory; set TMPDIR to another folder
  [1]
  $ unset XDG_RUNTIME_DIR; mkdir t; early() { TMPDIR=$PWD/t env animtext gallery -o g >/dev/null 2>&1 & until [ "$(ls t/*/*)" ] 2>/dev/null; do :; done; kill -$1 $!; wait $!; echo $? $(ls t); }
  $ (set -m; early INT; early TERM) 2>/dev/null
  130
  143

Render:

  $ fresh
  $ animtext render one.json -o a/ --seconds 0.5 && ls a | wc -l
  Wrote a/: 64 x 32, * (glob)
  8
  $ animtext render one.json -o a/ --seconds 0.5s && ls a | wc -l
  Wrote a/: 64 x 32, * (glob)
  8
  $ animtext render one.json -o a/ --seconds 528ms && ls a | wc -l
  Wrote a/: 64 x 32, * (glob)
  8
  $ animtext render one.json -o a/ --seconds 0.01 && ls a | wc -l
  Wrote a/: 64 x 32, * (glob)
  1
  $ animtext render one.json -o a/ --frames 1-2 && ls a
  Wrote a/: 64 x 32, * (glob)
  frame-0001.png
  frame-0002.png
  $ animtext render one.json
  ! animtext: expected -o OUT (see animtext help render)
  [2]
  $ animtext render one.json -o a.avi
  ! animtext: a.avi: expected a name that ends with .gif, .apng, .webp, .mp4, .webm, .png, or with / for a folder of PNGs (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --scale 17
  ! animtext: --scale is "17"; expected a whole number from 1 to 16 (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --seconds -1
  ! animtext: --seconds is "-1"; expected a time such as 2.5s, 1500ms or 40t (ticks), or a number of seconds from 0.001 to 86400 (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --seconds 2d
  ! animtext: --seconds is "2d"; expected a time such as 2.5s, 1500ms or 40t (ticks), or a number of seconds from 0.001 to 86400 (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --seconds 86401
  ! animtext: --seconds is "86401"; expected a time such as 2.5s, 1500ms or 40t (ticks), or a number of seconds from 0.001 to 86400 (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --seconds 0
  ! animtext: --seconds is "0"; expected a time such as 2.5s, 1500ms or 40t (ticks), or a number of seconds from 0.001 to 86400 (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --frames 2-99
  ! animtext: the film has no picture 99; it has 0 to 3 and ends after 0.264 s (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --frames 2-1
  ! animtext: --frames is "2-1"; expected a number such as 5, or a range such as 0-99 (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --frames 3-
  ! animtext: --frames is "3-"; expected a number such as 5, or a range such as 0-99 (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --at 4t
  ! animtext: the film has no picture 4; it has 0 to 3 and ends after 0.264 s (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --at 1t --frames 1
  ! animtext: --at and --frames cannot be combined (see animtext help render)
  [2]
  $ animtext render one.json -o a.png
  ! animtext: a PNG is one picture; choose it with --at or --frames (see animtext help render)
  [2]
  $ animtext render one.json -o a.png --frames 0-1
  ! animtext: a PNG is one picture; choose it with --at or --frames (see animtext help render)
  [2]
  $ animtext render one.json -o a.mp4 --transparent
  ! animtext: .mp4 films cannot be transparent (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --lossless
  ! animtext: .gif films lose colors; use .apng, .webp or .mp4 (see animtext help render)
  [2]
  $ animtext render one.json -o a.webm --lossless --transparent
  ! animtext: transparent .webm films lose colors; use .apng or .webp (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --transparent --background red
  ! animtext: --transparent and --background cannot be combined (see animtext help render)
  [2]
  $ animtext render one.json -o a.gif --background mud
  ! animtext: --background is "mud"; expected a color name or #rrggbb (see animtext help render)
  [2]
  $ animtext render one.json ./one.json -o a
  ! animtext: one.json and ./one.json would both become one.gif; render them into two folders (see animtext help render)
  [2]
  $ animtext render one.json -o none/a.gif
  ! animtext: $PWD/none/a.gif cannot be written: No such file or directory
  [1]
  $ animtext render one.json -o none/a/
  ! animtext: cannot create a folder in $PWD/none: No such file or directory
  [1]
  $ animtext render one.json -o two.json/
  ! animtext: $PWD/two.json is a file; choose another name for the folder
  [1]
  $ mkdir here && (cd here && animtext render ../two.json -o . --seconds 1); ls here
  ! animtext: $PWD is the current folder, which cannot be replaced; choose another one
  $ animtext render bad.json -o a.gif
  ! animtext: bad.json: $.pages: expected a list, found 1
  [2]
  $ animtext render endless.json -o a.gif
  ! animtext: endless.json: does not end within an hour; choose a part of it, for instance --seconds 60
  [2]

Sheet:

  $ fresh
  $ animtext sheet - one.json -o - <two.json | head -c 4 | od -c
  0000000 211   P   N   G
  0000004
  $ animtext sheet one.json -o a.png && head -c 4 a.png | od -c
  0000000 211   P   N   G
  0000004
  $ animtext sheet one.json bad.json -o a.png
  ! animtext: bad.json: $.pages: expected a list, found 1
  [2]
  $ animtext sheet one.json -o none/a.png
  ! animtext: none/a.png cannot be written: No such file or directory
  [1]
  $ animtext sheet one.json -o a.gif
  ! animtext: a.gif: expected a name that ends with .png (see animtext help sheet)
  [2]

Data that cannot be read:

  $ fresh
  $ cp torn node0.path
  $ animtext trace one.json -n 0
  ! animtext: one.json: data-malformed at $.pages[0].areas[0].nodes[0].files.PathData: found * (glob)
  ! animtext: one.json: not played because of these errors; use --force to play it anyway
  [2]
  $ animtext trace one.json -n 0 --force 2>/dev/null
  {"tick":0,*} (glob)
  $ sed -i s/PathData/FillImage/ one.json
  $ animtext trace one.json -n 0
  ! animtext: one.json: file-missing at $.pages[0].areas[0].nodes[0].files.PathData: found nothing, expected the name of a data file* (glob)
  ! animtext: one.json: not played because of these errors; use --force to play it anyway
  [2]

A scene that shows nothing is refused with validate's messages, and played with --force:

  $ fresh
  $ sed -i 's/"AnimationEffect": 4/"AnimationEffect": 99/' one.json
  $ animtext render one.json -o a.png --at 0t
  ! animtext: one.json: effect-unknown at $.pages[0].areas[0].nodes[0].attributes.AnimationEffect: found 99, expected 0 to 29. Empty frames are shown, and the text never ends.
  ! animtext: one.json: not played because of these errors; use --force to play it anyway
  [2]
  $ animtext duration one.json
  ! animtext: one.json: effect-unknown at $.pages[0].areas[0].nodes[0].attributes.AnimationEffect: found 99, expected 0 to 29. Empty frames are shown, and the text never ends.
  ! animtext: one.json: not played because of these errors; use --force to play it anyway
  [2]
  $ animtext sheet one.json -o a.png
  ! animtext: one.json: effect-unknown at $.pages[0].areas[0].nodes[0].attributes.AnimationEffect: found 99, expected 0 to 29. Empty frames are shown, and the text never ends.
  ! animtext: one.json: not played because of these errors; use --force to play it anyway
  [2]
  $ animtext render one.json -o a.png --at 0t --seconds 1 --force; ls a.png
  Wrote a.png: 64 x 32, * (glob)
  ! animtext: one.json: effect-unknown at $.pages[0].areas[0].nodes[0].attributes.AnimationEffect: found 99, expected 0 to 29. Empty frames are shown, and the text never ends.
  a.png

A folder of frames is replaced, no other:

  $ fresh
  $ animtext render two.json -o same/; ls same | wc -l
  Wrote same/: 64 x 32, * (glob)
  75
  $ animtext render one.json -o same/; ls -A same; ls -Ad .*
  Wrote same/: 64 x 32, * (glob)
  frame-0000.png
  frame-0001.png
  frame-0002.png
  frame-0003.png
  ls: cannot access '.*': No such file or directory
  [2]
  $ touch same/notes.txt
  $ animtext render two.json -o same/
  ! animtext: $PWD/same has other contents, such as notes.txt; choose a new or empty folder
  [1]
  $ ls same
  frame-0000.png
  frame-0001.png
  frame-0002.png
  frame-0003.png
  notes.txt
  $ mv same/notes.txt same/frame-0004.png
  $ animtext render two.json -o same/
  ! animtext: $PWD/same has other contents, such as frame-0004.png; choose a new or empty folder
  [1]
  $ rm same/frame-0004.png; mkdir same/empty
  $ animtext render two.json -o same/
  ! animtext: $PWD/same has other contents, such as empty; choose a new or empty folder
  [1]
  $ rmdir same/empty; chmod a-w same/frame-0002.png; ln -s same link
  $ animtext render two.json -o link/
  ! animtext: $PWD/same/frame-0002.png cannot be written: it is write-protected; chmod u+w allows writing
  [1]
  $ chmod a-w same
  $ animtext render two.json -o same/
  ! animtext: $PWD/same cannot be written: it is write-protected; chmod u+w allows writing
  [1]
  $ chmod -R u+w same; animtext render two.json -o link/; ls same | wc -l; ls -ld link | cut -c 1
  Wrote link/: 64 x 32, * (glob)
  75
  l

A gallery is replaced, no other folder; the same text makes the same files, whatever the memory held before:

  $ fresh
  $ gallery() { animtext gallery -o g --area 9x8 --size 8 --text $1 >/dev/null; }
  $ mkdir -p g/photos; echo mine >g/gallery.js; echo mine >g/photos/1
  $ gallery a
  ! animtext: $PWD/g has other contents, such as gallery.js; choose a new or empty folder
  [1]
  $ rm -r g; MALLOC_PERTURB_=1 gallery a; cp -r g old; MALLOC_PERTURB_=2 gallery a; diff -rq g old; rm -r old
  $ gallery b; grep -o 'text a\|text .b' g/motions.js; ls -A | grep '^[.]'
  text 'b
  [1]
  $ cp -r g old; echo '/* mine */' >>g/gallery.css
  $ gallery c
  ! animtext: $PWD/g has other contents, such as gallery.css; choose a new or empty folder
  [1]
  $ rm -r g; mv old g; echo mine >x; forge() { jq --arg sum $(sha256sum <$1 | cut -c 1-64) ".files[\"$2\"]=\$sum" g/manifest.json >m; mv m g/manifest.json; }
  $ forge x ../x; gallery c; cat x
  mine
  $ mkdir g/mine; mv x g/mine/x; forge g/mine/x mine/x
  $ gallery d
  ! animtext: $PWD/g has other contents, such as mine; choose a new or empty folder
  [1]
  $ mv g/mine/x x; rmdir g/mine; ln -s ../x g/x.js; forge x x.js
  $ gallery d
  ! animtext: $PWD/g has other contents, such as x.js; choose a new or empty folder
  [1]

A still is the picture of the film at that time:

  $ fresh
  $ animtext render one.json -o all/; cd all; ls; cksum * | cut -c 1-8 | uniq | wc -l; cd ..
  Wrote all/: 64 x 32, * (glob)
  frame-0000.png
  frame-0001.png
  frame-0002.png
  frame-0003.png
  4
  $ still() { animtext render one.json -o still.png "$@" >/dev/null && cmp still.png all/frame-0002.png; rm still.png; }
  $ still --at 0.132s; still --at 0.19; still --at 2t; still --frames 2

Several scenes:

  $ fresh
  $ many() { animtext render one.json two.json -o many --as apng --seconds 1 --jobs 2 --scale 2 --resume | sort; ls -A many; }
  $ many; file many/one.apng
  Wrote many/one.apng: 128 x 64, * (glob)
  Wrote many/two.apng: 128 x 64, * (glob)
  one.apng
  two.apng
  many/one.apng: PNG image data, 128 x 64, 8-bit/color RGB, non-interlaced
  $ echo done >many/one.apng; cp many/one.apng many/two.apng; touch -d '+9 seconds' node0.descent
  $ many; cat many/two.apng; head -c 4 many/one.apng | od -c # its data changed, so one.apng is rendered again
  Wrote many/one.apng: 128 x 64, * (glob)
  one.apng
  two.apng
  done
  0000000 211   P   N   G
  0000004
  $ animtext render bad.json one.json -o stills --as png --at 1t
  Wrote stills/one.png: 64 x 32, * (glob)
  ! animtext: bad.json: $.pages: expected a list, found 1
  ! animtext: 1 of 2 scenes were not rendered
  ! changed a file
  [1]
