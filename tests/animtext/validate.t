What validate finds in a scene, and in a scene file that cannot be read.

  $ . "$TESTDIR/prelude.sh"
  $ found() { animtext validate - --json | jq -r '.findings[] | "\(.severity) \(.code) at \(.place): found \(.found), expected \(.expected)"' | sed "s/pages.0..areas.0..nodes.0./node/; s|$PWD|\$PWD|"; }

Reports:

  $ fresh
  $ animtext validate one.json
  one.json: no mistakes found
  $ { printf '%200000s' ''; cat one.json; } | animtext validate - # more than a pipe holds
  -: no mistakes found
  $ with() { sed "s/\"AnimationSpeed\": 9/$1/" one.json; }
  $ with '"Stroke": 1' | animtext validate - --strict
  -: 0 errors, 1 warning
  
  warning stroke-ignored at $.pages[0].areas[0].nodes[0].attributes.Stroke
    found 1,
    expected 0
    The sign outlines text in its own color.
  [1]
  $ with '"AnimationSpeed": 12' | animtext validate --strict -
  -: 1 error, 0 warnings
  
  error speed-range at $.pages[0].areas[0].nodes[0].attributes.AnimationSpeed
    found 12,
    expected 0 to 9
    Motions are made for speeds 0 to 9; at others they stall or jump.
  [2]
  $ with '"AnimationSpeed": 12' | animtext validate - one.json
  -: 1 error, 0 warnings
  
  error speed-range at $.pages[0].areas[0].nodes[0].attributes.AnimationSpeed
    found 12,
    expected 0 to 9
    Motions are made for speeds 0 to 9; at others they stall or jump.
  
  one.json: no mistakes found
  [2]
  $ animtext validate none - --strict <one.json
  none: 1 error, 0 warnings
  
  error scene-unreadable
    found no such file,
    expected a scene file
    No tool can play it.
  
  -: no mistakes found
  [2]
  $ with '"AnimationSpeed": 12' | animtext validate - --json
  {
      "errors": 1,
      "findings": [
          {
              "code": "speed-range",
              "expected": "0 to 9",
              "found": "12",
              "place": "$.pages[0].areas[0].nodes[0].attributes.AnimationSpeed",
              "severity": "error",
              "why": "Motions are made for speeds 0 to 9; at others they stall or jump."
          }
      ],
      "scene": "-",
      "warnings": 0
  }
  [2]
  $ with '"AnimationSpeed": 12' | animtext validate one.json - --json
  [
      {
          "errors": 0,
          "findings": [
          ],
          "scene": "one.json",
          "warnings": 0
      },
      {
          "errors": 1,
          "findings": [
              {
                  "code": "speed-range",
                  "expected": "0 to 9",
                  "found": "12",
                  "place": "$.pages[0].areas[0].nodes[0].attributes.AnimationSpeed",
                  "severity": "error",
                  "why": "Motions are made for speeds 0 to 9; at others they stall or jump."
              }
          ],
          "scene": "-",
          "warnings": 0
      }
  ]
  [2]

A node:

  $ fresh
  $ ab() { jq ".pages[0].areas[0].nodes[0] |= ($1)" ab.json | found; }
  $ ab '.hold = 20'
  $ ab '.type = "Clock"'
  error node-type at $.node.type: found "Clock", expected "LW_animationText_Plugin"
  $ ab '.size[0] = 0'
  error area-empty at $.node.size: found 0 x 20 pixels, expected 1 x 1 pixels or more
  warning character-wide at $.node.lists.TextWidth[0].text_width: found 10 pixels, expected no more than the area's width, 0
  $ ab '.pos[0] = 1'
  warning area-outside at $.node.pos: found an area of 100 x 20 pixels at 1, 0, expected a place within the display of 100 x 20 pixels
  $ ab '.hold = -1'
  warning hold-range at $.node.hold: found -1, expected 0 or more, in units of 100 ms
  $ ab '.neonEffect = 29 | .attributes.CheckNeonBg = 1'
  warning picture-missing at $.node.files.NeonGifPath: found nothing, expected the name of a picture file
  $ ab '.neonEffect = 28 | .attributes.CheckNeonBg = 1'
  $ jq '.pages[0].areas += [.pages[0].areas[0], .pages[0].areas[0]] | .pages[0].areas[2].nodes[0].pos[1] = 20 | .display.height = 40' ab.json | found
  warning areas-overlap at $.pages[0].areas[1].nodes[0].pos: found 100 x 20 pixels in common with areas[0], expected areas side by side

Byte order marks are characters, wherever a text has them:

  $ fresh
  $ for text in $'\ufeffab' $'a\ufeffb'; do animtext author -o mark.json --text "$text"; done | cut -d ' ' -f 3,4; animtext validate --strict mark.json
  3 characters
  3 characters
  mark.json: no mistakes found
  $ { printf '\xef\xbb\xbf'; cat mark.json; } >marked.json; animtext validate --strict marked.json
  marked.json: no mistakes found

Attributes:

  $ fresh
  $ ab() { jq ".pages[0].areas[0].nodes[0].attributes += {$1}" ab.json | found; }
  $ ab 'Text: ""'
  warning text-empty at $.node.attributes.Text: found nothing, expected a text
  warning list-surplus at $.node.lists.TextAttribute: found 2 rows, expected a row for each of 0 characters
  warning list-surplus at $.node.lists.TextHeight: found 2 rows, expected a row for each of 0 characters
  warning list-surplus at $.node.lists.TextWidth: found 2 rows, expected a row for each of 0 characters
  warning data-surplus at $.node.files.DescentVector: found 2 descents, expected one for each of 0 characters
  warning data-surplus at $.node.files.PathData: found 2 outlines, expected one for each of 0 characters
  $ ab 'EffectType: 2'
  error mode-unknown at $.node.attributes.EffectType: found 2, expected 0 entrance effect or 1 scrolling
  $ ab 'AnimationEffect: 99'
  error effect-unknown at $.node.attributes.AnimationEffect: found 99, expected 0 to 29
  $ ab 'EffectType: 1, ContinueStyle: 4'
  error direction-unknown at $.node.attributes.ContinueStyle: found 4, expected 0 left, 1 right, 2 up or 3 down
  $ ab 'AnimationSpeed: 10'
  error speed-range at $.node.attributes.AnimationSpeed: found 10, expected 0 to 9
  $ ab 'EffectType: 1, ContinueSpeed: -1'
  error speed-range at $.node.attributes.ContinueSpeed: found -1, expected 0 to 9
  $ ab 'PlayTimes: 0'
  warning plays-range at $.node.attributes.PlayTimes: found 0, expected 1 or more
  $ ab 'Hollow: 2'
  warning flag-value at $.node.attributes.Hollow: found 2, expected 0 or 1
  $ ab 'CheckColorGradient: 1'
  warning gradient-ignored at $.node.attributes.CheckColorGradient: found 1, expected 0, or "CheckDazzle" 1 beside it
  $ ab 'CheckColorGradient: 1, CheckDazzle: 1'
  $ ab 'CheckPictureFills: 1, CheckDazzle: 1'
  warning picture-missing at $.node.files.FillImage: found nothing, expected the name of a picture file
  $ ab 'Stroke: 1'
  warning stroke-ignored at $.node.attributes.Stroke: found 1, expected 0
  $ ab 'CheckShadowEffect: 1'
  warning shadow-ignored at $.node.attributes.CheckShadowEffect: found 1, expected 0

Lists:

  $ fresh
  $ ab() { jq ".pages[0].areas[0].nodes[0] |= (.attributes.EffectType = ${2-0} | .lists |= ($1))" ab.json | found; }
  $ ab 'del(.TextWidth[1])'
  error list-length at $.node.lists.TextWidth: found 1 row, expected a row for each of 2 characters
  $ ab '.TextWidth[2] = .TextWidth[1]'
  warning list-surplus at $.node.lists.TextWidth: found 3 rows, expected a row for each of 2 characters
  $ ab '.TextWidth[1].text_width = "-1"'
  error row-value at $.node.lists.TextWidth[1].text_width: found "-1", expected a decimal number from 0
  $ ab '.TextHeight[0].text_height = ""'
  error row-value at $.node.lists.TextHeight[0].text_height: found "", expected a decimal number from 0
  $ ab '.TextAttribute[1].bold = "yes"'
  error row-value at $.node.lists.TextAttribute[1].bold: found "yes", expected a decimal number
  $ ab '.TextAttribute[1].Color = "-1"'
  warning colors-ignored at $.node.lists.TextAttribute[1].Color: found "-1", expected "16752704" as in the first row
  $ ab '.TextAttribute[].Color = "16777216"'
  warning color-range at $.node.lists.TextAttribute[0].Color: found "16777216", expected 0 to 16777215
  $ ab '.TextAttribute[].Color = "16777215"'
  $ ab '.TextWidth[1].text_width = "100" | .TextHeight[0].text_height = "19"'
  $ ab '.TextWidth[1].text_width = "101"'
  warning character-wide at $.node.lists.TextWidth[1].text_width: found 101 pixels, expected no more than the area's width, 100
  $ ab '.TextWidth[1].text_width = "101"' 1
  $ ab '.TextHeight[1].text_height = "25"' # its ink is 16 pixels high, in the middle
  $ ab '.TextHeight[1].text_height = "26"'
  warning text-high at $.node.files.PathData: found letters that reach 0 pixels above the area and 1 below it, expected letters within the area's 20 pixels
  $ ab '.TextWidth[0].text_width = "31989"' 1
  $ ab '.TextWidth[0].text_width = "31990"' 1
  warning line-long at $.node.lists.TextWidth: found a line of 32000 pixels, expected at most 31999 pixels
  $ ab '.TextWidth[].text_width = "2000000"' 1
  error canvas-large at $.node.size: found a picture of 4000000 x 20 pixels, 305 MiB, expected at most 256 MiB
  warning line-long at $.node.lists.TextWidth: found a line of 4000000 pixels, expected at most 31999 pixels
  $ jq '.alphaBlend = false' ab.json >rgb.json && cp rgb.json ab.json
  $ ab '.TextWidth[].text_width = "2000000"' 1
  warning line-long at $.node.lists.TextWidth: found a line of 4000000 pixels, expected at most 31999 pixels

Data files:

  $ fresh
  $ ab() { jq ".pages[0].areas[0].nodes[0] |= (.files += {$1} | .attributes += {${2-}})" ab.json | found; }
  $ ab 'PathData: "none"'
  error file-missing at $.node.files.PathData: found no file $PWD/none, expected a file
  $ ab 'DescentVector: ""'
  error file-missing at $.node.files.DescentVector: found nothing, expected the name of a data file
  $ ab 'PathData: "torn"'
  error data-malformed at $.node.files.PathData: found $PWD/torn: it announces 304 bytes and has 56, expected a serialized byte array of Base64 text with a serialized list in it
  $ ab 'PathData: "one.path"'
  error data-length at $.node.files.PathData: found 1 outline, expected one for each of 2 characters
  $ ab 'PathData: "three.path"'
  warning data-surplus at $.node.files.PathData: found 3 outlines, expected one for each of 2 characters
  $ ab 'PathData: "far.path"'
  error outline-malformed at $.node.files.PathData: found outline 1: element 1 is at (2000000, 0), expected moves, lines and curves within a million pixels
  $ ab 'PathData: "gap.path"'
  warning outline-empty at $.node.files.PathData: found no outline for character 1 of the text, expected an outline for all that is seen
  $ ab 'FillImage: "one.path"' 'CheckPictureFills: 1'
  warning picture-ignored at $.node.attributes.CheckPictureFills: found 1, expected 0, or "CheckDazzle" 1 beside it
  $ jq '.pages[0].areas[0].nodes[0].lists.TextWidth[1].text_width = "0"' ab.json >gap.json && cp gap.json ab.json
  $ ab 'PathData: "gap.path"'

Scenes without texts:

  $ fresh
  $ empty() { echo '{"scene": 1, "display": {"width": 10, "height": 10}, "alphaBlend": true, "pages": ['"$1"']}' | found; }
  $ empty
  warning scene-empty at $.pages: found no nodes, expected one or more
  $ empty '{"areas": [{"nodes": []}]}'
  warning scene-empty at $.pages: found no nodes, expected one or more
  $ echo '{"scene": 1,' | found
  error scene-unreadable at 2:1: found an error: unterminated object, expected valid JSON
  $ animtext validate - </dev/null
  -: 1 error, 0 warnings
  
  error scene-unreadable at 1:1
    found an error: illegal value,
    expected valid JSON
    No tool can play it.
  [2]
  $ echo '[1, 2]' | found
  error scene-unreadable at $: found a list of 2, expected an object
  $ echo '{"scene": 2, "x": 1}' | found # of another version no more is known
  error scene-unreadable at $.scene: found 2, expected a whole number from 1 to 1

Faults of a scene file:

  $ fresh
  $ with() { sed "s/$1/$2/" ab.json | found; }
  $ with '"scene": 1,' '"scene": 1;'
  error scene-unreadable at 2:14: found an error: unterminated object, expected valid JSON
  $ with '"scene": 1,' ''
  error scene-unreadable at $.scene: found nothing, expected a whole number from 1 to 1
  $ with alphaBlend alphaBlond
  error scene-unreadable at $.alphaBlond: found an unknown key; did you mean alphaBlend?, expected one of scene, display, alphaBlend, pages
  $ with '"alphaBlend": true' '"alphaBlend": 1'
  error scene-unreadable at $.alphaBlend: found 1, expected true or false
  $ with '"alphaBlend": true' '"scene": 1'
  error scene-unreadable at $.scene: found it twice, expected each key once
  $ with '"width": 100' '"width": 0'
  error scene-unreadable at $.display.width: found 0, expected a whole number from 1 to 16384
  $ with '"width": 100, "height": 20' '"width": 16384, "height": 16384'
  error scene-unreadable at $.display: found 16384 × 16384, expected at most 67108864 pixels
  $ with '"pages": \[' '"pages": 1, "x": ['
  error scene-unreadable at $.x: found an unknown key, expected one of scene, display, alphaBlend, pages
  error scene-unreadable at $.pages: found 1, expected a list
  $ with hold hodl
  error scene-unreadable at $.node.hodl: found an unknown key; did you mean hold?, expected one of type, pos, size, hold, neonEffect, attributes, lists, files
  $ with '"size": \[100, 20\]' '"size": [100]'
  error scene-unreadable at $.node.size: found a list of 1, expected a list of two whole numbers
  $ with '"size": \[100, 20\]' '"size": [100, -1]'
  error scene-unreadable at $.node.size[1]: found -1, expected a whole number from 0 to 16384
  $ with '"size": .*' ''
  error scene-unreadable at $.node.size: found nothing, expected a list of two whole numbers
  $ with '"pos": \[0' '"pos": [0.5'
  error scene-unreadable at $.node.pos[0]: found 0.5, expected a whole number from -1000000 to 1000000
  $ with '"hold": 20' '"hold": "20"'
  error scene-unreadable at $.node.hold: found a text, expected a whole number from -2147483648 to 2147483647
  $ with '"hold": 20' '"hold": 3000000000'
  error scene-unreadable at $.node.hold: found 3000000000, expected a whole number from -2147483648 to 2147483647
  $ with '"hold": 20' '"hold": []'
  error scene-unreadable at $.node.hold: found a list of 0, expected a whole number from -2147483648 to 2147483647
  $ with '"Text": "ab"' '"Text": 5'
  error scene-unreadable at $.node.attributes.Text: found 5, expected a text
  $ with '"AnimationEffect": 4' '"AnimationEffect": "4"'
  error scene-unreadable at $.node.attributes.AnimationEffect: found a text, expected a whole number from -2147483648 to 2147483647
  $ with AnimationEffect AnimationEfect
  error scene-unreadable at $.node.attributes.AnimationEfect: found an unknown key; did you mean AnimationEffect?, expected one of AnimationEffect, AnimationSpeed, CheckColorGradient, CheckDazzle, CheckNeonBg, CheckPictureFills, CheckShadowEffect, ColorGradient, ContinueSpeed, ContinueStyle, EffectType, Hollow, PlayTimes, Stroke, StrokeColor, Text, TextShadowBox
  $ with AnimationEffect '\\u0054ext'
  error scene-unreadable at $.node.attributes.Text: found it twice, expected each key once
  $ with TextWidth TextWide
  error scene-unreadable at $.node.lists.TextWide: found an unknown key; did you mean TextWidth?, expected one of TextAttribute, TextHeight, TextWidth
  $ with '{"text_width": "10"}' 9
  error scene-unreadable at $.node.lists.TextWidth[0]: found 9 and 1 more like it, expected an object
  $ with '"text_width": "10"' '"text_width": 9'
  error scene-unreadable at $.node.lists.TextWidth[0].text_width: found 9 and 1 more like it, expected a text
  $ with text_width text_high
  error scene-unreadable at $.node.lists.TextWidth[0].text_high: found an unknown key; did you mean text_width? and 1 more like it, expected one of text_width
  $ with '"PathData": ".*"' '"PathData": "none"'
  error file-missing at $.node.files.PathData: found no file $PWD/none, expected a file
  $ with '"PathData": ".*"' '"PathData": ""'
  error file-missing at $.node.files.PathData: found nothing, expected the name of a data file

All faults at once:

  $ fresh
  $ cat >faults.json <<<'{"scene": 1, "display": {"width": 0}, "alphaBlend": null, "pages": [{"areas": [7, {"nodes": [{"size": [1, 2.5], "attributes": {"Texd": 2, "Text": 1}, "lists": {"TextWidth": [{"text_width": 5}, {"text_width": "9"}, 8, {"text_width": 6}]}}, 5]}]}, 6]}'
  $ found <faults.json
  error scene-unreadable at $.display.width: found 0, expected a whole number from 1 to 16384
  error scene-unreadable at $.display.height: found nothing, expected a whole number from 1 to 16384
  error scene-unreadable at $.alphaBlend: found null, expected true or false
  error scene-unreadable at $.pages[0].areas[0]: found 7, expected an object
  error scene-unreadable at $.pages[0].areas[1].nodes[0].size[1]: found 2.5, expected a whole number from 0 to 16384
  error scene-unreadable at $.pages[0].areas[1].nodes[0].attributes.Texd: found an unknown key; did you mean Text?, expected one of AnimationEffect, AnimationSpeed, CheckColorGradient, CheckDazzle, CheckNeonBg, CheckPictureFills, CheckShadowEffect, ColorGradient, ContinueSpeed, ContinueStyle, EffectType, Hollow, PlayTimes, Stroke, StrokeColor, Text, TextShadowBox
  error scene-unreadable at $.pages[0].areas[1].nodes[0].attributes.Text: found 1, expected a text
  error scene-unreadable at $.pages[0].areas[1].nodes[0].lists.TextWidth[0].text_width: found 5 and 1 more like it, expected a text
  error scene-unreadable at $.pages[0].areas[1].nodes[0].lists.TextWidth[2]: found 8, expected an object
  error scene-unreadable at $.pages[0].areas[1].nodes[1]: found 5, expected an object
  error scene-unreadable at $.pages[1]: found 6, expected an object
  $ echo '{"a": 1, "a": 2, "b": [0, {"c": 1, "d": 2, "c": 3}]}' | found
  error scene-unreadable at $.a: found it twice, expected each key once
  error scene-unreadable at $.b[1].c: found it twice, expected each key once

No regular file:

  $ fresh
  $ animtext trace nowhere.json
  ! animtext: nowhere.json: expected a scene file, found no such file
  [2]
  $ animtext trace .
  ! animtext: .: expected a scene file, found no regular file
  [2]
  $ mkfifo pipe; animtext trace pipe # refused without waiting for a writer
  ! animtext: pipe: expected a scene file, found no regular file
  [2]
  $ sed -i "s/node0.path/pipe/" one.json
  $ animtext trace one.json
  ! animtext: one.json: $.pages[0].areas[0].nodes[0].files.PathData: expected a file, found no regular file $PWD/pipe
  [2]
