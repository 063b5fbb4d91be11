#include "animtext/filenames.h"

#include <QTextCodec>

#include <algorithm>

namespace AnimText {

namespace {

// A byte that belongs to no character becomes a half of a surrogate pair, which no UTF-8 makes.
constexpr ushort strayByte = 0xDC00;

bool IsStray(QChar unit)
{
    return unit.unicode() >= strayByte + 0x80 && unit.unicode() <= strayByte + 0xFF;
}

class FileNameCodec : public QTextCodec
{
public:
    QByteArray name() const override { return "UTF-8 and stray bytes"; }
    int mibEnum() const override { return -4711; } // of no registered encoding

protected:
    QString convertToUnicode(const char* bytes, int size, ConverterState*) const override;
    QByteArray convertFromUnicode(const QChar* text, int size, ConverterState*) const override;
};

/** The character that @p bytes begin with; empty when they begin with none. */
QString FirstCharacter(const char* bytes, int size, int* length)
{
    static const QTextCodec* const utf8 = QTextCodec::codecForName("UTF-8");
    for (*length = 1; *length <= std::min(size, 4); ++*length) {
        QTextCodec::ConverterState state(QTextCodec::IgnoreHeader);
        const QString character = utf8->toUnicode(bytes, *length, &state);
        if (state.invalidChars == 0 && state.remainingChars == 0)
            return character;
    }
    *length = 1;
    return QString();
}

QString FileNameCodec::convertToUnicode(const char* bytes, int size, ConverterState*) const
{
    QString text;
    for (int i = 0, length = 1; i < size; i += length) {
        const QString character = FirstCharacter(bytes + i, size - i, &length);
        text += character.isEmpty() ? QString(QChar(strayByte + uchar(bytes[i]))) : character;
    }
    return text;
}

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

} // namespace

void KeepAllFileNames()
{
    QTextCodec::setCodecForLocale(new FileNameCodec); // Qt owns it
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
