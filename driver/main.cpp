#include "OrvoPPDUpdateFilter.h"

int main(int argc, char **argv) {
    return OrvoPPDUpdateFilter::run(argc, argv);
}
