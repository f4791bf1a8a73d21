#pragma once

#include <QList>
#include <QTabWidget>

class QLabel;

namespace views {

/// The tabs of the full view on which a contact can be read.
class FullViewPages : public QTabWidget {
    Q_OBJECT

public:
    /// `browsesOthers` makes room for what only other address books have.
    explicit FullViewPages(bool browsesOthers = false, QWidget* parent = nullptr);

    /// Whether a contact of the program's own book is shown, or one of another.
    void showBook(bool own);

private:
    QWidget* addPage(const QString& name, const QString& title, QStringView icon);
    void layOutDetails();
    void layOutAddresses();
    void layOutTelephones(bool browsesOthers);
    QLabel* labelOf(const QString& control) const;
    void layOutMail();
    void layOutFamily();

    /// The labels over the numbers, which in the own book name each line.
    struct NumbersLabel {
        QLabel* label;
        QString own;
    };
    QList<NumbersLabel> m_numbersLabels;
    QList<QWidget*> m_ofOthers; ///< rows that only other address books fill
};

} // namespace views
