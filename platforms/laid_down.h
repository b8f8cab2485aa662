// What was laid down for an operator to do at forms, and what came of it. The same on every platform.
#pragma once

#include <map>
#include <optional>
#include <queue>
#include <string>
#include <string_view>
#include <vector>

#include "platforms/operator.h"
#include "qvn/toolkit/form.h"

namespace qvn {

class LaidDown {
 public:
  void add(std::string_view form, std::vector<Act> acts);
  /// Uses up what is to be done at the showing of a form that begins now; nothing if nothing was laid down for it.
  std::optional<std::vector<Act>> next(std::string_view form);

  void fail(FailedAct act) { failed_.push_back(std::move(act)); }
  std::vector<FailedAct> takeFailed();

  void takePictures(bool take) { taking_ = take; }
  /// Takes a picture of a loaded form, where pictures are taken.
  void look(const toolkit::Form& form);
  std::vector<FormPicture> takePicturesTaken();

 private:
  std::map<std::string, std::queue<std::vector<Act>>, std::less<>> acts_;
  std::vector<FailedAct> failed_;
  std::vector<FormPicture> pictures_;
  bool taking_ = false;
};

/// What an operator sees of a loaded form.
FormPicture pictureOf(const toolkit::Form& form);

}  // namespace qvn
