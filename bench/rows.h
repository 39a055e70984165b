// The functions that fill the table, one file per subject.
#pragma once

class ratio_table;

void add_decoding_rows(ratio_table& table);
void add_table_rows(ratio_table& table);
void add_drawing_rows(ratio_table& table);
void add_export_rows(ratio_table& table);
