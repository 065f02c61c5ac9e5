<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name></name>
    <message id="status.external_power">
        <source>External power</source>
        <translation>외부 전원</translation>
    </message>
    <message id="status.waiting_telemetry">
        <source>Waiting for telemetry</source>
        <translation>데이터 기다리는 중</translation>
    </message>
    <message id="status.on_battery">
        <source>On battery</source>
        <translation>배터리 사용 중</translation>
    </message>
    <message id="status.charging">
        <source>Charging</source>
        <translation>충전 중</translation>
    </message>
    <message id="status.power_connected">
        <source>Not charging</source>
        <translation>충전 안 함</translation>
    </message>
    <message id="status.fully_charged">
        <source>Fully charged</source>
        <translation>완전 충전됨</translation>
    </message>
    <message id="power.ac_connected">
        <source>AC power connected</source>
        <translation>전원 어댑터 연결됨</translation>
    </message>
    <message id="power.dc_disconnected">
        <source>No external power</source>
        <translation>외부 전원 없음</translation>
    </message>
    <message id="duration.minutes">
        <source>%L1 min</source>
        <translation>%L1분</translation>
    </message>
    <message id="duration.hours_minutes">
        <source>%L1 h %L2 min</source>
        <translation>%L1시간 %L2분</translation>
    </message>
    <message id="battery.health.good">
        <source>Good</source>
        <translation>좋음</translation>
    </message>
    <message id="battery.health.fair">
        <source>Fair</source>
        <translation>보통</translation>
    </message>
    <message id="battery.health.poor">
        <source>Poor</source>
        <translation>나쁨</translation>
    </message>
    <message id="FERROW">
        <source>FERROW</source>
        <translation>FERROW</translation>
    </message>
    <message id="%.1f W">
        <source>%.1f W</source>
        <translation>%.1f W</translation>
    </message>
    <message id="— W">
        <source>— W</source>
        <translation>— W</translation>
    </message>
    <message id="app.menu_subtitle">
        <source>Power monitor</source>
        <translation>전력 모니터</translation>
    </message>
    <message id="app.menu_subtitle_simulated">
        <source>Simulated notebook · not this machine</source>
        <translation>시뮬레이션 노트북 · 이 컴퓨터 아님</translation>
    </message>
    <message id="app.menu_subtitle_simulated_desktop">
        <source>Simulated desktop · not this machine</source>
        <translation>시뮬레이션 데스크톱 · 이 컴퓨터 아님</translation>
    </message>
    <message id="app.version">
        <source>Version %1</source>
        <translation>버전 %1</translation>
    </message>
    <message id="status.live">
        <source>Live</source>
        <translation>실시간</translation>
    </message>
    <message id="status.waiting">
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message id="power.battery_discharge">
        <source>BATTERY DISCHARGE</source>
        <translation>배터리 방전</translation>
    </message>
    <message id="power.system_total">
        <source>System total</source>
        <translation>시스템 합계</translation>
    </message>
    <message id="power.live_flow">
        <source>Live power flow</source>
        <translation>실시간 전력 흐름</translation>
    </message>
    <message id="power.adapter">
        <source>Adapter</source>
        <translation>어댑터</translation>
    </message>
    <message id="power.mac_system">
        <source>Mac system</source>
        <translation>Mac 시스템</translation>
    </message>
    <message id="device.power_source">
        <source>Power source</source>
        <translation>전원</translation>
    </message>
    <message id="device.sample_rate">
        <source>Sample rate</source>
        <translation>샘플링 주기</translation>
    </message>
    <message id="battery.title">
        <source>Battery</source>
        <translation>배터리</translation>
    </message>
    <message id="battery.not_detected">
        <source>No battery detected</source>
        <translation>배터리가 감지되지 않음</translation>
    </message>
    <message id="battery.desktop_description">
        <source>This Mac runs on external power only.</source>
        <translation>이 Mac은 외부 전원으로만 작동합니다.</translation>
    </message>
    <message id="battery.cycle_count">
        <source>Cycle count</source>
        <translation>사이클 수</translation>
    </message>
    <message id="battery.voltage">
        <source>Voltage</source>
        <translation>전압</translation>
    </message>
    <message id="battery.current">
        <source>Current</source>
        <translation>전류</translation>
    </message>
    <message id="battery.charge_status">
        <source>Charge status</source>
        <translation>충전 상태</translation>
    </message>
    <message id="battery.status">
        <source>Battery status</source>
        <translation>배터리 상태</translation>
    </message>
    <message id="battery.estimated_full">
        <source>Time to full</source>
        <translation>완충까지</translation>
    </message>
    <message id="battery.health">
        <source>Health</source>
        <translation>성능 상태</translation>
    </message>
    <message id="battery.temperature">
        <source>Temperature</source>
        <translation>온도</translation>
    </message>
    <message id="battery.health_value">
        <source>%1% · %2</source>
        <translation>%1% · %2</translation>
    </message>
    <message id="setting.login_awaiting_approval">
        <source>Approve Ferrow in System Settings › Login Items to start it at login</source>
        <translation>시스템 설정 › 로그인 항목에서 Ferrow를 허용하세요</translation>
    </message>
    <message id="setting.login_needs_applications">
        <source>Move Ferrow to Applications to start it at login</source>
        <translation>Ferrow를 응용 프로그램 폴더로 옮기세요</translation>
    </message>
    <message id="setting.launch_at_login">
        <source>Launch at login</source>
        <translation>로그인 시 실행</translation>
    </message>
    <message id="setting.menu_bar_power">
        <source>Show watts in menu bar</source>
        <translation>메뉴 막대에 와트 표시</translation>
    </message>
    <message id="action.open_details">
        <source>Open details</source>
        <translation>세부 정보 열기</translation>
    </message>
    <message id="action.open_details_subtitle">
        <source>Charts, cells and battery history</source>
        <translation>차트, 셀 및 배터리 기록</translation>
    </message>
    <message id="action.open_official_website">
        <source>Open the Ferrow website</source>
        <translation>Ferrow 웹사이트 열기</translation>
    </message>
    <message id="action.quit">
        <source>Quit Ferrow</source>
        <translation>Ferrow 종료</translation>
    </message>
    <message id="action.show_dashboard">
        <source>Show dashboard</source>
        <translation>대시보드 보기</translation>
    </message>
    <message id="tray.no_tray_notice">
        <source>No menu-bar area on this desktop: the dashboard opens as a window.</source>
        <translation>이 데스크톱에는 메뉴 막대 영역이 없어 대시보드가 창으로 열립니다.</translation>
    </message>
    <message id="tray.tooltip">
        <source>Ferrow · %1</source>
        <translation>Ferrow · %1</translation>
    </message>
    <message id="tray.tooltip_simulated">
        <source>Ferrow (simulated) · %1</source>
        <translation>Ferrow(시뮬레이션) · %1</translation>
    </message>
    <message id="window.device_details">
        <source>Device details</source>
        <translation>기기 세부 정보</translation>
    </message>
    <message id="app.subtitle">
        <source>Power, battery and cells at a glance</source>
        <translation>전력, 배터리, 셀을 한눈에</translation>
    </message>
    <message id="action.refresh">
        <source>Refresh</source>
        <translation>새로 고침</translation>
    </message>
    <message id="action.refresh_help">
        <source>Take a reading now</source>
        <translation>지금 측정</translation>
    </message>
    <message id="action.toggle_sidebar">
        <source>Show or hide the sidebar</source>
        <translation>사이드바 보기 또는 가리기</translation>
    </message>
    <message id="sidebar.monitor">
        <source>Monitor</source>
        <translation>모니터</translation>
    </message>
    <message id="sidebar.system">
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message id="sidebar.updated_at">
        <source>Updated at %1</source>
        <translation>%1에 업데이트됨</translation>
    </message>
    <message id="accessibility.scroll_to">
        <source>Scroll to %1</source>
        <translation>%1(으)로 스크롤</translation>
    </message>
    <message id="section.overview">
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message id="section.power">
        <source>Power</source>
        <translation>전력</translation>
    </message>
    <message id="section.battery">
        <source>Charge and health</source>
        <translation>충전 및 성능 상태</translation>
    </message>
    <message id="section.cells">
        <source>Cells</source>
        <translation>셀</translation>
    </message>
    <message id="section.device">
        <source>Device</source>
        <translation>기기</translation>
    </message>
    <message id="overview.external_power">
        <source>Running on external power</source>
        <translation>외부 전원으로 작동 중</translation>
    </message>
    <message id="overview.charging">
        <source>Charging</source>
        <translation>충전 중</translation>
    </message>
    <message id="overview.no_battery_subtitle">
        <source>This Mac has no battery; all power comes from its supply.</source>
        <translation>이 Mac에는 배터리가 없으며 모든 전력은 전원 장치에서 공급됩니다.</translation>
    </message>
    <message id="overview.power_distribution_subtitle">
        <source>Adapter power is shared between the system and the battery.</source>
        <translation>어댑터 전력을 시스템과 배터리가 나누어 씁니다.</translation>
    </message>
    <message id="overview.battery_subtitle">
        <source>The battery supplies the whole system.</source>
        <translation>배터리가 시스템 전체에 전력을 공급합니다.</translation>
    </message>
    <message id="power.distribution">
        <source>Power distribution</source>
        <translation>전력 분배</translation>
    </message>
    <message id="power.chip_permission">
        <source>Chip power stays empty: this Linux machine lets only root read the processor’s energy counters. The README’s “Chip power on Linux” shows a udev rule that allows it.</source>
        <translation>칩 전력이 비어 있습니다. 이 Linux 컴퓨터에서는 root만 프로세서의 에너지 카운터를 읽을 수 있습니다. README의 “Chip power on Linux”에 이를 허용하는 udev 규칙이 있습니다.</translation>
    </message>
    <message id="power.dc_input">
        <source>DC input</source>
        <translation>DC 입력</translation>
    </message>
    <message id="power.battery_power">
        <source>Battery power</source>
        <translation>배터리 전력</translation>
    </message>
    <message id="power_history.title">
        <source>Power history</source>
        <translation>전력 기록</translation>
    </message>
    <message id="power_history.pwr">
        <source>PWR</source>
        <translation>PWR</translation>
    </message>
    <message id="power_history.range">
        <source>Time range</source>
        <translation>시간 범위</translation>
    </message>
    <message id="power_history.minutes">
        <source>%L1 min</source>
        <translation>%L1분</translation>
    </message>
    <message id="power_history.waiting">
        <source>Waiting for readings</source>
        <translation>측정값 기다리는 중</translation>
    </message>
    <message id="power_history.waiting_description">
        <source>The chart fills in once a second.</source>
        <translation>차트는 1초마다 채워집니다.</translation>
    </message>
    <message id="power_history.average">
        <source>Average</source>
        <translation>평균</translation>
    </message>
    <message id="power_history.peak">
        <source>Peak</source>
        <translation>피크</translation>
    </message>
    <message id="power_history.time">
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message id="power_history.watts">
        <source>Watts</source>
        <translation>와트</translation>
    </message>
    <message id="battery.not_detected_description">
        <source>This Mac runs on external power only.</source>
        <translation>이 Mac은 외부 전원으로만 작동합니다.</translation>
    </message>
    <message id="battery.design_capacity">
        <source>Design capacity</source>
        <translation>설계 용량</translation>
    </message>
    <message id="battery.full_charge_capacity">
        <source>Full charge capacity</source>
        <translation>완전 충전 용량</translation>
    </message>
    <message id="battery.nominal_full_charge_capacity">
        <source>Nominal full charge capacity</source>
        <translation>공칭 완전 충전 용량</translation>
    </message>
    <message id="capacity.mah">
        <source>%L1 mAh</source>
        <translation>%L1 mAh</translation>
    </message>
    <message id="count.times" numerus="yes">
        <source>%Ln times</source>
        <translation>
            <numerusform>%Ln회</numerusform>
        </translation>
    </message>
    <message id="cells.status">
        <source>Cell voltages</source>
        <translation>셀 전압</translation>
    </message>
    <message id="cells.no_data">
        <source>No cell voltages</source>
        <translation>셀 전압 없음</translation>
    </message>
    <message id="cells.no_data_description">
        <source>This battery does not report its cells.</source>
        <translation>이 배터리는 셀 정보를 보고하지 않습니다.</translation>
    </message>
    <message id="cells.source.registry">
        <source>Reported by the battery</source>
        <translation>배터리에서 보고함</translation>
    </message>
    <message id="cells.source.smc">
        <source>Read from the system management controller</source>
        <translation>시스템 관리 컨트롤러에서 읽음</translation>
    </message>
    <message id="device.title">
        <source>This Mac</source>
        <translation>이 Mac</translation>
    </message>
    <message id="device.once_per_second">
        <source>Once a second</source>
        <translation>1초에 한 번</translation>
    </message>
    <message id="device.gpu_power">
        <source>GPU power</source>
        <translation>GPU 전력</translation>
    </message>
    <message id="device.battery_serial">
        <source>Battery serial</source>
        <translation>배터리 일련번호</translation>
    </message>
    <message id="device.total_operating_time">
        <source>Total operating time</source>
        <translation>총 작동 시간</translation>
    </message>
    <message id="device.history">
        <source>Lifetime history</source>
        <translation>전체 사용 기록</translation>
    </message>
    <message id="duration.days_hours">
        <source>%L1 d %L2 h</source>
        <translation>%L1일 %L2시간</translation>
    </message>
    <message id="history.max_battery_temperature">
        <source>Highest battery temperature</source>
        <translation>최고 배터리 온도</translation>
    </message>
    <message id="history.min_battery_temperature">
        <source>Lowest battery temperature</source>
        <translation>최저 배터리 온도</translation>
    </message>
    <message id="history.average_battery_temperature">
        <source>Average battery temperature</source>
        <translation>평균 배터리 온도</translation>
    </message>
    <message id="history.max_pack_voltage">
        <source>Highest pack voltage</source>
        <translation>최고 팩 전압</translation>
    </message>
    <message id="history.min_pack_voltage">
        <source>Lowest pack voltage</source>
        <translation>최저 팩 전압</translation>
    </message>
    <message id="history.max_charge_current">
        <source>Highest charge current</source>
        <translation>최대 충전 전류</translation>
    </message>
    <message id="history.max_discharge_current">
        <source>Highest discharge current</source>
        <translation>최대 방전 전류</translation>
    </message>
    <message id="history.safety_protection_count">
        <source>Safety protection events</source>
        <translation>안전 보호 작동 횟수</translation>
    </message>
    <message id="battery.packs">
        <source>Batteries</source>
        <translation>배터리</translation>
    </message>
    <message id="battery.pack_charge">
        <source>Charge</source>
        <translation>충전량</translation>
    </message>
    <message id="power.usb_c_contract">
        <source>USB-C %1 V · %2 A</source>
        <translation>USB-C %1 V · %2 A</translation>
    </message>
    <message id="power.usb_c_voltage">
        <source>USB-C %1 V</source>
        <translation>USB-C %1 V</translation>
    </message>
    <message id="section.energy_history">
        <source>History</source>
        <translation>기록</translation>
    </message>
    <message id="energy_history.off">
        <source>History is off.</source>
        <translation>기록이 꺼져 있습니다.</translation>
    </message>
    <message id="energy_history.failing">
        <source>History is not being kept: %1</source>
        <translation>기록이 저장되지 않고 있습니다: %1</translation>
    </message>
    <message id="energy_history.empty">
        <source>No history yet: Ferrow records energy once a minute.</source>
        <translation>아직 기록이 없습니다. Ferrow는 1분마다 에너지를 기록합니다.</translation>
    </message>
    <message id="energy_history.since">
        <source>Ferrow has been keeping history since %1</source>
        <translation>Ferrow는 %1부터 기록을 저장하고 있습니다</translation>
    </message>
    <message id="energy_history.range">
        <source>Range</source>
        <translation>기간</translation>
    </message>
    <message id="energy_history.week">
        <source>7 days</source>
        <translation>7일</translation>
    </message>
    <message id="energy_history.month">
        <source>30 days</source>
        <translation>30일</translation>
    </message>
    <message id="energy_history.year">
        <source>12 months</source>
        <translation>12개월</translation>
    </message>
    <message id="energy_history.energy">
        <source>Energy</source>
        <translation>에너지</translation>
    </message>
    <message id="energy_history.adapter">
        <source>From the adapter</source>
        <translation>어댑터에서</translation>
    </message>
    <message id="energy_history.battery">
        <source>From the battery</source>
        <translation>배터리에서</translation>
    </message>
    <message id="energy_history.nothing_in_range">
        <source>Nothing recorded in this period</source>
        <translation>이 기간에 기록된 내용이 없습니다</translation>
    </message>
    <message id="energy_history.sessions">
        <source>Recent sessions</source>
        <translation>최근 세션</translation>
    </message>
    <message id="energy_history.no_sessions">
        <source>No sessions recorded yet.</source>
        <translation>기록된 세션이 아직 없습니다.</translation>
    </message>
    <message id="energy_history.batteries">
        <source>Battery health over time</source>
        <translation>시간에 따른 배터리 상태</translation>
    </message>
    <message id="energy_history.health">
        <source>Health (%)</source>
        <translation>상태(%)</translation>
    </message>
    <message id="energy_history.capacity">
        <source>Full-charge capacity (mAh)</source>
        <translation>완전 충전 용량(mAh)</translation>
    </message>
    <message id="session.on_battery">
        <source>On battery</source>
        <translation>배터리 사용</translation>
    </message>
    <message id="session.on_adapter">
        <source>On the adapter</source>
        <translation>어댑터 연결</translation>
    </message>
    <message id="session.on_battery_for">
        <source>On battery for %1 · %2 used</source>
        <translation>배터리 사용 %1 · %2 소모</translation>
    </message>
    <message id="session.on_adapter_for">
        <source>On the adapter for %1 · %2 delivered</source>
        <translation>어댑터 연결 %1 · %2 공급</translation>
    </message>
    <message id="session.mean_peak">
        <source>Mean %1 · Peak %2</source>
        <translation>평균 %1 · 최대 %2</translation>
    </message>
    <message id="session.two_units">
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message id="session.minutes" numerus="yes">
        <source>%Ln min</source>
        <translation>
            <numerusform>%Ln분</numerusform>
        </translation>
    </message>
    <message id="session.hours" numerus="yes">
        <source>%Ln h</source>
        <translation>
            <numerusform>%Ln시간</numerusform>
        </translation>
    </message>
    <message id="session.days" numerus="yes">
        <source>%Ln d</source>
        <translation>
            <numerusform>%Ln일</numerusform>
        </translation>
    </message>
    <message id="history.keep">
        <source>Keep energy history</source>
        <translation>에너지 기록 보관</translation>
    </message>
    <message id="history.turn_off_title">
        <source>Turn off energy history?</source>
        <translation>에너지 기록을 끄시겠습니까?</translation>
    </message>
    <message id="history.turn_off_text">
        <source>Ferrow will delete the energy history it has kept on this computer. This cannot be undone.</source>
        <translation>Ferrow가 이 컴퓨터에 보관한 에너지 기록을 삭제합니다. 되돌릴 수 없습니다.</translation>
    </message>
    <message id="history.turn_off_confirm">
        <source>Delete history</source>
        <translation>기록 삭제</translation>
    </message>
    <message id="power.computer_system">
        <source>System</source>
        <translation>시스템</translation>
    </message>
    <message id="battery.computer_external_only">
        <source>This computer runs on external power only.</source>
        <translation>이 컴퓨터는 외부 전원으로만 작동합니다.</translation>
    </message>
    <message id="overview.computer_no_battery_subtitle">
        <source>This computer has no battery; all power comes from its supply.</source>
        <translation>이 컴퓨터에는 배터리가 없으며 모든 전력은 전원 장치에서 공급됩니다.</translation>
    </message>
    <message id="device.computer_title">
        <source>This computer</source>
        <translation>이 컴퓨터</translation>
    </message>
    <message id="accessibility.not_available">
        <source>not available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message id="accessibility.reading">
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message id="accessibility.note">
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
    <message id="accessibility.watts">
        <source>%1 watts</source>
        <translation>%1와트</translation>
    </message>
    <message id="accessibility.volts">
        <source>%1 volts</source>
        <translation>%1볼트</translation>
    </message>
    <message id="accessibility.amperes">
        <source>%1 amperes</source>
        <translation>%1암페어</translation>
    </message>
    <message id="accessibility.degrees_celsius">
        <source>%1 degrees Celsius</source>
        <translation>섭씨 %1도</translation>
    </message>
    <message id="accessibility.milliampere_hours" numerus="yes">
        <source>%Ln mAh</source>
        <translation>
            <numerusform>%Ln밀리암페어시</numerusform>
        </translation>
    </message>
    <message id="accessibility.hertz" numerus="yes">
        <source>%Ln Hz</source>
        <translation>
            <numerusform>%Ln헤르츠</numerusform>
        </translation>
    </message>
    <message id="accessibility.cell">
        <source>Cell %L1</source>
        <translation>셀 %L1</translation>
    </message>
    <message id="accessibility.flow_adapter">
        <source>Adapter %1 to system %2</source>
        <translation>어댑터 %1에서 시스템 %2(으)로</translation>
    </message>
    <message id="accessibility.flow_battery">
        <source>Battery %1 to system %2</source>
        <translation>배터리 %1에서 시스템 %2(으)로</translation>
    </message>
    <message id="accessibility.flow_charging">
        <source>Adapter %1 to system %2 and battery %3</source>
        <translation>어댑터 %1에서 시스템 %2, 배터리 %3(으)로</translation>
    </message>
    <message id="accessibility.flow_discharging">
        <source>Adapter %1 and battery %2 to system %3</source>
        <translation>어댑터 %1 및 배터리 %2에서 시스템 %3(으)로</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.title">
        <source>Charger cannot keep up</source>
        <translation>충전기 전력 부족</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body">
        <source>The battery has been draining %1 although external power is connected: adapter %2 (%3, %4), system %5, battery %6.</source>
        <translation>외부 전원이 연결되어 있는데도 배터리가 %1 방전되고 있습니다: 어댑터 %2(%3, %4), 시스템 %5, 배터리 %6.</translation>
    </message>
    <message id="alert.charger_cannot_keep_up.body_unmeasured">
        <source>The battery has been draining %1 although external power is connected: system %2, battery %3.</source>
        <translation>외부 전원이 연결되어 있는데도 배터리가 %1 방전되고 있습니다: 시스템 %2, 배터리 %3.</translation>
    </message>
    <message id="alert.charging_slowly.title">
        <source>Charging slowly</source>
        <translation>느린 충전</translation>
    </message>
    <message id="alert.charging_slowly.body_five_volts">
        <source>The USB-C source supplies only %1, so the battery charges slowly: adapter %2, system %3, battery %4.</source>
        <translation>USB-C 전원이 %1만 공급하여 배터리가 느리게 충전됩니다: 어댑터 %2, 시스템 %3, 배터리 %4.</translation>
    </message>
    <message id="alert.charging_slowly.body_adapter">
        <source>The adapter supplies less than the system drew on average %1, so the battery charges slowly: adapter %2, system %3.</source>
        <translation>어댑터 공급 전력이 %1 시스템 평균 소비 전력보다 적어 배터리가 느리게 충전됩니다: 어댑터 %2, 시스템 %3.</translation>
    </message>
    <message id="alert.battery_hot.title">
        <source>Battery hot</source>
        <translation>배터리 과열</translation>
    </message>
    <message id="alert.battery_hot.body">
        <source>The battery is at %1, at or above the limit of %2.</source>
        <translation>배터리 온도 %1: 한도 %2 이상입니다.</translation>
    </message>
    <message id="alert.battery_hot.body_charging">
        <source>The battery has been at %1 or warmer %2 while charging: now %3.</source>
        <translation>충전 중 배터리 온도가 %1 이상인 상태가 %2 계속되었습니다: 현재 %3.</translation>
    </message>
    <message id="alert.cells_out_of_balance.title">
        <source>Battery cells out of balance</source>
        <translation>배터리 셀 불균형</translation>
    </message>
    <message id="alert.cells_out_of_balance.body">
        <source>The cell voltages have been more than %1 apart %2 at rest: now %3 apart (%4 to %5).</source>
        <translation>대기 중 셀 전압 차이 %1 초과 상태가 %2 계속되었습니다: 현재 차이 %3(%4~%5).</translation>
    </message>
    <message id="alert.charge_level_reached.title">
        <source>Charge level reached</source>
        <translation>충전 레벨 도달</translation>
    </message>
    <message id="alert.charge_level_reached.body">
        <source>The battery has reached the chosen level of %1.</source>
        <translation>배터리가 선택한 레벨인 %1에 도달했습니다.</translation>
    </message>
    <message id="alert.for_minutes" numerus="yes">
        <source>for %Ln minutes</source>
        <translation>
            <numerusform>%Ln분 동안</numerusform>
        </translation>
    </message>
    <message id="alert.over_last_minutes" numerus="yes">
        <source>over the last %Ln minutes</source>
        <translation>
            <numerusform>최근 %Ln분간</numerusform>
        </translation>
    </message>
    <message id="alert.active_several" numerus="yes">
        <source>%1 and %Ln more</source>
        <translation>
            <numerusform>%1 외 %Ln건</numerusform>
        </translation>
    </message>
    <message id="alerts.title">
        <source>Alerts</source>
        <translation>알림</translation>
    </message>
    <message id="alerts.caption" numerus="yes">
        <source>Each alert is shown once and repeated at most every %Ln minutes while it holds.</source>
        <translation>
            <numerusform>각 알림은 한 번 표시되며, 상태가 계속되면 최소 %Ln분 간격으로 반복됩니다.</numerusform>
        </translation>
    </message>
    <message id="alerts.hot_while_charging">
        <source>While charging, above</source>
        <translation>충전 중 기준 온도</translation>
    </message>
    <message id="alerts.hot_any_time">
        <source>At any time, above</source>
        <translation>평상시 기준 온도</translation>
    </message>
    <message id="alerts.notifications_denied">
        <source>Notifications are turned off for Ferrow in the system&apos;s settings</source>
        <translation>시스템 설정에서 Ferrow의 알림이 꺼져 있습니다</translation>
    </message>
    <message id="section.applications">
        <source>Applications</source>
        <translation>앱</translation>
    </message>
    <message id="apps.panel_title">
        <source>Energy by application</source>
        <translation>앱별 에너지</translation>
    </message>
    <message id="apps.popover_title">
        <source>Most energy this session</source>
        <translation>이번 세션에서 에너지를 가장 많이 쓴 앱</translation>
    </message>
    <message id="apps.popover_title_since_start">
        <source>Most energy since Ferrow started</source>
        <translation>Ferrow 시작 이후 에너지 사용 상위</translation>
    </message>
    <message id="apps.popover_none">
        <source>Nothing measured yet this session</source>
        <translation>이번 세션에서 아직 측정된 것이 없습니다</translation>
    </message>
    <message id="apps.popover_none_since_start">
        <source>Nothing measured yet</source>
        <translation>아직 측정된 항목이 없습니다</translation>
    </message>
    <message id="apps.period">
        <source>Period</source>
        <translation>기간</translation>
    </message>
    <message id="apps.period_session">
        <source>Session</source>
        <translation>세션</translation>
    </message>
    <message id="apps.period_today">
        <source>Today</source>
        <translation>오늘</translation>
    </message>
    <message id="apps.period_7_days">
        <source>7 days</source>
        <translation>7일</translation>
    </message>
    <message id="apps.period_30_days">
        <source>30 days</source>
        <translation>30일</translation>
    </message>
    <message id="apps.covered">
        <source>Over %1</source>
        <translation>%1 동안</translation>
    </message>
    <message id="apps.column_application">
        <source>Application</source>
        <translation>앱</translation>
    </message>
    <message id="apps.column_energy">
        <source>Energy</source>
        <translation>에너지</translation>
    </message>
    <message id="apps.column_mean_power">
        <source>Mean power</source>
        <translation>평균 전력</translation>
    </message>
    <message id="apps.column_share">
        <source>Share</source>
        <translation>비율</translation>
    </message>
    <message id="apps.column_cpu_time">
        <source>CPU time</source>
        <translation>CPU 시간</translation>
    </message>
    <message id="apps.column_cpu_share">
        <source>Share of CPU time</source>
        <translation>CPU 시간 비율</translation>
    </message>
    <message id="apps.sort_by_energy">
        <source>Sort by energy</source>
        <translation>에너지순으로 정렬</translation>
    </message>
    <message id="apps.sort_by_mean_power">
        <source>Sort by mean power</source>
        <translation>평균 전력순으로 정렬</translation>
    </message>
    <message id="apps.self">
        <source>Ferrow (this app)</source>
        <translation>Ferrow(이 앱)</translation>
    </message>
    <message id="apps.since_started">
        <source>since it started</source>
        <translation>시작 이후</translation>
    </message>
    <message id="apps.others">
        <source>System and other users</source>
        <translation>시스템 및 다른 사용자</translation>
    </message>
    <message id="apps.rest">
        <source>Other applications</source>
        <translation>기타 앱</translation>
    </message>
    <message id="apps.method_measured">
        <source>Measured by the system for each application</source>
        <translation>시스템이 앱별로 측정</translation>
    </message>
    <message id="apps.method_chip_share">
        <source>Estimated: the processor&apos;s measured energy shared by each application&apos;s CPU time</source>
        <translation>추정: 프로세서의 측정 에너지를 각 앱의 CPU 시간으로 나눔</translation>
    </message>
    <message id="apps.method_system_share">
        <source>Estimated: the processor&apos;s share of the system&apos;s measured power, shared by CPU time</source>
        <translation>추정: 시스템 측정 전력 중 프로세서 몫을 CPU 시간으로 나눔</translation>
    </message>
    <message id="apps.method_cpu_time">
        <source>CPU time only: this machine does not measure energy</source>
        <translation>CPU 시간만: 이 컴퓨터는 에너지를 측정하지 않습니다</translation>
    </message>
    <message id="apps.estimated_legend">
        <source>%1 marks an estimate</source>
        <translation>%1 표시는 추정값입니다</translation>
    </message>
    <message id="apps.estimated">
        <source>estimated</source>
        <translation>추정</translation>
    </message>
    <message id="apps.measured">
        <source>measured</source>
        <translation>측정</translation>
    </message>
    <message id="apps.none">
        <source>Nothing recorded for this period yet</source>
        <translation>이 기간에 아직 기록된 것이 없습니다</translation>
    </message>
    <message id="apps.history_off">
        <source>Ferrow keeps no history, so only the current session has a list. Turn on “Keep energy history” under History to keep the days to come.</source>
        <translation>Ferrow가 기록을 보관하지 않으므로 현재 세션에만 목록이 있습니다. 앞으로의 날을 남기려면 기록에서 ‘에너지 기록 보관’을 켜세요.</translation>
    </message>
    <message id="apps.reading">
        <source>Reading…</source>
        <translation>읽는 중…</translation>
    </message>
    <message id="apps.seconds" numerus="yes">
        <source>%Ln s</source>
        <translation>
            <numerusform>%Ln초</numerusform>
        </translation>
    </message>
    <message id="accessibility.percent">
        <source>%1 percent</source>
        <translation>%1퍼센트</translation>
    </message>
    <message id="accessibility.watt_hours">
        <source>%1 watt-hours</source>
        <translation>%1와트시</translation>
    </message>
    <message id="accessibility.milliwatt_hours" numerus="yes">
        <source>%Ln mWh</source>
        <translation>
            <numerusform>%Ln밀리와트시</numerusform>
        </translation>
    </message>
</context>
</TS>
