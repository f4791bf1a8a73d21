#include "letters/record/paper_pages.h"

#include "letters/record/letter_pane.h"
#include "letters/record/pdf_page.h"
#include "widgets/picture_box.h"
#include "widgets/theme.h"

#include <QDir>
#include <QDropEvent>
#include <QFileInfo>
#include <QLabel>
#include <QListWidget>
#include <QMimeData>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>
#include <QSaveFile>
#include <QStackedWidget>
#include <QToolButton>
#include <QUrl>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr qint64 kMostBytes = 100'000'000;
constexpr int kMostPages = 100;
constexpr QSize kPageDots(2480, 3508); ///< A4 at 300 dots an inch
constexpr int kDotsPerInch = 300;

} // namespace

PaperPages::PaperPages(QWidget* parent)
    : QWidget(parent)
    , m_list(new QListWidget)
    , m_preview(new QStackedWidget)
    , m_picture(new widgets::PictureBox)
    , m_pdf(new PdfPage)
    , m_up(new QToolButton)
    , m_down(new QToolButton)
    , m_remove(new QToolButton)
{
    setAcceptDrops(true);
    m_list->setObjectName(u"Pages"_s);
    m_list->setAccessibleName(tr("Pages of the letter"));
    m_list->setMaximumHeight(96);
    m_picture->setObjectName(u"PagePicture"_s);
    auto* nothing = new QLabel(tr("Drop a picture or a PDF file here,\nor choose one."));
    nothing->setAlignment(Qt::AlignCenter);
    nothing->setFrameShape(QFrame::StyledPanel);
    nothing->setMinimumHeight(160);
    auto* other = new QLabel;
    other->setObjectName(u"lblFile"_s);
    other->setAlignment(Qt::AlignCenter);
    other->setTextFormat(Qt::PlainText);
    other->setWordWrap(true);
    for (QWidget* page : {static_cast<QWidget*>(nothing), static_cast<QWidget*>(m_picture),
             static_cast<QWidget*>(m_pdf), static_cast<QWidget*>(other)})
        m_preview->addWidget(page);
    struct Button {
        QToolButton* button;
        QString name;
        QStringView icon;
        QString tip;
    };
    auto* row = new QHBoxLayout;
    for (const Button& each : {Button{m_up, u"PageUp"_s, u"arrow-up", tr("Move the page up")},
             Button{m_down, u"PageDown"_s, u"arrow-down", tr("Move the page down")},
             Button{m_remove, u"PageRemove"_s, u"delete", tr("Take the page away")}}) {
        each.button->setObjectName(each.name);
        each.button->setToolTip(each.tip);
        each.button->setAccessibleName(each.tip);
        widgets::setIcon(each.button, each.icon);
        row->addWidget(each.button);
    }
    row->addStretch();
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins({});
    layout->addWidget(m_preview, 1);
    layout->addWidget(m_list);
    layout->addLayout(row);
    connect(m_list, &QListWidget::currentRowChanged, this, &PaperPages::showCurrent);
    connect(m_up, &QToolButton::clicked, this, [this] { move(-1); });
    connect(m_down, &QToolButton::clicked, this, [this] { move(1); });
    connect(m_remove, &QToolButton::clicked, this, &PaperPages::remove);
    showCurrent();
}

void PaperPages::setMany(bool many)
{
    m_many = many;
    for (QWidget* widget :
        {static_cast<QWidget*>(m_list), static_cast<QWidget*>(m_up), static_cast<QWidget*>(m_down)})
        widget->setVisible(many);
}

QString PaperPages::add(const QString& file)
{
    const QFileInfo info(file);
    if (!info.isFile() || !info.isReadable())
        return tr("The file \"%1\" can not be read.").arg(info.fileName());
    if (info.size() > kMostBytes)
        return tr("The file \"%1\" is too large: at most 100 MB are kept.").arg(info.fileName());
    if (m_many) {
        const bool isFirst = m_list->count() == 0;
        if (!isPictureFile(file) && !(isFirst && isPdfFile(file)))
            return isPdfFile(file)
                ? tr("A PDF file is a letter of its own and can not be joined to other pages.")
                : tr("\"%1\" is no picture and no PDF file.").arg(info.fileName());
        if (!isFirst && isPdfFile(m_list->item(0)->data(Qt::UserRole).toString()))
            return tr("The PDF file that is here already is a letter of its own.");
        if (m_list->count() >= kMostPages)
            return tr("A letter has at most %1 pages.").arg(kMostPages);
        if (isPictureFile(file) && widgets::readPicture(file, {16, 16}).isNull())
            return tr("\"%1\" is no picture that can be shown.").arg(info.fileName());
    } else {
        m_list->clear();
    }
    auto* item = new QListWidgetItem(info.fileName());
    item->setData(Qt::UserRole, info.absoluteFilePath());
    m_list->addItem(item);
    m_list->setCurrentItem(item);
    showCurrent();
    Q_EMIT changed();
    return {};
}

void PaperPages::clear()
{
    m_list->clear();
    showCurrent();
    Q_EMIT changed();
}

QStringList PaperPages::files() const
{
    QStringList files;
    for (int row = 0; row < m_list->count(); ++row)
        files << m_list->item(row)->data(Qt::UserRole).toString();
    return files;
}

QString PaperPages::joined(const QString& folder) const
{
    const QStringList pages = files();
    if (pages.size() < 2)
        return pages.value(0);
    const QString path = QDir(folder).filePath(u"Letter.pdf"_s);
    QSaveFile file(path);
    if (!file.open(QIODevice::WriteOnly))
        return {};
    QPdfWriter writer(&file);
    writer.setPageSize(QPageSize(QPageSize::A4));
    writer.setPageMargins({});
    writer.setResolution(kDotsPerInch);
    QPainter painter(&writer);
    for (qsizetype page = 0; page < pages.size(); ++page) {
        if (page > 0)
            writer.newPage();
        const QImage image = widgets::readPicture(pages[page], kPageDots);
        if (image.isNull())
            return {};
        const QSize size = image.size().scaled(kPageDots, Qt::KeepAspectRatio);
        painter.drawImage(QRect(QPoint(), size), image);
    }
    return painter.end() && file.commit() ? path : QString();
}

void PaperPages::showCurrent()
{
    const int row = m_list->currentRow();
    const QString file = row < 0 ? QString() : m_list->item(row)->data(Qt::UserRole).toString();
    const bool isPicture = isPictureFile(file);
    const bool isPdf = isPdfFile(file);
    m_picture->setPath(isPicture ? file : QString());
    m_pdf->setPath(isPdf ? file : QString());
    static_cast<QLabel*>(m_preview->widget(3))->setText(QFileInfo(file).fileName());
    m_preview->setCurrentIndex(file.isEmpty() ? 0 : isPicture ? 1 : isPdf ? 2 : 3);
    m_up->setEnabled(row > 0);
    m_down->setEnabled(row >= 0 && row + 1 < m_list->count());
    m_remove->setEnabled(row >= 0);
}

void PaperPages::move(int step)
{
    const int row = m_list->currentRow();
    const int to = row + step;
    if (row < 0 || to < 0 || to >= m_list->count())
        return;
    m_list->insertItem(to, m_list->takeItem(row));
    m_list->setCurrentRow(to);
    showCurrent();
    Q_EMIT changed();
}

void PaperPages::remove()
{
    delete m_list->takeItem(m_list->currentRow());
    showCurrent();
    Q_EMIT changed();
}

void PaperPages::dragEnterEvent(QDragEnterEvent* event)
{
    if (event->mimeData()->hasUrls())
        event->acceptProposedAction();
}

void PaperPages::dropEvent(QDropEvent* event)
{
    QStringList files;
    for (const QUrl& url : event->mimeData()->urls()) {
        if (url.isLocalFile())
            files << url.toLocalFile();
    }
    event->acceptProposedAction();
    // The program that they come from waits until the drop is over.
    QMetaObject::invokeMethod(
        this,
        [this, files] {
            QStringList complaints;
            for (const QString& file : files) {
                if (const QString why = add(file); !why.isEmpty())
                    complaints << why;
            }
            if (!complaints.isEmpty())
                Q_EMIT refused(complaints.join(u'\n'));
        },
        Qt::QueuedConnection);
}

} // namespace letters
