#include "output/preview/report_pictures.h"

#include "core/photo_file.h"
#include "widgets/picture_box.h"

#include <QCache>

#include <memory>

namespace output {

namespace {

constexpr QSize kPixels(260, 312); ///< 300 dpi of what a report shows
constexpr int kKept = 100;

} // namespace

PictureOf bookPictures(const platform::Drive& drive)
{
    auto kept = std::make_shared<QCache<QString, QImage>>(kKept);
    return [kept, &drive](const QString& path) {
        if (const QImage* known = kept->object(path))
            return *known;
        const QImage picture = widgets::readPicture(core::photoFile(drive, path), kPixels);
        kept->insert(path, new QImage(picture));
        return picture;
    };
}

} // namespace output
