Recordings, of a desk in place of a device, and where they differ.

  $ . "$TESTDIR/prelude.sh"
  $ export ASAN_OPTIONS=verify_asan_link_order=0
  $ record() { ANIMTEXT_RECORD=$1 run env LD_PRELOAD="${@:2} $LIBRARIES/librecord.so" animtext trace s.json -n 60 --calls; }
  $ fresh_sign() { fresh; animtext author --text "Platform 4" --area 96x24 --effect SwingEffect --speed 5 --hold 300ms -o s.json; }

What agrees:

  $ fresh_sign
  Wrote s.json: 10 characters in DejaVu Sans, 103 x 24 pixels; SwingEffect, 2 pages of 96 x 24
  $ record log >trace
  $ animtext compare log s.json --no-times
  log and the desktop agree: 65 calls, 62 pictures
  $ animtext compare trace s.json
  trace and the desktop agree: 65 calls, 61 pictures
  $ animtext trace s.json -n 80 --calls >longer; for b in trace longer log; do animtext compare log $b --no-times; done
  log and trace agree: 65 calls, 61 pictures
  log and longer agree: 65 calls, 62 pictures
  log and log agree: 65 calls, 62 pictures
  $ animtext compare trace trace
  trace and trace agree: 65 calls, 61 pictures
  $ animtext trace s.json -n 60 >pictures; animtext compare pictures pictures
  pictures and pictures agree: 0 calls, 61 pictures
  $ animtext compare trace pictures
  ! animtext: only one recording has calls; record both with animtext trace --calls
  [2]
  $ diff <(grep -o '"call":.*"result":[^,}]*' trace) <(sed -E 's/,"(w|h|sha1|ms)":[^,}]*//g; s/}$//' log | grep -o '"call":.*' | head -n $(grep -c call trace))

A plugin that paints one pixel otherwise:

  $ fresh_sign
  Wrote s.json: 10 characters in DejaVu Sans, 103 x 24 pixels; SwingEffect, 2 pages of 96 x 24
  $ ANIMTEXT_RECORD_PIXELS=25 FAULT=pixel record log $LIBRARIES/libfaultyplugin.so >trace
  $ ls log*.pam | wc -l; head -c 60 log-3.pam | head -n 6
  25
  P7
  WIDTH 96
  HEIGHT 24
  DEPTH 4
  MAXVAL 255
  TUPLTYPE RGB_ALPHA
  $ animtext compare log s.json --no-times -o seen
  log and the desktop differ: session 1, call 24, at tick 19 (1.25 s), line 24 of log: SwapPicImageLayerPtr: the pictures differ
  seen/log-device.png
  seen/log-desk.png
  seen/log-difference.png
  ! changed a file
  [1]
  $ ls seen
  log-desk.png
  log-device.png
  log-difference.png
  $ echo mine >seen/log-desk.png; animtext compare log s.json --no-times -o seen; cat seen/log-desk.png
  log and the desktop differ: session 1, call 24, at tick 19 (1.25 s), line 24 of log: SwapPicImageLayerPtr: the pictures differ
  seen/log-device.png
  ! animtext: seen/log-desk.png: is not a picture of animtext and was kept
  mine
  $ animtext compare log s.json --no-times -o /proc/none
  log and the desktop differ: session 1, call 24, at tick 19 (1.25 s), line 24 of log: SwapPicImageLayerPtr: the pictures differ
  ! animtext: cannot create the folder /proc/none: No such file or directory
  [1]
  $ rm log-20.pam; animtext compare log s.json --no-times
  log and the desktop differ: session 1, call 24, at tick 19 (1.25 s), line 24 of log: SwapPicImageLayerPtr: the pictures differ
  ! animtext: log-20.pam: cannot be read: No such file or directory
  [2]
  $ animtext compare trace s.json
  trace and the desktop differ: session 1, call 24, at tick 19 (1.25 s), line 43 of trace: SwapPicImageLayerPtr: the pictures differ
  [1]

The device's calls and no other names, for an engine may have functions of any:

  $ fresh_sign
  Wrote s.json: 10 characters in DejaVu Sans, 103 x 24 pixels; SwingEffect, 2 pages of 96 x 24
  $ nm -D --defined-only $LIBRARIES/librecord.so | cut -d ' ' -f 3 | grep -v '^_'
  AddPictureSession
  CreatePictureSession
  FreePictureSession
  GetPicImageLayerPtr
  GeteffectDuration
  PicAppendImageLayer
  RemovePictureSession
  SetPicLayerBlend
  SwapPicImageLayerPtr

Other calls:

  $ fresh_sign
  Wrote s.json: 10 characters in DejaVu Sans, 103 x 24 pixels; SwingEffect, 2 pages of 96 x 24
  $ record log >trace
  $ sed -n '30,33p' log | grep -c Swap
  4
  $ sed '30s/"layer":0/"layer":1/' log >a; animtext compare a s.json --no-times
  a and the desktop differ: session 1, call 30, at tick 25 (1.65 s), line 30 of a: SwapPicImageLayerPtr: layer is 1 in a, 0 in the desktop
  [1]
  $ sed '1s/"height":24,"bytes/"height":25,"bytes/' log >a; animtext compare a s.json --no-times
  a and the desktop differ: session 1, call 1, at tick 0 (0.00 s), line 1 of a: CreatePictureSession: image.height is 25 in a, 24 in the desktop
  [1]
  $ sed '3s/GetPicImageLayerPtr/PicAppendImageLayer/' log >a; animtext compare a s.json --no-times
  a and the desktop differ: session 1, call 3, at tick 0 (0.00 s), line 3 of a: a calls PicAppendImageLayer, the desktop calls GetPicImageLayerPtr
  [1]
  $ sed '2{h;d};3G' log >a; animtext compare a s.json --no-times
  a and the desktop differ: session 1, call 2, at tick 0 (0.00 s), line 2 of a: a calls GetPicImageLayerPtr, the desktop calls AddPictureSession: same calls in another order
  [1]
  $ head -n 20 log >a; animtext compare a log; animtext compare log a --no-times; animtext compare a s.json --no-times
  a and log differ: session 1, call 21, * line 21 of log: a ends here; log continues with SwapPicImageLayerPtr (glob)
  log and a differ: session 1, call 21, * line 21 of log: a ends here; log continues with SwapPicImageLayerPtr (glob)
  a and the desktop agree: 20 calls, 17 pictures
  $ sed '40,$d' log >a; tail -n 2 log >>a; head -n 1 log | sed -E 's,"ms":[0-9]+,"ms":99999,' >>a; animtext compare a log --no-times # not the host's end
  a and log differ: session 1, call 40, *: a calls RemovePictureSession, log calls SwapPicImageLayerPtr (glob)
  [1]
  $ sed -E '30,$s/"ms":[0-9]*/"ms":9999/' trace | sed -E '1,30s/"ms":9999/"ms":0/' >a; animtext compare a trace
  a and trace differ: session 1, call 17, at tick 12 (0.79 s), line 29 of a, line 29 of trace: SwapPicImageLayerPtr is 792 ms earlier in a than in trace; allowed: 66 ms
  [1]
  $ animtext compare a trace --tolerance 10s
  a and trace agree: 65 calls, 61 pictures

Another background:

  $ fresh_sign
  Wrote s.json: 10 characters in DejaVu Sans, 103 x 24 pixels; SwingEffect, 2 pages of 96 x 24
  $ animtext author --text ab --area 64x32 --dazzle linear --effect 7 --speed 9 -o s.json >/dev/null
  $ other() { sed '/"tick":19/s/"background":"./"background":"-/' $1; }
  $ animtext trace s.json -n 30 --calls >trace; animtext compare trace s.json
  trace and the desktop agree: 38 calls, 31 pictures
  $ other trace >a; animtext compare a s.json; animtext compare trace a
  a and the desktop differ: session 1, call 27, at tick 19 (1.25 s), line 46 of a: the background differs at the end of this tick
  trace and a differ: session 1, call 27, at tick 19 (1.25 s), line 46 of trace, line 46 of a: the background differs at the end of this tick
  [1]
  $ animtext trace s.json -n 30 >pictures; animtext compare pictures pictures
  pictures and pictures agree: 0 calls, 31 pictures
  $ other pictures >a; animtext compare pictures a
  pictures and a differ: session 1, call 20, at tick 19 (1.25 s), line 20 of pictures, line 20 of a: the background differs at the end of this tick
  [1]

Files that are not recordings:

  $ fresh_sign
  Wrote s.json: 10 characters in DejaVu Sans, 103 x 24 pixels; SwingEffect, 2 pages of 96 x 24
  $ animtext compare s.json s.json
  ! animtext: s.json: line 1: expected a call or a tick, as librecord and animtext trace write them
  [2]
  $ echo '{"call"' >a; animtext compare a s.json
  ! animtext: a: line 1: expected a call or a tick, as librecord and animtext trace write them
  [2]
  $ echo nonsense >>a; animtext compare a s.json
  ! animtext: a: line 1: expected a call or a tick, as librecord and animtext trace write them
  [2]
  $ for n in -5 2147483647; do echo '{"tick":0,"node":'$n',"swap":true}' >a; animtext compare a s.json; done
  ! animtext: a: line 1: expected a call or a tick, as librecord and animtext trace write them
  ! animtext: a: line 1: expected a call or a tick, as librecord and animtext trace write them
  [2]
  $ printf '{"call":"FreePictureSession","session":1,"result":0,"ms":1}\n{"call":"Rem' >a; animtext compare a a
  a and a agree: 1 calls, 0 pictures
  $ animtext compare none s.json
  ! animtext: none: cannot be read: No such file or directory
  [2]
  $ animtext compare s.json none
  ! animtext: none: cannot be read: No such file or directory
  [2]

A recording that ends:

  $ fresh_sign
  Wrote s.json: 10 characters in DejaVu Sans, 103 x 24 pixels; SwingEffect, 2 pages of 96 x 24
  $ ANIMTEXT_RECORD_MEGABYTES=0 record log >trace; wc -c <log
  ! record: log: it has become as long as it may; nothing more is recorded
  0
  $ ANIMTEXT_RECORD=/dev/full run env LD_PRELOAD=$LIBRARIES/librecord.so animtext trace s.json | cmp - <(animtext trace s.json)
  ! record: /dev/full: it cannot be written; nothing more is recorded
  $ ANIMTEXT_RECORD=/none/log run env LD_PRELOAD=$LIBRARIES/librecord.so animtext trace s.json | cmp - <(animtext trace s.json)
  ! record: /none/log cannot be written; nothing is recorded
  $ rm -f log; run env LD_PRELOAD=$LIBRARIES/librecord.so animtext trace s.json -n 1 >trace; ls log
  ls: cannot access 'log': No such file or directory
  [2]

A folder of scenes:

  $ fresh
  $ mkdir -p "Prüf 1/scenes"
  $ animtext author --text ab --dazzle --effect 7 --area 64x32 -o "Prüf 1/scenes/Grün 1.json" >/dev/null
  $ animtext compare --record --ticks 5 "Prüf 1"
  Pr\xc3\xbcf 1/expected.txt: 1 scenes, 6 ticks (esc)
  $ cp "Prüf 1/expected.txt" recorded
  $ animtext compare "Prüf 1"
      motion                               scenes  pictures    equal  first difference
   7  BeforeAfterScalEffect                     1         6        6
      all                                       1         6        6
  
  Ticks, sizes and states: equal in 1 of 1 scenes
  Pictures: equal in 1 of 1 scenes
  Backgrounds: equal in 1 of 1 scenes
  $ with() { sed -E "$1" recorded >"Prüf 1/expected.txt"; animtext compare "Prüf 1" | sed 1d; return ${PIPESTATUS[0]}; }
  $ with 's/( 3 1 64 32 )\w+/\1fedcba9876543210/'
   7  BeforeAfterScalEffect                     1         6        5  Gr\xc3\xbcn 1, tick 3 (esc)
      all                                       1         6        5
  
  Ticks, sizes and states: equal in 1 of 1 scenes
  Pictures: equal in 0 of 1 scenes
  Backgrounds: equal in 1 of 1 scenes
  Pictures differ: Gr\xc3\xbcn 1 (esc)
  [1]
  $ with 's/( 3 1 64 32 )\w+/\1-/' | head -n 1 # not compared
   7  BeforeAfterScalEffect                     1         5        5
  $ with 's/( 3 .* 1 )\w+/\10123456789abcdef/'
   7  BeforeAfterScalEffect                     1         6        6
      all                                       1         6        6
  
  Ticks, sizes and states: equal in 1 of 1 scenes
  Pictures: equal in 1 of 1 scenes
  Backgrounds: equal in 0 of 1 scenes
  Backgrounds differ: Gr\xc3\xbcn 1 (esc)
  [1]
  $ with 's/ \w{16}$//' # unknown backgrounds
   7  BeforeAfterScalEffect                     1         6        6
      all                                       1         6        6
  
  Ticks, sizes and states: equal in 1 of 1 scenes
  Pictures: equal in 1 of 1 scenes
  $ with 's/1 (\w+)$/0 \1/'
   7  BeforeAfterScalEffect                     1         6        6
      all                                       1         6        6
  
  Ticks, sizes and states: equal in 0 of 1 scenes
  Pictures: equal in 1 of 1 scenes
  Backgrounds: equal in 1 of 1 scenes
  Ticks, sizes or states differ: Gr\xc3\xbcn 1 (esc)
  [1]
  $ with 's/ 64 / 65 /'
   7  BeforeAfterScalEffect                     1         6        6
      all                                       1         6        6
  
  Ticks, sizes and states: equal in 0 of 1 scenes
  Pictures: equal in 1 of 1 scenes
  Backgrounds: equal in 1 of 1 scenes
  Ticks, sizes or states differ: Gr\xc3\xbcn 1 (esc)
  [1]
  $ with 's/ 3 1/ x 1/'
  ! animtext: Pr\xc3\xbcf 1/expected.txt: line 4: expected scene, tick, 0 or 1, width, height, 16 digits of the SHA-1 or -, state (esc)
  [2]
  $ with s/Grün/Rot/
  ! animtext: Pr\xc3\xbcf 1/scenes/Rot 1.json: expected a scene file, found no such file (esc)
  [2]
  $ animtext compare "Prüf 1/scenes"
  ! animtext: Pr\xc3\xbcf 1/scenes/expected.txt: cannot be read: No such file or directory (esc)
  [2]
  $ rm Prüf*/scenes/*; animtext compare --record "Prüf 1"
  ! animtext: Pr\xc3\xbcf 1/scenes: expected scenes, found none (esc)
  [2]
  $ animtext compare --record one.json two.json
  ! animtext: --record is for a folder of scenes, the only word then (see animtext help compare)
  [2]
  $ animtext compare one.json
  ! animtext: expected a folder, or what to compare one.json with (see animtext help compare)
  [2]
