#pragma once

#include "core/context.h"

#include <QWidget>

class QComboBox;
class QStackedWidget;
class QToolButton;

namespace views {

class frmDetailView;
class frmNoteView;

/// The page beside the list of the record selector: the detail view, or one of the views of the note view, as
/// the combo above it says. A page is made when it is seen first.
class SelectorPage : public QWidget {
    Q_OBJECT

public:
    explicit SelectorPage(core::Context& context, QWidget* parent = nullptr);

    /// A word of the combo, or "Search" for what a search has found. Any other word changes nothing.
    void openPage(const QString& page);
    /// 0 for none.
    void showContact(qint64 id);
    /// The form name of the page shown.
    QString form() const;
    void setChoiceVisible(bool visible);
    void setInFull(bool inFull);
    bool isInFull() const { return m_inFull; }

Q_SIGNALS:
    void pageOpened();
    void associateShown(qint64 id);
    void fullWanted(bool inFull);

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    core::Context& m_context;
    QString m_word;
    QString m_noteWord; ///< on which the note view stands
    qint64 m_id = 0;
    bool m_inFull = false;
    QComboBox* cmbmulto;
    QWidget* m_choice;
    QToolButton* m_full;
    QStackedWidget* m_pages;
    QWidget* m_nothing;
    frmDetailView* m_detail = nullptr;
    QWidget* m_detailPage = nullptr; ///< which scrolls it
    frmNoteView* m_note = nullptr;
};

} // namespace views
