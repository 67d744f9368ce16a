#include "ui/application/HandOver.h"

#include "ui/extract/frmImageFormatOutput.h"
#include "ui/form/FormRegistry.h"
#include "ui/options/frmOption.h"
#include "ui/progress/frmProgress.h"
#include "ui/wizard/frmLayout.h"
#include "ui/wizard/frmOutputOptions.h"

HandOver::HandOver(FormRegistry& registry, Ports ports)
    : m_registry(registry)
    , m_ports(std::move(ports)) {
    m_ports.pages.startRun = [this] { showProgress(); };
}

void HandOver::showLayout() {
    m_registry.obtain<frmLayout>(m_ports.pages)->showForm();
}

void HandOver::showOutputOptions() {
    m_registry.obtain<frmOutputOptions>(m_ports.pages)->showForm();
}

void HandOver::showOptions() {
    m_registry.obtain<frmOption>(m_ports.options)->showForm();
}

void HandOver::showProgress() {
    m_ports.progress()->load();
}

void HandOver::showProgressAndWait() {
    const auto progress = m_ports.progress();
    progress->load();
    progress->showModal();
    progress->unload();
}

void HandOver::chooseImagePages(ImagePages pages) {
    if (pages == ImagePages::All)
        imagePage()->chooseAllPages();
    else
        imagePage()->chooseFromTo();
}

QString HandOver::sameSourceImagesCaption() {
    return imagePage()->captionOfSameSourceImages();
}

void HandOver::setImagePages(const QString& strExtractPages, std::int16_t intExtractFromTo) {
    imagePage()->strExtractPages = strExtractPages;
    imagePage()->intExtractFromTo = intExtractFromTo;
}

void HandOver::showImageFormatOutput() {
    imagePage()->showForm();
}

std::shared_ptr<frmImageFormatOutput> HandOver::imagePage() {
    return m_registry.obtain<frmImageFormatOutput>(m_ports.pages);
}
