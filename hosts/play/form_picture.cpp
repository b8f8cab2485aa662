#include "hosts/play/form_picture.h"

#include <cstddef>
#include <utility>

namespace qvn::play {

namespace {

Answer columnOf(const FormPicture::Column& seen, FormPicture::Shows shows) {
  Answer column = Answer::object();
  column["caption"] = seen.caption;
  if (shows == FormPicture::Shows::List) {
    column["width"] = seen.width;
  } else {
    column["field"] = seen.field;
    column["format"] = seen.format;
  }
  return column;
}

Answer rowOf(const FormPicture& seen, std::size_t row) {
  Answer texts = Answer::array();
  for (std::size_t column = 0; column < seen.columns.size(); ++column) texts.push_back(seen.cell(row, column));
  return texts;
}

}  // namespace

Answer pictureOf(const FormPicture& seen) {
  Answer picture = Answer::object();
  picture["form"] = seen.form;
  picture["caption"] = seen.caption;
  if (seen.shows == FormPicture::Shows::Nothing) return picture;
  Answer columns = Answer::array();
  for (const FormPicture::Column& column : seen.columns) columns.push_back(columnOf(column, seen.shows));
  picture["columns"] = std::move(columns);
  Answer rows = Answer::array();
  for (std::size_t row = 0; row < seen.rowCount(); ++row) rows.push_back(rowOf(seen, row));
  picture["rows"] = std::move(rows);
  if (seen.shows == FormPicture::Shows::List) picture["selected"] = seen.selected;
  return picture;
}

}  // namespace qvn::play
