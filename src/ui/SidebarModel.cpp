// SPDX-FileCopyrightText: 2026 The Keyvora developers
// SPDX-License-Identifier: MIT

#include "ui/SidebarModel.h"

#include "model/Localization.h"
#include "ui/CategorySymbols.h"

#include <algorithm>

namespace keyvora {

using namespace Qt::Literals::StringLiterals;

namespace {

struct Bilingual
{
    QString czech;
    QString english;

    [[nodiscard]] QString current() const { return Localization::shared().text(czech, english); }
};

struct Section
{
    SidebarSelection selection;
    QString symbol;
    Bilingual heading;
    Bilingual title;
    Bilingual pageTitle;
};

QList<Section> makeSections()
{
    using Kind = SidebarSelection::Kind;
    const Bilingual library{u"KNIHOVNA"_s, u"LIBRARY"_s};
    const Bilingual discover{u"OBJEVUJ"_s, u"DISCOVER"_s};
    const Bilingual categories{u"KATEGORIE"_s, u"CATEGORIES"_s};

    QList<Section> sections{
        {{Kind::all},
         u"grid_view"_s,
         library,
         {u"Všechny zkratky"_s, u"All Shortcuts"_s},
         {u"Knihovna"_s, u"Library"_s}},
        {{Kind::favorites},
         u"star-fill"_s,
         library,
         {u"Oblíbené"_s, u"Favorites"_s},
         {u"Oblíbené"_s, u"Favorites"_s}},
        {{Kind::keyboard},
         u"keyboard"_s,
         discover,
         {u"Vizuální klávesnice"_s, u"Visual Keyboard"_s},
         {u"Vizuální klávesnice"_s, u"Visual Keyboard"_s}},
        {{Kind::sticker},
         u"touch_app"_s,
         discover,
         {u"Samolepka"_s, u"Cheat Sheet"_s},
         {u"Zkratky ze samolepky"_s, u"Cheat Sheet Shortcuts"_s}},
        {{Kind::firstAid},
         u"medical_services-fill"_s,
         discover,
         {u"První pomoc"_s, u"First Aid"_s},
         {u"První pomoc"_s, u"First Aid"_s}},
        {{Kind::daily},
         u"sunny-fill"_s,
         discover,
         {u"Dnešní zkratka"_s, u"Shortcut of the Day"_s},
         {u"Dnešní výuka"_s, u"Today's Lesson"_s}},
        {{Kind::practice},
         u"psychology"_s,
         discover,
         {u"Procvičování"_s, u"Practice"_s},
         {u"Procvičování"_s, u"Practice"_s}},
    };
    for (const Shortcut::Category category : allCategories)
        sections.append({{Kind::category, category}, categorySymbol(category), categories, {}, {}});
    return sections;
}

const QList<Section> &sections()
{
    static const QList<Section> all = makeSections();
    return all;
}

/// Categories bring names of their own.
QString nameOf(const Section &section, const Bilingual &text)
{
    const bool isCategory = section.selection.kind == SidebarSelection::Kind::category;
    return isCategory ? displayName(section.selection.category) : text.current();
}

} // namespace

SidebarModel::SidebarModel(AppModel &model, QObject *parent)
    : QAbstractListModel(parent)
    , m_model(model)
{
    connect(&m_model, &AppModel::selectionChanged, this, [this] {
        emit currentRowChanged();
        emit pageTitleChanged();
    });
    connect(&Localization::shared(), &Localization::languageChanged, this, [this] {
        emit dataChanged(index(0), index(rowCount() - 1), {TitleRole, HeadingRole});
        emit pageTitleChanged();
    });
}

int SidebarModel::rowCount(const QModelIndex &parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(sections().size());
}

QVariant SidebarModel::data(const QModelIndex &index, int role) const
{
    if (!checkIndex(index, CheckIndexOption::IndexIsValid | CheckIndexOption::ParentIsInvalid))
        return {};
    const Section &section = sections()[index.row()];
    switch (role) {
    case TitleRole:
    case Qt::DisplayRole:
        return nameOf(section, section.title);
    case SymbolRole:
        return section.symbol;
    case HeadingRole:
        return section.heading.current();
    default:
        return {};
    }
}

QHash<int, QByteArray> SidebarModel::roleNames() const
{
    return {{TitleRole, "title"}, {SymbolRole, "symbol"}, {HeadingRole, "heading"}};
}

int SidebarModel::currentRow() const
{
    const auto found = std::ranges::find(sections(), m_model.selection(), &Section::selection);
    return static_cast<int>(found - sections().begin());
}

QString SidebarModel::pageTitle() const
{
    const Section &section = sections()[currentRow()];
    return nameOf(section, section.pageTitle);
}

SidebarModel::Page SidebarModel::page() const
{
    switch (m_model.selection().kind) {
    case SidebarSelection::Kind::all:
    case SidebarSelection::Kind::favorites:
    case SidebarSelection::Kind::category:
        return Page::Library;
    case SidebarSelection::Kind::keyboard:
        return Page::Keyboard;
    case SidebarSelection::Kind::sticker:
        return Page::Sticker;
    case SidebarSelection::Kind::firstAid:
        return Page::FirstAid;
    case SidebarSelection::Kind::daily:
        return Page::Daily;
    case SidebarSelection::Kind::practice:
        return Page::Practice;
    }
    Q_UNREACHABLE();
}

void SidebarModel::select(int row)
{
    if (row >= 0 && row < rowCount())
        m_model.setSelection(sections()[row].selection);
}

} // namespace keyvora
