#pragma once

#include "jet/database.h"

#include <QWidget>

class QLineEdit;
class QStackedWidget;
class QTabBar;

namespace widgets {
class RecordList;
}

namespace telephone {

/// The stored addresses that begin as a word, and the areas of a city, to choose one from by mouse or keys.
class WordLists : public QWidget {
    Q_OBJECT

public:
    WordLists(jet::Database& book, bool nationalMode, QWidget* parent = nullptr);

    /// Lists what there is for a word and a city, and goes to the list that has something.
    void search(const QString& city, const QString& word);
    void read();

Q_SIGNALS:
    void picked(const QString& text);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void layOut();
    widgets::RecordList* shownList() const;

    jet::Database& m_book;
    bool m_nationalMode;
    QTabBar* SSActiveTabs1;
    QStackedWidget* m_pages;
    widgets::RecordList* Grid1;
    widgets::RecordList* Grid2;
    QLineEdit* Text1 = nullptr;
    QLineEdit* m_city = nullptr;
};

} // namespace telephone
