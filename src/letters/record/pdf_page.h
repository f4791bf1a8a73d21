#pragma once

#include <QImage>
#include <QWidget>

class QLabel;
class QToolButton;

namespace letters {

/// A PDF file, a page at a time, read on another thread. Files beyond reason are not read.
class PdfPage : public QWidget {
    Q_OBJECT

public:
    explicit PdfPage(QWidget* parent = nullptr);

    void setPath(const QString& path);
    bool hasPage() const { return !m_image.isNull(); }

Q_SIGNALS:
    void pageRead(); ///< or found to be none

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void read();
    void arrived(int reading, const QImage& image, int pages);
    void turn(int step);

    QString m_path;
    QImage m_image;
    int m_page = 0;
    int m_pages = 0;
    int m_reading = 0; ///< the number of the last one; what earlier ones bring is out of date
    bool m_isReading = false;
    QToolButton* m_back;
    QToolButton* m_next;
    QLabel* m_place;
};

} // namespace letters
