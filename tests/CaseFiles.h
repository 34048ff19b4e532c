#pragma once

#include <gtest/gtest.h>
#include <json/reader.h>

#include <algorithm>
#include <cctype>
#include <filesystem>
#include <fstream>
#include <functional>
#include <iterator>
#include <map>
#include <memory>
#include <set>
#include <sstream>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

/// The cases of the files in tests/cases, each a test of its own; tests/cases/README.md tells their form.
namespace Qiv::Tests
{

/// Parses one JSON text, strictly; throws otherwise.
inline ::Json::Value Parse(const std::string& text)
{
    ::Json::CharReaderBuilder builder;
    ::Json::CharReaderBuilder::strictMode(&builder.settings_);
    builder["strictRoot"] = false;
    ::Json::Value json;
    std::string errors;
    const std::unique_ptr<::Json::CharReader> reader(builder.newCharReader());
    if (!reader->parse(text.data(), text.data() + text.size(), &json, &errors))
        throw std::runtime_error(errors + text);
    return json;
}

/// The text of a file in this folder.
inline std::string FileText(const std::string& name)
{
    std::ifstream stream(QIV_TESTS_FOLDER "/" + name);
    std::string text(std::istreambuf_iterator<char>(stream), {});
    if (text.empty())
        throw std::runtime_error("cannot read, or nothing in " + name);
    return text;
}

/// The text of a value that was parsed from `text`, without the blanks between its tokens, and with its members in
/// their order: jsoncpp would sort them.
inline std::string TextOf(const ::Json::Value& value, const std::string& text)
{
    std::string compact;
    bool isInString = false;
    for (auto i = static_cast<std::size_t>(value.getOffsetStart());
         i < static_cast<std::size_t>(value.getOffsetLimit()); ++i)
    {
        if (isInString && text[i] == '\\')
            compact += text[i++];
        else if (text[i] == '"')
            isInString = !isInString;
        if (isInString || std::isspace(static_cast<unsigned char>(text[i])) == 0)
            compact += text[i];
    }
    return compact;
}

/// The texts of the elements of a list.
inline std::vector<std::string> Elements(const std::string& list)
{
    std::vector<std::string> texts;
    for (const auto& element : Parse(list))
        texts.push_back(TextOf(element, list));
    return texts;
}

/// The text at a JSON pointer into documents.json, whose names hold no ~.
inline std::string Document(const std::string& pointer)
{
    static const auto text = FileText("cases/documents.json");
    static const auto documents = Parse(text);
    const auto* value = &documents;
    std::istringstream names(pointer.substr(1));
    for (std::string name; std::getline(names, name, '/');)
        value = &(*value)[name];
    if (value->isNull())
        throw std::runtime_error("nothing is at " + pointer);
    return TextOf(*value, text);
}

/// A text of JSON, or what it points at in documents.json when it is a string that begins with a slash.
inline std::string Followed(const std::string& text)
{
    return text.rfind("\"/", 0) == 0 ? Document(Parse(text).asString()) : text;
}

/// A case: its members by name, and those at the top of its file that it does not have itself.
class Case
{
public:
    Case(const std::string& file, const std::string& fileText, const ::Json::Value& top, const ::Json::Value& own)
    {
        for (const auto* const source : {&top, &own})
            for (const auto& name : source->getMemberNames())
                members_[name] = TextOf((*source)[name], fileText);
        const auto names = own.getMemberNames();
        unused_.insert(names.begin(), names.end());
        title_ = file + ": " + Text("name");
    }

    bool Has(const std::string& name) const { return members_.count(name) != 0; }

    /// The text of a member's value; throws when it is absent.
    std::string JsonText(const std::string& name) const
    {
        if (!Has(name))
            throw std::runtime_error("the case has no member \"" + name + '"');
        unused_.erase(name);
        return members_.at(name);
    }
    ::Json::Value operator[](const std::string& name) const { return Parse(JsonText(name)); }

    /// A member that is a string; empty when it is absent.
    std::string Text(const std::string& name) const { return Has(name) ? (*this)[name].asString() : ""; }

    /// The texts of the elements of a list, or of what they point at; none when it is absent.
    std::vector<std::string> List(const std::string& name) const
    {
        auto texts = Has(name) ? Elements(Followed(JsonText(name))) : std::vector<std::string>();
        std::transform(texts.begin(), texts.end(), texts.begin(), Followed);
        return texts;
    }

    /// The texts of all documents that the case is about.
    std::vector<std::string> Documents() const
    {
        auto documents = List("documents");
        if (Has("document"))
            documents.push_back(Followed(JsonText("document")));
        if (Has("text"))
            documents.push_back(Text("text"));
        for (const auto& text : List("texts"))
            documents.push_back(Parse(text).asString());
        auto values = List("values");
        for (const auto& text : List("valueTexts"))
            values.push_back(Parse(text).asString());
        for (const auto& member : List("members"))
            for (const auto& value : values)
                documents.push_back("{" + member + ":" + value + "}");
        if (documents.empty())
            throw std::runtime_error("the case has no document");
        return documents;
    }

    /// Its file and name, for messages.
    const std::string& Title() const { return title_; }

    /// Its own members that nobody has asked for, which prove nothing.
    const std::set<std::string>& Unused() const { return unused_; }

private:
    std::map<std::string, std::string> members_;
    mutable std::set<std::string> unused_;
    std::string title_;
};

using Check = std::function<void(const Case&)>;

class CaseTest : public testing::Test
{
public:
    CaseTest(Case each, Check check) : case_(std::move(each)), check_(std::move(check)) {}

private:
    void TestBody() override
    {
        SCOPED_TRACE(case_.Title());
        try
        {
            check_(case_);
            EXPECT_EQ(case_.Unused(), std::set<std::string>());
        }
        catch (const std::exception& error)
        {
            ADD_FAILURE() << error.what();
        }
    }

    Case case_;
    Check check_;
};

/// Makes a test of each case of a file: "takes the numerator" in readers/Speed.json is readers/Speed.TakesTheNumerator.
/// What is wrong with a file fails a test, too.
inline bool RegisterCases(const std::string& file, const Check& check)
{
    const auto add = [&](const std::string& name, int line, const Case& each, const Check& what)
    {
        testing::RegisterTest(file.substr(0, file.find('.')).c_str(), name.c_str(), nullptr, nullptr,
                              (QIV_TESTS_FOLDER "/cases/" + file).c_str(), line,
                              [=] { return new CaseTest(each, what); });
    };
    try
    {
        const auto text = FileText("cases/" + file);
        auto top = Parse(text);
        const auto cases = std::exchange(top["cases"], {});
        top.removeMember("cases");
        for (const auto& own : cases)
        {
            std::string name;
            bool isStart = true;
            for (const auto character : own["name"].asString())
            {
                if (std::isalnum(static_cast<unsigned char>(character)) != 0)
                    name += static_cast<char>(isStart ? std::toupper(character) : character);
                isStart = character == ' ' || character == '-';
            }
            const auto start = text.begin() + own.getOffsetStart();
            add(name, static_cast<int>(std::count(text.begin(), start, '\n')) + 1, Case(file, text, top, own), check);
        }
    }
    catch (const std::exception& error)
    {
        add("IsAFileOfCases", 1, Case(file, "", {}, {}),
            [message = std::string(error.what())](const Case&) { throw std::runtime_error(message); });
    }
    return true;
}

/// The same for every file of a folder.
inline bool RegisterFolder(const std::string& folder, const Check& check)
{
    for (const auto& file : std::filesystem::directory_iterator(QIV_TESTS_FOLDER "/cases/" + folder))
        RegisterCases(folder + "/" + file.path().filename().string(), check);
    return true;
}

} // namespace Qiv::Tests
