# What the libraries share.
TEMPLATE = lib
QT += core gui
QMAKE_CXXFLAGS += -std=c++11 -Wall -Wextra
isEmpty(DESTDIR): DESTDIR = $$OUT_PWD/..
# Not beside the sources, where they would be taken for sources the next time.
MOC_DIR = moc
