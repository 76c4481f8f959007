#include "OrvoSettings.h"

namespace {

namespace K = OrvoSettingsKeywords;

constexpr OrvoSettingsNameList lists[] = {
    {K::SharedBoxName, &OrvoSettings::sharedBoxNames, K::listLimit},
    {K::SelSharedBoxName, &OrvoSettings::selectedSharedBoxNames, K::listLimit},
    {K::PSFormName, &OrvoSettings::formNames, K::listLimit},
    {K::BarcodeAreaDefName, &OrvoSettings::barcodeAreaNames, K::listLimit},
    {K::ColorProfileName, &OrvoSettings::colorProfileNames, K::colorProfileLimit},
};

} // namespace

std::span<const OrvoSettingsNameList> OrvoSettings::nameLists() {
    return lists;
}
