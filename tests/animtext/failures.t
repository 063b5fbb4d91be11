Films and pictures that cannot be written.

  $ . "$TESTDIR/prelude.sh"

An encoder that fails:

  $ fresh
  $ mkdir programs; ln -s /usr/bin/ffprobe programs/; echo the old film >old.gif
  $ render() { run env PATH="$PWD/programs" "$ANIMTEXT_PROGRAMS/animtext" render two.json -o old.gif --seconds 15 --scale 4; }
  $ render
  ! animtext: $PWD/old.gif cannot be written: the program ffmpeg, which films need, is not installed: apt-get install ffmpeg, or name a folder for PNGs
  [1]
  $ encoder() { printf '#!/bin/sh\n%s\n' "$1" >programs/ffmpeg; chmod +x programs/ffmpeg; }
  $ encoder 'echo one >&2; echo two >&2; exit 3'
  $ render
  ! animtext: $PWD/old.gif cannot be written: ffmpeg failed: two
  [1]
  $ encoder '/bin/cat >/dev/null; echo full >&2; exit 1'
  $ render
  ! animtext: $PWD/old.gif cannot be written: ffmpeg failed: full
  [1]
  $ encoder 'kill -9 $$'
  $ render
  ! animtext: $PWD/old.gif cannot be written: ffmpeg failed: Process crashed
  [1]
  $ encoder 'echo full >&2; exec /usr/bin/ffmpeg "$@"'
  $ render
  ! animtext: $PWD/old.gif cannot be written: ffmpeg failed: full
  [1]
  $ encoder '/bin/cat >/dev/null'
  $ render
  ! animtext: $PWD/old.gif cannot be written: ffprobe failed: $PWD/.old.gif*: Invalid data found when processing input (glob)
  [1]
  $ encoder '/usr/bin/head -c 1310720 | /usr/bin/ffmpeg "$@"; /bin/cat >/dev/null'
  $ render
  ! animtext: $PWD/old.gif cannot be written: the encoder wrote 10 pictures in 0.65 s, where 227 in 14.982 s were due
  [1]
  $ encoder 'kill -INT $PPID; /bin/cat >/dev/null; while :; do :; done'
  $ render
  ! animtext: interrupted
  [130]
  $ encoder '/bin/cat >/dev/null; kill -TERM $PPID; while :; do :; done'
  $ render
  ! animtext: interrupted
  [143]
  $ encoder '/bin/cat >/dev/null; kill -INT $PPID; exit 1' # as Ctrl+C, which reaches both
  $ render
  ! animtext: interrupted
  [130]
  $ encoder 'exec /bin/sleep 60'
  $ PATH="$PWD/programs:$PATH" animtext render one.json two.json -o out --progress >/dev/full
  ! animtext: cannot write to standard output: No space left on device
  [1]
  $ ls -A out
  $ encoder 'case "$*" in *palettegen*) exec /usr/bin/ffmpeg "$@";; esac; kill -9 $PPID'
  $ render 2>/dev/null; ls -A | grep -c '^[.]'
  1
  $ animtext render one.json --at 1t -o b.png; ls -A | grep -c '^[.]' # the next run removes what is left
  Wrote b.png: 64 x 32, * (glob)
  0
  [1]
  $ mkdir mine; ln -s mine ".x.999999999@$(uname -n).unfinished.abcdef"; animtext render one.json --at 1t -o b.png
  Wrote b.png: 64 x 32, * (glob)
  $ ls -A | grep '^[.]' # but no link: Qt would follow one that it cannot remove
  .x.999999999@* (glob)

A full disk:

  $ fresh
  $ for name in a.{gif,apng,webp,mp4,webm,png}; do echo old >$name; done; animtext render one.json --at 0 -o a/
  Wrote a/: 64 x 32, * (glob)
  $ full() { (trap '' XFSZ; ulimit -f 1; animtext "$@"); }
  $ full render two.json --scale 8 -o a.gif
  ! animtext: $PWD/a.gif cannot be written: ffmpeg failed: File too large
  [1]
  $ full render two.json --scale 8 -o a.apng
  ! animtext: $PWD/a.apng cannot be written: ffmpeg failed: File too large
  [1]
  $ full render two.json --scale 8 -o a.webp
  ! animtext: $PWD/a.webp cannot be written: ffmpeg failed: File too large
  [1]
  $ full render two.json --scale 8 -o a.mp4
  ! animtext: $PWD/a.mp4 cannot be written: ffmpeg failed: File too large
  [1]
  $ full render two.json --scale 8 -o a.webm
  ! animtext: $PWD/a.webm cannot be written: ffmpeg failed: File too large
  [1]
  $ full render two.json --scale 8 -o a/
  ! animtext: $PWD/a/frame-0006.png cannot be written: File too large
  [1]
  $ full render two.json --scale 16 --at 20t -o a.png
  ! animtext: $PWD/a.png cannot be written: File too large
  [1]
  $ full render two.json --scale 6 --seconds 20 -o a.gif
  ! animtext: $PWD/a.gif cannot be written: ffmpeg failed: File too large
  [1]
  $ full sheet two.json -o a.png
  ! animtext: a.png cannot be written: File too large
  [1]

Causes:

  $ fresh
  $ mkdir ro; cp one.json node0.* ro; chmod a+x "$CRAMTMP"; chmod -R a+rwX .; chmod a-w ro; export HOME=$PWD
  $ as() { if [ $(id -u) = 0 ]; then run setpriv --reuid=65534 --regid=65534 --clear-groups "$@"; else run "$@"; fi; }
  $ as animtext set ro/one.json 1 hold=1s
  ! animtext: $PWD/ro: cannot write to this folder: Permission denied
  [1]
  $ as animtext author -o ro/new.json --text a
  ! animtext: $PWD/ro: cannot write to this folder: Permission denied
  [1]
  $ as animtext render one.json two.json -o ro/films
  ! animtext: cannot create the folder ro/films: Permission denied
  [1]
  $ chmod a-r one.json; as animtext trace one.json
  ! animtext: one.json: expected a file that can be read, found an error: Permission denied
  [2]
