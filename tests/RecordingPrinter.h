#pragma once

#include "platform/PrinterDevice.h"

/// A printer that keeps the documents printed on it, or refuses them.
class RecordingPrinter : public PrinterDevice
{
public:
    using Documents = std::vector<std::vector<Drawing>>;

    explicit RecordingPrinter(Documents& documents) : m_documents(documents) {}

    void print(const std::vector<Drawing>& pages) override { m_documents.push_back(pages); }

private:
    Documents& m_documents;
};
