#include "CupsServerEnvironment.h"

// One private cupsd, with the built update filter, for every test of this binary.
[[maybe_unused]] static ::testing::Environment *const privateCupsd =
    ::testing::AddGlobalTestEnvironment(new CupsServerEnvironment);
