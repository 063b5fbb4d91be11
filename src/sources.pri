# The plugin's sources, for qmake and CMake alike: src/CMakeLists.txt reads the names from here.
HEADERS += \
    $$PWD/device/device.h \
    $$PWD/edit/animationtextedit.h \
    $$PWD/engine/animationrealization.h \
    $$PWD/engine/frame.h \
    $$PWD/node/attribute.h \
    $$PWD/node/hanimationtextnode.h \
    $$PWD/node/motions.h \
    $$PWD/paint/curves.h \
    $$PWD/paint/farcutting.h \
    $$PWD/paint/fill.h \
    $$PWD/paint/fixedpoint.h \
    $$PWD/paint/hairline.h \
    $$PWD/paint/outline.h \
    $$PWD/paint/picturewriter.h \
    $$PWD/paint/plane.h \
    $$PWD/paint/textcanvas.h \
    $$PWD/paint/transform.h \
    $$PWD/plugin/export.h \
    $$PWD/plugin/hnodeanimationtext.h \
    $$PWD/render/hanimationtextrender.h \
    $$PWD/text/glyphdata.h \
    $$PWD/text/limits.h \
    $$PWD/text/linewidths.h \
    $$PWD/text/pagedivision.h \
    $$PWD/text/wrapping.h

SOURCES += \
    $$PWD/edit/animationtextedit.cpp \
    $$PWD/effects/flyin.cpp \
    $$PWD/effects/frogs.cpp \
    $$PWD/effects/inturn.cpp \
    $$PWD/effects/oscillating.cpp \
    $$PWD/effects/rotation.cpp \
    $$PWD/effects/stretchmove.cpp \
    $$PWD/effects/textzoom.cpp \
    $$PWD/effects/wordbyword.cpp \
    $$PWD/engine/animationrealization.cpp \
    $$PWD/engine/dazzle.cpp \
    $$PWD/engine/frame.cpp \
    $$PWD/engine/frameloop.cpp \
    $$PWD/engine/scrolling.cpp \
    $$PWD/engine/textpainting.cpp \
    $$PWD/node/duration.cpp \
    $$PWD/node/hanimationtextnode.cpp \
    $$PWD/node/textmetrics.cpp \
    $$PWD/paint/farcutting.cpp \
    $$PWD/paint/fill.cpp \
    $$PWD/paint/hairline.cpp \
    $$PWD/paint/outline.cpp \
    $$PWD/paint/picturewriter.cpp \
    $$PWD/paint/plane.cpp \
    $$PWD/paint/textcanvas.cpp \
    $$PWD/paint/transform.cpp \
    $$PWD/plugin/entrypoints.cpp \
    $$PWD/plugin/hnodeanimationtext.cpp \
    $$PWD/render/hanimationtextrender.cpp \
    $$PWD/render/picturesession.cpp \
    $$PWD/text/glyphdata.cpp \
    $$PWD/text/linewidths.cpp \
    $$PWD/text/pagedivision.cpp
