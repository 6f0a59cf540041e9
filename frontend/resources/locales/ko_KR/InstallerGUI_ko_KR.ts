<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko_KR" sourcelanguage="en_US">
<context>
    <name>Vorlan::InstallerMediator</name>
    <message>
        <source>Installation failed. Try to select another location and run install again.</source>
        <translation>설치하지 못했습니다. 다른 위치를 선택하고 설치를 다시 실행하십시오.</translation>
    </message>
    <message>
        <source>Checking hardware acceleration...</source>
        <translation>하드웨어 가속을 확인하는 중...</translation>
    </message>
    <message>
        <source>Downloading additional data...</source>
        <translation>추가 데이터를 다운로드하는 중...</translation>
    </message>
    <message>
        <source>Uninstalling a previous version</source>
        <translation>이전 버전을 제거하는 중</translation>
    </message>
    <message>
        <source>To uninstall %1, first uninstall these programs:</source>
        <translation>%1을(를) 제거하려면 먼저 다음 프로그램을 제거하십시오:</translation>
    </message>
    <message>
        <source>A Setup or Uninstall window is currently running and needs to be closed before starting %1.</source>
        <translation>설치 또는 제거 창이 실행 중입니다. %1을(를) 시작하기 전에 닫아야 합니다.</translation>
    </message>
    <message>
        <source>Failed to copy %1. Wrong path or no permission</source>
        <translation>%1을(를) 복사하지 못했습니다. 경로가 잘못되었거나 권한이 없습니다</translation>
    </message>
    <message>
        <source>Failed to move file %1 to %2. Wrong path or no permission</source>
        <translation>%1 파일을 %2(으)로 이동하지 못했습니다. 경로가 잘못되었거나 권한이 없습니다</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>프로그램</translation>
    </message>
    <message>
        <source>Uninstall %1</source>
        <comment>Delete app from start menu</comment>
        <translation>%1 제거</translation>
    </message>
    <message>
        <source>Site %1</source>
        <comment>Site link in menu</comment>
        <translation>%1 사이트</translation>
    </message>
    <message>
        <source>Convert to</source>
        <translation>다음으로 변환</translation>
    </message>
    <message>
        <source>Open with</source>
        <translation>연결 프로그램</translation>
    </message>
</context>
<context>
    <name>Installer</name>
    <message>
        <source>Convert Video and Audio</source>
        <translation>비디오 및 오디오 변환</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Can&apos;t access the specified destination folder</source>
        <translation>지정한 대상 폴더에 액세스할 수 없습니다</translation>
    </message>
    <message>
        <source>There is not enough disk space</source>
        <translation>디스크 공간이 부족합니다</translation>
    </message>
</context>
</TS>
