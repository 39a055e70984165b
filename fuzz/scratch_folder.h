// A folder below TMPDIR for targets whose readers need files; removed on normal exit.
#pragma once

#include <filesystem>
#include <fstream>
#include <string>
#include <string_view>
#include <unistd.h>

class scratch_folder {
  public:
    scratch_folder()
        : path_(std::filesystem::temp_directory_path() /
                ("kestrom-fuzz-" + std::to_string(::getpid()))) {
        std::filesystem::create_directories(path_);
    }
    ~scratch_folder() { std::filesystem::remove_all(path_); }

    std::string path(const std::string& name) const { return path_ / name; }
    std::string write(const std::string& name, std::string_view text) const {
        const std::string file = path(name);
        std::ofstream(file, std::ios::binary) << text;
        return file;
    }

  private:
    std::filesystem::path path_;
};
