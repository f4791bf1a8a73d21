#pragma once

#include "core/context.h"

#include <QWidget>

class QLabel;
class QPlainTextEdit;
class QPushButton;
class QStackedWidget;

namespace widgets {
class PictureBox;
}

namespace letters {

class PdfPage;

/// A letter of the record, to be read: who, when and what kind, its text, and the file that belongs to it as
/// a picture where it is one.
class LetterPane : public QWidget {
    Q_OBJECT

public:
    explicit LetterPane(core::Context& context, QWidget* parent = nullptr);

    /// 0 for none, and for one that has gone.
    void show(qint64 letter);
    using QWidget::show;
    qint64 letter() const { return m_letter; }
    QString text() const;

private:
    void showFile(const QString& stored);
    void openFile();

    core::Context& m_context;
    qint64 m_letter = 0;
    QString m_path; ///< of the file, on this computer
    QLabel* m_head;
    QLabel* m_about;
    QPlainTextEdit* m_text;
    QStackedWidget* m_pages;
    widgets::PictureBox* m_picture;
    PdfPage* m_pdf;
    QPushButton* m_open;
};

/// Whether a file is shown as a picture or as a PDF, by its name.
bool isPictureFile(const QString& path);
bool isPdfFile(const QString& path);

} // namespace letters
