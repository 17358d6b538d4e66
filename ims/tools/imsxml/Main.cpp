#include <CLI/CLI.hpp>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <sstream>
#include <string>
#include <vector>

#include "Diff.h"
#include "JsonSchema.h"
#include "Runner.h"
#include "Schema.h"
#include "SchemaNames.h"
#include "Sip.h"
#include "Text.h"

namespace {

constexpr char kAbout[] = R"help(Reads and writes the XML documents of the IP Multimedia Subsystem.

Every command but diff, which takes two, and schemas takes any number of files; "-" is the standard input. Each file is tried, also after one that failed.)help";

constexpr char kFooter[] = R"help(
Exit status, the highest of all files:
  0  done
  1  a document could not be decoded; the message says where and why
  2  wrong usage, a file that cannot be read, or output that cannot be written
  3  decoded, but the document cannot be written, or not without loss (lost, convert --strict)
  4  the time limit of --timeout ran out

Examples:
  imsxml decode --format tree gruu.xml
  imsxml decode *.xml | jq .root.class
  imsxml decode --sip notify.sip
  imsxml convert --profile standard waiting.xml
  imsxml decode waiting.xml | imsxml encode -
  imsxml lost presence.xml
  imsxml diff sent.xml answered.xml
  imsxml validate waiting.xml
  imsxml namespaces presence.xml

"imsxml COMMAND --help" tells more of a command.)help";

constexpr char kDecodeFooter[] = R"help(
Prints one object per file: its schema, its name and the root element. An element has its class and the fields that are
set. One file is spread over lines; of several files each has one line. The schema follows from the root element and
its namespace, unless --schema names one.

The tree has a line for each field. An element stands on one line when its fields are few and short; otherwise its
fields are below it, and the field that distinguishes it from its siblings follows the name.

With --sip, a file is a SIP message, several of them, or a MIME multipart. Each part whose content type has a schema is
decoded, and printed on one line as FILE#2, FILE#2.1 inside part 2, or FILE#3#2 in the third of several messages. The
other parts are named on the standard error.

Exit status: 0 done, 1 not decoded, 2 wrong usage or unreadable file, 4 time limit.

Examples:
  imsxml decode gruu.xml
  imsxml decode --format tree --schema communication-waiting --binder waiting.xml
  imsxml decode --format tree --color always provisioning.xml | less -R
  imsxml decode --sip trace.sip | jq -r .file
  curl -s http://xcap.example/waiting.xml | imsxml decode --log -)help";

constexpr char kConvertFooter[] = R"help(
Decodes each document and prints the text that the library writes for it, without a line feed behind it. A text of more
than 32767 characters is cut, and values are not escaped, in the device profile; a text that is cut or not well-formed
comes with a warning. --strict also tells what of the document is lost, as "imsxml lost" does, on the standard error.

Exit status: 0 done, 1 not decoded, 2 wrong usage or unreadable file, 3 cannot be written, or --strict has something to
tell, 4 time limit.

Examples:
  imsxml convert gruu.xml
  imsxml convert --strict waiting.xml >/dev/null && echo unchanged
  imsxml convert --binder waiting.xml > written.xml)help";

constexpr char kEncodeFooter[] = R"help(
Makes the tree that JSON says, as decode prints it, and prints the text that the library writes for it, as convert does.
A file can have several documents, one behind the other or in an array. Nothing is passed over: a key, a word or a class
that the schema does not have at its place is an error.

Exit status: 0 done, 1 no such JSON, 2 wrong usage or unreadable file, 3 cannot be written, 4 time limit.

Examples:
  imsxml decode gruu.xml | jq '.root.uri = "sip:a@b;gr=2"' | imsxml encode -
  imsxml encode --profile standard waiting.json)help";

constexpr char kLostFooter[] = R"help(
Prints a line for each value and each element that the written text of a document has lost, changed or added: the path,
the value and what became of it. Nothing lost: nothing is printed. Documents are compared as by "imsxml diff".

Exit status: 0 nothing is lost, 1 not decoded, or no XML that can be compared, 2 wrong usage or unreadable file,
3 something is lost, or the document cannot be written, 4 time limit.

Examples:
  imsxml lost presence.xml
  imsxml lost --profile standard *.xml)help";

constexpr char kDiffFooter[] = R"help(
Prints a line for each value and each element that the second document has not, has otherwise or has besides. Elements
and attributes go by namespace and local name. The order of elements with different names does not count, nor do
prefixes, comments, white space around texts, leading zeros, and 1 or 0 for true or false. The prefixes "ss", "cp" and
"ocp" need no declaration, as in parts of supplementary services.

Exit status: 0 no difference, 1 different, 2 wrong usage, a file that cannot be read, or no XML.

Example:
  imsxml diff sent.xml answered.xml)help";

constexpr char kValidateFooter[] = R"help(
Prints "FILE: valid", or a line with line and column for each point in which the document is not what its standard says,
as far as the library knows it: what is missing, given twice, out of place, no word or number of the standard, or not of
it. What is of another namespace is no fault. The document is read in the standard profile.

Exit status: 0 valid, 1 not valid or no XML, 2 wrong usage or unreadable file, 4 time limit.

Example:
  imsxml validate *.xml)help";

constexpr char kNamespacesFooter[] = R"help(
Prints one line per declaration, in the order of the text: the prefix, a tab and the URI. The default namespace has the
prefix "(default)". With several files, each line starts with the file's name and a tab.

Exit status: 0 done, 1 not decoded, 2 wrong usage or unreadable file, 4 time limit.

Example:
  imsxml namespaces simservs.xml)help";

constexpr char kSchemasFooter[] = R"help(
Prints one line per schema: its number, the name that --schema takes, whether documents are only read, its namespace and
its content types ("-": none), and its root elements ("*": any). --long tells that and what a program needs: the header
to include, the number's name, the class of each root element and the factory that makes it. --json prints the JSON
Schema (draft 2020-12) of what decode prints for documents of one schema.

Examples:
  imsxml schemas --long
  imsxml schemas | grep simservs
  imsxml schemas --json reginfo > reginfo.schema.json)help";

/// @return what is wrong with a number of seconds; "": nothing.
std::string CheckSeconds(const std::string& text) {
    char* end = nullptr;
    const double seconds = std::strtod(text.c_str(), &end);
    const bool valid = end != text.c_str() && *end == '\0' && std::isfinite(seconds) && seconds >= 0;
    return valid ? "" : "\"" + text + "\" is no number of seconds";
}

/// The one line about a command line that is not understood.
std::string WrongUsage(const CLI::App* app, const CLI::Error& error) {
    const std::vector<CLI::App*> commands = app->get_subcommands();
    const std::vector<std::string> rest = app->remaining();
    const bool isUnknown = commands.empty() && !rest.empty();
    return "imsxml: " + (isUnknown ? '"' + rest[0] + "\" is no command" : error.what()) + "; see imsxml " +
           (commands.empty() ? "" : commands[0]->get_name() + ' ') + "--help\n";
}

/// The arguments, the last one first, as the parser takes them.
std::vector<std::string> Arguments(int argc, char** argv) {
    std::vector<std::string> arguments;
    for (int i = argc - 1; i > 0; --i) {
        std::string argument = argv[i];
        // The parser takes such a name for a list of names.
        if (Begins(argument, "[") && Ends(argument, "]")) argument.insert(0, "./");
        arguments.push_back(std::move(argument));
    }
    return arguments;
}

class CommandLine {
  public:
    CommandLine();
    int Run(int argc, char** argv);

  private:
    CLI::App* AddFileCommand(const char* name, const char* about, const char* footer);
    void AddProfile(CLI::App* command);
    void AddSchema(CLI::App* command);
    void AddContentType(CLI::App* command);
    void AddDecoding(CLI::App* command);

    Options m_options;
    std::optional<std::string> m_schema;
    std::optional<std::string> m_contentType;
    std::optional<std::string> m_jsonSchema;
    std::string m_profile = "device";
    std::string m_format = "json";
    std::string m_colour = "auto";
    std::string m_log;
    bool m_long = false;
    CLI::App m_app{kAbout, "imsxml"};
    CLI::App* m_decode;
    CLI::App* m_convert;
    CLI::App* m_encode;
    CLI::App* m_lost;
    CLI::App* m_diff;
    CLI::App* m_validate;
    CLI::App* m_schemas;
};

CommandLine::CommandLine() {
    m_app.set_version_flag("--version", "imsxml " IMSXML_VERSION, "Print the version and exit");
    m_app.footer(kFooter);
    m_app.require_subcommand(1);
    m_app.failure_message(WrongUsage);
    m_decode = AddFileCommand("decode", "Print documents as typed trees", kDecodeFooter);
    AddDecoding(m_decode);
    m_decode->add_option("--format", m_format, "json, or tree, an outline for people")
        ->check(CLI::IsMember({"json", "tree"}))
        ->capture_default_str();
    m_decode
        ->add_option("--color", m_colour, "Colours in the tree: auto (on a terminal, unless NO_COLOR), always or never")
        ->check(CLI::IsMember({"auto", "always", "never"}))
        ->capture_default_str();
    m_decode->add_flag("--sip", m_options.sip, "Decode the documents in SIP messages and MIME multiparts")
        ->excludes("--schema")
        ->excludes("--content-type");
    m_convert = AddFileCommand("convert", "Decode documents and write them again", kConvertFooter);
    AddDecoding(m_convert);
    m_convert->add_flag("--strict", m_options.strict, "Status 3 for a text that is not all that the document says");
    m_lost = AddFileCommand("lost", "Say what is lost when documents are decoded and written again", kLostFooter);
    AddDecoding(m_lost);
    m_diff = m_app.add_subcommand("diff", "Say what two documents say differently");
    m_diff->footer(kDiffFooter);
    m_diff->add_option("FILE", m_options.files, "The two documents; \"-\" is the standard input")
        ->required()
        ->expected(2);
    m_encode = AddFileCommand("encode", "Write the documents that JSON says", kEncodeFooter);
    AddSchema(m_encode);
    AddProfile(m_encode);
    m_validate = AddFileCommand("validate", "Say where documents are not what their standard says", kValidateFooter);
    AddContentType(m_validate);
    AddProfile(AddFileCommand("namespaces", "Print the namespace declarations of documents", kNamespacesFooter));
    m_schemas = m_app.add_subcommand("schemas", "Print the schemas that documents can have");
    m_schemas->footer(kSchemasFooter);
    m_schemas->add_flag("--long", m_long, "A block of lines a schema, with header, enumerator, root class and factory");
    m_schemas->add_option("--json", m_jsonSchema, "Print the JSON Schema of this schema's documents")
        ->type_name("NAME");
}

CLI::App* CommandLine::AddFileCommand(const char* name, const char* about, const char* footer) {
    CLI::App* const command = m_app.add_subcommand(name, about);
    command->footer(footer);
    command->add_option("FILE", m_options.files, "Documents; \"-\" is the standard input")
        ->required()
        ->check([](const std::string& file) { return std::string(file.empty() ? "a name is empty" : ""); });
    command
        ->add_flag("--log{all}", m_log,
                   "Print the library's log lines to the standard error; --log=faults: only faults")
        ->check(CLI::IsMember({"all", "faults"}));
    command->add_flag("--leaks", m_options.leaks, "Print to the standard error what memory is alive after each file");
    command->add_option("--timeout", m_options.timeout, "Seconds that a file may take; 0: no limit")
        ->check(CheckSeconds)
        ->capture_default_str();
    return command;
}

void CommandLine::AddProfile(CLI::App* command) {
    command
        ->add_option("--profile", m_profile,
                     "device, the dialect of the client stack, or standard, what the public standards say")
        ->check(CLI::IsMember({"device", "standard"}))
        ->capture_default_str();
}

void CommandLine::AddSchema(CLI::App* command) {
    command->add_option("--schema", m_schema, "Name of the schema; see \"imsxml schemas\"")->type_name("NAME");
}

void CommandLine::AddContentType(CLI::App* command) {
    AddSchema(command);
    command->add_option("--content-type", m_contentType, "Content type of the documents, in place of --schema")
        ->type_name("TYPE")
        ->excludes("--schema");
}

void CommandLine::AddDecoding(CLI::App* command) {
    AddContentType(command);
    AddProfile(command);
    command->add_flag("--binder", m_options.binder,
                      "Let the prefixes that the document declares count (supplementary services only)");
}

int CommandLine::Run(int argc, char** argv) {
    try {
        m_app.parse(Arguments(argc, argv));
        if (m_schema) m_options.schema = &SchemaByName(*m_schema);
        if (m_contentType) m_options.schema = &SchemaByContentType(*m_contentType);
        if (m_jsonSchema) return Print(JsonSchemaOf(SchemaByName(*m_jsonSchema)));
    } catch (const CLI::ParseError& error) {
        std::ostringstream help;
        return m_app.exit(error, help, std::cerr) == 0 ? Print(help.str()) : kWrongUsage;
    } catch (const DocumentError& error) {
        std::fprintf(stderr, "imsxml: %s\n", error.message.c_str());
        return error.status;
    }
    if (m_schemas->parsed()) return Print(m_long ? DescribeSchemas() : ListSchemas());
    if (m_diff->parsed()) return RunDiff(m_options.files);
    if (m_profile == "standard") m_options.profile = IX_XML_PROFILE_STANDARD;
    m_options.tree = m_format == "tree";
    if (!m_log.empty()) m_options.log = m_log == "all" ? kAllLines : kFaultLines;
    if (m_colour != "auto") m_options.colour = m_colour == "always" ? Colour::Always : Colour::Never;
    if (m_decode->parsed()) return RunOnFiles(m_options.sip ? DecodeMessages : DecodeDocument, m_options);
    if (m_encode->parsed()) return RunOnFiles(EncodeDocument, m_options);
    if (m_validate->parsed()) return RunOnFiles(ValidateDocument, m_options);
    if (m_lost->parsed()) return RunOnFiles(ListLosses, m_options);
    return RunOnFiles(m_convert->parsed() ? ConvertDocument : ListNamespaces, m_options);
}

}  // namespace

int main(int argc, char** argv) { return CommandLine().Run(argc, argv); }
