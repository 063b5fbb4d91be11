#include "cli/filenames.h"

#include <QtGlobal>

#if QT_VERSION < 0x060000
#include <QTextCodec>
#else
#include <QStringDecoder>
#endif

#include <algorithm>

namespace AnimText {

namespace {

// A byte outside valid UTF-8 becomes a lone low surrogate, which UTF-8 never produces.
constexpr ushort strayByte = 0xDC00;

bool IsStray(QChar unit)
{
    return unit.unicode() >= strayByte + 0x80 && unit.unicode() <= strayByte + 0xFF;
}

/** Decodes @p bytes, keeping a byte order mark; false if they are not all UTF-8. */
bool ReadUtf8(const char* bytes, int size, QString* text)
{
#if QT_VERSION < 0x060000
    static const QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
    QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
    *text = utf8->toUnicode(bytes, size, &state);
    return state.invalidChars == 0 && state.remainingChars == 0;
#else
    QStringDecoder utf8(QStringDecoder::Utf8,
                        QStringDecoder::Flag::Stateless | QStringDecoder::Flag::ConvertInitialBom);
    *text = utf8(QByteArrayView(bytes, size));
    return !utf8.hasError();
#endif
}

/** The first character of @p bytes; empty if they begin with a stray byte. */
QString FirstCharacter(const char* bytes, int size, int* length)
{
    QString character;
    for (*length = 1; *length <= std::min(size, 4); ++*length) {
        if (ReadUtf8(bytes, *length, &character))
            return character;
    }
    *length = 1;
    return QString();
}

QString TextOf(const char* bytes, int size)
{
    QString text;
    for (int i = 0, length = 1; i < size; i += length) {
        const QString character = FirstCharacter(bytes + i, size - i, &length);
        text += character.isEmpty() ? QString(QChar(strayByte + uchar(bytes[i]))) : character;
    }
    return text;
}

// Qt 6 treats every file name as UTF-8; that cannot be changed.
#if QT_VERSION < 0x060000

class FileNameCodec : public QTextCodec
{
public:
    QByteArray name() const override { return "UTF-8 and stray bytes"; }
    int mibEnum() const override { return -4711; } // of no registered encoding

protected:
    QString convertToUnicode(const char* bytes, int size, ConverterState*) const override
    {
        return TextOf(bytes, size);
    }
    QByteArray convertFromUnicode(const QChar* text, int size, ConverterState*) const override;
};

QByteArray FileNameCodec::convertFromUnicode(const QChar* text, int size, ConverterState*) const
{
    QByteArray bytes;
    for (int i = 0; i < size; ++i) {
        const bool isPair = i + 1 < size && text[i].isHighSurrogate();
        if (IsStray(text[i])) {
            bytes += char(text[i].unicode() - strayByte);
        } else {
            bytes += QString(text + i, isPair ? 2 : 1).toUtf8();
            i += isPair ? 1 : 0;
        }
    }
    return bytes;
}

#endif

} // namespace

void KeepAllFileNames()
{
#if QT_VERSION < 0x060000
    QTextCodec::setCodecForLocale(new FileNameCodec); // Qt owns it
#endif
}

QString TextOfWord(const char* word)
{
    return TextOf(word, int(qstrlen(word)));
}

bool IsUtf8(const QString& text)
{
    for (int i = 0; i < text.size(); ++i) {
        if (text.at(i).isHighSurrogate())
            ++i;
        else if (IsStray(text.at(i)))
            return false;
    }
    return true;
}

} // namespace AnimText
