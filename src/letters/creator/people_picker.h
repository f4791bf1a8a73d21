#pragma once

#include "jet/database.h"

#include <QList>
#include <QWidget>

class QLabel;
class QLineEdit;
class QPushButton;

namespace widgets {
class FilledCombo;
class HeadingGrid;
} // namespace widgets

namespace letters {

/// Chooses those that a letter goes to: from the whole book, a category, a mailing list or those that are
/// marked for printing. The list reads a row when it comes in sight, however many people there are.
class PeoplePicker : public QWidget {
    Q_OBJECT

public:
    explicit PeoplePicker(jet::Database& book, QWidget* parent = nullptr);

    void open(); ///< reads the people
    void readAgain(); ///< the book has changed

Q_SIGNALS:
    void picked(const QList<qint64>& ids);
    void finished();

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    void layOut();
    void chooseSource();
    void readPeople();
    void pickSelected();
    void pickAll();

    jet::Database& m_book;
    widgets::FilledCombo* m_source = nullptr;
    widgets::FilledCombo* m_group = nullptr;
    QLineEdit* m_name = nullptr;
    widgets::HeadingGrid* m_people;
    QPushButton* m_all = nullptr;
};

} // namespace letters
