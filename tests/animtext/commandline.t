What all commands share: help, options and their values, how they end.

  $ . "$TESTDIR/prelude.sh"

Help:

  $ fresh
  $ animtext --version | grep -cx "animtext $VERSION"
  1
  $ animtext --help | grep trace
    trace       print each tick of a play as JSON lines
  $ cmp <(animtext help trace) <(animtext trace --help)
  $ animtext trace -h --tick # wrong words after the help
  Usage: animtext trace [options] SCENE.json
  Plays a scene on virtual time and prints a JSON line for each text and each tick
  of 66 ms, from tick 0: whether the display got a new picture of the text, its
  layer, its size, the SHA-1 of its rows, and the renderer's state (0 finished, 1
  playing, 2 nothing to play). A dazzle background adds its SHA-1.
  
  Options:
    -n, --ticks N              Last tick. Default: 100.
        --calls                Print the device calls of each tick before its
                               lines.
        --plugin FILE          Plugin library. Default: $ANIMATIONTEXT_PLUGIN, or
                               the installed one.
        --seed N               Seed for the tremble effect. Default: 1.
        --allow-missing-files  Play even if files that the scene names are
                               missing.
        --force                Play even if errors in the scene leave nothing to
                               show.
    -h, --help                 Show this help.
  
  Examples:
    animtext trace sign.json --ticks 20
    animtext trace sign.json --calls >sign.trace
  $ animtext sheet --help | head -n 1
  Usage: animtext sheet -o SHEET.png [options] SCENE.json* (glob)
  $ animtext
  ! animtext: expected a command (see animtext help)
  [2]
  $ animtext rendr one.json
  ! animtext: unknown command "rendr"; did you mean render? (see animtext help)
  [2]
  $ animtext help trac
  ! animtext: unknown command "trac"; did you mean trace? (see animtext help help)
  [2]
  $ animtext effects | grep Swing
    6  Sway                   SwingEffect                         the whole row sways from side to side and leans as it goes
  $ animtext effects | wc -l # 30 and 4, two headings, one line between
  37
  $ animtext effects news ticker | tail -n 1
    0  Scroll left            ContinueEffectLeft                  the line enters at the right edge and leaves at the left; the device moves it
  $ animtext effects '#17' | wc -l
  2
  $ animtext effects --json zzz
  ! animtext: no motion matches "zzz"
  [1]
  $ animtext effects --json | grep -c summary
  34

Every command has two examples that work when copied. Only plays and the gallery's text are shortened:

  $ fresh; mkdir sign; examples() { animtext help $1 | sed '1,/^Examples:/d; s/^  //'; }
  $ (cd sign; eval "$(examples author)" >/dev/null; animtext trace sign.json --calls | tee sign.trace >device.log)
  $ for command in $(animtext --help | sed -n '/^Commands/,/^$/s/^  \([a-z]*\) .*/\1/p'); do
  >   examples $command | sed 's/192.168.1.50/127.0.0.1/; /^animtext play/s/$/ --seconds 0.1/; /gallery/s/$/ --area 8x8 --text a/' >words
  >   [ $(wc -l <words) = 2 ] || echo $command
  >   [ $command = author ] || while read -r words; do rm -rf copy; cp -r sign copy; (cd copy; eval "$words") >printed 2>&1 </dev/null || { echo "$words"; cat printed; }; done <words
  > done

Options:

  $ fresh
  $ animtext trace one.json -n 2 | wc -l
  3
  $ animtext trace one.json -n2 | wc -l
  3
  $ animtext trace --ticks=2 -- one.json | wc -l
  3
  $ animtext trace --ticks 5 one.json --ticks 2 | wc -l # the last one counts
  3
  $ animtext trace
  ! animtext: expected SCENE.json (see animtext help trace)
  [2]
  $ animtext trace one.json two.json
  ! animtext: unexpected argument "two.json" (see animtext help trace)
  [2]
  $ animtext trace one.json --tiks 3
  ! animtext: unknown option --tiks; did you mean --ticks? (see animtext help trace)
  [2]
  $ animtext trace one.json -ticks 3
  ! animtext: unknown option -ticks; did you mean --ticks? (see animtext help trace)
  [2]
  $ animtext author -o a.json --text --dazzle | cut -d ' ' -f 3 # a value may look like an option
  8
  $ animtext author -o a.json --text -text | cut -d ' ' -f 3
  5
  $ animtext trace one.json -x
  ! animtext: unknown option -x (see animtext help trace)
  [2]
  $ animtext trace one.json --ticks
  ! animtext: Missing value after '--ticks' (see animtext help trace)
  [2]
  $ animtext trace one.json --ticks many
  ! animtext: --ticks is "many"; expected a whole number from 0 to 1000000000 (see animtext help trace)
  [2]
  $ animtext trace one.json --ticks -1
  ! animtext: --ticks is "-1"; expected a whole number from 0 to 1000000000 (see animtext help trace)
  [2]
  $ animtext trace one.json --ticks 1000000001
  ! animtext: --ticks is "1000000001"; expected a whole number from 0 to 1000000000 (see animtext help trace)
  [2]
  $ animtext trace one.json --calls=yes
  ! animtext: Unexpected value after '--calls' (see animtext help trace)
  [2]
  $ animtext trace one.json --seed -1
  ! animtext: --seed is "-1"; expected a whole number from 0 to 2147483647 (see animtext help trace)
  [2]
  $ animtext trace one.json --plugin ''
  ! animtext: --plugin is empty; expected a file name (see animtext help trace)
  [2]
  $ animtext trace one.json --plugin none.so
  ! animtext: there is no plugin at none.so: build the target animationtext, or name the library with --plugin or ANIMATIONTEXT_PLUGIN
  [1]
  $ animtext trace one.json --plugin one.json
  ! animtext: one.json cannot be loaded: * (glob)
  [1]
  $ animtext sheet one.json -o a.png --columns 0
  ! animtext: --columns is "0"; expected a whole number from 1 to 50 (see animtext help sheet)
  [2]
  $ animtext sheet one.json -o a.png --columns 51
  ! animtext: --columns is "51"; expected a whole number from 1 to 50 (see animtext help sheet)
  [2]
  $ animtext play one.json --leds=nan
  ! animtext: --leds is "nan"; expected a number from 1 to 4 (see animtext help play)
  [2]

Files:

  $ fresh
  $ animtext trace - -n 0 <one.json
  {"tick":0,"ms":0,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"0631457264ff7f8d5fb1edc2c0211992a67c73e6","state":1}
  $ cp one.json ./-n; animtext trace --ticks 0 -- -n
  {"tick":0,"ms":0,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"0631457264ff7f8d5fb1edc2c0211992a67c73e6","state":1}
  $ animtext trace $'\xff.json'
  ! animtext: \xef\xbf\xbd.json: expected UTF-8 (esc)
  [2]
  $ cp one.json ß.json; LC_ALL=C animtext trace ß.json -n 0; rm ß.json
  {"tick":0,"ms":0,"node":0,"swap":true,"layer":0,"w":64,"h":32,"sha1":"0631457264ff7f8d5fb1edc2c0211992a67c73e6","state":1}
  $ animtext trace none.json
  ! animtext: none.json: expected a scene file, found no such file
  [2]
  $ animtext trace bad.json
  ! animtext: bad.json: $.pages: expected a list, found 1
  [2]
  $ animtext trace - </dev/null
  ! animtext: -:1:1: expected valid JSON, found an error: illegal value
  [2]
  $ animtext trace ''
  ! animtext: expected SCENE.json, not an empty argument (see animtext help trace)
  [2]
  $ animtext duration bad.json
  ! animtext: bad.json: $.pages: expected a list, found 1
  [2]

Standard output that cannot be written:

  $ fresh
  $ animtext --version >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext help >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext completion fish >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext effects >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext trace one.json >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext trace one.json -n 5000 >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext sheet one.json -o - >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext duration one.json --table >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ animtext validate one.json >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]

Signals:

  $ fresh
  $ ended() { env animtext trace one.json -n 1000000000 >a & until [ -s a ]; do :; done; rm a; kill -$1 $!; wait $!; }
  $ (set -m; ended INT) 2>/dev/null
  [130]
  $ (set -m; ended TERM) 2>/dev/null
  [143]

Without a display:

  $ fresh
  $ DISPLAY= QT_QPA_PLATFORM=xcb animtext author --text a -o a.json
  Wrote a.json: one character in DejaVu Sans, 29 x 57 pixels; WordForWordOutputEffect, one page of 512 x 58
  $ QT_QPA_PLATFORM=none QT_QPA_PLATFORMTHEME=none animtext duration one.json
  Planned: 0.20 s (198 ms)
  $ DISPLAY= QT_QPA_PLATFORM=xcb animtext play one.json
  ! animtext: no display: run animtext in a desktop session or with xvfb-run, or set QT_QPA_PLATFORM to vnc for VNC viewers or to linuxfb for a board's own screen (/dev/fb0)
  [1]
  $ QT_QPA_PLATFORM=offscreen animtext play bad.json
  ! animtext: bad.json: $.pages: expected a list, found 1
  [2]
  $ animtext play one.json --leds=5
  ! animtext: --leds is "5"; expected a number from 1 to 4 (see animtext help play)
  [2]

Completion:

  $ fresh
  $ . <(animtext completion bash)
  $ completes() { COMP_WORDS=("$@"); COMP_CWORD=$(($# - 1)); _animtext; echo ${COMPREPLY[@]}; }
  $ completes animtext author --dazzle r
  radial
  $ completes animtext s
  set sheet schema
  $ completes animtext trace --t
  --ticks
  $ completes animtext trace one
  one.path one.json
  $ commands=$(animtext --help | sed -n '/^Commands/,/^$/s/^  \([a-z]*\) .*/\1/p' | grep -v help)
  $ for command in $commands; do animtext help $command; done >help; grep -E '.{81}' help
  [1]
  $ options=$(grep -oE '^ .{5}--[a-z-]+' help | cut -c 7- | sort -u); [ $(wc -w <<<$options) -gt 50 ]
  $ for shell in bash zsh fish; do animtext completion $shell >$shell; done
  $ for o in $options; do [[ $(<bash) = *[\ \']$o* && $(<zsh) = *\'$o* && $(<fish) = *"-l ${o#--} "* ]] || echo $o; done
  $ animtext completion zsh | head -n 1
  #compdef animtext
  $ animtext completion tcsh
  ! animtext: unknown shell "tcsh"; expected bash, zsh or fish (see animtext help completion)
  [2]
