#include "ui/widgets/caption.h"

#include <QRegularExpression>

namespace torvenhall
{

namespace
{

Tone ToneOf(const QString& amount, bool sumsAreWages)
{
    if (amount.contains('$')) {
        return sumsAreWages ? Tone::Gain : Tone::Price;
    }
    return amount.startsWith('+') ? Tone::Gain : Tone::Loss;
}

} // namespace

std::vector<CaptionPart> SplitCaption(const QString& caption, bool sumsAreWages)
{
    // A dash behind a price belongs to it, unless it is the next loss's minus. A
    // loss has its percent sign, which tells it from the number of a part.
    static const QRegularExpression priced(R"((?:- ?)?\$\d+(?:-(?!\d))?|\+ ?\d+%?h?|- ?\d+%h?)");
    static const QRegularExpression paid(R"(\$\d+)");
    std::vector<CaptionPart> parts;
    qsizetype done = 0;
    const auto addPlain = [&](qsizetype end) {
        if (end > done) {
            parts.push_back({caption.mid(done, end - done), Tone::Plain});
        }
    };
    auto found = (sumsAreWages ? paid : priced).globalMatch(caption);
    while (found.hasNext()) {
        const QRegularExpressionMatch match = found.next();
        addPlain(match.capturedStart());
        parts.push_back({match.captured(), ToneOf(match.captured(), sumsAreWages)});
        done = match.capturedEnd();
    }
    addPlain(caption.size());
    return parts;
}

} // namespace torvenhall
