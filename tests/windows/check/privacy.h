// What is nobody's business: the user's name, the computer's, the folders that hold them, the titles of other
// programs' windows. Texts that come from elsewhere go through hidden() before they are written down.
#pragma once
#include <map>
#include <string>

class Privacy {
  public:
    // Knows the user's name and folders from the start.
    Privacy();

    // Nothing is seen of the secret any more but the name, such as "<user>".
    void add(const std::wstring& secret, const std::wstring& name);
    // A folder under its long and its short name.
    void addFolder(const std::wstring& folder, const std::wstring& name);
    // Adds the titles of the windows that other programs have at this moment.
    void addTitles();

    [[nodiscard]] std::wstring hidden(std::wstring text) const;

  private:
    struct LongestFirst {
        bool operator()(const std::wstring& one, const std::wstring& other) const {
            return one.size() != other.size() ? one.size() > other.size() : one < other;
        }
    };
    std::map<std::wstring, std::wstring, LongestFirst> names_;
};
