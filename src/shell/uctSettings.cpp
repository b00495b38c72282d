#include "shell/uctSettings.h"

#include <QLabel>
#include <QVBoxLayout>

#include "controls/Columns.h"
#include "controls/GridEX.h"
#include "controls/GridRow.h"
#include "controls/TypedSearch.h"
#include "data/Connection.h"
#include "data/Recordset.h"
#include "data/SystemSettings.h"
#include "shell/Labels.h"
#include "shell/MessageBar.h"

namespace tavrelin {

using namespace Qt::StringLiterals;

struct uctSettings::Data {
  Connection connection;
  Recordset settings;
};

namespace {

constexpr int SearchPause = 1500;  // milliseconds

TypedSearch::Criteria CriteriaOf(const QString& typed) {
  return {QStringLiteral("PromptValue LIKE '") + typed + QStringLiteral("%'"), {}};
}

QList<GridColumn> SettingColumns() {
  return {
      NumberColumn(u"ID"_s, u"SettingID"_s, 495).ReadOnly(),
      TextColumn(u"Setting"_s, u"PromptValue"_s, 4995).ReadOnly().Filling(),
      TextColumn(u"Value"_s, u"SettingValue"_s, 1995, 20),
  };
}

}  // namespace

uctSettings::uctSettings(const Surroundings& surroundings, QWidget* parent)
    : Screen("uctSettings", "Settings", surroundings, parent),
      grdSettings_(new GridEX("grdSettings", "Settings", Guard(), this)),
      search_(new TypedSearch(*grdSettings_, SearchPause, CriteriaOf)) {
  UserControl_Initialize();
  LayOut();
}

uctSettings::~uctSettings() = default;

void uctSettings::UserControl_Initialize() {
  grdSettings_->SetColumns(SettingColumns());
  grdSettings_->SetRowName("{PromptValue}");
  grdSettings_->on.KeyDown = [this](GridKeyDown& event) { grdSettings_KeyDown(event); };
  grdSettings_->on.BeforeUpdate = [this](GridUpdate& update) { grdSettings_BeforeUpdate(update); };
}

void uctSettings::LayOut() {
  auto* lblHint = new QLabel(
      "Type Y or N for yes or no. Adjustments and offsets are in twips: 1440 are one inch.", this);
  lblHint->setObjectName("lblHint");
  lblHint->setWordWrap(true);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(16, 8, 16, 0);
  column->setSpacing(8);
  column->addWidget(NewTitle("lblTitle", "Settings", this));
  column->addWidget(lblHint);
  column->addWidget(grdSettings_, 1);
  column->addWidget(stsInfo());
}

void uctSettings::UserControl_Show() {
  data_ = std::make_unique<Data>();
  data_->connection.Open(ConnectString);
  data_->settings = OpenShownSettings(data_->connection);
  grdSettings_->SetRecordset(&data_->settings);
  grdSettings_->ClearCol();
  grdSettings_->setFocus();
}

void uctSettings::UserControl_Hide() {
  search_->Clear();
  grdSettings_->SetRecordset(nullptr);
  data_.reset();
}

void uctSettings::grdSettings_KeyDown(GridKeyDown& event) {
  search_->KeyDown(event);
}

void uctSettings::grdSettings_BeforeUpdate(GridUpdate& update) {
  Settle(CheckSetting(CurrentRow(*grdSettings_)), *grdSettings_, update);
}

}  // namespace tavrelin
