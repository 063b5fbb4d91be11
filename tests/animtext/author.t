Writing scenes and changing them.

  $ . "$TESTDIR/prelude.sh"

What an author gets:

  $ fresh
  $ touch p.png; animtext author -o a.json --text Grüße --effect wavesEFFECT --speed 7 --hold 1.3s --plays 2 --area 300x40 --pos 50,6 --no-alpha --display 400x50 --neon 4 --dazzle conical --picture p.png --color '#010203' --bold --underline --hollow --size 32; cat a.json
  a.json: 5 characters of DejaVu Sans, 110 x 38 pixels; WavesEffect in one page of 300 x 40
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
  a.json: one character of DejaVu Sans, 6 x 12 pixels; ContinueEffectUp in an area of 12 x 60
  {"CheckDazzle":1,"ContinueSpeed":9,"ContinueStyle":2,"EffectType":1,"PlayTimes":1,"Text":"a"}
  $ animtext author -o a.json --text abc --area 60x40 # as large as fits
  a.json: 3 characters of DejaVu Sans, 59 x 39 pixels; WordForWordOutputEffect in one page of 60 x 40
  $ animtext author -o a.json --text "Ab g" --area 900x83 --fit height
  a.json: 4 characters of DejaVu Sans, 161 x 83 pixels; WordForWordOutputEffect in one page of 900 x 83
  $ held() { animtext author -o a.json --text a "$@" >/dev/null && jq '.. | .hold? // empty' a.json; }
  $ held; held --hold 4; held --hold=4.1s; held --hold 900ms; animtext set a.json 1 hold=4.1s; jq '.. | .hold? // empty' a.json; animtext set a.json 1 hold=4; jq '.. | .hold? // empty' a.json
  20
  40
  41
  9
  41
  40

Losses are told:

  $ fresh
  $ loses() { animtext author -o a.json "$@" >/dev/null; }
  $ echo $'a\nb\U10E123' | loses --text-file -
  ! animtext: a line break became a space
  ! animtext: character 4, "􎄣" (U+10E123), leaves a gap: no installed font has it
  $ loses --text $'1\ufe0f e\u0323\u0302'
  $ loses --text $'xa\u1DF7' # an accent that no font has, on a letter
  ! animtext: character 3, "᷷" (U+1DF7), is left out: no installed font has it
  $ loses --text abc --size 100 --area 50x60
  ! animtext: a word is wider than a page and torn: abc
  ! animtext: letters are cut off: 12 pixels above the area and 6 below; --fit height makes them fit
  ! animtext: character-wide at $.pages[0].areas[0].nodes[0].lists.TextWidth[1].text_width: found 64 pixels, expected no more than the area's width, 50. The character gets its own page and is cut off.
  $ loses --text 'a Donaudampfschifffahrt z Donaudampfer z' --area 90x40
  ! animtext: 2 words are wider than a page and torn: Donaudampfschifffahrt, Donaudampfer
  ! animtext: the sign does not show all of the text: 35.20 s are planned, it needs 38.61 s, and the last 9 % are cut off; speed 6 avoids that
  $ animtext author -o a.json --text $(printf 'x%.0s' {1..2000}) --area 90x40 2>&1 >/dev/null | cut -c 1-100
  ! animtext: a word is wider than a page and torn: xxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxxx...
  $ loses --text 'aaa bbb ccc' --tear-words --area 90x40
  $ loses --text xg --size 60 --area 300x40
  ! animtext: letters are cut off: 0 pixels above the area and 13 below; --fit height makes them fit
  $ loses --text o --size 50 --area 300x40 # its line is too high, its ink is not
  $ loses --text Gx --underline --area 300x40
  $ loses --markup --text '<font color="red">a</font>b'
  ! animtext: colors-ignored at $.pages[0].areas[0].nodes[0].lists.TextAttribute[1].Color: found "16752640", expected "16711680" as in the first row. The whole text has the color of its first character.
  $ loses --markup --text '<html>a<s>b</s><sup>c</sup><img src="x"></html>'
  ! animtext: left out, for no sign shows it: bars through or above letters, raised or lowered letters, pictures

A planned time that ends too early is told, with what would not:

  $ fresh
  $ author() { animtext author -o a.json --area 128x32 --text "Hi there" "$@" >/dev/null; }
  $ rest() { animtext duration a.json --simulate | grep -o '([0-9.]* %)'; }
  $ author --effect 0 --speed 8
  ! animtext: the sign does not show all of the text: * are planned, it needs *, and the last * % are cut off; no speed avoids that, a hold of *s does (glob)
  $ animtext set a.json 1 hold=$(animtext set a.json 1 speed=8 2>&1 | grep -o '[0-9.]*s does' | cut -d ' ' -f 1); rest | awk -F '[( ]' '{print $2 <= 5}'
  1
  $ author --effect 10 --speed 9 --hold 0
  ! animtext: the sign does not show all of the text: * % are cut off; speed * avoids that (glob)
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
  ! animtext: the markup at 1:9: Opening and ending tag mismatch. Tags need their ends; &lt; stands for <, &amp; for & (see animtext help author)
  [2]
  $ marked '1 < 2'
  ! animtext: the markup at 1:5: Unexpected ' '. Tags need their ends; &lt; stands for <, &amp; for & (see animtext help author)
  [2]
  $ marked '<q>a</q>'
  ! animtext: the markup at 1:4: there is no tag <q>; expected <b>, <i>, <u> or <font> (see animtext help author)
  [2]
  $ marked '<b x="1">a</b>'
  ! animtext: the markup at 1:10: <b> takes no attributes (see animtext help author)
  [2]
  $ marked '<font sice="1">a</font>'
  ! animtext: the markup at 1:16: <font> takes face, size and color, not sice (see animtext help author)
  [2]
  $ marked '<font size="0">a</font>'
  ! animtext: the markup at 1:16: size takes 32, 32px, 24pt or 150%, 1 to 2000 pixels, not "0" (see animtext help author)
  [2]
  $ marked '<font size="2001">a</font>'
  ! animtext: the markup at 1:19: size takes 32, 32px, 24pt or 150%, 1 to 2000 pixels, not "2001" (see animtext help author)
  [2]
  $ marked '<font color="mud">a</font>'
  ! animtext: the markup at 1:19: there is no color "mud"; expected a name or #rrggbb (see animtext help author)
  [2]
  $ marked '<font face="Monospce">a</font>'
  ! animtext: the markup at 1:23: there is no font family "Monospce"; did you mean Monospace? (see animtext help author)
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
  ! animtext: --text and --text-file exclude each other (see animtext help author)
  [2]
  $ animtext author -o a.json --text-file - <<<$'\xff\xfe'
  ! animtext: -: expected UTF-8; the text has other bytes (see animtext help author)
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
  $ animtext author -o a.json --text-file <(echo ab) | cut -d ' ' -f 1,2; rm a.json
  a.json: 2
  $ animtext author -o a.json --text $'\xff'
  ! animtext: --text takes UTF-8; its value has other bytes (see animtext help author)
  [2]
  $ animtext author -o a.json --text $'\a'
  ! animtext: character 1 of the text, U+0007, cannot be shown (see animtext help author)
  [2]
  $ animtext author -o $'\xff.json' --text a
  ! animtext: \xff.json: expected UTF-8, for the scene names its data files after itself (see animtext help author) (esc)
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
  ! animtext: there is no font family "DejaVuSans"; did you mean DejaVu Sans? (see animtext help author)
  [2]
  $ author --font Dejvu
  ! animtext: there is no font family "Dejvu"; did you mean DejaVu* (glob)
  [2]
  $ animtext fonts 'Dejavu Sens'
  ! animtext: there is no font family "Dejavu Sens"; did you mean DejaVu Sans?
  [1]
  $ author --effect WavesEfect
  ! animtext: --effect takes a number from 0 to 29 or a name out of animtext effects, not "WavesEfect"; did you mean WavesEffect? (see animtext help author)
  [2]
  $ author --effect shake
  ! animtext: --effect takes a number from 0 to 29 or a name out of animtext effects, not "shake"; did you mean EffectShake? (see animtext help author)
  [2]
  $ author --effect 99
  ! animtext: --effect takes a number from 0 to 29 or a name out of animtext effects, not "99" (see animtext help author)
  [2]
  $ author --scroll lft
  ! animtext: --scroll takes left, right, up or down, not "lft"; did you mean left? (see animtext help author)
  [2]
  $ author --scroll left --effect 4
  ! animtext: --effect and --scroll exclude each other (see animtext help author)
  [2]
  $ author --color '#ffa00'
  ! animtext: --color takes the name of a color or #rrggbb, not "#ffa00" (see animtext help author)
  [2]
  $ author --color transparent
  ! animtext: --color takes the name of a color or #rrggbb, not "transparent"; it must be opaque (see animtext help author)
  [2]
  $ author --color orrange
  ! animtext: --color takes the name of a color or #rrggbb, not "orrange"; did you mean orange? (see animtext help author)
  [2]
  $ author --size 3
  ! animtext: --size takes a whole number from 4 to 2000, not "3" (see animtext help author)
  [2]
  $ author --speed 10
  ! animtext: --speed takes a whole number from 0 to 9, not "10" (see animtext help author)
  [2]
  $ author --plays 0
  ! animtext: --plays takes a whole number from 1 to 1000000, not "0" (see animtext help author)
  [2]
  $ author --hold -1
  ! animtext: --hold takes a time such as 2.5s, 1500ms or 40t (ticks), or a number of seconds from 0 to 100000, not "-1" (see animtext help author)
  [2]
  $ author --hold 250ms
  ! animtext: --hold takes whole tenths of a second, not "250ms" (see animtext help author)
  [2]
  $ author --area 100
  ! animtext: --area takes a size like 512x64, its sides from 1 to 16384, not "100" (see animtext help author)
  [2]
  $ author --area 100x0
  ! animtext: --area takes a size like 512x64, its sides from 1 to 16384, not "100x0" (see animtext help author)
  [2]
  $ author --display 1x16385
  ! animtext: --display takes a size like 512x64, its sides from 1 to 16384, not "1x16385" (see animtext help author)
  [2]
  $ author --area 16384x16384
  ! animtext: the sign would need a picture of 16384 x 16384 pixels, 1024 MiB; it has room for 256 MiB
  [2]
  $ animtext author -o a.json --text WWWW --scroll left --size 2000 --area 1x16384
  ! animtext: the sign would need a picture of 7910 x 16384 pixels, 494 MiB; it has room for 256 MiB
  [2]
  $ animtext author -o a.json --text aaaa --underline --size 2000 --scroll left --area 1x16384
  ! animtext: the sign would need a picture of 4902 x 16384 pixels, 306 MiB; it has room for 256 MiB
  [2]
  $ marks() { printf a; printf "$1%.0s" $(seq $2); }
  $ animtext author -o a.json --text "$(marks '\xd2\x89' 1500)" --size 20
  ! animtext: character 1 is too large for the sign: its outline has 75053 points and reaches 12550 pixels; a smaller --size helps
  [2]
  $ animtext author -o a.json --text "$(marks '\xcc\x81' 3000)" --size 2000
  ! animtext: character 1 is too large for the sign: its outline has 15071 points and reaches 1444949 pixels; a smaller --size helps
  [2]
  $ author --pos 5
  ! animtext: --pos takes two whole numbers like 16,0, each from -99999 to 99999, not "5" (see animtext help author)
  [2]
  $ author --pos -600,0
  ! animtext: nothing of an area of 512 x 58 pixels at -600,0 is on a display
  [2]
  $ author --pos 20000,0
  ! animtext: a.json: $.display.width: expected a whole number from 1 to 16384, found 20512
  [2]
  $ author --neon 3 --neon-picture x
  ! animtext: --neon above 28 and --neon-picture go together (see animtext help author)
  [2]
  $ author --dazzle blue
  ! animtext: --dazzle takes plain, linear, radial or conical, not "blue" (see animtext help author)
  [2]
  $ author --picture x
  ! animtext: --picture is for the dazzle background; add --dazzle (see animtext help author)
  [2]
  $ author --dazzle --picture none
  ! animtext: --picture: there is no file none (see animtext help author)
  [2]
  $ author --padding 5 --area 90x10
  ! animtext: a padding of 5 pixels leaves nothing of an area of 90 x 10
  [2]
  $ author --fit both
  ! animtext: --fit needs --area and excludes --size (see animtext help author)
  [2]
  $ author --fit both --area 9x9 --size 9
  ! animtext: --fit needs --area and excludes --size (see animtext help author)
  [2]
  $ author --fit both --area 9x9 --scroll up
  ! animtext: --fit both is for texts that stand; --scroll moves them (see animtext help author)
  [2]
  $ author --align left --scroll left
  ! animtext: --align is for texts that stand; this one scrolls sideways (see animtext help author)
  [2]
  $ author --page 3
  ! animtext: there is no page 3; expected 1 to 1, the last a new one
  [2]
  $ author --in-area 1
  ! animtext: a.json: expected a scene file, found no such file
  [2]
  $ author --area 9x9 --in-area 1
  ! animtext: there is no area 1 on page 1, which has 0
  [2]
  $ author --replace 1
  ! animtext: a.json: there is no text 1; expected a scene with texts
  [2]
  $ author --replace 1 --page 1
  ! animtext: --replace excludes --page and --in-area (see animtext help author)
  [2]

Several texts:

  $ fresh
  $ author() { animtext author -o s.json "$@" >/dev/null; }
  $ author --text one --area 90x30
  $ author --text two --append --pos 0,100; jq -c .display s.json # nobody asked for another
  ! animtext: area-outside at $.pages[0].areas[1].nodes[0].pos: found an area of 512 x 58 pixels at 0, 100, expected a place within the display of 90 x 30 pixels. The part outside the display is not visible.
  {"width":90,"height":30}
  $ author --text three --page 2 --area 40x20 --pos 7,8
  ! animtext: a word is wider than a page and torn: three
  ! animtext: area-outside at $.pages[0].areas[1].nodes[0].pos: found an area of 512 x 58 pixels at 0, 100, expected a place within the display of 90 x 30 pixels. The part outside the display is not visible.
  $ author --text four --page 2 --in-area 1 --display 99x130
  ! animtext: area-outside at $.pages[0].areas[1].nodes[0].pos: found an area of 512 x 58 pixels at 0, 100, expected a place within the display of 99 x 130 pixels. The part outside the display is not visible.
  $ author --text zwei --replace 2 --area 50x30 --no-alpha
  ! animtext: a word is wider than a page and torn: zwei
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
  ! animtext: s.json has 4 texts: --replace PLACE changes one of them, --append adds one, --overwrite leaves only the new one
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
  ! animtext: speed takes a whole number, 0 to 9, not "10"
  [2]
  $ animtext set s.json 4 effect=1
  ! animtext: FlyFromRightEffect sets the text in another way; lay it out anew with animtext author --replace
  [2]
  $ animtext set s.json 4 scroll=left
  ! animtext: ContinueEffectLeft sets the text in another way; lay it out anew with animtext author --replace
  [2]

Letters that turn do so about their own places.

  $ for where in left center; do animtext author -o turn.json --text ab --align $where >/dev/null; animtext set turn.json 1 effect=SwingEffect effect=RotationEffect && echo $where; done
  left
  ! animtext: RotationEffect sets the text in another way; lay it out anew with animtext author --replace
  [2]
  $ animtext author -o turn.json --text ab --align center --effect 11 >/dev/null; animtext set turn.json 1 effect=12; animtext set turn.json 1 effect=21; rm turn.*
  ! animtext: EffectRightToEnlarge sets the text in another way; lay it out anew with animtext author --replace
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
  ! animtext: hold takes a time in whole tenths of a second such as 2s or 1500ms, up to 100000s, not "a"
  [2]
  $ animtext set s.json 4 hold
  ! animtext: expected KEY=VALUE, not "hold" (see animtext help set)
  [2]
  $ animtext set s.json 4 pos=1
  ! animtext: pos takes two whole numbers like 16,0, not "1"
  [2]
  $ animtext set s.json 4 color=mud
  ! animtext: there is no color "mud"; expected a name or #rrggbb
  [2]
  $ animtext set s.json 4 color=transparent
  ! animtext: there is no color "transparent"; expected a name or #rrggbb; it must be opaque
  [2]
  $ author --replace '' --text b
  ! animtext: --replace takes PLACE, not an empty word (see animtext help author)
  [2]
  $ animtext set s.json 4 effect=Swng
  ! animtext: there is no effect "Swng"
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
  ! animtext: ContinueEffectLeft sets the text in another way; lay it out anew with animtext author --replace
  [2]
  $ jq -c '.. | .attributes? // empty' s.json; animtext validate --strict s.json
  {"ContinueSpeed":3,"ContinueStyle":3,"EffectType":1,"PlayTimes":1,"Text":"up"}
  s.json: no mistakes found
  $ animtext author -o new.json --text one --append; animtext validate --strict new.json
  new.json: 3 characters of DejaVu Sans, 89 x 57 pixels; WordForWordOutputEffect in one page of 512 x 58
  new.json: no mistakes found

A scene that is not there:

  $ fresh
  $ animtext set none.json 1 hold=1
  ! animtext: none.json: there is no such file
  [2]
  $ animtext remove none.json 1
  ! animtext: none.json: there is no such file
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
  ! animtext: old data files are kept: ./below/b: it looks like JSON and cannot be read as such
  $ animtext tidy --remove .
  ! animtext: nothing is certain to be unneeded: ./below/b: it looks like JSON and cannot be read as such
  [1]
  $ rm below/b; animtext tidy --remove . | cut -c 1-12; animtext tidy .; animtext validate a.json
  removed ./.x
  removed ./.x
  removed ./a.
  a.json: no mistakes found
  $ animtext tidy none
  ! animtext: none: expected a folder that can be read
  [1]
