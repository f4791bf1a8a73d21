#pragma once

#include <QImage>
#include <QPixmap>
#include <QWidget>

namespace widgets {

/// Reads a picture no larger than it is needed, keeping its proportions. Nothing comes back from what is no
/// ordinary file, is over 100 MB, claims a size beyond reason, or is damaged; nor from a drawing that is
/// compressed, large, or made of other pictures, as nobody can tell beforehand what it takes. May be called
/// on any thread; of several large pictures one is read at a time.
QImage readPicture(const QString& path, QSize within);
/// The same on another thread, for a caller that has to know: the window is painted meanwhile, and takes no
/// input.
QImage readPictureAside(const QString& path, QSize within);

/// Shows a picture file, scaled into the box, as soon as another thread has read it; a quiet placeholder
/// stands for a picture that is missing or broken. The path that was set is kept in any case.
class PictureBox : public QWidget {
    Q_OBJECT

public:
    explicit PictureBox(QWidget* parent = nullptr);

    void setPath(const QString& path);
    QString path() const { return m_path; }
    bool hasPicture() const { return !m_image.isNull(); }
    QSize sizeHint() const override;

Q_SIGNALS:
    void clicked();
    void pictureRead(); ///< or found to be none

protected:
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    QSize wantedSize() const;
    void read(QSize within);
    void arrived(int reading, const QImage& image);

    QString m_path;
    QImage m_image;
    QSize m_readFor; ///< the room for which the picture was read
    QPixmap m_scaled;
    int m_reading = 0; ///< the number of the last one; what earlier ones bring is out of date
    bool m_isReading = false;
};

} // namespace widgets
