#include "desk_fixture.h"
#include "rows.h"
#include "test_paths.h"

namespace {

class decode_command_test : public desk_test {
  public:
    using desk_test::err;
    using desk_test::out;
    using desk_test::run;
};

using F = const std::vector<std::string>&;
using T = decode_command_test&;

const row_operations<T> OPERATIONS{
    {"status",
     [](F f, T t) {
         const int status = t.run({f.begin(), f.end() - 2});
         EXPECT_EQ(t.err.str().empty(), status == 0);
         return std::to_string(status);
     }},
    {"printed", [](F, T t) { return t.out.str(); }},
    {"told", [](F, T t) { return t.err.str(); }},
};

TEST_F(decode_command_test, prints_and_ends_as_the_rows_say) {
    for (const table_row& row : read_rows(test_data("decode.rows")))
        expect_row<T>(OPERATIONS, row, *this);
}

} // namespace
