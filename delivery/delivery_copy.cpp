// The copies of a delivery and their report.
#include "delivery/delivery_copy.h"

#include "delivery/file_copy.h"
#include "foundation/alert.h"
#include "foundation/os.h"

const MessageGroup kDeliveryGroup{"Delivery", "&Delivery"};

std::string deliveryHeader(const std::string& mainWindowTitle, int32_t files, const SystemTime& now) {
  size_t dash = mainWindowTitle.find('-');
  size_t start = mainWindowTitle.find_first_not_of(' ', dash == std::string::npos ? 0 : dash + 1);
  std::string name = start == std::string::npos ? std::string() : mainWindowTitle.substr(start);
  return name + " : " + std::to_string(files) + " file" + (files > 1 ? "s" : "") + " (" +
         os().formatDate(now, DateForm::Short, LocaleChoice::System) + " , " +
         os().formatTime(now, LocaleChoice::System) + ")";
}

DeliveryReport copyDeliveries(Host& host, Tableau<Livrage>& deliveries) {
  uint64_t total = 0;
  for (int32_t i = 0; i < deliveries.count(); ++i) {
    FileAttributes info;
    Livrage& record = *deliveries[i];
    record.size = os().attributes(record.source.str(), &info, nullptr) ? static_cast<uint32_t>(info.size) : 0;
    total += record.size;
  }
  DeliveryReport report;
  std::string header = deliveryHeader(host.mainWindowTitle(), deliveries.count(), os().localTime());
  report.subject = "Delivery : " + header;
  Host::MessageHandle parent = host.addMessage(kDeliveryGroup, 0, header);
  {
    CopyProgress progress(host, total);
    for (int32_t i = 0; i < deliveries.count(); ++i) {
      const std::string source = deliveries[i]->source.str();
      const std::string directory = deliveries[i]->directory.str();
      std::string err;
      CopyFailure failure = copyFileWithProgress(source, joinPath(directory, fileNameOf(source)), FinalMode::LikeTarget,
                                                   progress, &err);
      if (failure == CopyFailure::None) {
        host.addMessage(kDeliveryGroup, parent, source + " delivered");
      } else {
        const std::string path = failure == CopyFailure::OpenSource || failure == CopyFailure::ReadSource
                                     ? source
                                     : joinPath(directory, fileNameOf(source));
        host.showStatus(err);
        alert(copyFailureText(failure) + path, "Kesto Addon error", kAlertIconHand);
        report.failed = true;
      }
      report.text += source + " delivered to " + directory + "\n";
    }
  }
  host.showStatus("Delivery terminated");
  return report;
}
