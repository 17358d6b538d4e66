// Prints docs/classes.md: what each schema's documents are made of, from the descriptions of the classes.
//
// usage: class_tree              the page
//        class_tree FAMILIES     says which names a page lacks that are to stand in docs/families.md
#include <algorithm>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

#include "XMLBootstrappingInfo.h"
#include "XMLCWIndication.h"
#include "XMLCallWaitingIndication.h"
#include "XMLConferenceInfo.h"
#include "XMLFt.h"
#include "XMLImdn.h"
#include "XMLIsComposing.h"
#include "XMLMediaControl.h"
#include "XMLPresence.h"
#include "XMLRcsTermsInfo.h"
#include "XMLReginfo.h"
#include "XMLResourceList.h"
#include "XMLRlmi.h"
#include "XMLRlsServices.h"
#include "XMLSchemaNameSpaceRetrieval.h"
#include "XMLSimservs.h"
#include "XMLVolteConfigInfo.h"
#include "XMLWapProvisioningDoc.h"
#include "XMLXcapDirectory.h"
#include "XMLXcapError.h"

namespace {

struct Names {
    eXMLSchemaID schema;
    const XmlClass* description;
    const char* enumerator;
    const char* root;
    const char* factory;
};

template <class Root, eXMLSchemaID schema, class Factory>
constexpr Names Named(const char* enumerator, const char* root, const char* factory) {
    static_assert(Root::Document::kSchema == schema);
    static_assert(std::is_same_v<typename Root::Document::Factory, Factory>);
    return {schema, &Root::kClass, enumerator, root, factory};
}

#define NAMES(enumerator, root, factory) Named<root, enumerator, factory>(#enumerator, #root, #factory)

const Names kNames[] = {
    NAMES(IX_XML_SCHEMA_IS_COMPOSING, ix_isComposing, IsComposingDataBinder),
    NAMES(IX_XML_SCHEMA_RESOURCE_LISTS, ix_resource_lists, ResourceListsDataBinder),
    NAMES(IX_XML_SCHEMA_CONFERENCE_INFO, ix_conference_type, ConferenceInfoDataBinder),
    NAMES(IX_XML_SCHEMA_IMDN, ix_imdn, IMDNDataBinder),
    NAMES(IX_XML_SCHEMA_COMMUNICATION_WAITING, ix_communication_waiting, CommunicationWaitingDataBinder),
    NAMES(IX_XML_SCHEMA_OIP, ix_originating_identity_presentation, OIPDataBinder),
    NAMES(IX_XML_SCHEMA_TIP, ix_terminating_identity_presentation, TIPDataBinder),
    NAMES(IX_XML_SCHEMA_COMMUNICATION_DIVERSION, ix_communication_diversion, CommunicationDiversionDataBinder),
    NAMES(IX_XML_SCHEMA_COMMUNICATION_BARRING, ix_incoming_communication_barring, CommunicationBarringDataBinder),
    NAMES(IX_XML_SCHEMA_COMMUNICATION_BARRING, ix_outgoing_communication_barring, CommunicationBarringDataBinder),
    NAMES(IX_XML_SCHEMA_SIMSERVS, ix_Simservs, SimservsDataBinder),
    NAMES(IX_XML_SCHEMA_XCAP_ERROR, ix_xcap_error, XcapErrorDataBinder),
    NAMES(IX_XML_SCHEMA_WAP_PROVISIONING_DOC, ix_wap_provisioning_doc, WapProvisioningDocDataBinder),
    NAMES(IX_XML_SCHEMA_VOLTE_CONFIG_INFO, ix_volte_config_info, VolteConfigInfoDataBinder),
    NAMES(IX_XML_SCHEMA_PRESENCE, ix_presence, PresenceDataBinder),
    NAMES(IX_XML_SCHEMA_RLS_SERVICES, ix_rls_services, RlsServicesDataBinder),
    NAMES(IX_XML_SCHEMA_LIST, ix_list, ListDataBinder),
    NAMES(IX_XML_SCHEMA_XCAP_DIRECTORY, ix_xcap_directory, XcapDirectoryDataBinder),
    NAMES(IX_XML_SCHEMA_FILE, ix_file, FileDataBinder),
    NAMES(IX_XML_SCHEMA_MEDIA_CONTROL, ix_media_control, MediaControlDataBinder),
    NAMES(IX_XML_SCHEMA_CALL_WAITING_INDICATION, ix_3gpp_ims, CallWaitingIndicationDataBinder),
    NAMES(IX_XML_SCHEMA_CW_INDICATION, ix_ims_3gpp, CWIndicationDataBinder),
    NAMES(IX_XML_SCHEMA_RCS_TERMS_INFO, ix_rcs_terms_info, RcsTermsInfoDataBinder),
    NAMES(IX_XML_SCHEMA_BOOTSTRAPPING_INFO, ix_bootstrappinginfo, BootstrappingInfoDataBinder),
    NAMES(IX_XML_SCHEMA_GRUU, ix_pub_gruu, GruuDataBinder),
    NAMES(IX_XML_SCHEMA_GRUU, ix_temp_gruu, GruuDataBinder),
    NAMES(IX_XML_SCHEMA_REGINFO, ix_reginfo, ReginfoDataBinder),
    NAMES(IX_XML_SCHEMA_SCHEMA_NAMESPACE_RETRIEVAL, ix_schema_namespace_retrieval, SchemaNamespaceRetrievalDataBinder),
};

std::string HeaderOf(const XmlClass& description) {
    const char* const slash = std::strrchr(description.source, '/');
    return std::string(slash != nullptr ? slash + 1 : description.source) + ".h";
}

/// The line of docs/families.md.
std::string LineOf(const Names& names) {
    return "Header `" + HeaderOf(*names.description) + "`, enumerator `" + names.enumerator + "`, root class `" +
           names.root + "`, factory `" + names.factory + "`.";
}

/// "words" and so on.
std::string KindOf(const XmlField& row) {
    switch (row.kind) {
        case XmlFieldKind::Text:
            return "text";
        case XmlFieldKind::Flag:
            return "flag";
        case XmlFieldKind::Enumeration: {
            std::string words;
            for (int i = 0; i < row.enumeration->count; ++i) {
                words += (i == 0 ? "" : "|") + std::string(row.enumeration->TextOf(i));
            }
            return words;
        }
        case XmlFieldKind::TextList:
            return row.role == XmlRole::Words ? "words" : "texts";
        case XmlFieldKind::AttributeList:
            return "pairs";
        default:
            return "number";
    }
}

class Tree {
  public:
    /// The class, in a line with the fields that hold values, and below it those that hold elements.
    void Print(const XmlClass& description, const std::string& name, std::size_t depth) {
        std::string line = std::string(depth * 2, ' ') + name + description.name;
        // Its fields are not those of a document.
        if (&description == &ix_empty_element_type::kClass) {
            std::printf("%s\n", line.c_str());
            return;
        }
        const bool isKnown = std::find(m_shown.begin(), m_shown.end(), &description) != m_shown.end();
        m_shown.push_back(&description);
        if (isKnown) {
            if (HasFields(description)) line += " (see above)";
            std::printf("%s\n", line.c_str());
            return;
        }
        std::vector<const XmlField*> children;
        for (const XmlField* row : RowsOf(description)) {
            const bool isElement = row->kind == XmlFieldKind::Child || row->kind == XmlFieldKind::ChildList;
            if (isElement) children.push_back(row);
            if (isElement || row->role == XmlRole::Dropped) continue;
            if (row->kind == XmlFieldKind::Presence) {
                line += std::string(", ") + row->Name() + " (presence)";
                continue;
            }
            line += std::string(", ") + (row->role == XmlRole::Attribute ? "@" : "") + row->Name();
            if (row->mandatory) line += "!";
            line += " (" + KindOf(*row) + ")";
        }
        std::printf("%s\n", line.c_str());
        for (const XmlField* row : children) PrintChildren(*row, depth + 1);
    }

  private:
    static std::vector<const XmlField*> RowsOf(const XmlClass& description) {
        std::vector<const XmlField*> rows;
        for (const XmlFieldTable* table = &description.table; table != nullptr; table = table->base) {
            for (std::size_t i = 0; i < table->count; ++i) rows.push_back(&table->fields[i]);
        }
        return rows;
    }

    static bool HasFields(const XmlClass& description) { return !RowsOf(description).empty(); }

    void PrintChildren(const XmlField& row, std::size_t depth) {
        const std::string many = row.kind == XmlFieldKind::ChildList ? "*" : "";
        const std::string demanded = row.mandatory ? "!" : "";
        if (row.description != nullptr) Print(*row.description, row.Name() + many + demanded + ": ", depth);
        if (row.description == nullptr) {
            std::printf("%s%s%s%s: elements of several classes\n", std::string(depth * 2, ' ').c_str(), row.Name(),
                        many.c_str(), demanded.c_str());
        }
        for (std::size_t i = 0; i < row.entryCount; ++i) {
            Print(*row.entries[i].description, std::string(row.entries[i].name.Text()) + ": ", depth + 1);
        }
    }

    std::vector<const XmlClass*> m_shown;
};

void PrintPage() {
    std::printf(
        "# Classes\n\nWhat each schema's documents are made of, and the names that a program needs. A test makes "
        "this page of the\ndescriptions of the classes; `IMSXML_UPDATE_EXPECTED=1 ctest --preset release -R "
        "docs.classes` writes it anew.\n\n"
        "| Schema | Header | Enumerator | Root class | Factory |\n|---|---|---|---|---|\n");
    for (const Names& names : kNames) {
        std::printf("| [%s](#%s-%d) | `%s` | `%s` | `%s` | `%s` |\n", XMLFactory::SchemaInfo(names.schema)->name,
                    XMLFactory::SchemaInfo(names.schema)->name, names.schema, HeaderOf(*names.description).c_str(),
                    names.enumerator, names.root, names.factory);
    }
    std::printf(
        "\nEach line has an element and its class, as `ClassName()` tells it, then the fields that hold values: "
        "attributes with `@`, elements\nwithout, `text` for the element's own text, `attributes` for all other "
        "attributes; `!` is what its standard demands. Below it are\nits children; `*` is a list. The data member "
        "of a field is called after it: `@version` is `mVersion`, `contact*` is `mContactList`\nor so; the header "
        "has them.\n");
    eXMLSchemaID last = IX_XML_SCHEMA_RESERVED_6;
    for (const Names& names : kNames) {
        if (names.schema == last) continue;
        last = names.schema;
        std::printf("\n## %s (%d)\n\n```\n", XMLFactory::SchemaInfo(last)->name, last);
        Tree tree;
        for (const Names& root : kNames) {
            if (root.schema == last) tree.Print(*root.description, "", 0);
        }
        std::printf("```\n");
    }
}

}  // namespace

int main(int argc, char** argv) {
    if (argc == 1) {
        PrintPage();
        return 0;
    }
    std::ifstream file(argv[1]);
    const std::string page{std::istreambuf_iterator<char>(file), std::istreambuf_iterator<char>()};
    int status = 0;
    for (const Names& names : kNames) {
        const std::string line = LineOf(names);
        if (page.find(line) != std::string::npos) continue;
        std::printf("%s\n", line.c_str());
        status = 1;
    }
    return status;
}
