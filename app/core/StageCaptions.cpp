#include "core/StageCaptions.h"

#include "core/ProgressRun.h"
#include "services/ErrorTrap.h"

namespace run {
namespace {

const QStringList& stageLabels() {
    static const QStringList labels{"lblInitConversion",
                                    "lblParsePDF",
                                    "lblScanPDF",
                                    "lblExtractText",
                                    "lblExtractImage",
                                    "lblGenerateDoc",
                                    "lblGenerateDocComplete",
                                    "lblExtractImageComplete"};
    return labels;
}

} // namespace

void DisplayProgressFormCaptions(ProgressRun& run, const QString& key) {
    const ErrorTrap trap("frmprogress", "DisplayProgressFormCaptions");
    trap([&] {
        if (stageLabels().contains(key))
            run.view.setStatus(run.view.stageCaption(key));
        else if (key == "disableall")
            run.view.hideStageLabels();
    });
}

} // namespace run
