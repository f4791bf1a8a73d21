#pragma once

#include <QWidget>

class QLabel;

namespace widgets {

/// Says above a list what it was narrowed down by, and how much of the book that is, with the way back to
/// all of it.
class FoundStrip : public QWidget {
    Q_OBJECT

public:
    explicit FoundStrip(QWidget* parent = nullptr);

    void tell(const QString& foundBy, int found, int all);

Q_SIGNALS:
    void clearWanted();

private:
    QLabel* lblFound;
};

} // namespace widgets
