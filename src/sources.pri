# The plugin's sources, for qmake and CMake alike: src/CMakeLists.txt reads the names from here.
HEADERS += \
    $$PWD/edit/animationtextedit.h \
    $$PWD/effects/frame.h \
    $$PWD/engine/animationrealization.h \
    $$PWD/node/glyphdata.h \
    $$PWD/node/hanimationtextnode.h \
    $$PWD/node/linewidths.h \
    $$PWD/node/pagedivision.h \
    $$PWD/node/wrapping.h \
    $$PWD/plugin/export.h \
    $$PWD/plugin/hnodeanimationtext.h \
    $$PWD/render/hanimationtextrender.h

SOURCES += \
    $$PWD/edit/animationtextedit.cpp \
    $$PWD/effects/flyin.cpp \
    $$PWD/effects/frame.cpp \
    $$PWD/effects/frogs.cpp \
    $$PWD/effects/inturn.cpp \
    $$PWD/effects/oscillating.cpp \
    $$PWD/effects/rotation.cpp \
    $$PWD/effects/stretchmove.cpp \
    $$PWD/effects/textzoom.cpp \
    $$PWD/effects/wordbyword.cpp \
    $$PWD/engine/animationrealization.cpp \
    $$PWD/engine/dazzle.cpp \
    $$PWD/engine/frameloop.cpp \
    $$PWD/engine/scrolling.cpp \
    $$PWD/engine/textpainting.cpp \
    $$PWD/node/duration.cpp \
    $$PWD/node/glyphdata.cpp \
    $$PWD/node/hanimationtextnode.cpp \
    $$PWD/node/linewidths.cpp \
    $$PWD/node/pagedivision.cpp \
    $$PWD/node/textmetrics.cpp \
    $$PWD/plugin/entrypoints.cpp \
    $$PWD/plugin/hnodeanimationtext.cpp \
    $$PWD/render/hanimationtextrender.cpp \
    $$PWD/render/picturesession.cpp
