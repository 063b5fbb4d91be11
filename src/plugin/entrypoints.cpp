// The symbols that Qt 4's plugin loader looks up. Qt 5's moc makes qt_plugin_instance() itself,
// from the class's plugin metadata, with the same guarded pointer.
#include "plugin/export.h"
#include "plugin/hnodeanimationtext.h"

#include <QPointer>

extern "C" ANIMATIONTEXT_EXPORT const char* qt_plugin_query_verification_data();

const char* qt_plugin_query_verification_data()
{
    // The loader refuses a library whose version, debug mode or build key differ from its own.
    static const char data[] = "pattern=QT_PLUGIN_VERIFICATION_DATA\n"
                               "version=4.8.5\n"
                               "debug=false\n"
                               "buildkey=arm qws/linux g++-4 no-pkg-config";
    return data;
}

#if QT_VERSION < 0x050000
extern "C" ANIMATIONTEXT_EXPORT QObject* qt_plugin_instance();

QObject* qt_plugin_instance()
{
    // The host may delete the plugin object; the next caller gets a new one.
    static QPointer<QObject> instance;
    if (!instance)
        instance = new Lw::HNodeAnimationText::HNodeAnimationText;
    return instance;
}
#endif
