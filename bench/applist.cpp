// applist add-each|add-once|contains ENTRIES COUNT: adds ENTRIES identifiers to an empty bypass list, one
// call each or all in one, or asks a list of ENTRIES for COUNT of them. Settings live in memory. `bench/run`
// counts and times it.

#include "applist/AppList.h"
#include "foundation/VirtualRunLoop.h"
#include "platform/simulated/ScriptedPlatform.h"

#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

using namespace barquell;

QStringList identifiers(int count) {
    QStringList list;
    for (int i = 0; i < count; ++i) {
        list.append(QStringLiteral("com.example.application%1").arg(i));
    }
    return list;
}

std::size_t addEach(AppList &list, const QStringList &added) {
    for (const QString &identifier : added) {
        list.addBundleIdentifier(identifier);
    }
    return list.count();
}

std::size_t found(const AppList &list, const QStringList &among, int count) {
    std::size_t number = 0;
    for (int i = 0; i < count; ++i) {
        number += list.containsBundleIdentifier(among.at(i % among.size())) ? 1 : 0;
    }
    return number;
}

} // namespace

int main(int argc, char **argv) {
    if (argc != 4) {
        std::fputs("usage: applist add-each|add-once|contains ENTRIES COUNT\n", stderr);
        return 2;
    }
    static VirtualRunLoop loop;
    static ScriptedPlatform platform;
    RunLoop::setMain(&loop);
    platform.install();
    const int entries = std::atoi(argv[2]);
    const QStringList names = identifiers(entries);
    AppList &list = AppList::bypassAppList();
    std::size_t result = 0;
    if (std::strcmp(argv[1], "add-each") == 0) {
        result = addEach(list, names);
    } else {
        list.addBundleIdentifiers(names);
        result = std::strcmp(argv[1], "contains") == 0 ? found(list, identifiers(entries), std::atoi(argv[3]))
                                                       : list.count();
    }
    std::printf("%zu\n", result);
    return 0;
}
