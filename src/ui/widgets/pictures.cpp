#include "ui/widgets/pictures.h"

#include <QBuffer>
#include <QHash>
#include <QImageReader>
#include <QPainter>
#include <QPixmapCache>
#include <QResource>
#include <QtMath>

#include <cmath>
#include <utility>

#include "resources/modJpegInside.h"
#include "ui/widgets/metrics.h"
#include "ui/widgets/qtext.h"

// A library's resources are registered by name, which must be in the global
// namespace.
static void RegisterPictures()
{
    Q_INIT_RESOURCE(pictures);
}

namespace torvenhall
{

namespace
{

/// Each picture is carried in three sizes: twice its own, its own for small
/// screens, where a machine is slow as well, and four times for the largest.
constexpr const char* Usual = ":/JPEGINSIDEDATA/";
constexpr const char* Small = ":/small/";
constexpr const char* Large = ":/large/";

/// At scale 1: the room, and the two places in town where one was last.
constexpr double KeptKilobytes = 2900;

QByteArray Carried(const char* where, std::string_view name)
{
    static const bool registered = (RegisterPictures(), true);
    Q_UNUSED(registered);
    const QResource resource(where + Text(name));
    if (!resource.isValid()) {
        return {};
    }
    return QByteArray::fromRawData(reinterpret_cast<const char*>(resource.data()), resource.size());
}

QPixmap Decode(std::string_view name, QSize wanted, double pixelRatio)
{
    const QSize pixels = wanted * pixelRatio;
    QBuffer buffer;
    QImageReader reader;
    for (const char* carried : {Small, Usual, Large}) {
        const QByteArray jpeg = Carried(carried, name);
        if (jpeg.isEmpty()) {
            continue;
        }
        buffer.close(); // the reader has opened it
        buffer.setData(jpeg);
        reader.setDevice(&buffer);
        reader.setFormat("jpeg");
        if (reader.size().width() >= pixels.width() && reader.size().height() >= pixels.height()) {
            break;
        }
    }
    const QSize scaled = reader.size().scaled(pixels, Qt::KeepAspectRatioByExpanding);
    reader.setScaledSize(scaled);
    // In a lower window what stands at the top is kept.
    const QPoint corner((scaled.width() - pixels.width()) / 2, 0);
    reader.setScaledClipRect(QRect(corner, pixels));
    QPixmap picture = QPixmap::fromImage(reader.read());
    picture.setDevicePixelRatio(pixelRatio);
    return picture;
}

} // namespace

QByteArray EmbeddedPicture(std::string_view name)
{
    return Carried(Usual, name);
}

bool TakePictureStep(std::string_view key)
{
    const QByteArray jpeg = EmbeddedPicture(std::string(key) + "PICTURE");
    return LoadFormPicture(key, std::as_bytes(std::span(jpeg)));
}

QPixmap LoadPicture(std::string_view name, QSize size, double pixelRatio)
{
    static double scale = 0;
    if (std::exchange(scale, UnitScale()) != UnitScale()) {
        QPixmapCache::clear(); // no picture is wanted in its old size again
        QPixmapCache::setCacheLimit(qCeil(KeptKilobytes * scale * scale));
    }
    const QString place =
        QString("%1 %2x%3@%4").arg(Text(name)).arg(size.width()).arg(size.height()).arg(pixelRatio);
    QPixmap picture;
    if (!QPixmapCache::find(place, &picture) && !EmbeddedPicture(name).isEmpty()) {
        picture = Decode(name, size, pixelRatio);
        QPixmapCache::insert(place, picture);
    }
    return picture;
}

void DrawCutOut(QPainter& painter, std::string_view sheet, const QRectF& piece, const QRectF& place)
{
    // How many pixels of the sheet and of the screen make a unit of the sheet.
    constexpr int usual = 2, large = 4;
    const double wanted = std::abs(painter.deviceTransform().m11()) * place.width() / piece.width();
    const int fine = wanted > usual ? large : usual;
    static QHash<QString, QImage> decoded;
    QImage& cutOuts = decoded[Text(sheet)];
    if (cutOuts.isNull() || cutOuts.text("fine").toInt() != fine) {
        cutOuts = QImage::fromData(Carried(fine == large ? Large : Usual, sheet), "png")
                      .convertToFormat(QImage::Format_ARGB32_Premultiplied);
        cutOuts.setText("fine", QString::number(fine));
    }
    painter.drawImage(place, cutOuts, QRectF(piece.topLeft() * fine, piece.size() * fine));
}

} // namespace torvenhall
