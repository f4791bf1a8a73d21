#include "transfer/cards/card_files.h"

#include "transfer/cards/card_names.h"

#include <QCoreApplication>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>

#include <algorithm>

using namespace Qt::StringLiterals;

namespace transfer {

namespace {

QString translated(const char* text)
{
    return QCoreApplication::translate("transfer", text);
}

constexpr size_t kMostCards = 500'000;
constexpr int kMostLeft = 5000;
constexpr int kMostFiles = 100'000;
constexpr qsizetype kNameShown = 100;

class FileReader {
public:
    FileReader(IncomingCards& incoming, const formats::CardColumns& columns, const CardReading& reading)
        : m_incoming(incoming)
        , m_columns(columns)
        , m_reading(reading)
    {
    }

    void read(int fileNumber)
    {
        const QString path = m_incoming.files[fileNumber];
        QFile file(path);
        // Only a plain file: a pipe or a device under that name could block or never end.
        if (!QFileInfo(path).isFile() || !file.open(QIODevice::ReadOnly))
            return leave(fileNumber, 0, {}, translated("the file can not be read"));
        formats::ForeignCardReader cards(file, [this, &file] { return mayGoOn(file.pos()); });
        int number = 0;
        while (!m_incoming.isStopped) {
            const auto card = cards.next();
            if (!card)
                break;
            if (m_incoming.cards.size() >= kMostCards) {
                leave(fileNumber, number + 1, {},
                    translated("there are too many cards: this one and all behind it"));
                m_incoming.isStopped = true;
                break;
            }
            take(*card, fileNumber, ++number);
        }
        if (number == 0 && !m_incoming.isStopped)
            leave(fileNumber, 0, {}, translated("there is no card in the file"));
        m_bytesBefore += file.size();
    }

private:
    bool mayGoOn(qint64 bytes)
    {
        if (m_reading.progress && !m_reading.progress(m_bytesBefore + bytes))
            m_incoming.isStopped = true;
        return !m_incoming.isStopped;
    }

    void leave(int file, int number, const QString& name, const QString& why)
    {
        if (++m_incoming.leftCount <= kMostLeft)
            m_incoming.left.append({m_incoming.sourceOf(file, number), name.left(kNameShown), why});
    }

    void take(const formats::ForeignCard& card, int file, int number)
    {
        IncomingCard incoming;
        incoming.contact = formats::contactOf(card, m_columns);
        incoming.file = file;
        incoming.number = number;
        formats::CardContact& contact = incoming.contact;
        const bool isBlank = contact.values.empty() && contact.photo.isEmpty();
        if (!isBlank)
            completeName(contact);
        const QString name = contact.text(u"Name");
        for (const QString& why : std::exchange(contact.left, {}))
            leave(file, number, name, why);
        if (isBlank)
            return leave(file, number, {}, translated("the card is empty"));
        if (card.isCut)
            leave(file, number, name, translated("the card is too long: the end of it"));
        if (!card.hasEnd)
            leave(
                file, number, name, translated("nothing, but the card has no end: something may be missing"));
        keepPhoto(incoming, name);
        contact.values.shrink_to_fit();
        m_incoming.cards.push_back(std::move(incoming));
    }

    void keepPhoto(IncomingCard& incoming, const QString& name)
    {
        const QByteArray photo = std::exchange(incoming.contact.photo, {});
        if (photo.isEmpty())
            return;
        const QString path = m_reading.photoFolder + u'/' + QString::number(m_incoming.cards.size()) + u'.'
            + formats::pictureEnding(photo);
        QFile file(path);
        const bool isKept = file.open(QIODevice::WriteOnly) && file.write(photo) == photo.size();
        file.close();
        const bool isPicture = isKept && (!m_reading.isPicture || m_reading.isPicture(path));
        if (isPicture)
            incoming.photoFile = path;
        else
            leave(incoming.file, incoming.number, name,
                isKept ? translated("Photo: it is no picture that can be shown")
                       : translated("Photo: there is no room on the disk for it"));
        if (!isPicture)
            QFile::remove(path);
    }

    IncomingCards& m_incoming;
    const formats::CardColumns& m_columns;
    const CardReading& m_reading;
    qint64 m_bytesBefore = 0;
};

} // namespace

QString IncomingCards::sourceOf(int file, int number) const
{
    const QString name = QFileInfo(files.value(file)).fileName();
    return number == 0 ? name : translated("%1, card %2").arg(name).arg(number);
}

IncomingCards readCardFiles(
    const QStringList& files, const formats::CardColumns& columns, const CardReading& reading)
{
    IncomingCards incoming;
    incoming.files = files;
    FileReader reader(incoming, columns, reading);
    for (int file = 0; file < files.size() && !incoming.isStopped; ++file)
        reader.read(file);
    return incoming;
}

QStringList cardFilesBelow(const QString& folder)
{
    QStringList files;
    QDirIterator entries(
        folder, {u"*.vcf"_s, u"*.vcard"_s}, QDir::Files | QDir::NoSymLinks, QDirIterator::Subdirectories);
    while (entries.hasNext() && files.size() < kMostFiles)
        files << entries.next();
    std::sort(files.begin(), files.end());
    return files;
}

} // namespace transfer
