#pragma once

#include <QList>
#include <QTemporaryDir>

#include <cups/ppd.h>

// A minimal PPD with the given main keywords and quoted values, opened through
// the program's libcups wrapper while the object lives.
class TestPPDFile {
public:
    using Attributes = QList<std::pair<QByteArray, QByteArray>>;

    explicit TestPPDFile(const Attributes &attributes);
    ~TestPPDFile();
    TestPPDFile(const TestPPDFile &) = delete;
    TestPPDFile &operator=(const TestPPDFile &) = delete;

    ppd_file_t *ppd() const { return m_ppd; }

private:
    QTemporaryDir m_dir;
    ppd_file_t *m_ppd = nullptr;
};
