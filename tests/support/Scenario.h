// The scenarios of a schema: documents and trees, and what is expected of them, as data (tests/scenarios/README.md).
#ifndef SCENARIO_H
#define SCENARIO_H

#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "XmlTest.h"

using Json = nlohmann::ordered_json;
using Strings = std::vector<std::string>;

/// "level text" of a line, with the code where it is not that of the schemas: "2:6053 text".
std::string Shown(const LogLine& line);

/// The same behind the name of the source file, with the line in the files that are known by fixed numbers.
std::string ShownWithSource(const LogLine& line);

/// What came of a scenario.
struct Outcome {
    Json tree;     ///< null: not decoded.
    Json written;  ///< Text; null: none.
    bool again = false;
    std::vector<LogLine> log{};
    std::size_t objects = 0;  ///< Left behind by the document, and so are the blocks.
    std::size_t blocks = 0;

    /// Each line, with "{text}" for the document and "{written}" for what was written.
    Strings Lines(const std::string& text, bool withSource) const;
};

class Scenario {
  public:
    Scenario(Json& data, const Json& file);

    /// A document; without one, a tree.
    bool HasText() const { return m_data.contains("text") || m_data.contains("sample"); }
    /// The document, or NULL.
    const char* Text() const { return m_hasDocument ? m_text.c_str() : nullptr; }
    const Json& Tree() const { return m_tree; }
    /// The text whose declarations are the binder, or NULL.
    const char* Binder() const { return m_binder.empty() ? nullptr : m_binder.c_str(); }
    bool Decodes() const { return !m_data.contains("expect") || !m_data["expect"].contains("decoded"); }
    /// The document is to leave memory behind.
    bool Leaves() const { return m_data.contains("expect") && m_data["expect"].contains("left"); }
    /// Where it is in its file.
    std::string Name() const;
    /// What is expected of a sample stands in files of this name.
    std::string Sample() const { return m_data.value("sample", ""); }

    /// Checks an outcome, or takes it as what is expected from now on.
    void Expect(const Outcome& outcome, bool isWritten, bool update);

  private:
    Json Actual(const std::string& key, const Json& expected, const Outcome& outcome) const;
    Json Inside(const Json& written) const;
    Json TreeOf(const Outcome& outcome) const;

    Json& m_data;
    Json m_frame = Json::object();
    Json m_tree;
    bool m_hasDocument = false;
    std::string m_text;
    std::string m_binder;
};

/// A file of scenarios.
class ScenarioFile {
  public:
    /// The samples of the schema are scenarios, too, and stand in front of those of the file.
    explicit ScenarioFile(eXMLSchemaID id);

    std::vector<Scenario>& Scenarios() { return m_scenarios; }
    /// What is said of the whole schema, or of the sample `name`; null: nothing.
    Json About(const std::string& key, const std::string& name = "") const;
    /// A text in the frame that `row` is in.
    std::string Framed(const Json& row, const std::string& text) const;
    void Save() const;

  private:
    std::string m_path;
    Json m_file;
    Json m_samples;
    std::vector<Scenario> m_scenarios;
};

/// JSON for readers: what fits into a line stands on one.
std::string Pretty(const Json& json, std::size_t indent = 0, std::size_t before = 0);

/// The lines with line ends between them.
std::string InLines(const Strings& lines);

/// True when expected data is to be written anew.
bool UpdatesExpected();

/// Compares a text with that of a file, or writes the file; an empty text is none.
void ExpectFile(const std::string& path, const std::string& text);

#endif
