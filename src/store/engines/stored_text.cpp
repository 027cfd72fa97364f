#include "store/engines/stored_text.h"

#include <QString>
#include <QStringDecoder>

namespace verdane {

using namespace Qt::StringLiterals;

namespace {

QString text_of(QByteArrayView utf8)
{
    constexpr QByteArrayView byte_order_mark = "\xef\xbb\xbf";
    if (!utf8.startsWith(byte_order_mark))
        return utf8.isEmpty() ? u""_s : QString::fromUtf8(utf8);
    // The toolkit drops the mark by default.
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder(utf8);
}

}  // namespace

QVariant text_or_bytes(QByteArrayView utf8)
{
    const QString text = text_of(utf8);
    if (text.contains(QChar::ReplacementCharacter) && !utf8.isValidUtf8())
        return utf8.toByteArray();
    return text;
}

bool needs_bytes(const QVariant& value)
{
    if (value.isNull())
        return false;
    return value.typeId() == QMetaType::QByteArray ||
           (value.typeId() == QMetaType::QString && value.toString().startsWith(QChar::ByteOrderMark));
}

}  // namespace verdane
