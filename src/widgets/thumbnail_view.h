#pragma once

#include <QCache>
#include <QListView>
#include <QPixmap>
#include <QSet>
#include <QThreadPool>

namespace widgets {

class ThumbnailModel;

struct Thumbnail {
    qint64 key = 0;
    QString text;
    QString path; ///< of the picture file
};

/// Pictures with a text below each, as a grid that scrolls. A picture is read on another thread once it is in
/// sight, and forgotten again when there are too many; a quiet placeholder stands for one that is broken or
/// has not been read yet.
class ThumbnailView : public QListView {
    Q_OBJECT

public:
    enum class Size { Small, Medium, Large };

    explicit ThumbnailView(QWidget* parent = nullptr);

    void setSize(Size size);
    void clear();
    void append(const QList<Thumbnail>& thumbnails);

    int count() const;
    qint64 currentKey() const; ///< 0 when there is none
    /// The picture of a row if it is there; null also when it is broken.
    QPixmap pictureOf(int row) const;
    /// How many pictures have been read so far, broken ones as well.
    int readings() const { return m_readings; }

Q_SIGNALS:
    void chosen(qint64 key);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    QList<int> rowsInSight() const;
    void readWhatIsInSight();
    void read(const QString& path);
    void arrived(const QString& path, int side, const QImage& image);
    void forgetPictures();

    ThumbnailModel* m_model;
    int m_side;
    QCache<QString, QPixmap> m_pictures; ///< by path; a null one is broken
    QSet<QString> m_underWay;
    QThreadPool m_readers; ///< waits for those under way when it goes
    int m_readings = 0;
};

} // namespace widgets
