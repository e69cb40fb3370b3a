#include "gallery/keys/OwnKeys.h"

#include "gallery/keys/MenuKeys.h"

#include <algorithm>

namespace Gallery {

namespace {

/// A command of a menu file, with its keys.
struct Place
{
    vq_uint32 id;
    QString command;
    QList<MenuKey> keys;
};

void add_places(const std::vector<MenuEntry>& entries, QList<Place>& places)
{
    for (const MenuEntry& entry : entries) {
        if (!entry.command.isEmpty())
            places << Place{entry.id, entry.command, entry.keys};
        if (entry.text_key)
            places.back().keys.prepend(*entry.text_key);
        add_places(entry.items, places);
    }
}

QList<Place> places_of(const MenuDocument& document)
{
    QList<Place> places;
    add_places(document.menu, places);
    add_places(document.context, places);
    for (const LonelyKey& lonely : document.keys)
        places << Place{lonely.id, lonely.command, {lonely.key}};
    return places;
}

/// Where the keys of `own` belong: to its entry, or else to the first one with its command; 0 for nowhere.
vq_uint32 place_of(const OwnKeys& own, const QList<Place>& places)
{
    vq_uint32 first = 0;
    for (const Place& place : places) {
        if (place.command != own.command)
            continue;
        if (place.id == own.id)
            return own.id;
        if (first == 0)
            first = place.id;
    }
    return first;
}

}

QHash<vq_uint32, QList<MenuKey>> FactoryKeys(const MenuDocument& document)
{
    QHash<vq_uint32, QList<MenuKey>> keys;
    for (const Place& place : places_of(document))
        if (!place.keys.isEmpty())
            keys.insert(place.id, place.keys);
    return keys;
}

bool HasSameKeys(const QList<MenuKey>& left, const QList<MenuKey>& right)
{
    return left.size() == right.size() && std::is_permutation(left.begin(), left.end(), right.begin());
}

QList<OwnKeys> OwnKeysOf(CVqAbstractMenu& menu, const MenuDocument& document)
{
    const QHash<vq_uint32, QList<MenuKey>> keys = MenuKeys(menu).All();
    QList<OwnKeys> own;
    for (const Place& place : places_of(document))
        if (!HasSameKeys(keys.value(place.id), place.keys))
            own << OwnKeys{place.id, place.command, keys.value(place.id)};
    return own;
}

void GiveOwnKeys(CVqAbstractMenu& menu, const MenuDocument& document, const QList<OwnKeys>& own)
{
    const QList<Place> places = places_of(document);
    MenuKeys keys(menu);
    for (const OwnKeys& one : own) {
        const vq_uint32 id = place_of(one, places);
        if (id == 0)
            continue;
        for (const MenuKey& key : one.keys)
            keys.Take(key);
        keys.Set(id, one.keys);
    }
}

}
