#include "letters/record/letter_pane.h"

#include "core/date_patterns.h"
#include "core/photo_file.h"
#include "jet/date_text.h"
#include "letters/record/pdf_page.h"
#include "letters/record/record_statements.h"
#include "platform/drive.h"
#include "platform/message_boxes.h"
#include "platform/shell.h"
#include "widgets/picture_box.h"
#include "widgets/theme.h"

#include <QFileInfo>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QStackedWidget>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace letters {

namespace {

constexpr qsizetype kMostLetters = 256 * 1024; ///< shown of a text that goes on and on

} // namespace

bool isPictureFile(const QString& path)
{
    static const QStringList endings{
        u"png"_s, u"jpg"_s, u"jpeg"_s, u"bmp"_s, u"gif"_s, u"webp"_s, u"tif"_s, u"tiff"_s};
    return endings.contains(QFileInfo(path).suffix().toLower());
}

bool isPdfFile(const QString& path)
{
    return QFileInfo(path).suffix().toLower() == u"pdf";
}

LetterPane::LetterPane(core::Context& context, QWidget* parent)
    : QWidget(parent)
    , m_context(context)
    , m_head(new QLabel)
    , m_about(new QLabel)
    , m_text(new QPlainTextEdit)
    , m_pages(new QStackedWidget)
    , m_picture(new widgets::PictureBox)
    , m_pdf(new PdfPage)
    , m_open(new QPushButton(tr("O&pen the file")))
{
    for (QLabel* label : {m_head, m_about}) {
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    }
    QFont bold = m_head->font();
    bold.setBold(true);
    m_head->setFont(bold);
    m_head->setObjectName(u"lblPerson"_s);
    m_about->setObjectName(u"lblAbout"_s);
    m_text->setObjectName(u"Merged"_s);
    m_text->setAccessibleName(tr("Text of the letter"));
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setPlaceholderText(tr("No letter is chosen"));
    m_picture->setObjectName(u"Picture1"_s);
    m_picture->setAccessibleName(tr("Picture of the letter"));
    m_open->setObjectName(u"CmdOpenFile"_s);
    m_open->setAutoDefault(false);
    widgets::setIcon(m_open, u"file");
    m_pages->addWidget(m_picture);
    m_pages->addWidget(m_pdf);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_head);
    layout->addWidget(m_about);
    layout->addWidget(m_text, 2);
    layout->addWidget(m_pages, 3);
    layout->addWidget(m_open, 0, Qt::AlignLeft);
    connect(m_open, &QPushButton::clicked, this, &LetterPane::openFile);
    show(0);
}

void LetterPane::show(qint64 letter)
{
    const jet::Recordset row
        = letter == 0 ? jet::Recordset() : m_context.data.openRecordset(letterRowSql(letter));
    m_letter = row.hasRow() ? letter : 0;
    if (m_letter == 0) {
        m_head->clear();
        m_about->clear();
        m_text->clear();
        showFile({});
        m_text->setVisible(true);
        return;
    }
    m_head->setText(row.textOrEmpty(u"person").simplified());
    QStringList about;
    const QDate date = row.date(u"Date");
    if (date.isValid())
        about << jet::formatDate(date, core::datePattern(m_context.shared.NationalMode));
    for (const QStringView column : {u"type1", u"Mailtype", u"mailcateg", u"MailID", u"city"}) {
        if (const QString value = row.textOrEmpty(column).simplified(); !value.isEmpty())
            about << value;
    }
    m_about->setText(about.join(u" \u00b7 "_s));
    QString text = row.textOrEmpty(u"Merged");
    if (text.isEmpty())
        text = row.textOrEmpty(u"desc");
    if (const QString note = row.textOrEmpty(u"note"); !note.trimmed().isEmpty())
        text += (text.isEmpty() ? QString() : u"\n\n"_s) + note;
    const bool isCut = text.size() > kMostLetters;
    m_text->setPlainText(isCut ? text.left(kMostLetters) + u"\n..."_s : text);
    showFile(row.textOrEmpty(u"path"));
    m_text->setVisible(!text.isEmpty() || m_pages->isHidden());
}

QString LetterPane::text() const
{
    return m_text->toPlainText();
}

void LetterPane::showFile(const QString& stored)
{
    m_path = core::photoFile(m_context.services.drive, stored);
    const bool isThere = !m_path.isEmpty() && QFileInfo(m_path).isFile();
    const bool isPicture = isThere && isPictureFile(m_path);
    const bool isPdf = isThere && isPdfFile(m_path);
    m_picture->setPath(isPicture ? m_path : QString());
    m_pdf->setPath(isPdf ? m_path : QString());
    m_pages->setCurrentWidget(isPdf ? static_cast<QWidget*>(m_pdf) : m_picture);
    m_pages->setVisible(isPicture || isPdf);
    m_open->setVisible(!stored.isEmpty());
    m_open->setEnabled(isThere);
    m_open->setToolTip(isThere ? stored : tr("The file is not there any more: %1").arg(stored));
}

void LetterPane::openFile()
{
    if (!m_context.services.shell.openFile(m_path))
        m_context.services.boxes.warning(tr("No program opens this file."), m_context.shared.AppTitle);
}

} // namespace letters
