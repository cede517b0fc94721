#include "desktops/unattended/form_texts.h"

#include <sstream>

#include "forms/grid.h"
#include "forms/list_view.h"
#include "forms/tree_view.h"

namespace rangewerks::desktops {
namespace {

using Texts = std::vector<std::string>;

std::string Joined(const Texts& cells) {
  std::string line;
  for (std::size_t i = 0; i < cells.size(); ++i) line += (i == 0 ? "" : ", ") + cells[i];
  return line;
}

void AddNodes(const std::vector<forms::TreeNode*>& nodes, const std::string& indent, Texts& texts) {
  for (const forms::TreeNode* node : nodes) {
    texts.push_back(indent + node->get_Text());
    AddNodes(node->Nodes(), indent + "  ", texts);
  }
}

void AddItems(const forms::ListView& list, Texts& texts) {
  for (const forms::ListItem* item : list.Items()) {
    Texts cells{item->get_Text()};
    for (const auto& subItem : item->SubItems()) cells.push_back(subItem.text);
    texts.push_back(Joined(cells));
  }
}

void AddRows(const forms::Grid& grid, Texts& texts) {
  const std::size_t rows = grid.Rows() != nullptr ? grid.Rows()->RowCount() : 0;
  for (std::size_t row = 0; row < rows; ++row) {
    Texts cells;
    for (std::size_t column = 0; column < grid.ColumnCount(); ++column) {
      cells.push_back(grid.CellText(row, column));
    }
    texts.push_back(Joined(cells));
  }
}

void AddControls(const forms::Container& container, Texts& texts) {
  for (const forms::Control* control : container.Children()) {
    if (!control->Properties().visible) continue;
    texts.push_back(control->Properties().text);
    if (const auto* tree = dynamic_cast<const forms::TreeView*>(control)) {
      AddNodes(tree->Roots(), "", texts);
    } else if (const auto* list = dynamic_cast<const forms::ListView*>(control)) {
      AddItems(*list, texts);
    } else if (const auto* grid = dynamic_cast<const forms::Grid*>(control)) {
      AddRows(*grid, texts);
    } else if (const auto* inner = dynamic_cast<const forms::Container*>(control)) {
      AddControls(*inner, texts);
    }
  }
}

}  // namespace

std::string ShownTexts(const std::string& kind, const std::string& title, const Texts& texts) {
  std::string shown = kind + ": " + title + "\n";
  for (const std::string& text : texts) {
    std::istringstream lines(text);
    for (std::string line; std::getline(lines, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      shown += "  " + line + "\n";
    }
  }
  return shown;
}

std::string TextsOf(const forms::Form& form) {
  Texts texts;
  AddControls(form, texts);
  return ShownTexts("Form", form.Caption(), texts);
}

}  // namespace rangewerks::desktops
