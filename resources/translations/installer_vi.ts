<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="vi" sourcelanguage="en">
<context>
    <name>Installer</name>
    <message>
        <source>Select All</source>
        <translation>Chọn tất cả</translation>
    </message>
    <message>
        <source>Go Back</source>
        <translation>Quay lại</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Tiếp</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Đóng</translation>
    </message>
    <message>
        <source>You will be guided through the steps necessary to use this software.</source>
        <translation>Bạn sẽ được hướng dẫn qua các bước cần thiết để sử dụng phần mềm này.</translation>
    </message>
    <message>
        <source>No products found</source>
        <translation>Không tìm thấy sản phẩm nào</translation>
    </message>
    <message>
        <source>You have been successfully installed selected products.</source>
        <translation>Các sản phẩm đã chọn đã được cài đặt thành công.</translation>
    </message>
    <message>
        <source>The installation was not completed successfully.</source>
        <translation>Việc cài đặt chưa hoàn tất thành công.</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Chi tiết</translation>
    </message>
    <message>
        <source>To continue using the software you must agree to the terms of the software license agreement.</source>
        <translation>Để tiếp tục sử dụng phần mềm, bạn phải đồng ý với các điều khoản của thỏa thuận giấy phép phần mềm.</translation>
    </message>
    <message>
        <source>Click Agree to continue or click Disagree to cancel and quit the Installer.</source>
        <translation>Nhấn “Đồng ý” để tiếp tục hoặc nhấn “Từ chối” để hủy bỏ và thoát khỏi trình cài đặt.</translation>
    </message>
    <message>
        <source>Read License</source>
        <translation>Đọc giấy phép</translation>
    </message>
    <message>
        <source>Disagree</source>
        <translation>Từ chối</translation>
    </message>
    <message>
        <source>Agree</source>
        <translation>Đồng ý</translation>
    </message>
    <message>
        <source>Click &quot;Install&quot; button to complete the installation.</source>
        <translation>Nhấn “Cài đặt” để hoàn tất việc cài đặt.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Hủy bỏ</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Cài đặt</translation>
    </message>
    <message>
        <source>To make changes with Installer please allow Finder access from Settings</source>
        <translation>Để trình cài đặt có thể thực hiện thay đổi, vui lòng cho phép truy cập Finder trong phần cài đặt.</translation>
    </message>
    <message>
        <source>Open settings</source>
        <translation>Mở cài đặt</translation>
    </message>
    <message>
        <source>Copy to Clipboard</source>
        <translation>Sao chép vào bảng tạm</translation>
    </message>
    <message>
        <source>Progress of the installation</source>
        <translation>Tiến trình cài đặt</translation>
    </message>
    <message>
        <source>Current step</source>
        <translation>Bước hiện tại</translation>
    </message>
</context>
<context>
    <name>Menu</name>
    <message>
        <source>Quit</source>
        <translation>Thoát</translation>
    </message>
    <message>
        <source>Window</source>
        <translation>Cửa sổ</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>Thu nhỏ</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>Thu phóng</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Install the Corvellane image and video plug-ins</source>
        <translation>Cài đặt các phần bổ trợ ảnh và video của Corvellane</translation>
    </message>
    <message>
        <source>plug-in;photo;video;install;</source>
        <translation>phần bổ trợ;ảnh;video;cài đặt;</translation>
    </message>
    <message>
        <source>A wizard that installs the Corvellane plug-ins for photo and video applications: it shows the licence agreement, lets you choose the products, asks once for an administrator's password, and shows the full log when something goes wrong.</source>
        <translation>Trình hướng dẫn cài đặt các phần bổ trợ Corvellane cho ứng dụng ảnh và video: hiển thị thỏa thuận giấy phép, cho bạn chọn sản phẩm, chỉ hỏi mật khẩu quản trị một lần và hiển thị toàn bộ nhật ký khi có lỗi xảy ra.</translation>
    </message>
    <message>
        <source>Install plug-ins</source>
        <translation>Cài đặt phần bổ trợ</translation>
    </message>
    <message>
        <source>Authentication is required to install the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Cần xác thực để cài đặt các phần bổ trợ Corvellane đã chọn cho mọi người dùng của máy tính này</translation>
    </message>
    <message>
        <source>Remove plug-ins</source>
        <translation>Gỡ bỏ phần bổ trợ</translation>
    </message>
    <message>
        <source>Authentication is required to remove the selected Corvellane plug-ins for all users of this computer</source>
        <translation>Cần xác thực để gỡ bỏ các phần bổ trợ Corvellane đã chọn cho mọi người dùng của máy tính này</translation>
    </message>
</context>
<context>
    <name>QWidgetTextControl</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Sao chép</translation>
    </message>
    <message>
        <source>Copy &amp;Link Location</source>
        <translation>Sao chép địa chỉ &amp;liên kết</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Chọn tất cả</translation>
    </message>
</context>
<context>
    <name>QScrollBar</name>
    <message>
        <source>Scroll here</source>
        <translation>Cuộn đến đây</translation>
    </message>
    <message>
        <source>Left edge</source>
        <translation>Cạnh trái</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Đầu</translation>
    </message>
    <message>
        <source>Right edge</source>
        <translation>Cạnh phải</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Cuối</translation>
    </message>
    <message>
        <source>Page left</source>
        <translation>Sang trang trái</translation>
    </message>
    <message>
        <source>Page up</source>
        <translation>Lên một trang</translation>
    </message>
    <message>
        <source>Page right</source>
        <translation>Sang trang phải</translation>
    </message>
    <message>
        <source>Page down</source>
        <translation>Xuống một trang</translation>
    </message>
    <message>
        <source>Scroll left</source>
        <translation>Cuộn sang trái</translation>
    </message>
    <message>
        <source>Scroll up</source>
        <translation>Cuộn lên</translation>
    </message>
    <message>
        <source>Scroll right</source>
        <translation>Cuộn sang phải</translation>
    </message>
    <message>
        <source>Scroll down</source>
        <translation>Cuộn xuống</translation>
    </message>
</context>
</TS>
