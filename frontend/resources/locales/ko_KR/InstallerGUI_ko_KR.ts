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
<context>
    <name>Wizard</name>
    <message>
        <source>The installation for all users needs the rights of an administrator: start the program as one.</source>
        <translation>모든 사용자를 위해 설치하려면 관리자 권한이 필요합니다. 관리자 권한으로 프로그램을 시작하세요.</translation>
    </message>
    <message>
        <source>The part with administrator rights has ended without a result. Start the program as an administrator.</source>
        <translation>관리자 권한으로 실행되는 부분이 결과 없이 종료되었습니다. 관리자 권한으로 프로그램을 시작하세요.</translation>
    </message>
    <message>
        <source>The setup is damaged. Download it again.</source>
        <translation>설치 프로그램이 손상되었습니다. 다시 다운로드하세요.</translation>
    </message>
    <message>
        <source>&amp;Folder:</source>
        <translation>폴더(&amp;F):</translation>
    </message>
    <message>
        <source>B&amp;rowse...</source>
        <translation>찾아보기(&amp;R)...</translation>
    </message>
    <message>
        <source>Choose a folder</source>
        <translation>폴더 선택</translation>
    </message>
    <message>
        <source>Will be installed in: %1</source>
        <translation>설치될 위치: %1</translation>
    </message>
    <message>
        <source>Space needed: %1. Free there: %2.</source>
        <translation>필요한 공간: %1, 사용 가능한 공간: %2</translation>
    </message>
    <message>
        <source>Space needed: %1.</source>
        <translation>필요한 공간: %1</translation>
    </message>
    <message>
        <source>The folder is being checked...</source>
        <translation>폴더를 확인하는 중...</translation>
    </message>
    <message>
        <source>There is no drive %1 on this computer.</source>
        <translation>이 컴퓨터에는 %1 드라이브가 없습니다.</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 설치 중</translation>
    </message>
    <message>
        <source>Install %1</source>
        <translation>%1 설치</translation>
    </message>
    <message>
        <source>Update %1 from %2 to %3</source>
        <translation>%1을(를) %2에서 %3(으)로 업데이트</translation>
    </message>
    <message>
        <source>%1 is installed already</source>
        <translation>%1이(가) 이미 설치되어 있습니다</translation>
    </message>
    <message>
        <source>The newer version %1 is installed</source>
        <translation>더 새로운 버전 %1이(가) 설치되어 있습니다</translation>
    </message>
    <message>
        <source>You can install right away, or look at the options first.</source>
        <translation>바로 설치하거나 먼저 옵션을 볼 수 있습니다.</translation>
    </message>
    <message>
        <source>Your settings and your own files are kept.</source>
        <translation>설정과 사용자 파일은 유지됩니다.</translation>
    </message>
    <message>
        <source>For all users, in %1</source>
        <translation>모든 사용자용, %1</translation>
    </message>
    <message>
        <source>For you, in %1</source>
        <translation>현재 사용자용, %1</translation>
    </message>
    <message>
        <source>You can also &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>&lt;a href=&quot;remove&quot;&gt;제거&lt;/a&gt;할 수도 있습니다.</translation>
    </message>
    <message>
        <source>There is another installation in %1. You can &lt;a href=&quot;remove&quot;&gt;remove it&lt;/a&gt;.</source>
        <translation>%1에 다른 설치가 있습니다. &lt;a href=&quot;remove&quot;&gt;제거&lt;/a&gt;할 수 있습니다.</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>&amp;Close them and go on</source>
        <translation>닫고 계속(&amp;C)</translation>
    </message>
    <message>
        <source>Close these programs first</source>
        <translation>먼저 다음 프로그램을 닫으세요</translation>
    </message>
    <message>
        <source>They use files that are to be changed. Save your work in them.</source>
        <translation>변경할 파일을 사용하고 있습니다. 작업 내용을 저장하세요.</translation>
    </message>
    <message>
        <source>Each is asked to close. What does not close is ended only if you agree.</source>
        <translation>각 프로그램에 종료를 요청합니다. 닫히지 않는 프로그램은 동의할 때만 강제로 종료합니다.</translation>
    </message>
    <message>
        <source>Waiting until the programs have closed...</source>
        <translation>프로그램이 닫히기를 기다리는 중...</translation>
    </message>
    <message>
        <source>They are parts of Windows, which cannot be closed from here: sign out or restart the computer, and try again.</source>
        <translation>Windows의 일부이므로 여기에서 닫을 수 없습니다. 로그아웃하거나 컴퓨터를 다시 시작한 후 다시 시도하세요.</translation>
    </message>
    <message>
        <source>%1, process %2</source>
        <translation>%1, 프로세스 %2</translation>
    </message>
    <message>
        <source>%1 (without a window)</source>
        <translation>%1(창 없음)</translation>
    </message>
    <message>
        <source>%1 (a part of the system)</source>
        <translation>%1(시스템 구성 요소)</translation>
    </message>
    <message>
        <source>Not closed: %1. End them now? What is not saved in them is lost.</source>
        <translation>닫히지 않음: %1. 지금 강제로 종료할까요? 저장하지 않은 내용은 사라집니다.</translation>
    </message>
    <message>
        <source>U&amp;pdate</source>
        <translation>업데이트(&amp;P)</translation>
    </message>
    <message>
        <source>R&amp;epair</source>
        <translation>복구(&amp;E)</translation>
    </message>
    <message>
        <source>Re&amp;place</source>
        <translation>바꾸기(&amp;P)</translation>
    </message>
    <message>
        <source>&amp;Options</source>
        <translation>옵션(&amp;O)</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>마침(&amp;F)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>&amp;Try again</source>
        <translation>다시 시도(&amp;T)</translation>
    </message>
    <message>
        <source>The installation cannot be stopped now: files and settings are being changed. Close the window when it has ended.</source>
        <translation>파일과 설정을 변경하는 중이므로 지금은 설치를 중단할 수 없습니다. 끝난 후에 창을 닫으세요.</translation>
    </message>
    <message>
        <source>Cancel the installation of %1?</source>
        <translation>%1 설치를 취소할까요?</translation>
    </message>
    <message>
        <source>Cancelled: nothing was installed.</source>
        <translation>취소되었습니다. 아무것도 설치되지 않았습니다.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was changed. Close the program that uses it and try again.</source>
        <translation>%1은(는) 프로그램의 일부가 아니며 옮길 수 없습니다. 아무것도 변경되지 않았습니다. 이 파일을 사용하는 프로그램을 닫고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Replace the newer version %1 with version %2?</source>
        <translation>더 새로운 버전 %1을(를) 버전 %2(으)로 바꾸시겠습니까?</translation>
    </message>
    <message>
        <source>The file %1 is missing. Put it back beside the setup program.</source>
        <translation>%1 파일이 없습니다. 설치 프로그램 옆에 다시 넣어 주세요.</translation>
    </message>
    <message>
        <source>%1 is installed</source>
        <translation>%1이(가) 설치되었습니다</translation>
    </message>
    <message>
        <source>%1 could not be installed</source>
        <translation>%1을(를) 설치하지 못했습니다</translation>
    </message>
    <message>
        <source>%1 is in use by %2.</source>
        <translation>%2에서 %1을(를) 사용하고 있습니다.</translation>
    </message>
    <message>
        <source>Close the program, and try again.</source>
        <translation>프로그램을 닫고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>%1 is running and cannot be ended.</source>
        <translation>%1이(가) 실행 중이며 종료할 수 없습니다.</translation>
    </message>
    <message>
        <source>The file %1 is damaged or cut off.</source>
        <translation>%1 파일이 손상되었거나 불완전합니다.</translation>
    </message>
    <message>
        <source>Download the setup again.</source>
        <translation>설치 프로그램을 다시 다운로드하세요.</translation>
    </message>
    <message>
        <source>The drive with %1 is full: %2 are free.</source>
        <translation>%1의 드라이브가 가득 찼습니다. 사용 가능한 공간: %2</translation>
    </message>
    <message>
        <source>Make sure that %1 are free there, or choose another folder.</source>
        <translation>그 드라이브에 %1의 공간을 확보하거나 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>The drive with %1 reports an error while files are written.</source>
        <translation>%1의 드라이브에서 파일을 쓰는 중 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>Check the drive, or choose another folder.</source>
        <translation>드라이브를 확인하거나 다른 폴더를 선택하세요.</translation>
    </message>
    <message>
        <source>The file %1 cannot be replaced: it is write-protected or in use.</source>
        <translation>%1 파일을 바꿀 수 없습니다. 쓰기 금지되어 있거나 사용 중입니다.</translation>
    </message>
    <message>
        <source>Nothing can be created in the folder %1: the rights to it are missing.</source>
        <translation>%1 폴더에 아무것도 만들 수 없습니다. 필요한 권한이 없습니다.</translation>
    </message>
    <message>
        <source>Choose another folder, or start the setup as an administrator.</source>
        <translation>다른 폴더를 선택하거나 설치 프로그램을 관리자 권한으로 실행하세요.</translation>
    </message>
    <message>
        <source>%1 is a file where a folder is needed.</source>
        <translation>폴더가 필요한 위치에 %1 파일이 있습니다.</translation>
    </message>
    <message>
        <source>Move the file to another place, and try again.</source>
        <translation>파일을 다른 위치로 옮기고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>The uninstaller of the previous version has failed.</source>
        <translation>이전 버전의 제거 프로그램이 실패했습니다.</translation>
    </message>
    <message>
        <source>Uninstall the previous version yourself, and try again.</source>
        <translation>이전 버전을 직접 제거하고 다시 시도하세요.</translation>
    </message>
    <message>
        <source>Nothing was changed.</source>
        <translation>아무것도 변경되지 않았습니다.</translation>
    </message>
    <message>
        <source>A part of the previous version may already be removed.</source>
        <translation>이전 버전의 일부가 이미 제거되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>The installation in %1 is incomplete: repeat it to use the program.</source>
        <translation>%1의 설치가 완료되지 않았습니다. 프로그램을 사용하려면 다시 설치하세요.</translation>
    </message>
    <message>
        <source>The files are in %1, but the program is not completely registered.</source>
        <translation>파일은 %1에 있지만 프로그램 등록이 완료되지 않았습니다.</translation>
    </message>
    <message>
        <source>Log file: %1</source>
        <translation>로그 파일: %1</translation>
    </message>
    <message>
        <source>Open &amp;log</source>
        <translation>로그 열기(&amp;L)</translation>
    </message>
    <message>
        <source>The log file %1 cannot be opened.</source>
        <translation>로그 파일 %1을(를) 열 수 없습니다.</translation>
    </message>
    <message>
        <source>Everything is in its place. You can begin right away.</source>
        <translation>모든 준비가 끝났습니다. 바로 시작할 수 있습니다.</translation>
    </message>
    <message>
        <source>Please note:</source>
        <translation>참고하십시오:</translation>
    </message>
    <message>
        <source>Your file was moved, because the program has one of that name: %1</source>
        <translation>프로그램에 같은 이름의 파일이 있어 사용자의 파일을 옮겼습니다: %1</translation>
    </message>
    <message>
        <source>How to install</source>
        <translation>설치 옵션</translation>
    </message>
    <message>
        <source>Install for</source>
        <translation>설치 대상</translation>
    </message>
    <message>
        <source>Only for &amp;me</source>
        <translation>나만 사용(&amp;M)</translation>
    </message>
    <message>
        <source>&amp;All users of this computer (administrator rights needed)</source>
        <translation>이 컴퓨터의 모든 사용자(관리자 권한 필요)(&amp;A)</translation>
    </message>
    <message>
        <source>Also</source>
        <translation>추가 항목</translation>
    </message>
    <message>
        <source>Create &amp;shortcuts on the desktop and in the Start menu</source>
        <translation>바탕 화면과 시작 메뉴에 바로 가기 만들기(&amp;S)</translation>
    </message>
    <message>
        <source>Offer &quot;Convert to&quot; and &quot;Open with&quot; in the &amp;context menu of media files</source>
        <translation>미디어 파일의 상황에 맞는 메뉴에 &quot;변환&quot;과 &quot;연결 프로그램&quot; 표시(&amp;C)</translation>
    </message>
    <message>
        <source>Start automatically when I &amp;log on</source>
        <translation>로그온할 때 자동으로 시작(&amp;L)</translation>
    </message>
    <message>
        <source>Send anonymous &amp;usage statistics to improve the program</source>
        <translation>프로그램 개선을 위해 익명 사용 통계 보내기(&amp;U)</translation>
    </message>
    <message>
        <source>Minimize</source>
        <translation>최소화</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행률</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>세부 정보</translation>
    </message>
    <message>
        <source>Hide &amp;details</source>
        <translation>세부 정보 숨기기(&amp;D)</translation>
    </message>
    <message>
        <source>Show &amp;details</source>
        <translation>세부 정보 표시(&amp;D)</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비하는 중...</translation>
    </message>
    <message>
        <source>Step %1 of %2: %3</source>
        <translation>%1/%2단계: %3</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>%1 per second</source>
        <translation>초당 %1</translation>
    </message>
    <message>
        <source>About %1 s left</source>
        <translation>약 %1초 남음</translation>
    </message>
    <message>
        <source>About %1 min left</source>
        <translation>약 %1분 남음</translation>
    </message>
    <message>
        <source>&amp;Start %1 now</source>
        <translation>지금 %1 시작(&amp;S)</translation>
    </message>
    <message>
        <source>Removing the previous version...</source>
        <translation>이전 버전을 제거하는 중...</translation>
    </message>
    <message>
        <source>Placing the files...</source>
        <translation>파일을 배치하는 중...</translation>
    </message>
    <message>
        <source>Registering the program...</source>
        <translation>프로그램을 등록하는 중...</translation>
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
        <source>Finishing...</source>
        <translation>마무리하는 중...</translation>
    </message>
    <message>
        <source>Uninstalling %1</source>
        <translation>%1 제거 중</translation>
    </message>
    <message>
        <source>%1 was uninstalled</source>
        <translation>%1이(가) 제거되었습니다</translation>
    </message>
    <message>
        <source>The copy of %1 was deleted</source>
        <translation>%1의 복사본을 삭제했습니다</translation>
    </message>
    <message>
        <source>&lt;a href=&quot;survey&quot;&gt;Tell us why you uninstalled it&lt;/a&gt;</source>
        <translation>&lt;a href=&quot;survey&quot;&gt;제거한 이유를 알려 주세요&lt;/a&gt;</translation>
    </message>
    <message>
        <source>%1 could not be uninstalled</source>
        <translation>%1을(를) 제거하지 못했습니다</translation>
    </message>
    <message>
        <source>&amp;Language:</source>
        <translation>언어(&amp;L):</translation>
    </message>
    <message>
        <source>By installing you accept the &lt;a href=&quot;licence&quot;&gt;licence agreement&lt;/a&gt; and the &lt;a href=&quot;privacy&quot;&gt;privacy policy&lt;/a&gt;.</source>
        <translation>설치하면 &lt;a href=&quot;licence&quot;&gt;사용권 계약&lt;/a&gt;과 &lt;a href=&quot;privacy&quot;&gt;개인정보 처리방침&lt;/a&gt;에 동의하는 것입니다.</translation>
    </message>
</context>
<context>
    <name>Uninstaller</name>
    <message>
        <source>The program is installed in %1, not in %2: nothing was deleted. Start the uninstaller there.</source>
        <translation>프로그램은 %2이(가) 아니라 %1에 설치되어 있습니다. 아무것도 삭제되지 않았습니다. 그곳의 제거 프로그램을 시작하세요.</translation>
    </message>
    <message>
        <source>The program is not installed in %1: nothing was deleted. Delete the folder by hand if it is not needed.</source>
        <translation>프로그램이 %1에 설치되어 있지 않습니다. 아무것도 삭제되지 않았습니다. 필요 없는 폴더라면 직접 삭제하세요.</translation>
    </message>
    <message>
        <source>The name of the folder %1 is not %2, so files of other programs may be in it: nothing was deleted.</source>
        <translation>%1 폴더의 이름이 %2이(가) 아니므로 다른 프로그램의 파일이 있을 수 있습니다. 아무것도 삭제되지 않았습니다.</translation>
    </message>
    <message>
        <source>Cancelled: nothing was deleted.</source>
        <translation>취소되었습니다. 아무것도 삭제되지 않았습니다.</translation>
    </message>
    <message>
        <source>A part of the program may already be removed.</source>
        <translation>프로그램의 일부가 이미 제거되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>The program is installed for all users. Uninstalling it needs the rights of an administrator: start the uninstaller as one.</source>
        <translation>프로그램이 모든 사용자를 위해 설치되어 있습니다. 제거하려면 관리자 권한이 필요합니다. 관리자 권한으로 제거 프로그램을 시작하세요.</translation>
    </message>
    <message>
        <source>%1 is not part of the program and cannot be moved out of the way: nothing was deleted. Close the program that uses it and try again.</source>
        <translation>%1은(는) 프로그램의 일부가 아니며 옮길 수 없습니다. 아무것도 삭제되지 않았습니다. 이 파일을 사용하는 프로그램을 닫고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Uninstall %1?</source>
        <translation>%1을(를) 제거할까요?</translation>
    </message>
    <message>
        <source>%1 is not installed here</source>
        <translation>%1은(는) 여기에 설치되어 있지 않습니다</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed. Your own files stay.</source>
        <translation>프로그램, 바로 가기 및 Windows 항목이 제거됩니다. 사용자 파일은 남습니다.</translation>
    </message>
    <message>
        <source>The program, its shortcuts and its entries in Windows are removed, and the whole folder.</source>
        <translation>프로그램, 바로 가기, Windows 항목 및 폴더 전체가 제거됩니다.</translation>
    </message>
    <message>
        <source>Nothing in this folder is known to be of the program.</source>
        <translation>이 폴더에는 프로그램의 것으로 알려진 파일이 없습니다.</translation>
    </message>
    <message>
        <source>A copy of the program is in %1: %2 files. They can be deleted. Other files in the folder stay, and so does the installation.</source>
        <translation>%1에 프로그램의 복사본이 있습니다: 파일 %2개. 이 파일은 삭제할 수 있습니다. 폴더의 다른 파일과 설치는 그대로 남습니다.</translation>
    </message>
    <message>
        <source>&amp;Delete my settings</source>
        <translation>내 설정 삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Not of the program, and left in the folder:</source>
        <translation>프로그램의 것이 아니며 폴더에 남음:</translation>
    </message>
    <message>
        <source>Not of the program, and deleted with the folder:</source>
        <translation>프로그램의 것이 아니며 폴더와 함께 삭제됨:</translation>
    </message>
    <message>
        <source>&amp;Uninstall</source>
        <translation>제거(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Delete %1 files</source>
        <translation>파일 %1개 삭제(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Uninstall the installed one</source>
        <translation>설치된 프로그램 제거(&amp;U)</translation>
    </message>
    <message>
        <source>The uninstallation cannot be stopped now: files and settings are being removed. Close the window when it has ended.</source>
        <translation>파일과 설정을 제거하는 중이므로 지금은 중단할 수 없습니다. 끝난 후에 창을 닫으세요.</translation>
    </message>
    <message>
        <source>Thank you for having used it.</source>
        <translation>이용해 주셔서 감사합니다.</translation>
    </message>
    <message>
        <source>Left in %1:</source>
        <translation>%1에 남은 항목:</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
</context>
<context>
    <name>Vorlan::AlertBox</name>
    <message>
        <source>Retry</source>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
</context>
</TS>
