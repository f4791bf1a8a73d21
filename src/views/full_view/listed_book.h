#pragma once

#include "views/full_view/FullView.h"

namespace views {

/// The address book that the full view lists: the program's own, or another one that can only be read.
class FullView::ListedBook {
public:
    explicit ListedBook(FullView& view)
        : m_view(view)
    {
    }
    ListedBook(const ListedBook&) = delete;
    ListedBook& operator=(const ListedBook&) = delete;
    virtual ~ListedBook() = default;

    virtual bool isOwn() const = 0;
    virtual void list() = 0; ///< all contacts, none of them current
    virtual void listAgain() = 0; ///< the same selection, with the same contact current
    virtual void listAll() = 0; ///< the same contact among all
    virtual void show(int row) = 0;

protected:
    FullView& m_view;
};

class FullView::OwnBook final : public ListedBook {
public:
    using ListedBook::ListedBook;

    bool isOwn() const override { return true; }
    void list() override;
    void listAgain() override;
    void listAll() override;
    void show(int row) override;
};

class FullView::OtherBook final : public ListedBook {
public:
    OtherBook(FullView& view, std::unique_ptr<AddressSource> source);
    ~OtherBook() override;

    bool isOwn() const override { return false; }
    void list() override;
    void listAgain() override;
    void listAll() override { listAgain(); }
    void show(int row) override;

private:
    std::unique_ptr<AddressSource> m_source;
};

} // namespace views
