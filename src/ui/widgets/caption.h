#pragma once

#include <QColor>
#include <QString>

#include <vector>

namespace torvenhall
{

/// What a piece of a choice's caption says.
enum class Tone : unsigned char { Plain, Gain, Loss, Price };

struct CaptionPart {
    QString text;
    Tone tone = Tone::Plain;
};

/// A caption in pieces, which joined are the caption, to the last character:
/// "+20%" and "+10h" are gains, "- 50%h" is a loss, "- $25" and "-$45-" are
/// prices. Where the sums are wages, they are gains without their dash.
std::vector<CaptionPart> SplitCaption(const QString& caption, bool sumsAreWages = false);

} // namespace torvenhall
