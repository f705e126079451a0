#include "db/writer.h"

namespace db {

void LineWriter::separate() {
  if (!first_) out_ += ',';
  first_ = false;
}

LineWriter& LineWriter::number(double value) {
  separate();
  append_number(out_, value);
  return *this;
}

LineWriter& LineWriter::text(std::string_view value) {
  separate();
  // Between quotes a quote of its own would end it; bare, as it must have been read, it reads the same again.
  const std::string_view quote = value.find('"') == std::string_view::npos ? "\"" : "";
  out_.append(quote).append(value).append(quote);
  return *this;
}

LineWriter& LineWriter::empty() {
  separate();
  return *this;
}

LineWriter& LineWriter::field(const Field& field) {
  if (field.quoted) return text(field.text);
  if (field.text.empty()) return empty();
  if (is_formatted(field.text)) {
    separate();
    out_ += field.text;
    return *this;
  }
  const auto value = parse_number(field.text);
  return value ? number(*value) : text(field.text);
}

void append_record(std::string& out, const Record& record) {
  LineWriter head(out);
  for (const Field& field : record.head) head.field(field);
  head.end();
  const auto append_pairs = [&out](std::span<const Pair> pairs) {
    if (pairs.empty()) return;
    LineWriter line(out);
    for (const Pair& pair : pairs) line.field(pair.stoich).field(pair.compno);
    line.end();
  };
  append_pairs(record.pairs());
  if (!record.has_mb) return;
  LineWriter count(out);
  count.field(record.mb_count).end();
  append_pairs(record.mb_pairs());
}

void append_text_line(std::string& out, std::string_view text) { LineWriter(out).text(text).end(); }

void append_blm(std::string& out, const BlmFields& fields) {
  append_text_line(out, fields.description);
  LineWriter(out).text(fields.label).number(fields.critical_f).end();
}

}  // namespace db
