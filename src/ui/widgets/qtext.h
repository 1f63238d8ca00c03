#pragma once

#include <QString>

#include <string>
#include <string_view>

namespace torvenhall
{

/// The rules speak UTF-8.
inline QString Text(std::string_view utf8)
{
    return QString::fromUtf8(utf8.data(), static_cast<qsizetype>(utf8.size()));
}

inline std::string Utf8(const QString& text)
{
    return text.toStdString();
}

} // namespace torvenhall
