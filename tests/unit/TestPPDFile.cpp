#include "TestPPDFile.h"

#include "OrvoPPD_Interface.h"

#include <QFile>

#include <gtest/gtest.h>

TestPPDFile::TestPPDFile(const Attributes &attributes) {
    QByteArray text = "*PPD-Adobe: \"4.3\"\n*FormatVersion: \"4.3\"\n*LanguageVersion: English\n"
                      "*LanguageEncoding: ISOLatin1\n*ModelName: \"T\"\n*NickName: \"T\"\n";
    for (const auto &[keyword, value] : attributes)
        text += "*" + keyword + ": \"" + value + "\"\n";
    QFile file(m_dir.filePath("settings.ppd"));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    file.close();
    m_ppd = r_ppdOpenFile(QFile::encodeName(file.fileName()).constData());
    EXPECT_NE(m_ppd, nullptr) << "libcups refused the test PPD";
}

TestPPDFile::~TestPPDFile() {
    r_ppdClose(m_ppd);
}
