Writing scenes and changing them.

  $ . "$TESTDIR/prelude.sh"

What an author gets:

  $ fresh
  $ touch p.png; animtext author -o a.json --text Grüße --effect wavesEFFECT --speed 7 --hold 1.3s --plays 2 --area 300x40 --pos 50,6 --no-alpha --display 400x50 --neon 4 --dazzle conical --picture p.png --color '#010203' --bold --underline --hollow --size 32; cat a.json
  Wrote a.json: 5 characters in DejaVu Sans, 110 x 38 pixels; WavesEffect, one page of 300 x 40
  {
    "scene": 1,
    "display": {"width": 400, "height": 50},
    "alphaBlend": false,
    "pages": [
      {"areas": [
        {"nodes": [
          {
            "type": "LW_animationText_Plugin",
            "pos": [50, 6],
            "size": [300, 40],
            "hold": 13,
            "neonEffect": 4,
            "attributes": {
              "AnimationEffect": 5,
              "AnimationSpeed": 7,
              "CheckColorGradient": 1,
              "CheckDazzle": 1,
              "CheckNeonBg": 1,
              "CheckPictureFills": 1,
              "ColorGradient": 2,
              "EffectType": 0,
              "Hollow": 1,
              "PlayTimes": 2,
              "Text": "Grüße"
            },
            "lists": {
              "TextAttribute": [
                {"fontName": "DejaVu Sans", "fontSize": "24", "bold": "1", "italic": "0", "underline": "1", "Color": "66051"},
                {"fontName": "DejaVu Sans", "fontSize": "24", "bold": "1", "italic": "0", "underline": "1", "Color": "66051"},
                {"fontName": "DejaVu Sans", "fontSize": "24", "bold": "1", "italic": "0", "underline": "1", "Color": "66051"},
                {"fontName": "DejaVu Sans", "fontSize": "24", "bold": "1", "italic": "0", "underline": "1", "Color": "66051"},
                {"fontName": "DejaVu Sans", "fontSize": "24", "bold": "1", "italic": "0", "underline": "1", "Color": "66051"}
              ],
              "TextHeight": [
                {"text_height": "38"},
                {"text_height": "38"},
                {"text_height": "38"},
                {"text_height": "38"},
                {"text_height": "38"}
              ],
              "TextWidth": [
                {"text_width": "26"},
                {"text_width": "16"},
                {"text_width": "23"},
                {"text_width": "23"},
                {"text_width": "22"}
              ]
            },
            "files": {
              "DescentVector": "a.a3a608d398c80078.descent",
              "FillImage": "p.png",
              "PathData": "a.a99330859ed3a816.path"
            }
          }
        ]}
      ]}
    ]
  }
  $ animtext author -o a.json --text a --scroll ContinueEffectUp --speed 9 --dazzle --size 9; jq -c '.. | .attributes? // empty' a.json
  Wrote a.json: one character in DejaVu Sans, 6 x 12 pixels; ContinueEffectUp, an area of 12 x 60
  {"CheckDazzle":1,"ContinueSpeed":9,"ContinueStyle":2,"EffectType":1,"PlayTimes":1,"Text":"a"}
  $ animtext author -o a.json --text abc --area 60x40 # as large as fits
  Wrote a.json: 3 characters in DejaVu Sans, 59 x 39 pixels; WordForWordOutputEffect, one page of 60 x 40
  $ animtext author -o a.json --text "Ab g" --area 900x83 --fit height
  Wrote a.json: 4 characters in DejaVu Sans, 161 x 83 pixels; WordForWordOutputEffect, one page of 900 x 83
  $ held() { animtext author -o a.json --text a "$@" >/dev/null && jq '.. | .hold? // empty' a.json; }
  $ held; held --hold 4; held --hold=4.1s; held --hold 900ms; animtext set a.json 1 hold=4.1s; jq '.. | .hold? // empty' a.json; animtext set a.json 1 hold=4; jq '.. | .hold? // empty' a.json
  20
  40
  41
  9
  41
  40

Losses are reported:

  $ fresh
  $ loses() { animtext author -o a.json "$@" >/dev/null; }
  $ echo $'a\nb\U10E123' | loses --text-file -
  ! animtext: a line break became a space
  ! animtext: character 4, "􎄣" (U+10E123), leaves a gap: no installed font has it
  $ loses --text $'1\ufe0f e\u0323\u0302'
  $ loses --text $'xa\u1DF7' # an accent that no font has, on a letter
  ! animtext: character 3, "᷷" (U+1DF7), is left out: no installed font has it
  $ loses --text abc --size 100 --area 50x60
  ! animtext: a word is wider than a page and split: abc
  ! animtext: letters are cut off: 12 pixels above the area, 6 pixels below; --fit height avoids this
  ! animtext: character-wide at $.pages[0].areas[0].nodes[0].lists.TextWidth[1].text_width: found 64 pixels, expected no more than the area's width, 50. The character gets its own page and is cut off.
  $ loses --text 'a Donaudampfschifffahrt z Donaudampfer z' --area 90x40
  ! animtext: 2 words are wider than a page and split: Donaudampfschifffahrt, Donaudampfer
  ! animtext: the sign cuts off the last 9 % of this text: planned 35.20 s, needs 38.61 s; speed 6 avoids this
  $ animtext author -o a.json --text $(printf 'x%.0s' {1..2000}) --area 90x40 2>&1 >/dev/null | cut -c 1-100
  ! animtext: a word is wider than a page and split: xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...
  $ loses --text 'aaa bbb ccc' --tear-words --area 90x40
  $ loses --text xg --size 60 --area 300x40
  ! animtext: letters are cut off: 0 pixels above the area, 13 pixels below; --fit height avoids this
  $ loses --text o --size 50 --area 300x40 # its line is too high, its ink is not
  $ loses --text Gx --underline --area 300x40
  $ loses --markup --text '<font color="red">a</font>b'
  ! animtext: colors-ignored at $.pages[0].areas[0].nodes[0].lists.TextAttribute[1].Color: found "16752640", expected "16711680" as in the first row. The whole text has the color of its first character.
  $ loses --markup --text '<html>a<s>b</s><sup>c</sup><img src="x"></html>'
  ! animtext: left out because signs cannot show them: bars through or above letters, raised or lowered letters, pictures

A planned time that is too short is reported, with a way out:

  $ fresh
  $ author() { animtext author -o a.json --area 128x32 --text "Hi there" "$@" >/dev/null; }
  $ rest() { animtext duration a.json --simulate | grep -o '([0-9.]* %)'; }
  $ author --effect 0 --speed 8
  ! animtext: the sign cuts off the last * % of this text: planned *, needs *; no speed avoids this, but a hold of *s does (glob)
  $ animtext set a.json 1 hold=$(animtext set a.json 1 speed=8 2>&1 | grep -o '[0-9.]*s does' | cut -d ' ' -f 1); rest | awk -F '[( ]' '{print $2 <= 5}'
  1
  $ author --effect 10 --speed 9 --hold 0
  ! animtext: the sign cuts off the last * % of this text: planned *, needs *; speed * avoids this (glob)
  $ animtext set a.json 1 speed=$(animtext set a.json 1 speed=9 2>&1 | grep -o 'speed [0-9]' | cut -c 7); rest | awk -F '[( ]' '{print $2 <= 5}'
  1
  $ author; author --effect 6 --speed 0 --hold 0; author --scroll left --speed 9; author --scroll up

Marked text:

  $ fresh
  $ marked() { animtext author -o a.json --markup "$@" >/dev/null; grep fontName a.json; }
  $ marked --size 40 --bold --text '<i>a</i><font size="50%">b<u>&lt;</u></font><font size="24pt" face="DejaVu Serif" color="#010203">&amp;</font>'
  ! animtext: colors-ignored at $.pages[0].areas[0].nodes[0].lists.TextAttribute[3].Color: found "66051", expected "16752640" as in the first row. The whole text has the color of its first character.
                {"fontName": "DejaVu Sans", "fontSize": "30", "bold": "1", "italic": "1", "underline": "0", "Color": "16752640"},
                {"fontName": "DejaVu Sans", "fontSize": "15", "bold": "1", "italic": "0", "underline": "0", "Color": "16752640"},
                {"fontName": "DejaVu Sans", "fontSize": "15", "bold": "1", "italic": "0", "underline": "1", "Color": "16752640"},
                {"fontName": "DejaVu Serif", "fontSize": "24", "bold": "1", "italic": "0", "underline": "0", "Color": "66051"}
  $ marked --text '<html><body style="font-family:DejaVu Serif; font-size:12pt"><p>a</p><p><span style="font-size:32px; font-weight:600; text-decoration: underline; color:#ff0000">b</span></p></body></html>'
  ! animtext: a line break became a space
  ! animtext: colors-ignored at $.pages[0].areas[0].nodes[0].lists.TextAttribute[2].Color: found "16711680", expected "16752640" as in the first row. The whole text has the color of its first character.
                {"fontName": "DejaVu Serif", "fontSize": "12", "bold": "0", "italic": "0", "underline": "0", "Color": "16752640"},
                {"fontName": "DejaVu Serif", "fontSize": "12", "bold": "0", "italic": "0", "underline": "0", "Color": "16752640"},
                {"fontName": "DejaVu Serif", "fontSize": "24", "bold": "1", "italic": "0", "underline": "1", "Color": "16711680"}
  $ marked --area 300x41 --text 'a<font size="200%">b</font>' # without a size it is fitted; the proportions stay
                {"fontName": "DejaVu Sans", "fontSize": "13", "bold": "0", "italic": "0", "underline": "0", "Color": "16752640"},
                {"fontName": "DejaVu Sans", "fontSize": "26", "bold": "0", "italic": "0", "underline": "0", "Color": "16752640"}
  $ marked --area 300x41 --text '<font size="20px">b</font>'
                {"fontName": "DejaVu Sans", "fontSize": "15", "bold": "0", "italic": "0", "underline": "0", "Color": "16752640"}
  $ marked --fit both --area 30x100 --text 'm<font size="24px">m</font>'
                {"fontName": "DejaVu Sans", "fontSize": "15", "bold": "0", "italic": "0", "underline": "0", "Color": "16752640"},
                {"fontName": "DejaVu Sans", "fontSize": "8", "bold": "0", "italic": "0", "underline": "0", "Color": "16752640"}

Faults of marked text:

  $ fresh
  $ marked() { animtext author -o a.json --markup --text "$1"; }
  $ marked '<b>a</i>'
  ! animtext: the markup at 1:9: Opening and ending tag mismatch. Close every tag; write &lt; for < and &amp; for & (see animtext help author)
  [2]
  $ marked '1 < 2'
  ! animtext: the markup at 1:5: Unexpected ' '. Close every tag; write &lt; for < and &amp; for & (see animtext help author)
  [2]
  $ marked '<q>a</q>'
  ! animtext: the markup at 1:4: unknown tag <q>; expected <b>, <i>, <u> or <font> (see animtext help author)
  [2]
  $ marked '<b x="1">a</b>'
  ! animtext: the markup at 1:10: <b> takes no attributes (see animtext help author)
  [2]
  $ marked '<font sice="1">a</font>'
  ! animtext: the markup at 1:16: unknown attribute sice; <font> takes face, size and color (see animtext help author)
  [2]
  $ marked '<font size="0">a</font>'
  ! animtext: the markup at 1:16: size is "0"; expected 1 to 2000 pixels, such as 32, 32px, 24pt or 150% (see animtext help author)
  [2]
  $ marked '<font size="2001">a</font>'
  ! animtext: the markup at 1:19: size is "2001"; expected 1 to 2000 pixels, such as 32, 32px, 24pt or 150% (see animtext help author)
  [2]
  $ marked '<font color="mud">a</font>'
  ! animtext: the markup at 1:19: unknown color "mud"; expected a name or #rrggbb (see animtext help author)
  [2]
  $ marked '<font face="Monospce">a</font>'
  ! animtext: the markup at 1:23: unknown font family "Monospce"; did you mean Monospace? (see animtext help author)
  [2]

The text and its file:

  $ fresh
  $ animtext author --text a
  ! animtext: expected -o SCENE.json (see animtext help author)
  [2]
  $ animtext author -o a.json
  ! animtext: expected --text TEXT or --text-file FILE (see animtext help author)
  [2]
  $ animtext author -o a.json --text a --text-file b
  ! animtext: --text and --text-file cannot be combined (see animtext help author)
  [2]
  $ animtext author -o a.json --text-file - <<<$'\xff\xfe'
  ! animtext: -: the text is not valid UTF-8 (see animtext help author)
  [2]
  $ animtext author -o a.json --text-file /dev/zero
  ! animtext: /dev/zero: expected a text of at most 1048576 bytes, found more (see animtext help author)
  [2]
  $ animtext author -o a.json --text-file <(printf %0200001d)
  ! animtext: the text has 200001 characters; expected at most 200000
  [2]
  $ animtext author -o a.json --text-file .
  ! animtext: .: cannot be read: file to open is a directory (see animtext help author)
  [2]
  $ animtext author -o a.json --text-file <(echo ab) | cut -d ' ' -f 1-3; rm a.json
  Wrote a.json: 2
  $ animtext author -o a.json --text $'\a'
  ! animtext: character 1 of the text, U+0007, cannot be shown (see animtext help author)
  [2]
  $ animtext author -o a.txt --text a
  ! animtext: a.txt: expected a name that ends in .json
  [2]
  $ animtext author -o bad.json --text a
  ! animtext: bad.json: $.pages: expected a list, found 1
  [2]
  $ animtext author -o bad.json --text a --append
  ! animtext: bad.json: $.pages: expected a list, found 1
  [2]

Options and their ranges:

  $ fresh
  $ author() { animtext author -o a.json --text a "$@"; }
  $ author --font DejaVuSans
  ! animtext: unknown font family "DejaVuSans"; did you mean DejaVu Sans? (see animtext help author)
  [2]
  $ author --font Dejvu
  ! animtext: unknown font family "Dejvu"; did you mean DejaVu* (glob)
  [2]
  $ animtext fonts 'Dejavu Sens'
  ! animtext: no installed font family contains "Dejavu Sens"; did you mean DejaVu Sans?
  [1]
  $ author --effect WavesEfect
  ! animtext: --effect is "WavesEfect"; expected a number from 0 to 29 or a name from animtext effects; did you mean WavesEffect? (see animtext help author)
  [2]
  $ author --effect shake
  ! animtext: --effect is "shake"; expected a number from 0 to 29 or a name from animtext effects; did you mean EffectShake? (see animtext help author)
  [2]
  $ author --effect 99
  ! animtext: --effect is "99"; expected a number from 0 to 29 or a name from animtext effects (see animtext help author)
  [2]
  $ author --scroll lft
  ! animtext: --scroll is "lft"; expected left, right, up or down; did you mean left? (see animtext help author)
  [2]
  $ author --scroll left --effect 4
  ! animtext: --effect and --scroll cannot be combined (see animtext help author)
  [2]
  $ author --color '#ffa00'
  ! animtext: --color is "#ffa00"; expected a color name or #rrggbb (see animtext help author)
  [2]
  $ author --color transparent
  ! animtext: --color is "transparent"; expected a color name or #rrggbb; it must be opaque (see animtext help author)
  [2]
  $ author --color orrange
  ! animtext: --color is "orrange"; expected a color name or #rrggbb; did you mean orange? (see animtext help author)
  [2]
  $ author --size 3
  ! animtext: --size is "3"; expected a whole number from 4 to 2000 (see animtext help author)
  [2]
  $ author --speed 10
  ! animtext: --speed is "10"; expected a whole number from 0 to 9 (see animtext help author)
  [2]
  $ author --plays 0
  ! animtext: --plays is "0"; expected a whole number from 1 to 1000000 (see animtext help author)
  [2]
  $ author --hold -1
  ! animtext: --hold is "-1"; expected a time such as 2.5s, 1500ms or 40t (ticks), or a number of seconds from 0 to 100000 (see animtext help author)
  [2]
  $ author --hold 250ms
  ! animtext: --hold is "250ms"; expected whole tenths of a second, such as 2.5s (see animtext help author)
  [2]
  $ author --area 100
  ! animtext: --area is "100"; expected a size such as 512x64, each side from 1 to 16384 (see animtext help author)
  [2]
  $ author --area 100x0
  ! animtext: --area is "100x0"; expected a size such as 512x64, each side from 1 to 16384 (see animtext help author)
  [2]
  $ author --display 1x16385
  ! animtext: --display is "1x16385"; expected a size such as 512x64, each side from 1 to 16384 (see animtext help author)
  [2]
  $ author --area 16384x16384
  ! animtext: the text needs a picture of 16384 x 16384 pixels, 1024 MiB; the sign has room for 256 MiB
  [2]
  $ animtext author -o a.json --text WWWW --scroll left --size 2000 --area 1x16384
  ! animtext: the text needs a picture of 7910 x 16384 pixels, 494 MiB; the sign has room for 256 MiB
  [2]
  $ animtext author -o a.json --text aaaa --underline --size 2000 --scroll left --area 1x16384
  ! animtext: the text needs a picture of 4902 x 16384 pixels, 306 MiB; the sign has room for 256 MiB
  [2]
  $ marks() { printf a; printf "$1%.0s" $(seq $2); }
  $ animtext author -o a.json --text "$(marks '\xd2\x89' 1500)" --size 20
  ! animtext: character 1 is too large for the sign: its outline has 75053 points and reaches 12550 pixels; use a smaller --size
  [2]
  $ animtext author -o a.json --text "$(marks '\xcc\x81' 3000)" --size 2000
  ! animtext: character 1 is too large for the sign: its outline has 15071 points and reaches 1444949 pixels; use a smaller --size
  [2]
  $ author --pos 5
  ! animtext: --pos is "5"; expected two whole numbers such as 16,0, each from -99999 to 99999 (see animtext help author)
  [2]
  $ author --pos -600,0
  ! animtext: an area of 512 x 58 pixels at -600,0 is outside the display
  [2]
  $ author --pos 20000,0
  ! animtext: a.json: $.display.width: expected a whole number from 1 to 16384, found 20512
  [2]
  $ author --neon 3 --neon-picture x
  ! animtext: --neon above 28 and --neon-picture need each other (see animtext help author)
  [2]
  $ author --dazzle blue
  ! animtext: --dazzle is "blue"; expected plain, linear, radial or conical (see animtext help author)
  [2]
  $ author --picture x
  ! animtext: --picture needs --dazzle (see animtext help author)
  [2]
  $ author --dazzle --picture none
  ! animtext: --picture: none is not a file (see animtext help author)
  [2]
  $ author --padding 5 --area 90x10
  ! animtext: a padding of 5 pixels leaves no room in an area of 90 x 10
  [2]
  $ author --fit both
  ! animtext: --fit needs --area and cannot be combined with --size (see animtext help author)
  [2]
  $ author --fit both --area 9x9 --size 9
  ! animtext: --fit needs --area and cannot be combined with --size (see animtext help author)
  [2]
  $ author --fit both --area 9x9 --scroll up
  ! animtext: --fit both cannot be combined with --scroll; use --fit height (see animtext help author)
  [2]
  $ author --align left --scroll left
  ! animtext: --align cannot be combined with --scroll left or right (see animtext help author)
  [2]
  $ author --page 3
  ! animtext: there is no page 3; the next new page is 1
  [2]
  $ author --in-area 1
  ! animtext: a.json: expected a scene file, found no such file
  [2]
  $ author --area 9x9 --in-area 1
  ! animtext: there is no area 1 on page 1
  [2]
  $ author --replace 1
  ! animtext: a.json: there is no text 1; expected a scene with texts
  [2]
  $ author --replace 1 --page 1
  ! animtext: --replace cannot be combined with --page or --in-area (see animtext help author)
  [2]

Several texts:

  $ fresh
  $ author() { animtext author -o s.json "$@" >/dev/null; }
  $ author --text one --area 90x30
  $ author --text two --append --pos 0,100; jq -c .display s.json # nobody asked for another
  ! animtext: area-outside at $.pages[0].areas[1].nodes[0].pos: found an area of 512 x 58 pixels at 0, 100, expected a place within the display of 90 x 30 pixels. The part outside the display is not visible.
  {"width":90,"height":30}
  $ author --text three --page 2 --area 40x20 --pos 7,8
  ! animtext: a word is wider than a page and split: three
  ! animtext: area-outside at $.pages[0].areas[1].nodes[0].pos: found an area of 512 x 58 pixels at 0, 100, expected a place within the display of 90 x 30 pixels. The part outside the display is not visible.
  $ author --text four --page 2 --in-area 1 --display 99x130
  ! animtext: area-outside at $.pages[0].areas[1].nodes[0].pos: found an area of 512 x 58 pixels at 0, 100, expected a place within the display of 99 x 130 pixels. The part outside the display is not visible.
  $ author --text zwei --replace 2 --area 50x30 --no-alpha
  ! animtext: a word is wider than a page and split: zwei
  $ animtext list s.json; jq -c 'del(.pages)' s.json; jq -c '[.pages[] | [.areas[] | .nodes | length]]' s.json
    1  page 1 area 1  90 x 30 at 0,0  WordForWordOutputEffect, speed 5, hold 2 s  "one"
    2  page 1 area 2  50 x 30 at 0,0  WordForWordOutputEffect, speed 5, hold 2 s  "zwei"
    3  page 2 area 1  40 x 20 at 7,8  WordForWordOutputEffect, speed 5, hold 2 s  "three"
    4  page 2 area 1  40 x 20 at 7,8  WordForWordOutputEffect, speed 5, hold 2 s  "four"
  {"scene":1,"display":{"width":99,"height":130},"alphaBlend":false}
  [[1,1],[2]]
  $ animtext list s.json --json | grep path
          "path": "$.pages[0].areas[0].nodes[0]",
          "path": "$.pages[0].areas[1].nodes[0]",
          "path": "$.pages[1].areas[0].nodes[0]",
          "path": "$.pages[1].areas[0].nodes[1]",
  $ author --text gone
  ! animtext: s.json has 4 texts; use --replace PLACE to replace one, --append to add one, or --overwrite to replace all
  [2]
  $ author --text gone --overwrite --page 1
  ! animtext: --overwrite cannot be combined with --append, --page, --in-area or --replace (see animtext help author)
  [2]
  $ animtext author -o all.json --text a >/dev/null; for how in --append --overwrite; do animtext author -o all.json --text b $how >/dev/null; animtext list all.json | wc -l; done; rm all.*
  2
  1
  $ animtext set s.json 4 speed=7 hold=500ms effect=SwingEffect plays=2 pos=-1,2 color=#010203 hollow=1 CheckNeonBg=1 neonEffect=3
  $ animtext set s.json '$.pages[1].areas[0].nodes[0]' speed=1
  $ jq -c '.pages[1].areas[0].nodes[] | .attributes, .hold, .neonEffect, .pos, .lists.TextAttribute[-1].Color' s.json
  {"AnimationEffect":4,"AnimationSpeed":1,"EffectType":0,"PlayTimes":1,"Text":"three"}
  20
  0
  [7,8]
  "16752640"
  {"AnimationEffect":6,"AnimationSpeed":7,"CheckNeonBg":1,"EffectType":0,"Hollow":1,"PlayTimes":2,"Text":"four"}
  5
  3
  [-1,2]
  "66051"
  $ animtext set s.json 4 speed=10
  ! animtext: speed is "10"; expected a whole number, 0 to 9
  [2]
  $ animtext set s.json 4 effect=1
  ! animtext: FlyFromRightEffect needs another layout; use animtext author --replace
  [2]
  $ animtext set s.json 4 scroll=left
  ! animtext: ContinueEffectLeft needs another layout; use animtext author --replace
  [2]

Letters that turn do so about their own places.

  $ for where in left center; do animtext author -o turn.json --text ab --align $where >/dev/null; animtext set turn.json 1 effect=SwingEffect effect=RotationEffect && echo $where; done
  left
  ! animtext: RotationEffect needs another layout; use animtext author --replace
  [2]
  $ animtext author -o turn.json --text ab --align center --effect 11 >/dev/null; animtext set turn.json 1 effect=12; animtext set turn.json 1 effect=21; rm turn.*
  ! animtext: EffectRightToEnlarge needs another layout; use animtext author --replace
  $ animtext set s.json 5 speed=1
  ! animtext: s.json: there is no text 5; expected a number from 1 to 4, as animtext list shows, or a path like $.pages[0].areas[0].nodes[0]
  [2]
  $ animtext set s.json 0 speed=1
  ! animtext: s.json: there is no text 0; expected a number from 1 to 4, as animtext list shows, or a path like $.pages[0].areas[0].nodes[0]
  [2]
  $ animtext set s.json x speed=1
  ! animtext: s.json: there is no text x; expected a number from 1 to 4, as animtext list shows, or a path like $.pages[0].areas[0].nodes[0]
  [2]
  $ animtext set s.json 4 Text=a
  ! animtext: Text cannot be set; expected one of AnimationEffect, AnimationSpeed, CheckColorGradient, CheckDazzle, CheckNeonBg, CheckPictureFills, CheckShadowEffect, ColorGradient, ContinueSpeed, ContinueStyle, Hollow, PlayTimes, Stroke, StrokeColor, TextShadowBox, color, effect, hollow, plays, scroll, speed, hold, pos, neonEffect, Color
  [2]
  $ animtext set s.json 4 size=1,1
  ! animtext: size cannot be set; expected one of AnimationEffect, AnimationSpeed, CheckColorGradient, CheckDazzle, CheckNeonBg, CheckPictureFills, CheckShadowEffect, ColorGradient, ContinueSpeed, ContinueStyle, Hollow, PlayTimes, Stroke, StrokeColor, TextShadowBox, color, effect, hollow, plays, scroll, speed, hold, pos, neonEffect, Color
  [2]
  $ animtext set s.json 4 hold=a
  ! animtext: hold is "a"; expected whole tenths of a second up to 100000s, such as 2s or 1500ms
  [2]
  $ animtext set s.json 4 hold
  ! animtext: expected KEY=VALUE, not "hold" (see animtext help set)
  [2]
  $ animtext set s.json 4 pos=1
  ! animtext: pos is "1"; expected two whole numbers such as 16,0
  [2]
  $ animtext set s.json 4 color=mud
  ! animtext: unknown color "mud"; expected a name or #rrggbb
  [2]
  $ animtext set s.json 4 color=transparent
  ! animtext: unknown color "transparent"; expected a name or #rrggbb; it must be opaque
  [2]
  $ author --replace '' --text b
  ! animtext: --replace is empty; expected PLACE (see animtext help author)
  [2]
  $ animtext set s.json 4 effect=Swng
  ! animtext: unknown effect "Swng"; animtext effects lists them
  [2]
  $ animtext set s.json '$.pages[0].areas[0].nodes[1]' speed=1
  ! animtext: s.json: there is no text $.pages[0].areas[0].nodes[1]; expected a number from 1 to 4, as animtext list shows, or a path like $.pages[0].areas[0].nodes[0]
  [2]
  $ ls s.* | wc -l; animtext remove s.json 2; animtext remove s.json 3; animtext remove s.json 2; ls s.* | wc -l
  9
  3
  $ animtext list s.json; jq -c '[.pages[] | [.areas[] | .nodes | length]]' s.json
    1  page 1 area 1  90 x 30 at 0,0  WordForWordOutputEffect, speed 5, hold 2 s  "one"
  [[1]]
  $ author --text up --scroll up; animtext set s.json 1 scroll=down; animtext set s.json 1 speed=3
  $ animtext set s.json 1 scroll=left
  ! animtext: ContinueEffectLeft needs another layout; use animtext author --replace
  [2]
  $ jq -c '.. | .attributes? // empty' s.json; animtext validate --strict s.json
  {"ContinueSpeed":3,"ContinueStyle":3,"EffectType":1,"PlayTimes":1,"Text":"up"}
  s.json: no mistakes found
  $ animtext author -o new.json --text one --append; animtext validate --strict new.json
  Wrote new.json: 3 characters in DejaVu Sans, 89 x 57 pixels; WordForWordOutputEffect, one page of 512 x 58
  new.json: no mistakes found

A scene that is not there:

  $ fresh
  $ animtext set none.json 1 hold=1
  ! animtext: none.json: no such file
  [2]
  $ animtext remove none.json 1
  ! animtext: none.json: no such file
  [2]
  $ animtext list none.json
  ! animtext: none.json: expected a scene file, found no such file
  [2]

What must not be replaced:

  $ fresh
  $ author() { run timeout 20 animtext author --text new -o "$1" ${2-}; }
  $ animtext author --text old -o s.json >/dev/null; chmod a-w s.json; ln -s s.json link.json
  $ author s.json
  ! animtext: s.json cannot be written: it is write-protected; chmod u+w allows writing
  [1]
  $ author link.json --append
  ! animtext: link.json cannot be written: it is write-protected; chmod u+w allows writing
  [1]
  $ animtext set s.json 1 speed=7
  ! animtext: s.json cannot be written: it is write-protected; chmod u+w allows writing
  [1]
  $ animtext remove s.json 1
  ! animtext: s.json cannot be written: it is write-protected; chmod u+w allows writing
  [1]
  $ for name in a.gif a.png; do echo mine >$name; chmod a-w $name; done
  $ for name in a.gif a.png; do animtext render one.json -o $name --at 0s; done
  ! animtext: $PWD/a.gif cannot be written: it is write-protected; chmod u+w allows writing
  ! animtext: $PWD/a.png cannot be written: it is write-protected; chmod u+w allows writing
  [1]
  $ mkfifo pipe.json pipe.gif
  $ author pipe.json; animtext render one.json -o pipe.gif
  ! animtext: pipe.json cannot be written: it is not a regular file
  ! animtext: $PWD/pipe.gif cannot be written: it is not a regular file
  [1]
  $ ln -s loop.json loop.json
  $ author loop.json
  ! animtext: loop.json cannot be written: Too many levels of symbolic links
  [1]
  $ ln -s new.gif link.gif; animtext render one.json -o link.gif; ls -l link.gif new.gif | cut -c 1
  Wrote link.gif: 64 x 32, * (glob)
  l
  -

What nothing needs is listed, and removed when asked:

  $ fresh
  $ for name in .x a; do animtext author -o $name.json --text $name >/dev/null; done; animtext set .x.json 1 speed=7; animtext validate --strict .x.json
  .x.json: no mistakes found
  $ rm .x.json; animtext tidy . | cut -c 1-5
  ./.x.
  ./.x.
  $ mkdir below; echo '{' >below/b; animtext author -o a.json --text b >/dev/null
  ! animtext: kept old data files: ./below/b: it looks like JSON but is not valid
  $ animtext tidy --remove .
  ! animtext: cannot tell which data files are unused: ./below/b: it looks like JSON but is not valid
  [1]
  $ mv below/b below/$'\xff'; animtext tidy --remove .
  ! animtext: cannot tell which data files are unused: ./below: it has a file whose name is not UTF-8
  [1]
  $ rm below/?; animtext tidy --remove . | cut -c 1-12; animtext tidy .; animtext validate a.json
  removed ./.x
  removed ./.x
  removed ./a.
  a.json: no mistakes found
  $ animtext tidy none
  ! animtext: none: expected a folder that can be read
  [1]
