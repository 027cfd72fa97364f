#pragma once

#include <QByteArrayView>
#include <QVariant>

namespace verdane {

/// A text that an engine returned in UTF-8, with all its characters: a U+FEFF at the start is one of them.
/// Bytes that are not UTF-8 are returned unchanged, as a QByteArray.
QVariant text_or_bytes(QByteArrayView utf8);

/// True for a value that an engine must get as bytes in UTF-8, because it would change it as a text of the
/// toolkit: bytes that are no text, and a text with a U+FEFF at the start, which SQLite drops.
bool needs_bytes(const QVariant& value);

}  // namespace verdane
