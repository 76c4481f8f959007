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

// Each case starts from the defaults with folders 3 and 5 (rows 2, 4) added.
TEST(FolderSelection, OperationsKeepNamesAndRowsTogether) {
    using Fetched = OVPrinterInfoFetch::Result;
    const auto fetched = [](const char *folders, const char *states) {
        Fetched result;
        result.folderNames = names(folders);
        result.folderStates = names(states);
        return result.foldersInUse();
    };
    const struct {
        const char *label;
        std::function<void(OVFolderSelection &)> act;
        QStringList chosen;
        QList<qint32> rows;
    } cases[] = {
        {"nothing",
         [](auto &) {},
         names("Shared Folder 1,Shared Folder 3,Shared Folder 5"),
         {0, 2, 4}},
        {"drop the middle",
         [](auto &s) { s.remove(1); },
         names("Shared Folder 1,Shared Folder 5"),
         {0, 4}},
        {"drop out of range",
         [](auto &s) { s.remove(3), s.remove(-1); },
         names("Shared Folder 1,Shared Folder 3,Shared Folder 5"),
         {0, 2, 4}},
        {"clear", [](auto &s) { s.clear(); }, names("Shared Folder 1"), {0}},
        {"fetched: in-use folders rename by row",
         [&](auto &s) { s.applyFetched(*fetched("a,b,c,d,e,f", "1,1,0,1,1,1")); },
         names("a,d,f"),
         {0, 2, 4}},
        {"fetched: a row past the list keeps its name",
         [&](auto &s) { s.applyFetched(*fetched("a,b,c", "1,1,1")); },
         names("a,c,Shared Folder 5"),
         {0, 2, 4}},
        {"no row chosen: no rename until the lists match",
         [](auto &s) { s.add(-1, QString()), s.applyFetched(names("x,y,z,u,v")); },
         names("Shared Folder 1,Shared Folder 3,Shared Folder 5"),
         {0, 2, 4, -1}},
    };
    for (const auto &[label, act, chosen, rows] : cases) {
        SCOPED_TRACE(label);
        OVFolderSelection selection;
        selection.add(2, "Shared Folder 3");
        selection.add(4, "Shared Folder 5");
        act(selection);
        EXPECT_EQ(selection.selectedSharedBoxNames(), chosen);
        EXPECT_EQ(selection.selectedSharedBoxIndex(), rows);
    }
}

// Lists the printer did not give whole, or of different lengths, are not a folder list.
TEST(FolderSelection, OnlyWholeFetchedListsCount) {
    const std::tuple<std::optional<QStringList>, std::optional<QStringList>, bool> cases[] = {
        {names("a,b"), names("1,0"), true},
        {names("a,b"), names("1"), false},
        {std::nullopt, names("1"), false},
        {names("a"), std::nullopt, false},
        {QStringList(), QStringList(), false}};
    for (const auto &[folders, states, whole] : cases) {
        OVPrinterInfoFetch::Result result;
        result.folderNames = folders;
        result.folderStates = states;
        EXPECT_EQ(result.foldersInUse().has_value(), whole);
    }
}

} // namespace
