#pragma once

#include <QString>
#include <QWidget>

class QListWidget;
class QStackedWidget;
class QToolButton;

namespace widgets {
class PictureBox;
}

namespace letters {

class PdfPage;

/// The pages of a letter that came on paper: pictures in their order, or one file of any kind. Files are
/// added by whoever owns it, or dropped here.
class PaperPages : public QWidget {
    Q_OBJECT

public:
    explicit PaperPages(QWidget* parent = nullptr);

    /// Whether several pictures may be joined to one letter; else a file takes the place of the one before.
    void setMany(bool many);
    /// @return what is wrong with the file, for a person to read; empty when it was taken
    QString add(const QString& file);
    void clear();
    QStringList files() const;

    /// One file for all pages: the only one as it is, several pictures joined to a PDF in a folder. Empty
    /// when it could not be written.
    QString joined(const QString& folder) const;

Q_SIGNALS:
    void changed();
    void refused(const QString& why); ///< of a file that was dropped

protected:
    void dragEnterEvent(QDragEnterEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void showCurrent();
    void move(int step);
    void remove();

    bool m_many = true;
    QListWidget* m_list;
    QStackedWidget* m_preview;
    widgets::PictureBox* m_picture;
    PdfPage* m_pdf;
    QToolButton* m_up;
    QToolButton* m_down;
    QToolButton* m_remove;
};

} // namespace letters
