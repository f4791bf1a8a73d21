#pragma once

#include "output/report/page_painter.h"

namespace platform {
class Drive;
}

namespace output {

/// Reads the pictures that the book names, small; those shown last are kept.
PictureOf bookPictures(const platform::Drive& drive);

} // namespace output
