// The cars: those compiled into the program, by name, and any other from a file.
#pragma once

#include "car.h"

#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

// An error in a car file. what() is "FILE:LINE: REASON", without the line if there is none.
class car_file_error : public std::runtime_error {
  public:
    car_file_error(std::string file, int line, std::string reason);
    const std::string& file() const { return file_; }
    int line() const { return line_; } // 0: the file as a whole
    const std::string& reason() const { return reason_; }

  private:
    std::string file_;
    int line_;
    std::string reason_;
};

// Names of the built-in cars, in alphabetical order.
std::vector<std::string> car_names();

// The built-in car of that name, else the car in the file of that name. Throws car_file_error.
car load_car(const std::string& name_or_file);

// Reads a car from the text of a file; `file` is for messages only. Throws car_file_error.
car read_car(std::string_view text, const std::string& file);
