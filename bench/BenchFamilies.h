// Whole documents: decode and release, and encode, next to libexpat, pugixml and tinyxml2.
//
// libexpat and pugixml decode into the structs of BenchRecords.h, which hold what our tree holds: that is checked
// before anything is measured. pugixml encodes a tree that it has parsed before, and tinyxml2 the structs.
#ifndef BENCH_FAMILIES_H
#define BENCH_FAMILIES_H

#include <cstddef>
#include <memory>
#include <string>

#include "BenchRecords.h"
#include "XMLFactory.h"

/// A kind of document: its schema here, and what stands for it elsewhere.
struct BenchFamily {
    eXMLSchemaID schema;
    RecordRoot root;
    /// Reads a document into a struct on the stack.
    void (*readAndRelease)(const std::string& text, const RecordRoot& root, RecordReader read);
    /// Reads a document into a struct that stays.
    std::shared_ptr<void> (*read)(const std::string& text, const RecordRoot& root, RecordReader read);
};

/// A family whose root element stands for a `Root`.
template <class Root>
constexpr BenchFamily MakeFamily(eXMLSchemaID schema, const RecordRoot& root) {
    return {schema, root,
            [](const std::string& text, const RecordRoot& rootOf, RecordReader read) {
                Root record;
                read(text, rootOf, &record);
            },
            [](const std::string& text, const RecordRoot& rootOf, RecordReader read) -> std::shared_ptr<void> {
                const auto record = std::make_shared<Root>();
                read(text, rootOf, record.get());
                return record;
            }};
}

/// Makes a document of about `size` bytes.
using DocumentMaker = std::string (*)(std::size_t size);

enum class BenchDirections { Decode, Both };

/// Adds the benchmarks NAME-decode/LIBRARY and NAME-encode/LIBRARY of a document. `family` must live until the process
/// ends.
void AddDocument(const std::string& name, const BenchFamily& family, DocumentMaker make, std::size_t size = 0,
                 BenchDirections directions = BenchDirections::Both);

/// Adds the benchmarks of documents of 2, 12 and 28 KiB, NAME-2k for example. No schema writes much more.
void AddSizes(const std::string& name, const BenchFamily& family, DocumentMaker make);

/// Adds the benchmarks of documents of 1 and 16 MiB, which are only decoded: the bytes per second must not drop.
void AddGrowth(const std::string& name, const BenchFamily& family, DocumentMaker make);

/// @name The documents of each group of families
/// @{
void AddServiceDocuments();
void AddRegistrationDocuments();
void AddConferenceDocuments();
void AddPresenceDocuments();
void AddMessagingDocuments();
/// @}

#endif
