#pragma once

#include "anniversaries/list/day_list.h"

#include <QFrame>

class QLabel;

namespace anniversaries {

/// Who celebrates on the row that is current, and when.
class DayDetail : public QFrame {
    Q_OBJECT

public:
    explicit DayDetail(QWidget* parent = nullptr);

    void display(const ListedDay& day, Occasion occasion);
    void clear(const QString& why = {}); ///< @param why in place of the name

private:
    QList<QLabel*> m_values;
};

/// "Asha    (Rahul Sharma)", or both names of a couple.
QString whoCelebrates(const ListedDay& day, Occasion occasion);
/// What the day is.
QString whatIsCelebrated(const ListedDay& day, Occasion occasion);

} // namespace anniversaries
