// The folder tab's state without widgets: choosing, dropping, clearing and a
// fetched list renaming the chosen folders by their rows.
#include "OVFolderSelection.h"
#include "OVPrinterInfoFetch.h"

#include <gtest/gtest.h>

#include <functional>

namespace {

QStringList names(const char *commaSeparated) {
    return QString(commaSeparated).split(',', Qt::SkipEmptyParts);
}

std::optional<QStringList> foldersInUse(std::optional<QStringList> folders,
                                        std::optional<QStringList> states) {
    OVPrinterInfoFetch::Result result;
    result.folderNames = std::move(folders);
    result.folderStates = std::move(states);
    return result.foldersInUse();
}

// Each case starts from the defaults with folders 3 and 5 (rows 2, 4) added.
TEST(FolderSelection, OperationsKeepNamesAndRowsTogether) {
    const char *unchanged = "Shared Folder 1,Shared Folder 3,Shared Folder 5";
    const std::tuple<const char *, std::function<void(OVFolderSelection &)>, const char *,
                     QList<qint32>>
        cases[] = {
            {"nothing", [](auto &) {}, unchanged, {0, 2, 4}},
            {"drop the middle",
             [](auto &s) { s.remove(1); },
             "Shared Folder 1,Shared Folder 5",
             {0, 4}},
            {"drop out of range", [](auto &s) { s.remove(3), s.remove(-1); }, unchanged, {0, 2, 4}},
            {"clear", [](auto &s) { s.clear(); }, "Shared Folder 1", {0}},
            {"fetched: in-use folders rename by row",
             [](auto &s) {
                 s.applyFetched(*foldersInUse(names("a,b,c,d,e,f"), names("1,1,0,1,1,1")));
             },
             "a,d,f",
             {0, 2, 4}},
            {"fetched: a row past the list keeps its name",
             [](auto &s) { s.applyFetched(*foldersInUse(names("a,b,c"), names("1,1,1"))); },
             "a,c,Shared Folder 5",
             {0, 2, 4}},
            {"no row chosen: no rename until the lists match",
             [](auto &s) { s.add(-1, QString()), s.applyFetched(names("x,y,z,u,v")); },
             unchanged,
             {0, 2, 4, -1}},
        };
    for (const auto &[label, act, chosen, rows] : cases) {
        SCOPED_TRACE(label);
        OVFolderSelection selection;
        selection.add(2, "Shared Folder 3");
        selection.add(4, "Shared Folder 5");
        act(selection);
        EXPECT_EQ(selection.selectedSharedBoxNames(), names(chosen));
        EXPECT_EQ(selection.selectedSharedBoxIndex(), rows);
    }
    // Lists the printer did not give whole, or of different lengths, are not a folder list.
    EXPECT_TRUE(foldersInUse(names("a,b"), names("1,0")));
    for (const auto &[folders, states] :
         std::initializer_list<std::pair<std::optional<QStringList>, std::optional<QStringList>>>{
             {names("a,b"), names("1")},
             {std::nullopt, names("1")},
             {names("a"), std::nullopt},
             {QStringList(), QStringList()}})
        EXPECT_FALSE(foldersInUse(folders, states));
}

} // namespace
