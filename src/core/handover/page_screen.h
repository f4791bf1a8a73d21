#pragma once

#include <QString>

namespace core {

/// A screen that can be opened on one of its pages, as the commands name them.
class PageScreen {
public:
    virtual ~PageScreen() = default;
    virtual void openPage(const QString& page) = 0;
};

} // namespace core
