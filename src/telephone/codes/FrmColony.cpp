#include "telephone/codes/FrmColony.h"

#include "core/frame.h"
#include "telephone/codes/address_words.h"
#include "telephone/codes/word_lists.h"

#include <QApplication>
#include <QClipboard>
#include <QDialog>
#include <QVBoxLayout>

using namespace Qt::StringLiterals;

namespace telephone {

namespace {

constexpr QSize kDialogSize{460, 380};

} // namespace

FrmColony::FrmColony(core::Context& context, QWidget* parent)
    : Screen(context, parent)
    , m_lists(new WordLists(context.data, context.shared.NationalMode))
{
    setWindowTitle(tr("Colonies"));
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_lists);
    connect(m_lists, &WordLists::picked, this, [this](const QString& text) {
        QApplication::clipboard()->setText(text);
        this->context().frame.showNotice(tr("Copied %1").arg(text.simplified()));
    });
    setFocusProxy(m_lists);
}

void FrmColony::load()
{
    setFrameTitle(windowTitle());
}

void FrmColony::bookChanged()
{
    m_lists->read();
}

// A form may ask for a word without the lists ever being seen.
void FrmColony::showEvent(QShowEvent* event)
{
    Screen::showEvent(event);
    if (!event->spontaneous())
        m_lists->read();
}

// The word comes without its last letter: of an initial, as in "M.G. Road", nothing is left to look up.
bool FrmColony::hasWords(const QString& city, const QString& word)
{
    if (word.isEmpty())
        return false;
    return !context().data.openRecordset(addressWordsSql(word, shared().NationalMode)).isEmpty()
        || !context().data.openRecordset(cityAreasSql(city)).isEmpty();
}

std::optional<QString> FrmColony::pickWord(const QString& city, const QString& word)
{
    QDialog dialog(QApplication::activeWindow());
    dialog.setObjectName(u"WordDialog"_s);
    dialog.setWindowTitle(windowTitle());
    dialog.resize(kDialogSize);
    auto* lists = new WordLists(context().data, shared().NationalMode);
    auto* layout = new QVBoxLayout(&dialog);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(lists);
    std::optional<QString> picked;
    connect(lists, &WordLists::picked, &dialog, [&](const QString& text) {
        picked = text;
        dialog.accept();
    });
    lists->search(city, word);
    lists->setFocus();
    dialog.exec();
    return picked;
}

} // namespace telephone
