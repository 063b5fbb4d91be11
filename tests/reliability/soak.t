What a soak prints, and the faults that it finds.

  $ . "$TESTDIR/../animtext/prelude.sh"
  $ fresh
  $ run soak 0.1 one.json
  simulated hours                 0.10
  scenes                             1
  turns                             12
  ticks                           5460
  pictures shown                  5244
  sessions made                     24
  most layers at once                1
  live sessions                      0
  live layers                        0
  wrong calls                        0
  refused, too large                 0
  memory at hour 1         not reached
  memory at the end*MiB (glob)
  growth                     not known
  growth allowed              1.00 MiB
  $ faulty() { FAULT=$1 ASAN_OPTIONS=verify_asan_link_order=0:detect_leaks=0 LD_PRELOAD=$LIBRARIES/libfaultyplugin.so soak "${@:2}" one.json >log; }
  $ faulty keeps 0.02
  The soak failed.
  [1]
  $ grep live log
  live sessions                      6
  live layers                        6
  $ faulty twice 0.02
  The soak failed.
  [1]
  $ grep wrong log
  wrong calls                        6
  $ faulty grows --growth 0.2 1.03
  The soak failed.
  [1]
  $ faulty grows --growth 0 1.03
  $ run soak nan
  ! expected: soak [--growth MIB] HOURS [SCENE.json...]
  [2]
  $ run soak 1 bad.json
  ! bad.json: $.pages: expected a list, found 1
  [2]
  $ export XDG_RUNTIME_DIR=$PWD; mkdir t; early() { TMPDIR=$PWD/t soak 8784 >/dev/null 2>&1 & until [ "$(ls t/*/*)" ]; do :; done; kill -$1 $!; wait $!; echo $? $(ls t); }
  $ (set -m; early INT; early TERM) 2>/dev/null
  130
  143
