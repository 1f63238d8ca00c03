#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace torvenhall
{

/// The rules speak UTF-8.
inline QString Text(std::string_view utf8)
{
    // The toolkit takes a byte-order mark away, which may be part of a name.
    const QString text = QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
    return utf8.starts_with("\xEF\xBB\xBF") ? QChar(QChar::ByteOrderMark) + text : text;
}

inline std::string Utf8(const QString& text)
{
    return text.toStdString();
}

} // namespace torvenhall
