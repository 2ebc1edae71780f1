#include "app/gui/OptionsDialog.h"

#include <wx/bmpcbox.h>
#include <wx/button.h>
#include <wx/checkbox.h>
#include <wx/notebook.h>
#include <wx/sizer.h>
#include <wx/statbox.h>
#include <wx/stattext.h>
#include <wx/textctrl.h>

#include "app/gui/MessageBox.h"
#include "app/gui/TextConversion.h"
#include "app/gui/TwipScale.h"
#include "platform/Toolkit.h"

namespace marlo::gui {

namespace {

wxPanel* CreatePage(wxBookCtrlBase* tabs) {
    return new wxPanel(tabs, wxID_ANY);
}

wxButton* CreateButton(wxWindow* parent, const char* name, const char* caption,
                       wxWindowID id = wxID_ANY) {
    return new wxButton(parent, id, caption, wxDefaultPosition, wxDefaultSize, 0,
                        wxDefaultValidator, name);
}

wxStaticText* CreateLabel(wxWindow* parent, const char* name, const wxString& text = {}) {
    return new wxStaticText(parent, wxID_ANY, text, wxDefaultPosition, wxDefaultSize, 0, name);
}

wxCheckBox* CreateCheckBox(wxWindow* parent, const char* name, const char* caption) {
    return new wxCheckBox(parent, wxID_ANY, caption, wxDefaultPosition, wxDefaultSize, 0,
                          wxDefaultValidator, name);
}

wxStaticBoxSizer* CreateCaptionedBox(wxWindow* page, const char* name, const char* caption) {
    auto* const frame = new wxStaticBoxSizer(wxVERTICAL, page, caption);
    frame->GetStaticBox()->SetName(name);
    return frame;
}

void ShowText(wxStaticText* label, const std::string& text) {
    if (label->GetLabelText() != Shown(text))
        label->SetLabelText(Shown(text));
}

}  // namespace

OptionsDialog::OptionsDialog(wxWindow* mainWindow, const Application& application,
                             PictureBox& firstCsvBox, PictureBox& secondCsvBox)
    : wxDialog(mainWindow, wxID_ANY, "Options", wxDefaultPosition, wxDefaultSize,
               wxDEFAULT_DIALOG_STYLE | wxRESIZE_BORDER, "frmOptions"),
      folders_(this),
      files_(this, application),
      Picture1_(*this),
      logic_(application, {*this, folders_, files_, Picture1_, firstCsvBox, secondCsvBox}) {
    CreateControls();
    BindEvents();
    logic_.Form_Load();
    CentreOnParent();
}

int OptionsDialog::Pixels(int designPixels) const {
    return DesignPixels(*this, designPixels);
}

void OptionsDialog::CreateControls() {
    lblHeader_ = CreateLabel(this, "lblHeader");
    lblHeader_->SetFont(GetFont().Bold());
    tabs_ = new wxNotebook(this, wxID_ANY, wxDefaultPosition, wxDefaultSize, 0, "Tabs");
    tabs_->AddPage(CreateFoldersTab(), "Plugin Folders");
    tabs_->AddPage(CreateCsvTab(), "Csv App");
    tabs_->AddPage(CreateGeneralTab(), "General");
    tabs_->AddPage(CreateLogTab(), "Log");
    auto* const cmdOk = CreateButton(this, "cmdOk", "Ok", wxID_OK);
    auto* const cmdCancel = CreateButton(this, "cmdCancel", "Cancel", wxID_CANCEL);
    cmdOk->SetDefault();

    auto* const buttons = new wxBoxSizer(wxHORIZONTAL);
    buttons->AddStretchSpacer();
    buttons->Add(cmdOk);
    buttons->Add(cmdCancel, wxSizerFlags().Border(wxLEFT, Pixels(8)));
    auto* const all = new wxBoxSizer(wxVERTICAL);
    all->Add(lblHeader_, wxSizerFlags().Expand().Border(wxALL, Pixels(14)));
    all->Add(tabs_, wxSizerFlags(1).Expand().Border(wxLEFT | wxRIGHT, Pixels(14)));
    all->Add(buttons, wxSizerFlags().Expand().Border(wxALL, Pixels(14)));
    SetSizerAndFit(all);
    SetMinSize(GetSize());
    SetSize(wxSize(Pixels(560), Pixels(420)));
}

wxWindow* OptionsDialog::CreateFoldersTab() {
    auto* const page = CreatePage(tabs_);
    lstPaths_ = new LedgerList(page, "LstPaths", logic_.State().LstPaths, wxDefaultSize,
                               wxLC_SINGLE_SEL | wxLC_NO_HEADER | wxBORDER_SIMPLE);
    lstPaths_->SetMinSize(wxSize(Pixels(380), Pixels(180)));
    platform::SetAccessibleName(lstPaths_->GetHandle(), "Plugin Folders");
    cmdAdd_ = CreateButton(page, "cmdAdd", "Add...");
    cmdRemove_ = CreateButton(page, "cmdRemove", "Remove");
    auto* const buttons = new wxBoxSizer(wxVERTICAL);
    buttons->Add(cmdAdd_, wxSizerFlags().Expand());
    buttons->Add(cmdRemove_, wxSizerFlags().Expand().Border(wxTOP, Pixels(8)));
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(lstPaths_, wxSizerFlags(1).Expand().Border(wxALL, Pixels(12)));
    row->Add(buttons, wxSizerFlags().Border(wxTOP | wxRIGHT | wxBOTTOM, Pixels(12)));
    page->SetSizer(row);
    return page;
}

wxWindow* OptionsDialog::CreateCsvTab() {
    auto* const page = CreatePage(tabs_);
    imgcboPath_ = new wxBitmapComboBox(page, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, 0,
                                       nullptr, wxCB_READONLY, wxDefaultValidator, "imgcboPath");
    imgcboPath_->SetMinSize(wxSize(Pixels(200), -1));
    cmdTab2Search_ = CreateButton(page, "cmdTab2Search", "Browse...");
    auto* const row = new wxBoxSizer(wxHORIZONTAL);
    row->Add(imgcboPath_, wxSizerFlags(1).Expand());
    row->Add(cmdTab2Search_, wxSizerFlags().CentreVertical().Border(wxLEFT, Pixels(8)));
    auto* const all = new wxBoxSizer(wxVERTICAL);
    all->Add(row, wxSizerFlags().Expand().Border(wxALL, Pixels(12)));
    page->SetSizer(all);
    return page;
}

wxWindow* OptionsDialog::CreateGeneralTab() {
    auto* const page = CreatePage(tabs_);
    chkIgnoreDX_ = CreateCheckBox(page, "chkIgnoreDX", "Ignore DirectX Plugins");
    chkIgnoreOff_ = CreateCheckBox(page, "chkIgnoreOff", "Ignore Plugins that are turned off");
    auto* const note = CreateCaptionedBox(page, "Frame4", "Note");
    label2_ = CreateLabel(note->GetStaticBox(), "Label2");
    note->Add(label2_, wxSizerFlags().Expand().Border(wxALL, Pixels(8)));
    auto* const all = new wxBoxSizer(wxVERTICAL);
    all->Add(chkIgnoreDX_, wxSizerFlags().Border(wxALL, Pixels(12)));
    all->Add(chkIgnoreOff_, wxSizerFlags().Border(wxLEFT | wxRIGHT | wxBOTTOM, Pixels(12)));
    all->Add(note, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, Pixels(12)));
    page->SetSizer(all);
    return page;
}

wxWindow* OptionsDialog::CreateLogTab() {
    auto* const page = CreatePage(tabs_);
    auto* const search = CreateSearchFrame(page);
    auto* const inventory = CreateInventoryFrame(page);
    auto* const all = new wxBoxSizer(wxVERTICAL);
    all->Add(search, wxSizerFlags().Expand().Border(wxALL, Pixels(12)));
    all->Add(inventory, wxSizerFlags().Expand().Border(wxLEFT | wxRIGHT | wxBOTTOM, Pixels(12)));
    page->SetSizer(all);
    return page;
}

wxSizer* OptionsDialog::CreateSearchFrame(wxWindow* page) {
    auto* const frame = CreateCaptionedBox(page, "Frame2", "Search SX Projects");
    auto* const grid = AddGrid(frame);
    wxWindow* const box = frame->GetStaticBox();
    label1_ = CreateLabel(box, "Label1");
    text1_ = new wxTextCtrl(box, wxID_ANY, "", wxDefaultPosition, wxDefaultSize, wxTE_READONLY,
                            wxDefaultValidator, "Text1");
    platform::SetAccessibleName(text1_->GetHandle(), "Path:");
    const auto centred = wxSizerFlags().CentreVertical();
    grid->Add(CreateLabel(box, "Label4", "Date:"), centred);
    grid->Add(label1_, centred);
    grid->Add(CreateLabel(box, "Label5", "Path:"), centred);
    grid->Add(text1_, wxSizerFlags(1).Expand());
    return frame;
}

wxSizer* OptionsDialog::CreateInventoryFrame(wxWindow* page) {
    auto* const frame = CreateCaptionedBox(page, "Frame3", "Find installed Plugins");
    auto* const grid = AddGrid(frame);
    wxWindow* const box = frame->GetStaticBox();
    label7_ = CreateLabel(box, "Label7");
    const auto centred = wxSizerFlags().CentreVertical();
    grid->Add(CreateLabel(box, "Label6", "Date:"), centred);
    grid->Add(label7_, centred);
    return frame;
}

/// A grid of labels and of what they name.
wxSizer* OptionsDialog::AddGrid(wxSizer* frame) const {
    auto* const grid = new wxFlexGridSizer(2, wxSize(Pixels(12), Pixels(8)));
    grid->AddGrowableCol(1);
    frame->Add(grid, wxSizerFlags().Expand().Border(wxALL, Pixels(8)));
    return grid;
}

void OptionsDialog::BindEvents() {
    const auto onClick = [](wxButton* button, auto handler) {
        button->Bind(wxEVT_BUTTON, [handler](wxCommandEvent&) { handler(); });
    };
    onClick(cmdAdd_, [this] { logic_.cmdAdd_Click(); });
    onClick(cmdRemove_, [this] { logic_.cmdRemove_Click(); });
    onClick(cmdTab2Search_, [this] { logic_.cmdTab2Search_Click(); });
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent&) { logic_.cmdOk_Click(); }, wxID_OK);
    Bind(
        wxEVT_BUTTON, [this](wxCommandEvent&) { logic_.cmdCancel_Click(); }, wxID_CANCEL);
    tabs_->Bind(wxEVT_NOTEBOOK_PAGE_CHANGED, [this](wxBookCtrlEvent& event) {
        event.Skip();
        if (event.GetSelection() != logic_.State().tab)
            logic_.Tabs_Click(event.GetSelection());
    });
    chkIgnoreDX_->Bind(wxEVT_CHECKBOX,
                       [this](wxCommandEvent& event) { logic_.SetIgnoreDX(event.IsChecked()); });
    chkIgnoreOff_->Bind(wxEVT_CHECKBOX,
                        [this](wxCommandEvent& event) { logic_.SetIgnoreOff(event.IsChecked()); });
    Bind(wxEVT_DPI_CHANGED, [this](wxDPIChangedEvent& event) {
        event.Skip();
        CallAfter(&OptionsDialog::FollowScreen);  // in its new size
    });
    BindListEvents();
}

void OptionsDialog::BindListEvents() {
    for (const auto& type : {wxEVT_LIST_ITEM_SELECTED, wxEVT_LIST_ITEM_DESELECTED})
        lstPaths_->Bind(type, [this](wxListEvent& event) {
            event.Skip();
            logic_.SelectPath(lstPaths_->ActivePosition());
        });
    lstPaths_->Bind(wxEVT_SIZE, [this](wxSizeEvent& event) {
        event.Skip();
        lstPaths_->AutoSizeColumns();
    });
}

void OptionsDialog::Show(const OptionsState& state) {
    ShowText(lblHeader_, state.lblHeader);
    if (tabs_->GetSelection() != state.tab)
        tabs_->ChangeSelection(static_cast<std::size_t>(state.tab));
    lstPaths_->ShowRows();
    imgcboPath_->Clear();
    imgcboPath_->Append(Shown(state.imgcboPath), wxBitmapBundle(Picture1_.Picture()));
    imgcboPath_->SetSelection(0);
    // Some systems make such a control anew for items of another height.
    platform::SetAccessibleName(imgcboPath_->GetHandle(), "Csv App");
    chkIgnoreDX_->SetValue(state.chkIgnoreDX);
    chkIgnoreOff_->SetValue(state.chkIgnoreOff);
    ShowText(label1_, state.Label1);
    text1_->ChangeValue(Shown(state.Text1));
    ShowText(label7_, state.Label7);
    ShowText(label2_, state.Label2);
    LayOut();
}

/// The toolkit lays a page out when its size changes, and not when a text in it does.
void OptionsDialog::LayOut() {
    label2_->Wrap(Pixels(460));
    Layout();
    for (std::size_t i = 0; i < tabs_->GetPageCount(); ++i)
        tabs_->GetPage(i)->Layout();
}

/// The dialog is on a screen of another resolution.
void OptionsDialog::FollowScreen() {
    Picture1_.Redraw();
    Show(logic_.State());
    logic_.ShadePaths();
}

MessageAnswer OptionsDialog::ShowMessage(const Message& message) {
    return ShowMessageBox(this, message);
}

void OptionsDialog::Close() {
    EndModal(wxID_OK);
}

}  // namespace marlo::gui
