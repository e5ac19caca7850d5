#include "contract/profileTable.h"

#include <fstream>
#include <map>
#include <sstream>
#include <stdexcept>

namespace contract {

namespace {

std::vector<std::string> fieldsOf(const std::string& line) {
    std::vector<std::string> fields;
    std::size_t at = 0;
    for (std::size_t tab; (tab = line.find('\t', at)) != std::string::npos; at = tab + 1)
        fields.push_back(line.substr(at, tab - at));
    fields.push_back(line.substr(at));
    return fields;
}

std::string unescaped(const std::string& text) {
    std::string result;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '\\') {
            result += text[at];
            continue;
        }
        switch (text.at(++at)) {
        case 'r':
            result += '\r';
            break;
        case 'n':
            result += '\n';
            break;
        case 't':
            result += '\t';
            break;
        case '0':
            result += '\0';
            break;
        case '\\':
            result += '\\';
            break;
        case 'x':
            result += static_cast<char>(std::stoi(text.substr(at + 1, 2), nullptr, 16));
            at += 2;
            break;
        default:
            throw std::runtime_error("an escape that is none: " + text);
        }
    }
    return result;
}

std::optional<std::string> textOrNone(const std::string& field) {
    if (field == "<null>" || field == "<absent>")
        return std::nullopt;
    return unescaped(field);
}

std::uint32_t number(const std::string& field) {
    return field.empty() ? 0 : static_cast<std::uint32_t>(std::stoul(field));
}

} // namespace

std::vector<ProfileCase> readProfileTable(const std::string& path) {
    std::ifstream file(path, std::ios::binary);
    std::string line;
    if (!std::getline(file, line))
        throw std::runtime_error("cannot read " + path);
    const std::vector<std::string> names = fieldsOf(line);
    std::vector<ProfileCase> cases;
    while (std::getline(file, line)) {
        const std::vector<std::string> fields = fieldsOf(line);
        if (fields.size() != names.size())
            throw std::runtime_error("a row of another width: " + line);
        std::map<std::string, std::string> row;
        for (std::size_t column = 0; column < names.size(); ++column)
            row[names[column]] = fields[column];

        ProfileCase read;
        read.id = row.at("id");
        read.fileBefore = textOrNone(row.at("file_before"));
        read.write = row.at("op") == "write";
        read.section = textOrNone(row.at("section"));
        read.key = textOrNone(row.at("key"));
        read.value = textOrNone(row.at("default_or_value"));
        read.size = number(row.at("size"));
        read.expected = {number(row.at("expect_ret")), unescaped(row.at("expect_out")),
                         textOrNone(row.at("expect_file_after"))};
        read.differsUnderWine = row.at("wine10") != "same";
        read.wine = {number(row.at("wine10_ret")), unescaped(row.at("wine10_out")),
                     textOrNone(row.at("wine10_file"))};
        cases.push_back(std::move(read));
    }
    return cases;
}

} // namespace contract
