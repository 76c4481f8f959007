#include "TestPPDFile.h"

#include "OrvoPPD_Interface.h"

#include <QFile>

#include <gtest/gtest.h>

namespace {
const char header[] = "*PPD-Adobe: \"4.3\"\n"
                      "*FormatVersion: \"4.3\"\n"
                      "*LanguageVersion: English\n"
                      "*LanguageEncoding: ISOLatin1\n"
                      "*ModelName: \"Settings Test\"\n"
                      "*NickName: \"Settings Test\"\n";
}

TestPPDFile::TestPPDFile(const Attributes &attributes) {
    QByteArray text = header;
    for (const auto &[keyword, value] : attributes)
        text += "*" + keyword + ": \"" + value + "\"\n";
    const QString path = m_dir.filePath("settings.ppd");
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(text);
    file.close();
    m_ppd = r_ppdOpenFile(QFile::encodeName(path).constData());
    EXPECT_NE(m_ppd, nullptr) << "libcups refused the test PPD";
}

TestPPDFile::~TestPPDFile() {
    if (m_ppd)
        r_ppdClose(m_ppd);
}
